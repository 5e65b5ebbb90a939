#include "environment/WFClearCaseQuerySession.h"

#include "WFBusy.h"
#include "WFCommandLine.h"
#include "WFFiles.h"
#include "WFInteractiveProcess.h"
#include "WFLineSplitter.h"

#include <algorithm>
#include <cctype>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

/// As long as a query in a process of its own may stay silent.
constexpr int kDefaultSilenceLimitMs = 5000;
/// As long as a query may take in all when nobody can cancel it.
constexpr int kDefaultTimeLimitMs = 30000;
/// The most output a query may bring: far more than any listing a page shows.
constexpr std::size_t kDefaultReplyLimit = 64 * 1024 * 1024;
/// How often an unbounded wait looks whether it was cancelled.
constexpr int kUnboundedReadSliceMs = 500;
constexpr std::string_view kPrompt = "cleartool> ";

std::atomic<bool> g_designTime{false};

/// Identifies the process environment, which a running session took over when it started.
std::string environmentFingerprint()
{
    std::uint64_t hash = 1469598103934665603ull;
    for (char** entry = environ; entry && *entry; ++entry) {
        for (const char* c = *entry; *c; ++c)
            hash = (hash ^ static_cast<unsigned char>(*c)) * 1099511628211ull;
        hash = (hash ^ 0xffu) * 1099511628211ull;
    }
    return std::to_string(hash);
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Reads digits at `at`; false when there are none.
bool readNumber(std::string_view text, std::size_t& at, int& value)
{
    const std::size_t start = at;
    long long number = 0;
    while (at < text.size() && isDigit(text[at])) {
        number = std::min<long long>(number * 10 + (text[at] - '0'), 1 << 30);
        ++at;
    }
    value = static_cast<int>(number);
    return at > start;
}

} // namespace

void SetClearCaseDesignTime(bool designTime)
{
    g_designTime = designTime;
}

bool GetClearCaseDesignTime()
{
    return g_designTime;
}

bool ClearCaseQuerySessionEnabled()
{
    if (!g_designTime)
        return false;
    const char* value = std::getenv(kClearCaseQuerySessionVariable);
    if (!value)
        return true;
    std::string word(value);
    std::transform(word.begin(), word.end(), word.begin(), [](unsigned char c) { return std::tolower(c); });
    return word != "0" && word != "off" && word != "false" && word != "no";
}

std::optional<std::string> interactiveCommandLine(const std::vector<std::string>& arguments)
{
    std::string line;
    for (const auto& argument : arguments) {
        if (argument.find_first_of(std::string("\r\n\0", 3)) != std::string::npos)
            return std::nullopt;
        if (!argument.empty() && argument.back() == '\\')
            return std::nullopt;
        if (!line.empty())
            line += ' ';
        const bool plain = !argument.empty() && argument.find_first_of(" \t\"'") == std::string::npos;
        if (plain)
            line += argument;
        else if (argument.find('"') == std::string::npos)
            line += '"' + argument + '"';
        else if (argument.find('\'') == std::string::npos)
            line += '\'' + argument + '\'';
        else
            return std::nullopt;
    }
    return line;
}

namespace {

std::string reportHead(int number)
{
    return "Command " + std::to_string(number) + " returned status ";
}

/// Reads the status and line end that follow a report's head at `at`: the report's end, 0 when
/// this is no report, npos when it has not fully arrived.
std::size_t readReportTail(std::string_view output, std::size_t at, int& status)
{
    const bool negative = at < output.size() && output[at] == '-';
    if (negative)
        ++at;
    if (!readNumber(output, at, status))
        return at >= output.size() ? std::string_view::npos : 0;
    if (negative)
        status = -status;
    if (at < output.size() && output[at] == '\r')
        ++at;
    if (at >= output.size())
        return std::string_view::npos;
    return output[at] == '\n' ? at + 1 : 0;
}

} // namespace

std::optional<TClearCaseStatusReport> findStatusReport(std::string_view output, int number, std::size_t from)
{
    const std::string head = reportHead(number);
    for (std::size_t begin = output.find(head, from); begin != std::string_view::npos;
         begin = output.find(head, begin + 1)) {
        int status = 0;
        const std::size_t end = readReportTail(output, begin + head.size(), status);
        if (end == std::string_view::npos)
            return std::nullopt;
        if (end != 0)
            return TClearCaseStatusReport{begin, end, status};
    }
    return std::nullopt;
}

