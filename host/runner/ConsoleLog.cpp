#include "ConsoleLog.h"

#include <cerrno>
#include <cstring>
#include <ostream>

TConsoleLog::TConsoleLog(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) {}

bool TConsoleLog::OpenLogFile(const std::string& path, std::string& error)
{
    m_file.open(path, std::ios::binary | std::ios::trunc);
    if (!m_file) {
        error = "cannot write the log file \"" + path + "\": " + std::strerror(errno);
        return false;
    }
    return true;
}

std::string consoleHeader(std::size_t number, std::size_t total, const std::string& title)
{
    return "[" + std::to_string(number) + "/" + std::to_string(total) + "] " + title;
}

void TConsoleLog::BeginAction(std::size_t number, std::size_t total, const std::string& title)
{
    m_actionText.clear();
    m_out << consoleHeader(number, total, title) << std::endl;
}

void TConsoleLog::Line(Stream stream, std::string_view text)
{
    m_actionText.append(text);
    m_actionText += '\n';
    std::ostream& console = stream == Stream::StdErr ? m_err : m_out;
    console << text << std::endl;
    if (m_file.is_open()) {
        m_file << text << '\n';
        m_file.flush();
    }
}
