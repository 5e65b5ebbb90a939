#pragma once

#include <string>
#include <vector>

/// A small INI file read or written one value per call. Writing keeps every other section,
/// key, comment and blank line as it was, and replaces the file atomically.
class TWFIniFile {
public:
    explicit TWFIniFile(std::string path) : m_path(std::move(path)) {}

    std::string ReadString(const std::string& section, const std::string& key, const std::string& defaultValue) const;
    /// False with a reason when the file cannot be written; the old file is then intact.
    bool WriteString(const std::string& section, const std::string& key, const std::string& value,
                     std::string* error = nullptr);
    /// All keys of a section with their values, in file order.
    std::vector<std::pair<std::string, std::string>> ReadSection(const std::string& section) const;
    const std::string& Path() const { return m_path; }

private:
    std::string m_path;
};

using TWFIniKeys = std::vector<std::pair<std::string, std::string>>;
using TWFIniSections = std::vector<std::pair<std::string, TWFIniKeys>>;
/// Every section of an INI text with its keys, in file order; comments and blank lines are dropped.
TWFIniSections parseIniSections(const std::string& bytes);
/// The INI text of the sections, a blank line between them.
std::string formatIniSections(const TWFIniSections& sections);

/// The configuration directory: $WF_CONFIG_DIR, else $XDG_CONFIG_HOME/wrenfield, else
/// ~/.config/wrenfield, unless a host set it with SetWFConfigDirectory.
std::string WFConfigDirectory();
/// Overrides the configuration directory for this process (wfbuild --config-dir); empty restores the default.
void SetWFConfigDirectory(const std::string& directory);
/// Full path of the current user's settings INI file.
std::string GetWFUserIniFileName();
/// Full path of the options store.
std::string GetWFOptionsFileName();