std::optional<TClearCaseStatusReport> findFinalReport(std::string_view output, int number, bool prompted)
{
    if (prompted) {
        if (output.size() < kPrompt.size() || output.substr(output.size() - kPrompt.size()) != kPrompt)
            return std::nullopt;
        output.remove_suffix(kPrompt.size());
    }
    // Back over the line end and the status to where the head must stand.
    std::size_t at = output.size();
    if (at == 0 || output[at - 1] != '\n')
        return std::nullopt;
    --at;
    if (at > 0 && output[at - 1] == '\r')
        --at;
    const std::size_t digitsEnd = at;
    while (at > 0 && isDigit(output[at - 1]) && digitsEnd - at < 10)
        --at;
    if (at == digitsEnd)
        return std::nullopt;
    if (at > 0 && output[at - 1] == '-')
        --at;
    const std::string head = reportHead(number);
    if (at < head.size() || output.substr(at - head.size(), head.size()) != head)
        return std::nullopt;
    int status = 0;
    const std::size_t end = readReportTail(output, at, status);
    if (end != output.size())
        return std::nullopt;
    return TClearCaseStatusReport{at - head.size(), end, status};
}

std::vector<std::string> outputLines(std::string_view text)
{
    std::vector<std::string> lines;
    const auto keep = [&](std::string_view line) { lines.emplace_back(line); };
    TWFLineSplitter splitter;
    splitter.add(text, keep);
    splitter.finish(keep);
    return lines;
}

TClearCaseQuerySession::TClearCaseQuerySession()
    : m_silenceLimit(kDefaultSilenceLimitMs), m_timeLimit(kDefaultTimeLimitMs), m_replyLimit(kDefaultReplyLimit)
{
}

TClearCaseQuerySession::~TClearCaseQuerySession()
{
    drop();
}

void TClearCaseQuerySession::drop()
{
    std::shared_ptr<IWFInteractiveProcess> process;
    {
        std::lock_guard lock(m_processMutex);
        process = std::move(m_process);
        m_process.reset();
    }
    if (process)
        process->Terminate();
}

void TClearCaseQuerySession::Cancel()
{
    m_cancelled = true;
    drop();
}

void TClearCaseQuerySession::Reset()
{
    std::lock_guard query(m_queryMutex);
    drop();
    m_unsupportedKey.clear();
    m_key.clear();
    m_pending.clear();
}

TClearCaseQuerySession::Read TClearCaseQuerySession::readExchange(IWFInteractiveProcess& process, Exchange& exchange)
{
    const auto started = Clock::now();
    auto lastOutput = started;
    // Every search starts where the previous one could no longer find anything, so that output
    // without line breaks is looked at once, not on every read.
    const std::size_t window = reportHead(exchange.cdNumber).size() + 16;
    std::size_t cdSearched = 0;
    std::optional<TClearCaseStatusReport> cd;
    for (;;) {
        if (m_pending.size() > m_replyLimit) {
            std::cerr << "wfclearcase: a cleartool query brought more than " << m_replyLimit
                      << " bytes of output; it was stopped and gives no result" << std::endl;
            return Read::TooLarge;
        }
        if (exchange.cdNumber == 1)
            m_prompted = m_pending.compare(0, kPrompt.size(), kPrompt) == 0 || kPrompt.substr(0, m_pending.size()) == m_pending;
        if (!cd) {
            cd = findStatusReport(m_pending, exchange.cdNumber, cdSearched);
            cdSearched = std::max(cdSearched, m_pending.size() > window ? m_pending.size() - window : 0);
            m_answered = m_answered || cd.has_value();
        }
        const auto last = cd ? findFinalReport(std::string_view(m_pending).substr(cd->end), exchange.cdNumber + 1, m_prompted)
                             : std::nullopt;
        // The reply's end is what arrived last: were more waiting, the report was a listed name.
        if (last && process.Read(m_pending, 0) == IWFInteractiveProcess::ReadResult::Data) {
            lastOutput = Clock::now();
            continue;
        }
        if (last) {
            std::string_view body = std::string_view(m_pending).substr(cd->end, last->begin);
            while (body.substr(0, kPrompt.size()) == kPrompt)
                body.remove_prefix(kPrompt.size());
            exchange.cdStatus = cd->status;
            exchange.status = last->status;
            exchange.text = std::string(body);
            m_pending.clear();
            return Read::Reply;
        }
        // Once the session has answered, a slow server is waited for when the user can cancel;
        // before that, silence is how a cleartool without the interactive mode shows itself.
        const bool bounded = !m_answered || !WFBusyCanCancel();
        const auto now = Clock::now();
        const auto silent = std::chrono::duration_cast<std::chrono::milliseconds>(now - lastOutput).count();
        const auto spent = std::chrono::duration_cast<std::chrono::milliseconds>(now - started).count();
        if (bounded && (silent >= m_silenceLimit || spent >= m_timeLimit))
            return Read::Hung;
        const long long wait = bounded ? std::min<long long>(m_silenceLimit - silent, m_timeLimit - spent) : kUnboundedReadSliceMs;
        switch (process.Read(m_pending, static_cast<int>(wait))) {
        case IWFInteractiveProcess::ReadResult::Data:
            lastOutput = Clock::now();
            break;
        case IWFInteractiveProcess::ReadResult::Timeout:
            if (!bounded && !m_cancelled)
                break;
            return Read::Hung;
        case IWFInteractiveProcess::ReadResult::Closed:
            return Read::Died;
        }
    }
}

