#pragma once

#include "JUnitReport.h"

#include "WFAction.h"

#include <atomic>
#include <cstdint>
#include <functional>
#include <iosfwd>
#include <mutex>
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
};

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
    /// From 0, in project order.
    std::size_t index = 0;
    std::string title;
    std::vector<TValidationError> errors;
};

/// Prepares the command line of an action that runs a program as a dry run does, starting
/// nothing and logging nothing; when that fails, the reason and what the action logged.
std::vector<TValidationError> prepareCommandLine(TCustomWFAction& action, const TWFActionHost& host);

/// Validates every enabled action of a project as a run would, with the host's services bound,
/// and prepares the command line of each valid one, handing each action that is not valid or
/// cannot be prepared to onInvalid as soon as it is checked. Returns how many enabled actions
/// were checked.
std::size_t validateProject(TWFProject& project, TWFActionHost& host,
                            const std::function<void(const TActionValidation&)>& onInvalid);

/// What a watching host learns of a run while it goes, on the running thread. Every action of
/// the project is finished once, in order (disabled and not-run ones too); only those that run
/// are started first.
struct TRunWatcher {
    std::function<void(std::size_t index)> started;
    std::function<void(std::size_t index, const TJUnitCase& result)> finished;
};

/// The run loop of wfbuild: the enabled actions in order, each validated then executed, up to
/// the first that fails. Console sections and log lines go to the log; the summary and failures
/// to out and err.
class TBuildRunner {
public:
    TBuildRunner(TConsoleLog& log, std::ostream& out, std::ostream& err);

    /// 0 when every enabled action succeeded, 1 when one failed, 130 when interrupted.
    int Run(TWFProject& project, TWFBuildVariables& variables, const TRunSettings& settings);
    /// The success line of the last run, if it passed and nothing failed to be written so far.
    /// Called once every record of the run (log, JUnit report) is written, so that no
    /// failure can follow a claim of success.
    void ReportSuccess();
    /// One case per action of the last run, in project order.
    const std::vector<TJUnitCase>& Cases() const { return m_cases; }

    /// From any thread: stops the running action's program and starts no further action.
    void Interrupt();
    /// Set before Run.
    void SetWatcher(TRunWatcher watcher) { m_watcher = std::move(watcher); }

private:
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
        bool dryRun = false;
    } m_summary;
    std::mutex m_currentMutex;
    TCustomWFAction* m_current = nullptr;
    std::atomic<bool> m_interrupted{false};
};
