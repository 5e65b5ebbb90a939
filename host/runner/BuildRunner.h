#pragma once

#include "JUnitReport.h"

#include "WFAction.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

class TConsoleLog;
class TWFProject;

/// What one run is told besides the project.
struct TRunSettings {
    /// The project file's folder, absolute: where actions that need no particular folder run.
    std::string projectDirectory;
    bool dryRun = false;
    /// Per action; 0: no bound.
    std::int64_t timeoutSeconds = 0;
    /// Longest the clean-up may take once the build is interrupted; 0: no bound.
    std::int64_t cleanupTimeoutSeconds = kDefaultCleanupTimeoutSeconds;
    static constexpr std::int64_t kDefaultCleanupTimeoutSeconds = 60;
};

/// Build variables the clean-up actions see: which action failed (its number from 1, 0 when
/// the build was interrupted between actions), its display name and description, and why.
inline constexpr const char* kFailedActionVariable = "FAILED_ACTION";
inline constexpr const char* kFailedActionNameVariable = "FAILED_ACTION_NAME";
inline constexpr const char* kFailedActionDescriptionVariable = "FAILED_ACTION_DESCRIPTION";
inline constexpr const char* kFailureVariable = "FAILURE";

/// The test-case name of action number of total: the number, padded so that names sort in
/// project order, then the title ("03 ClearCase Check Out: nightly").
std::string junitCaseName(std::size_t number, std::size_t total, const std::string& title);

/// How an action is named to the user: its display name and, when it has one, its description.
std::string actionTitle(const TCustomWFAction& action);

/// One validation error: where the user fixes it ("Options" or a page caption, may be empty) and what.
struct TValidationError {
    std::string location;
    std::string message;
    /// "<location>: <message>", or the message alone when there is no location.
    std::string ToString() const;
};

/// Runs Validate and returns its errors; ok tells the verdict. An action that fails without
/// saying why gets one error that says so.
std::vector<TValidationError> validateActionErrors(TCustomWFAction& action, bool& ok);
/// validateActionErrors as "<location>: <message>" lines.
std::vector<std::string> validateAction(TCustomWFAction& action, bool& ok);

/// The errors of one action of a project that is not valid.
struct TActionValidation {
    /// From 0, in the order of its list.
    std::size_t index = 0;
    /// A clean-up action rather than one of the build's.
    bool cleanup = false;
    std::string title;
    std::vector<TValidationError> errors;
};

/// Prepares the command line of an action that runs a program as a dry run does, starting
/// nothing and logging nothing; when that fails, the reason and what the action logged.
std::vector<TValidationError> prepareCommandLine(TCustomWFAction& action, const TWFActionHost& host);

/// What `wfbuild run --dry-run` would say of one action: the lines a dry run logs for it (the
/// folder its program starts in, its command line), or, when it would not run, why.
struct TActionPreview {
    bool ok = false;
    /// The action starts a program.
    bool runsProgram = false;
    std::vector<std::string> lines;
};
TActionPreview previewAction(TCustomWFAction& action, const TWFActionHost& host);

/// Validates every enabled action of a project, then every enabled clean-up action, as a run
/// would, with the host's services bound, and prepares the command line of each valid one,
/// handing each action that is not valid or cannot be prepared to onInvalid as soon as it is
/// checked. Returns how many enabled actions were checked.
std::size_t validateProject(TWFProject& project, TWFActionHost& host,
                            const std::function<void(const TActionValidation&)>& onInvalid);

/// What a watching host learns of a run while it goes, on the running thread. Every action of
/// the project is finished once, in order (disabled and not-run ones too); only those that run
/// are started first. Clean-up actions follow when the build fails, numbered on after the
/// actions: index actions.size() is the first clean-up action.
struct TRunWatcher {
    std::function<void(std::size_t index)> started;
    std::function<void(std::size_t index, const TJUnitCase& result)> finished;
};

/// The run loop of wfbuild: the enabled actions in order, each validated then executed, up to
/// the first that fails (an action marked to continue on failure only has its failure noted).
/// When the build failed or was interrupted, the enabled clean-up actions run in order, each
/// whatever the one before did; after an interrupt under the clean-up time limit, and a second
/// interrupt ends them at once. Console sections and log lines go to the log; the summary and
/// failures to out and err.
class TBuildRunner {
public:
    TBuildRunner(TConsoleLog& log, std::ostream& out, std::ostream& err);

    /// 0 when every enabled action succeeded, 1 when one failed, 130 when interrupted; the
    /// clean-up does not change it.
    int Run(TWFProject& project, TWFBuildVariables& variables, const TRunSettings& settings);
    /// The success line of the last run, if it passed and nothing failed to be written so far.
    /// Called once every record of the run (log, JUnit report) is written, so that no
    /// failure can follow a claim of success.
    void ReportSuccess();
    /// One case per action of the last run, in project order, then one per clean-up action
    /// when the clean-up ran.
    const std::vector<TJUnitCase>& Cases() const { return m_cases; }

    /// From any thread: stops the running action's program and starts no further action; the
    /// clean-up then runs. During the clean-up, a second interrupt stops it as the first
    /// stopped the build.
    void Interrupt();
    /// Set before Run.
    void SetWatcher(TRunWatcher watcher) { m_watcher = std::move(watcher); }

private:
    /// What the clean-up is told of the failure.
    struct TFailure {
        std::size_t number = 0;
        std::string name;
        std::string description;
        std::string reason;
    };
    struct TActionRun {
        bool ok = false;
        std::string reason;
        double seconds = 0;
        /// Whether the action's program ran: a failure without one is a set-up error.
        bool programStarted = false;
    };
    TActionRun runAction(TCustomWFAction& action, TWFActionHost& host);
    void runCleanup(TWFProject& project, TWFActionHost& host, const TRunSettings& settings, const TFailure& failure);
    void watchCleanupDeadline();
    bool cleanupStopped();
    TJUnitCase::Outcome failureOutcome(const TActionRun& run) const;
    std::string failureMessage(const TActionRun& run) const;
    void notifyFinished(std::size_t index);

    TConsoleLog& m_log;
    std::ostream& m_out;
    std::ostream& m_err;
    std::vector<TJUnitCase> m_cases;
    TRunWatcher m_watcher;
    struct TSummary {
        int status = -1;
        std::size_t ran = 0;
        std::size_t disabled = 0;
        std::size_t ignoredFailures = 0;
        bool dryRun = false;
    } m_summary;
    /// Guards m_current, the interrupt count and the clean-up's deadline.
    std::mutex m_currentMutex;
    std::condition_variable m_deadlineChanged;
    TCustomWFAction* m_current = nullptr;
    std::atomic<bool> m_interrupted{false};
    /// What the run's stop scope watches: set with the first interrupt, cleared for a clean-up
    /// that the first interrupt only bounds, set again by a second one or the clean-up's deadline.
    std::atomic<bool> m_stopRequest{false};
    int m_interrupts = 0;
    bool m_inCleanup = false;
    bool m_cleanupDone = false;
    bool m_cleanupExpired = false;
    std::int64_t m_cleanupLimitSeconds = 0;
    std::optional<std::chrono::steady_clock::time_point> m_cleanupDeadline;
};
