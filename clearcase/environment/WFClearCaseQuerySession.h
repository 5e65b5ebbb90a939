#pragma once

#include "core/WFClearCaseExport.h"

#include <atomic>
#include <cstddef>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class IWFInteractiveProcess;

/// One `cleartool -status` kept running for the design-time queries, so that a page that
/// asks many questions pays for one cleartool start instead of one per question. Each query
/// sends `cd` to its folder and its sub-command, and reads standard output up to the
/// "Command N returned status S" report carrying the number of its sub-command, found at the
/// very end of what arrived (before the next prompt), so that listed names that look like
/// reports are taken for output. The session is restarted when the cleartool path or the
/// process environment changes, after it dies, and after a Cancel.
class WF_CC_API TClearCaseQuerySession {
public:
    enum class Outcome {
        Answered,    ///< the sub-command ran; status and lines hold what it returned
        Failed,      ///< no result: the folder could not be entered, it hung, or it was cancelled
        NotAnswered, ///< the session cannot take this query: run it in a process of its own
    };
    struct Reply {
        Outcome outcome = Outcome::NotAnswered;
        int status = -1;
        std::vector<std::string> lines;
    };

    TClearCaseQuerySession();
    ~TClearCaseQuerySession();
    TClearCaseQuerySession(const TClearCaseQuerySession&) = delete;
    TClearCaseQuerySession& operator=(const TClearCaseQuerySession&) = delete;

    /// Runs `parameters` (sub-command and arguments, split as the process runner splits them)
    /// in `directory`. One query at a time; a second caller waits for the first.
    Reply Run(const std::string& cleartool, const std::string& parameters, const std::string& directory);
    /// Kills the session; a query under way returns Failed at once, the next one starts a fresh
    /// session. Safe from any thread.
    void Cancel();
    /// Stops the session and forgets which cleartool paths could not hold one.
    void Reset();
    /// How long cleartool may stay silent during a query before the session is taken to hang
    /// and is killed, in milliseconds.
    void SetSilenceLimit(int milliseconds) { m_silenceLimit = milliseconds; }
    /// How long a query may take in all when nobody can cancel it, in milliseconds.
    void SetTimeLimit(int milliseconds) { m_timeLimit = milliseconds; }
    /// The most output one query may bring, in bytes; more ends the session and gives no result.
    void SetReplyLimit(std::size_t bytes) { m_replyLimit = bytes; }
    /// Sessions started so far.
    int GetStarts() const { return m_starts; }

private:
    enum class Read { Reply, Hung, Died, TooLarge };
    struct Exchange {
        int cdNumber = 0;
        int cdStatus = 0;
        int status = 0;
        std::string text;
    };
    Read readExchange(IWFInteractiveProcess& process, Exchange& exchange);
    void drop();

    std::mutex m_queryMutex;
    std::mutex m_processMutex;
    std::shared_ptr<IWFInteractiveProcess> m_process;
    std::string m_key;
    std::string m_unsupportedKey;
    std::string m_pending;
    /// Sub-commands sent to the running session: the next report numbers follow on.
    int m_sent = 0;
    /// Whether the running session prints a prompt after every report (known from its start).
    bool m_prompted = false;
    bool m_answered = false;
    std::atomic<bool> m_cancelled{false};
    std::atomic<int> m_silenceLimit;
    std::atomic<int> m_timeLimit;
    std::atomic<std::size_t> m_replyLimit;
    std::atomic<int> m_starts{0};
};

/// The package's one session.
WF_CC_API TClearCaseQuerySession& ClearCaseQuerySession();

/// Whether the package was loaded by a design-time host (WFRegister with RegisterPages true).
/// Only design-time queries use the session; run-time actions never touch it.
WF_CC_API void SetClearCaseDesignTime(bool designTime);
WF_CC_API bool GetClearCaseDesignTime();
/// The environment variable that turns the session off ("0", "off", "false" or "no").
constexpr const char* kClearCaseQuerySessionVariable = "WF_CLEARCASE_QUERY_SESSION";
/// True at design time unless the environment variable turns the session off.
WF_CC_API bool ClearCaseQuerySessionEnabled();

/// The interactive-mode line that gives cleartool `arguments` as they are: blanks and quotes
/// are wrapped in double quotes, or single quotes for a word holding a double quote. Nothing
/// when a word cannot pass safely (a line break, both kinds of quote, a trailing backslash
/// that would continue the line).
WF_CC_API std::optional<std::string> interactiveCommandLine(const std::vector<std::string>& arguments);

/// A "Command N returned status S" report found in session output: where it starts (it may
/// follow output without a final line break), where its line ends, and S.
struct TClearCaseStatusReport {
    std::size_t begin = 0;
    std::size_t end = 0;
    int status = 0;
};
/// The first complete report numbered `number` at or after `from`.
WF_CC_API std::optional<TClearCaseStatusReport> findStatusReport(std::string_view output, int number, std::size_t from = 0);
/// The report numbered `number` that ends `output`, followed only by the prompt when
/// `prompted`: the end of a reply once nothing more arrives.
WF_CC_API std::optional<TClearCaseStatusReport> findFinalReport(std::string_view output, int number, bool prompted);

/// Output text as lines, split by the host's line splitter as its process runner splits a
/// program's output.
WF_CC_API std::vector<std::string> outputLines(std::string_view text);
