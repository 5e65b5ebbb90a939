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

extern char** environ;

namespace {

using Clock = std::chrono::steady_clock;

/// As long as a query in a process of its own may stay silent.
constexpr int kDefaultSilenceLimitMs = 5000;
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

std::optional<TClearCaseStatusReport> findStatusReport(std::string_view output)
{
    static constexpr std::string_view head = "Command ";
    static constexpr std::string_view middle = " returned status ";
    for (std::size_t begin = output.find(head); begin != std::string_view::npos; begin = output.find(head, begin + 1)) {
        std::size_t at = begin + head.size();
        int number = 0;
        if (!readNumber(output, at, number) || output.substr(at, middle.size()) != middle)
            continue;
        at += middle.size();
        const bool negative = at < output.size() && output[at] == '-';
        if (negative)
            ++at;
        int status = 0;
        if (!readNumber(output, at, status))
            continue;
        if (at < output.size() && output[at] == '\r')
            ++at;
        if (at >= output.size())
            return std::nullopt; // the rest of the report has not arrived yet
        if (output[at] != '\n')
            continue;
        return TClearCaseStatusReport{begin, at + 1, negative ? -status : status};
    }
    return std::nullopt;
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

TClearCaseQuerySession::TClearCaseQuerySession() : m_silenceLimit(kDefaultSilenceLimitMs) {}

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

TClearCaseQuerySession::Read TClearCaseQuerySession::readReply(IWFInteractiveProcess& process, int& status,
                                                               std::string& text)
{
    auto lastOutput = Clock::now();
    std::size_t searched = 0;
    for (;;) {
        if (auto report = findStatusReport(std::string_view(m_pending).substr(searched))) {
            std::string_view body = std::string_view(m_pending).substr(0, searched + report->begin);
            while (body.substr(0, kPrompt.size()) == kPrompt)
                body.remove_prefix(kPrompt.size());
            text = std::string(body);
            status = report->status;
            m_pending.erase(0, searched + report->end);
            return Read::Reply;
        }
        // A report cut short may begin up to a line before the end: search again from there.
        const std::size_t lineStart = m_pending.rfind('\n');
        searched = lineStart == std::string::npos ? 0 : lineStart + 1;
        // Once the session has answered, a slow server is waited for when the user can cancel;
        // before that, silence is how a cleartool without the interactive mode shows itself.
        const bool bounded = !m_answered || !WFBusyCanCancel();
        const int limit = bounded ? static_cast<int>(m_silenceLimit) : kUnboundedReadSliceMs;
        const auto silent = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - lastOutput).count();
        if (bounded && silent >= limit)
            return Read::Hung;
        switch (process.Read(m_pending, static_cast<int>(bounded ? limit - silent : limit))) {
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
        m_answered = false;
        std::lock_guard lock(m_processMutex);
        m_process = process;
    }

    auto failed = [&](Read how) {
        drop();
        if (m_cancelled || (how == Read::Hung && m_answered)) {
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
    if (!process->Write(*cdLine + "\n" + *commandLine + "\n"))
        return failed(Read::Died);
    int cdStatus = 0;
    std::string cdText;
    Read how = readReply(*process, cdStatus, cdText);
    if (how != Read::Reply)
        return failed(how);
    m_answered = true;
    std::string text;
    how = readReply(*process, reply.status, text);
    if (how != Read::Reply)
        return failed(how);
    if (m_cancelled)
        return failed(Read::Died);
    // A folder that cannot be entered gives no result, as a process that cannot start there.
    reply.outcome = cdStatus == 0 ? Outcome::Answered : Outcome::Failed;
    if (reply.outcome == Outcome::Answered)
        reply.lines = outputLines(text);
    return reply;
}

TClearCaseQuerySession& ClearCaseQuerySession()
{
    static TClearCaseQuerySession session;
    return session;
}
