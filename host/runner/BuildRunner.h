#pragma once

#include "JUnitReport.h"

#include "WFAction.h"

#include <atomic>
#include <cstdint>
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

/// How an action is named to the user: its display name and, when it has one, its description.
std::string actionTitle(const TCustomWFAction& action);

/// Runs Validate and returns its errors as "<location>: <message>" lines; ok tells the verdict.
/// An action that fails without saying why gets one line that says so.
std::vector<std::string> validateAction(TCustomWFAction& action, bool& ok);

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

private:
    TConsoleLog& m_log;
    std::ostream& m_out;
    std::ostream& m_err;
    std::vector<TJUnitCase> m_cases;
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
