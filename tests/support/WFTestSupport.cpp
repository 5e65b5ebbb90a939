#include "WFTestSupport.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace wftest {

std::vector<std::string> RecordingLog::messages() const
{
    std::vector<std::string> result;
    for (const auto& entry : entries)
        if (entry.stream == Stream::Message)
            result.push_back(entry.text);
    return result;
}

std::vector<std::string> RecordingLog::lines() const
{
    std::vector<std::string> result;
    for (const auto& entry : entries)
        result.push_back(entry.text);
    return result;
}

TempDir::TempDir()
{
    std::string pattern = (fs::temp_directory_path() / "wftest-XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        throw std::runtime_error("cannot create a temporary folder");
    m_path = fs::canonical(pattern).string();
}

TempDir::~TempDir()
{
    std::error_code ignored;
    fs::permissions(m_path, fs::perms::owner_all, fs::perm_options::add, ignored);
    fs::remove_all(m_path, ignored);
}

std::string TempDir::write(const std::string& name, const std::string& bytes) const
{
    const fs::path target = fs::path(m_path) / name;
    fs::create_directories(target.parent_path());
    std::ofstream(target, std::ios::binary) << bytes;
    return target.string();
}

ScopedEnv::ScopedEnv(std::string name, const std::string& value) : m_name(std::move(name))
{
    if (const char* old = std::getenv(m_name.c_str())) {
        m_had = true;
        m_old = old;
    }
    ::setenv(m_name.c_str(), value.c_str(), 1);
}

ScopedEnv::~ScopedEnv()
{
    if (m_had)
        ::setenv(m_name.c_str(), m_old.c_str(), 1);
    else
        ::unsetenv(m_name.c_str());
}

std::vector<Invocation> readInvocations(const std::string& recordFile)
{
    std::vector<Invocation> result;
    std::ifstream in(recordFile, std::ios::binary);
    std::string line;
    Invocation current;
    while (std::getline(in, line)) {
        if (line.rfind("cwd=", 0) == 0)
            current = Invocation{line.substr(4), {}};
        else if (line.rfind("arg=", 0) == 0)
            current.args.push_back(line.substr(4));
        else if (line == "end")
            result.push_back(current);
    }
    return result;
}

std::string testAppPath()
{
    return WF_TESTAPP_PATH;
}

std::string installFakeProgram(const std::string& directory, const std::string& name)
{
    const fs::path target = fs::path(directory) / name;
    fs::create_directories(directory);
    fs::copy_file(testAppPath(), target, fs::copy_options::overwrite_existing);
    fs::permissions(target, fs::perms::owner_all | fs::perms::group_read | fs::perms::group_exec);
    return target.string();
}

std::string readFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream buffer;
    buffer << in.rdbuf();
    return buffer.str();
}

std::string replaceAll(std::string text, const std::string& from, const std::string& to)
{
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

} // namespace wftest
