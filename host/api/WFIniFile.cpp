#include "WFIniFile.h"

#include "WFFiles.h"

#include <cstdlib>
#include <mutex>

namespace {

std::string trim(const std::string& text)
{
    const auto begin = text.find_first_not_of(" \t");
    if (begin == std::string::npos)
        return {};
    const auto end = text.find_last_not_of(" \t\r");
    return text.substr(begin, end - begin + 1);
}

std::vector<std::string> splitLines(const std::string& bytes)
{
    std::vector<std::string> lines;
    std::size_t start = 0;
    while (start < bytes.size()) {
        auto nl = bytes.find('\n', start);
        if (nl == std::string::npos)
            nl = bytes.size();
        std::string line = bytes.substr(start, nl - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(std::move(line));
        start = nl + 1;
    }
    return lines;
}

bool isSection(const std::string& line, std::string& name)
{
    const std::string t = trim(line);
    if (t.size() < 2 || t.front() != '[' || t.back() != ']')
        return false;
    name = trim(t.substr(1, t.size() - 2));
    return true;
}

bool isKey(const std::string& line, std::string& key, std::string& value)
{
    const std::string t = trim(line);
    if (t.empty() || t[0] == ';' || t[0] == '#')
        return false;
    const auto eq = line.find('=');
    if (eq == std::string::npos)
        return false;
    key = trim(line.substr(0, eq));
    value = line.substr(eq + 1);
    if (!value.empty() && value.back() == '\r')
        value.pop_back();
    return true;
}

std::mutex& configMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::string& configOverride()
{
    static std::string directory;
    return directory;
}

} // namespace

TWFIniDocument::TWFIniDocument(const std::string& bytes) : m_lines(splitLines(bytes)) {}

TWFIniKeys TWFIniDocument::Section(const std::string& section) const
{
    TWFIniKeys keys;
    bool inSection = false;
    bool seen = false;
    for (const auto& line : m_lines) {
        std::string name, key, value;
        if (isSection(line, name)) {
            if (seen)
                break;
            inSection = seen = name == section;
        } else if (inSection && isKey(line, key, value)) {
            keys.emplace_back(key, value);
        }
    }
    return keys;
}

void TWFIniDocument::Set(const std::string& section, const std::string& key, const std::string& value)
{
    const std::string entry = key + "=" + value;
    bool inSection = false;
    long sectionEnd = -1;
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        std::string name, k, v;
        if (isSection(m_lines[i], name)) {
            if (inSection)
                break;
            inSection = name == section;
            if (inSection)
                sectionEnd = static_cast<long>(i) + 1;
            continue;
        }
        if (!inSection)
            continue;
        if (isKey(m_lines[i], k, v) && k == key) {
            m_lines[i] = entry;
            return;
        }
        // New keys go after the section's last line that is not blank.
        if (!trim(m_lines[i]).empty())
            sectionEnd = static_cast<long>(i) + 1;
    }
    if (sectionEnd >= 0) {
        m_lines.insert(m_lines.begin() + sectionEnd, entry);
        return;
    }
    if (!m_lines.empty() && !trim(m_lines.back()).empty())
        m_lines.emplace_back();
    m_lines.push_back("[" + section + "]");
    m_lines.push_back(entry);
}

std::string TWFIniDocument::Text() const
{
    std::string out;
    for (const auto& line : m_lines)
        out += line + "\n";
    return out;
}

bool checkIniEntry(const std::string& section, const std::string& key, const std::string& value, std::string& error)
{
    const auto breaks = [](const std::string& text) { return text.find_first_of("\r\n") != std::string::npos; };
    if (section.empty() || breaks(section) || section.find(']') != std::string::npos)
        error = "the section name \"" + section + "\" cannot be stored (it is empty or holds a line break or ']')";
    else if (trim(key).empty() || key != trim(key) || breaks(key) || key.find('=') != std::string::npos
             || key.front() == ';' || key.front() == '#' || key.front() == '[')
        error = "the key \"" + key + "\" cannot be stored (it is empty, holds a line break or '=', has blanks around it"
                " or starts like a comment or section)";
    else if (breaks(value))
        error = "the value of " + section + "." + key + " holds a line break, which an INI value cannot hold";
    else
        return true;
    return false;
}

bool updateIniFile(const std::string& path, const std::function<bool(TWFIniDocument&, std::string&)>& change,
                   std::string& error)
{
    // Both INI files of the host live in the configuration folder.
    if (const std::string folder = parentDirectory(resolveLinks(path)); !makeDirectories(folder)) {
        error = "cannot create the configuration folder \"" + folder + "\"";
        return false;
    }
    // Nobody holds the lock for longer than one write: a holder that does is stuck, and is named.
    const TWFFileLock lock(path, kWFIniLockWaitSeconds);
    if (!lock.locked()) {
        error = lock.error();
        return false;
    }
    std::string bytes;
    if (fileExists(path) && !readWholeFile(path, bytes, error))
        return false;
    TWFIniDocument document(bytes);
    if (!change(document, error))
        return false;
    return writeFileCreatingFolder(path, document.Text(), error);
}

TWFIniKeys TWFIniFile::ReadSection(const std::string& section) const
{
    std::string bytes;
    std::string error;
    if (!readWholeFile(m_path, bytes, error))
        return {};
    return TWFIniDocument(bytes).Section(section);
}

std::string TWFIniFile::ReadString(const std::string& section, const std::string& key,
                                   const std::string& defaultValue) const
{
    for (const auto& [name, value] : ReadSection(section))
        if (name == key)
            return value;
    return defaultValue;
}

bool TWFIniFile::WriteString(const std::string& section, const std::string& key, const std::string& value,
                             std::string* error)
{
    std::string reason;
    const bool ok = checkIniEntry(section, key, value, reason)
        && updateIniFile(m_path, [&](TWFIniDocument& document, std::string&) {
               document.Set(section, key, value);
               return true;
           }, reason);
    if (!ok && error)
        *error = reason;
    return ok;
}

std::string WFConfigDirectory()
{
    {
        std::lock_guard lock(configMutex());
        if (!configOverride().empty())
            return configOverride();
    }
    if (const char* dir = std::getenv("WF_CONFIG_DIR"); dir && *dir)
        return dir;
    if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg && *xdg)
        return std::string(xdg) + "/wrenfield";
    const char* home = std::getenv("HOME");
    return std::string(home ? home : ".") + "/.config/wrenfield";
}

void SetWFConfigDirectory(const std::string& directory)
{
    std::lock_guard lock(configMutex());
    configOverride() = directory;
}

std::string GetWFUserIniFileName()
{
    return WFConfigDirectory() + "/user.ini";
}

std::string GetWFOptionsFileName()
{
    return WFConfigDirectory() + "/options.ini";
}