TClearCaseQuerySession::Reply TClearCaseQuerySession::Run(const std::string& cleartool, const std::string& parameters,
                                                          const std::string& directory)
{
    std::lock_guard query(m_queryMutex);
    m_cancelled = false;
    Reply reply;
    const std::string key = cleartool + '\n' + environmentFingerprint();
    if (key == m_unsupportedKey)
        return reply;

    std::error_code error;
    const std::string folder = std::filesystem::absolute(directory, error).string();
    const std::vector<std::string> arguments = splitCommandLine(parameters);
    const std::optional<std::string> cdLine = interactiveCommandLine({"cd", folder});
    const std::optional<std::string> commandLine = interactiveCommandLine(arguments);
    if (error || arguments.empty() || !cdLine || !commandLine)
        return reply;

    std::shared_ptr<IWFInteractiveProcess> process;
    {
        std::lock_guard lock(m_processMutex);
        process = m_process;
    }
    if (process && key != m_key) {
        drop();
        process.reset();
    }
    if (!process) {
        process = CreateWFInteractiveProcess();
        if (!process || !process->Start(cleartool, {"-status"}, parentDirectory(cleartool))) {
            m_unsupportedKey = key;
            return reply;
        }
        ++m_starts;
        m_key = key;
        m_pending.clear();
        m_sent = 0;
        m_prompted = false;
        m_answered = false;
        std::lock_guard lock(m_processMutex);
        m_process = process;
    }

    auto failed = [&](Read how) {
        drop();
        if (m_cancelled || how == Read::TooLarge || (how == Read::Hung && m_answered)) {
            reply.outcome = Outcome::Failed;
            return reply;
        }
        // A session that never answered is taken for a cleartool without the interactive
        // mode; one that answered before and then died is started afresh next time.
        if (!m_answered)
            m_unsupportedKey = key;
        return reply;
    };

    if (m_cancelled)
        return failed(Read::Died);
    Exchange exchange;
    exchange.cdNumber = m_sent + 1;
    m_sent += 2;
    if (!process->Write(*cdLine + "\n" + *commandLine + "\n"))
        return failed(Read::Died);
    const Read how = readExchange(*process, exchange);
    if (how != Read::Reply)
        return failed(how);
    if (m_cancelled)
        return failed(Read::Died);
    reply.status = exchange.status;
    // A folder that cannot be entered gives no result, as a process that cannot start there.
    reply.outcome = exchange.cdStatus == 0 ? Outcome::Answered : Outcome::Failed;
    if (reply.outcome == Outcome::Answered)
        reply.lines = outputLines(exchange.text);
    return reply;
}

TClearCaseQuerySession& ClearCaseQuerySession()
{
    static TClearCaseQuerySession session;
    return session;
}
