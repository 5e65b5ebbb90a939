#include "ConsoleLog.h"

#include <cerrno>
#include <cstring>
#include <ostream>

#include <fcntl.h>
#include <unistd.h>

TConsoleLog::TConsoleLog(std::ostream& out, std::ostream& err) : m_out(out), m_err(err) {}

TConsoleLog::~TConsoleLog()
{
    if (m_fd >= 0)
        ::close(m_fd);
}

bool TConsoleLog::OpenLogFile(const std::string& path, std::string& error)
{
    m_fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (m_fd < 0) {
        error = "cannot write the log file \"" + path + "\": " + std::strerror(errno);
        return false;
    }
    m_path = path;
    return true;
}

void TConsoleLog::NoteWriteFailure(const std::string& reason)
{
    if (m_writeFailure.empty())
        m_writeFailure = reason;
}

std::string consoleHeader(std::size_t number, std::size_t total, const std::string& title, bool cleanup)
{
    return std::string(cleanup ? "[clean-up " : "[") + std::to_string(number) + "/" + std::to_string(total) + "] " + title;
}

namespace {

/// How much of an action's log the report keeps.
constexpr std::size_t kReportLimit = 64 * 1024;

} // namespace

void TConsoleLog::BeginAction(std::size_t number, std::size_t total, const std::string& title, bool cleanup)
{
    m_actionText = {};
    m_actionErrors = {};
    for (auto& line : m_lastLine)
        line.clear();
    m_out << consoleHeader(number, total, title, cleanup) << '\n';
    m_held = true;
}

void TConsoleLog::TTail::add(std::string_view line)
{
    text.append(line);
    text += '\n';
    if (text.size() <= 2 * kReportLimit)
        return;
    // Trim in large steps at a line boundary, so keeping the tail stays linear.
    std::size_t cut = text.size() - kReportLimit;
    const auto lineEnd = text.find('\n', cut);
    cut = lineEnd == std::string::npos ? cut : lineEnd + 1;
    droppedBytes += cut;
    text.erase(0, cut);
}

std::string TConsoleLog::TTail::str() const
{
    if (droppedBytes == 0)
        return text;
    return "[... " + std::to_string(droppedBytes) + " bytes of earlier output left out ...]\n" + text;
}

std::string TConsoleLog::ActionText() const
{
    return m_actionText.str();
}

std::string TConsoleLog::ActionErrors() const
{
    return m_actionErrors.str();
}

void TConsoleLog::Line(Stream stream, std::string_view text)
{
    m_actionText.add(text);
    if (stream == Stream::StdErr)
        m_actionErrors.add(text);
    if (text.find_first_not_of(" \t\r") != std::string_view::npos)
        m_lastLine[static_cast<int>(stream)] = text;
    std::ostream& console = stream == Stream::StdErr ? m_err : m_out;
    console << text << '\n';
    if (m_fd >= 0) {
        m_pending.append(text);
        m_pending += '\n';
        // Large listings go out in blocks, not a write per line.
        if (m_pending.size() >= 64 * 1024)
            flushFile();
    }
    if (stream != Stream::StdOut && !m_held)
        Flush();
}

void TConsoleLog::Settle()
{
    Flush();
}

void TConsoleLog::Flush()
{
    m_held = false;
    m_out.flush();
    m_err.flush();
    checkConsole();
    flushFile();
}

void TConsoleLog::checkConsole()
{
    if (!m_out.good())
        NoteWriteFailure("cannot write to standard output");
    else if (!m_err.good())
        NoteWriteFailure("cannot write to standard error");
}

void TConsoleLog::flushFile()
{
    std::size_t done = 0;
    while (m_fd >= 0 && done < m_pending.size()) {
        const ssize_t n = ::write(m_fd, m_pending.data() + done, m_pending.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            NoteWriteFailure("cannot write the log file \"" + m_path + "\": " + std::strerror(n < 0 ? errno : ENOSPC));
            // Nothing more goes to a file that lost lines: its end would claim more than it holds.
            ::close(m_fd);
            m_fd = -1;
            break;
        }
        done += static_cast<std::size_t>(n);
    }
    m_pending.clear();
}
