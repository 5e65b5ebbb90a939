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

std::vector<std::pair<std::string, std::string>> TWFIniFile::ReadSection(const std::string& section) const
{
    std::string bytes;
    std::string error;
    if (!readWholeFile(m_path, bytes, error))
        return {};
    for (auto& [name, keys] : parseIniSections(bytes))
        if (name == section)
            return keys;
    return {};
}

TWFIniSections parseIniSections(const std::string& bytes)
{
    TWFIniSections sections;
    for (const auto& line : splitLines(bytes)) {
        std::string name, key, value;
        if (isSection(line, name))
            sections.emplace_back(name, TWFIniKeys{});
        else if (!sections.empty() && isKey(line, key, value))
            sections.back().second.emplace_back(key, value);
    }
    return sections;
}

std::string formatIniSections(const TWFIniSections& sections)
{
    std::string out;
    for (const auto& [name, keys] : sections) {
        if (!out.empty())
            out += "\n";
        out += "[" + name + "]\n";
        for (const auto& [key, value] : keys)
            out += key + "=" + value + "\n";
    }
    return out;
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
    std::string bytes;
    std::string readError;
    if (fileExists(m_path) && !readWholeFile(m_path, bytes, readError)) {
        if (error)
            *error = readError;
        return false;
    }
    std::vector<std::string> lines = splitLines(bytes);
    const std::string entry = key + "=" + value;
    bool inSection = false;
    long sectionEnd = -1;
    bool written = false;
    for (std::size_t i = 0; i < lines.size() && !written; ++i) {
        std::string name, k, v;
        if (isSection(lines[i], name)) {
            if (inSection)
                break;
            inSection = name == section;
            if (inSection)
                sectionEnd = static_cast<long>(i) + 1;
            continue;
        }
        if (!inSection)
            continue;
        if (isKey(lines[i], k, v) && k == key) {
            lines[i] = entry;
            written = true;
        } else if (!trim(lines[i]).empty()) {
            sectionEnd = static_cast<long>(i) + 1;
        }
    }
    if (!written) {
        if (sectionEnd >= 0) {
            lines.insert(lines.begin() + sectionEnd, entry);
        } else {
            if (!lines.empty() && !trim(lines.back()).empty())
                lines.emplace_back();
            lines.push_back("[" + section + "]");
            lines.push_back(entry);
        }
    }
    std::string out;
    for (const auto& line : lines)
        out += line + "\n";
    std::string writeError;
    const std::string folder = parentDirectory(m_path);
    if (!directoryExists(folder) && !makeDirectories(folder)) {
        if (error)
            *error = "cannot create the folder \"" + folder + "\" for \"" + m_path + "\"";
        return false;
    }
    if (!writeFileAtomically(m_path, out, writeError)) {
        if (error)
            *error = writeError;
        return false;
    }
    return true;
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
