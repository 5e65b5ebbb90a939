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

namespace {

/// How much of an action's log the report keeps.
constexpr std::size_t kReportLimit = 64 * 1024;
constexpr auto kFlushInterval = std::chrono::milliseconds(50);

} // namespace

void TConsoleLog::BeginAction(std::size_t number, std::size_t total, const std::string& title)
{
    m_actionText.clear();
    m_droppedBytes = 0;
    m_out << consoleHeader(number, total, title) << '\n';
    flushIfDue(true);
}

void TConsoleLog::keep(std::string_view text)
{
    m_actionText.append(text);
    m_actionText += '\n';
    if (m_actionText.size() <= 2 * kReportLimit)
        return;
    // Trim in large steps at a line boundary, so keeping the tail stays linear.
    std::size_t cut = m_actionText.size() - kReportLimit;
    const auto lineEnd = m_actionText.find('\n', cut);
    cut = lineEnd == std::string::npos ? cut : lineEnd + 1;
    m_droppedBytes += cut;
    m_actionText.erase(0, cut);
}

std::string TConsoleLog::ActionText() const
{
    if (m_droppedBytes == 0)
        return m_actionText;
    return "[... " + std::to_string(m_droppedBytes) + " bytes of earlier output left out ...]\n" + m_actionText;
}

void TConsoleLog::Line(Stream stream, std::string_view text)
{
    keep(text);
    std::ostream& console = stream == Stream::StdErr ? m_err : m_out;
    console << text << '\n';
    if (m_file.is_open())
        m_file << text << '\n';
    if (stream != Stream::StdOut)
        flushIfDue(true);
}

void TConsoleLog::Settle()
{
    flushIfDue(false);
}

void TConsoleLog::flushIfDue(bool now)
{
    const auto current = std::chrono::steady_clock::now();
    if (!now && current - m_lastFlush < kFlushInterval)
        return;
    Flush();
    m_lastFlush = current;
}

void TConsoleLog::Flush()
{
    m_out.flush();
    m_err.flush();
    if (m_file.is_open())
        m_file.flush();
}
