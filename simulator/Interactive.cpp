#include "Interactive.h"

#include "Commands.h"
#include "Messages.h"
#include "Session.h"

#include <cstdlib>
#include <iostream>
#include <memory>

#include <sys/stat.h>

namespace ccsim {

namespace {

constexpr const char* kPrompt = "cleartool> ";

/// One sub-command, continuation lines joined; nothing at end of input.
std::optional<std::string> readCommand(std::istream& in)
{
    std::string command;
    std::string line;
    bool any = false;
    while (std::getline(in, line)) {
        any = true;
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (line.empty() || line.back() != '\\') {
            command += line;
            return command;
        }
        line.pop_back();
        command += line;
    }
    if (any)
        return command;
    return std::nullopt;
}

/// The store kept open across sub-commands, reopened when its file was replaced or removed.
class KeptStore {
public:
    std::unique_ptr<Store>* get()
    {
        struct stat info {};
        const std::string path = (readEnvironment().home / "ccsim.db").string();
        const bool found = ::stat(path.c_str(), &info) == 0;
        if (!found || info.st_ino != m_inode || info.st_dev != m_device)
            m_store.reset();
        m_inode = found ? info.st_ino : 0;
        m_device = found ? info.st_dev : 0;
        return &m_store;
    }

private:
    std::unique_ptr<Store> m_store;
    ino_t m_inode = 0;
    dev_t m_device = 0;
};

int changeDirectory(const std::vector<std::string>& words, std::filesystem::path& cwd, std::ostream& err)
{
    namespace fs = std::filesystem;
    if (words.size() > 2) {
        err << "cleartool: Error: " << message(Msg::TooManyOperands) << "\nUsage: cd dir-pname\n";
        return 1;
    }
    const char* home = std::getenv("HOME");
    const std::string given = words.size() == 2 ? words[1] : (home ? home : "/");
    std::error_code ec;
    fs::path target = fs::path(given).is_absolute() ? fs::path(given) : cwd / given;
    if (!fs::is_directory(target, ec)) {
        err << "cleartool: Error: " << message(Msg::CannotChangeDirectory, {given}) << '\n';
        return 1;
    }
    target = fs::weakly_canonical(target, ec);
    // The process follows too, so that nothing resolved against it sees another folder.
    fs::current_path(target, ec);
    if (ec) {
        err << "cleartool: Error: " << message(Msg::CannotChangeDirectory, {given}) << '\n';
        return 1;
    }
    cwd = target;
    return 0;
}

} // namespace

bool isInteractiveInvocation(const std::vector<std::string>& args)
{
    for (const auto& arg : args)
        if (arg != "-status" && arg != "-e")
            return false;
    return true;
}

std::optional<std::vector<std::string>> splitInteractiveLine(std::string_view line)
{
    std::vector<std::string> words;
    std::string word;
    bool inWord = false;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == ' ' || c == '\t') {
            if (inWord)
                words.push_back(std::move(word));
            word.clear();
            inWord = false;
        } else if (c == '"' || c == '\'') {
            const std::size_t close = line.find(c, i + 1);
            if (close == std::string_view::npos)
                return std::nullopt;
            word.append(line.substr(i + 1, close - i - 1));
            inWord = true;
            i = close;
        } else {
            word += c;
            inWord = true;
        }
    }
    if (inWord)
        words.push_back(std::move(word));
    return words;
}

int runInteractive(const std::vector<std::string>& args, const std::filesystem::path& start, std::ostream& out,
                   std::ostream& err, std::istream& in)
{
    bool reportStatus = false;
    bool exitOnError = false;
    for (const auto& arg : args) {
        reportStatus = reportStatus || arg == "-status";
        exitOnError = exitOnError || arg == "-e";
    }
    std::filesystem::path cwd = start;
    KeptStore store;
    int number = 0;
    for (;;) {
        out << kPrompt << std::flush;
        const std::optional<std::string> line = readCommand(in);
        if (!line)
            return 0;
        const auto words = splitInteractiveLine(*line);
        if (words && words->empty())
            continue;
        if (words && (words->front() == "quit" || words->front() == "exit"))
            return 0;
        int status = 1;
        if (!words)
            err << "cleartool: Error: " << message(Msg::UnmatchedQuote) << '\n';
        else if (words->front() == "cd")
            status = changeDirectory(*words, cwd, err);
        else if (words->front() == "pwd")
            out << cwd.string() << '\n', status = 0;
        else
            status = runCleartool(*words, cwd, out, err, in, store.get());
        if (reportStatus)
            out << "Command " << ++number << " returned status " << status << '\n';
        out.flush();
        if (exitOnError && status != 0)
            return status;
    }
}

} // namespace ccsim
