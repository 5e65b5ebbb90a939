#pragma once

#include "WFExport.h"

#include <functional>
#include <string>
#include <utility>
#include <vector>

using TWFIniKeys = std::vector<std::pair<std::string, std::string>>;

/// The text of an INI file, edited in place: setting a value keeps every other section, key,
/// comment and blank line as it was. This is the one INI writer of the host.
class WF_API TWFIniDocument {
public:
    explicit TWFIniDocument(const std::string& bytes = {});

    /// All keys of the first section of that name with their values, in file order.
    TWFIniKeys Section(const std::string& name) const;
    /// Replaces the key's value, or appends the key to its section (created at the end when absent).
    void Set(const std::string& section, const std::string& key, const std::string& value);
    std::string Text() const;

private:
    std::vector<std::string> m_lines;
};

/// Whether a value can be stored under section and key so that it reads back unchanged: no
/// line break anywhere, no `=` in a key, no `]` in a section. False with a reason.
WF_API bool checkIniEntry(const std::string& section, const std::string& key, const std::string& value,
                          std::string& error);

/// How long a writer waits for an INI file's lock before it gives up, naming the holder.
inline constexpr int kWFIniLockWaitSeconds = 5;

/// Reads the INI file at path (a missing file is empty), lets change edit it and writes it
/// back atomically, creating the folder; the whole cycle holds the file's lock, so that
/// concurrent writers on different keys all keep their change. When change returns false
/// nothing is written and its reason is returned.
WF_API bool updateIniFile(const std::string& path, const std::function<bool(TWFIniDocument&, std::string&)>& change,
                          std::string& error);

/// A small INI file read or written one value per call.
class WF_API TWFIniFile {
public:
    explicit TWFIniFile(std::string path) : m_path(std::move(path)) {}

    std::string ReadString(const std::string& section, const std::string& key, const std::string& defaultValue) const;
    /// False with a reason when the entry cannot be stored or the file cannot be written;
    /// the old file is then intact.
    bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                     std::string* error = nullptr);
    /// All keys of a section with their values, in file order.
    TWFIniKeys ReadSection(const std::string& section) const;
    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

/// The configuration directory: $WF_CONFIG_DIR, else $XDG_CONFIG_HOME/wrenfield, else
/// ~/.config/wrenfield, unless a host set it with SetWFConfigDirectory.
WF_API std::string WFConfigDirectory();
/// Overrides the configuration directory for this process (wfbuild --config-dir); empty restores the default.
WF_API void SetWFConfigDirectory(const std::string& directory);
/// Full path of the current user's settings INI file.
WF_API std::string GetWFUserIniFileName();
/// Full path of the options store.
WF_API std::string GetWFOptionsFileName();
