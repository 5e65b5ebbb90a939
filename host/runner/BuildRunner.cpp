#include "BuildRunner.h"

#include "ConsoleLog.h"
#include "ExitStatus.h"

#include "WFInterrupt.h"
#include "WFProject.h"
#include "WFServices.h"

#include <algorithm>
#include <chrono>
#include <ostream>
#include <thread>

namespace {

class TCollectedErrors final : public IWFActionValidationError {
public:
    void AddError(const std::string& location, const std::string& message) override
    {
        errors.push_back({location, message});
    }
    std::vector<TValidationError> errors;
};

class TCollectedLines final : public IWFLogSink {
public:
    void Line(Stream /*stream*/, std::string_view text) override { lines.emplace_back(text); }
    std::vector<std::string> lines;
};

std::string failureReason(const TCustomWFAction& action)
{
    const auto* execute = dynamic_cast<const TWFExecuteAbstractAction*>(&action);
    if (execute && !execute->GetFailureReason().empty())
        return execute->GetFailureReason();
    return "the action reported failure";
}

bool wasTerminated(const TCustomWFAction& action)
{
    const auto* execute = dynamic_cast<const TWFExecuteAbstractAction*>(&action);
    return execute && execute->WasTerminated();
}

/// An action whose program never ran was wrongly set up: no command line, no program.
bool programRan(const TCustomWFAction& action)
{
    const auto* execute = dynamic_cast<const TWFExecuteAbstractAction*>(&action);
    return !execute || execute->GetLastExitCode() >= 0 || execute->WasTerminated();
}

std::string withDetail(const std::string& reason, const std::string& detail)
{
    return detail.empty() ? reason : reason + ": " + detail;
}

std::string plural(std::size_t count, const char* word)
{
    return std::to_string(count) + " " + word + (count == 1 ? "" : "s");
}

} // namespace

std::string junitCaseName(std::size_t number, std::size_t total, const std::string& title)
{
    std::string digits = std::to_string(number);
    const std::size_t width = std::to_string(total).size();
    if (digits.size() < width)
        digits.insert(0, width - digits.size(), '0');
    return digits + " " + title;
}

namespace {

std::string displayName(const TCustomWFAction& action)
{
    const auto* entry = WFActionServices().Find(action.GetActionTypeID());
    return entry ? entry->displayName : action.GetActionName();
}

} // namespace

std::string actionTitle(const TCustomWFAction& action)
{
    const std::string name = displayName(action);
    const std::string description = action.GetDescription();
    return description.empty() ? name : name + ": " + description;
}

std::string TValidationError::ToString() const
{
    return location.empty() ? message : location + ": " + message;
}

std::vector<TValidationError> validateActionErrors(TCustomWFAction& action, bool& ok)
{
    TCollectedErrors collected;
    ok = action.Validate(collected) && collected.errors.empty();
    if (!ok && collected.errors.empty())
        collected.errors.push_back({"", "the action is not valid (no reason given)"});
    return collected.errors;
}

std::vector<std::string> validateAction(TCustomWFAction& action, bool& ok)
{
    std::vector<std::string> lines;
    for (const auto& error : validateActionErrors(action, ok))
        lines.push_back(error.ToString());
    return lines;
}

namespace {

/// Runs an action that starts a program as a dry run: every step up to the start, logging to `logged`.
bool dryRun(TWFExecuteAbstractAction& action, const TWFActionHost& host, TCollectedLines& logged)
{
    TWFActionHost dryRunHost = host;
    dryRunHost.log = &logged;
    dryRunHost.dryRun = true;
    action.SetHost(&dryRunHost);
    const bool ok = action.Execute();
    action.SetHost(nullptr);
    return ok;
}

} // namespace

std::vector<TValidationError> prepareCommandLine(TCustomWFAction& action, const TWFActionHost& host)
{
    auto* execute = dynamic_cast<TWFExecuteAbstractAction*>(&action);
    TCollectedLines logged;
    if (!execute || dryRun(*execute, host, logged))
        return {};
    std::vector<TValidationError> errors{{"Command line", failureReason(action)}};
    for (auto& line : logged.lines)
        errors.push_back({"Command line", std::move(line)});
    return errors;
}

TActionPreview previewAction(TCustomWFAction& action, const TWFActionHost& host)
{
    TActionPreview preview;
    auto* execute = dynamic_cast<TWFExecuteAbstractAction*>(&action);
    preview.runsProgram = execute != nullptr;
    TWFActionHost validationHost = host;
    action.SetHost(&validationHost);
    bool valid = false;
    const auto errors = validateActionErrors(action, valid);
    action.SetHost(nullptr);
    if (!valid) {
        for (const auto& error : errors)
            preview.lines.push_back(error.ToString());
        return preview;
    }
    TCollectedLines logged;
    preview.ok = !execute || dryRun(*execute, host, logged);
    if (!preview.ok)
        preview.lines.push_back("Action Failed: " + failureReason(action));
    preview.lines.insert(preview.lines.end(), logged.lines.begin(), logged.lines.end());
    return preview;
}

std::size_t validateProject(TWFProject& project, TWFActionHost& host,
                            const std::function<void(const TActionValidation&)>& onInvalid)
{
    std::size_t checked = 0;
    for (const bool cleanup : {false, true}) {
        auto& list = cleanup ? project.cleanupActions : project.actions;
        for (std::size_t index = 0; index < list.size(); ++index) {
            TCustomWFAction& action = *list[index];
            if (!action.GetEnabled())
                continue;
            ++checked;
            action.SetHost(&host);
            bool ok = false;
            auto errors = validateActionErrors(action, ok);
            action.SetHost(nullptr);
            if (ok) {
                errors = prepareCommandLine(action, host);
                ok = errors.empty();
            }
            if (!ok)
                onInvalid({index, cleanup, actionTitle(action), std::move(errors)});
        }
    }
    return checked;
}

TBuildRunner::TBuildRunner(TConsoleLog& log, std::ostream& out, std::ostream& err) : m_log(log), m_out(out), m_err(err) {}

void TBuildRunner::Interrupt()
{
    std::lock_guard lock(m_currentMutex);
    // The flags first: either the loop sees them before starting an action, or the action is
    // already current here and is told to stop.
    m_interrupted = true;
    ++m_interrupts;
    if (m_inCleanup && !m_cleanupDeadline && m_cleanupLimitSeconds > 0) {
        // The first interrupt during the clean-up of a failed build only bounds it.
        m_cleanupDeadline = std::chrono::steady_clock::now() + std::chrono::seconds(m_cleanupLimitSeconds);
        m_deadlineChanged.notify_all();
    }
    if (m_inCleanup && m_interrupts < 2)
        return;
    // Also what is not the action's own program on the run's thread: waits for a FIFO.
    m_stopRequest = true;
    if (m_current)
        m_current->TerminateAction();
}

TBuildRunner::TActionRun TBuildRunner::runAction(TCustomWFAction& action, TWFActionHost& host)
{
    const auto started = std::chrono::steady_clock::now();
    action.SetHost(&host);
    {
        std::lock_guard lock(m_currentMutex);
        m_current = &action;
    }
    // An action that starts a program settles the log as the program starts, so its header
    // and first messages go out in one write; any other action may take long from the start.
    if (!dynamic_cast<TWFExecuteAbstractAction*>(&action))
        m_log.Flush();
    TActionRun run;
    if (!cleanupStopped()) {
        const auto errors = validateAction(action, run.ok);
        for (const auto& line : errors)
            m_log.Line(IWFLogSink::Stream::Message, line);
        if (!run.ok)
            run.reason = "validation failed";
    }
    if (run.ok && !cleanupStopped()) {
        run.ok = action.Execute();
        run.programStarted = programRan(action);
        if (!run.ok)
            run.reason = failureReason(action);
    }
    {
        std::lock_guard lock(m_currentMutex);
        m_current = nullptr;
    }
    action.SetHost(nullptr);
    m_log.Flush();
    run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - started).count();
    return run;
}

bool TBuildRunner::cleanupStopped()
{
    std::lock_guard lock(m_currentMutex);
    return m_inCleanup ? m_interrupts >= 2 || m_cleanupExpired : m_interrupted.load();
}

int TBuildRunner::Run(TWFProject& project, TWFBuildVariables& variables, const TRunSettings& settings)
{
    m_cases.clear();
    m_summary = {};
    // Stops only this run: the designer's queries on its own thread keep working.
    const TWFStopScope stopScope(m_stopRequest);
    TWFActionHost host;
    host.log = &m_log;
    host.variables = &variables;
    host.defaultStartingDir = settings.projectDirectory;
    host.dryRun = settings.dryRun;
    host.timeoutSeconds = settings.timeoutSeconds;
    host.functions = WFScriptingServices().Resolver();

    const std::size_t total = project.actions.size();
    std::size_t ran = 0;
    std::size_t disabled = 0;
    std::size_t ignored = 0;
    int status = kExitSuccess;
    TFailure failure;
    for (std::size_t index = 0; index < total; ++index) {
        TCustomWFAction& action = *project.actions[index];
        const std::size_t number = index + 1;
        const std::string title = actionTitle(action);
        TJUnitCase result{junitCaseName(number, total, title), action.GetActionTypeID(), 0, TJUnitCase::Outcome::Skipped,
                          {}, {}, {}};
        if (!action.GetEnabled()) {
            ++disabled;
            m_out << consoleHeader(number, total, title) << " (disabled)" << std::endl;
            result.message = "disabled";
            m_cases.push_back(std::move(result));
            notifyFinished(index);
            continue;
        }
        if (status != kExitSuccess || m_interrupted || !m_log.WriteFailure().empty()) {
            result.message = m_interrupted ? "not run: the build was interrupted"
                : status != kExitSuccess   ? "not run: an earlier action failed"
                                           : "not run: the build log could not be written";
            m_cases.push_back(std::move(result));
            notifyFinished(index);
            continue;
        }

        if (m_watcher.started)
            m_watcher.started(index);
        m_log.BeginAction(number, total, title);
        const TActionRun run = runAction(action, host);
        ++ran;
        result.seconds = run.seconds;
        result.log = m_log.ActionText();
        result.errors = m_log.ActionErrors();

        if (m_interrupted && (!run.ok || wasTerminated(action))) {
            status = kExitInterrupted;
            result.outcome = TJUnitCase::Outcome::Failed;
            result.message = "interrupted";
            result.stopped = true;
            m_err << "Interrupted: action " << number << " (" << title << ") was stopped." << std::endl;
        } else if (!run.ok && action.GetContinueOnFailure()) {
            ++ignored;
            result.message = "failed, the build went on (continue on failure): " + run.reason;
            m_err << "Action " << number << " (" << title << ") failed: " << run.reason
                  << "; the build goes on (continue on failure)." << std::endl;
        } else if (!run.ok) {
            status = kExitFailed;
            result.outcome = failureOutcome(run);
            result.message = failureMessage(run);
            m_err << "Action " << number << " (" << title << ") failed: " << run.reason << std::endl;
        } else {
            result.outcome = TJUnitCase::Outcome::Passed;
        }
        if (status != kExitSuccess)
            failure = {number, displayName(action), action.GetDescription(), result.message};
        m_cases.push_back(std::move(result));
        notifyFinished(index);
    }
    if (status == kExitSuccess && m_interrupted) {
        status = kExitInterrupted;
        failure = {0, {}, {}, "interrupted"};
        m_err << "Interrupted: no further action was started." << std::endl;
    }
    if (status != kExitSuccess && !project.cleanupActions.empty())
        runCleanup(project, host, settings, failure);
    m_summary = {status, ran, disabled, ignored, settings.dryRun};
    return status;
}

void TBuildRunner::runCleanup(TWFProject& project, TWFActionHost& host, const TRunSettings& settings,
                              const TFailure& failure)
{
    TWFBuildVariables& variables = *host.variables;
    variables.Set(kFailedActionVariable, TWFVariant(static_cast<long long>(failure.number)));
    variables.Set(kFailedActionNameVariable, TWFVariant(failure.name));
    variables.Set(kFailedActionDescriptionVariable, TWFVariant(failure.description));
    variables.Set(kFailureVariable, TWFVariant(failure.reason));

    const auto& list = project.cleanupActions;
    const std::size_t enabled = static_cast<std::size_t>(
        std::count_if(list.begin(), list.end(), [](const auto& action) { return action->GetEnabled(); }));
    {
        std::lock_guard lock(m_currentMutex);
        m_inCleanup = true;
        m_cleanupDone = false;
        m_cleanupExpired = false;
        m_cleanupLimitSeconds = settings.cleanupTimeoutSeconds;
        m_cleanupDeadline.reset();
        if (m_interrupts > 0 && m_cleanupLimitSeconds > 0)
            m_cleanupDeadline = std::chrono::steady_clock::now() + std::chrono::seconds(m_cleanupLimitSeconds);
        // Queries and waits of the clean-up must not see the build's stop request.
        if (m_interrupts < 2)
            m_stopRequest = false;
    }
    std::string why = failure.reason == "interrupted" ? "the build was interrupted" : "the build failed";
    if (failure.number > 0)
        why += " at action " + std::to_string(failure.number);
    if (m_interrupted && settings.cleanupTimeoutSeconds > 0)
        why += "; time limit " + std::to_string(settings.cleanupTimeoutSeconds) + " s";
    m_log.Line(IWFLogSink::Stream::Message, "=== Clean-up (" + why + "): " + plural(enabled, "action") + " ===");
    m_log.Flush();
    std::thread watchdog([this] { watchCleanupDeadline(); });

    std::size_t ran = 0;
    std::size_t failed = 0;
    const std::size_t base = project.actions.size();
    for (std::size_t index = 0; index < list.size(); ++index) {
        TCustomWFAction& action = *list[index];
        const std::size_t number = index + 1;
        const std::string title = actionTitle(action);
        TJUnitCase result{junitCaseName(number, list.size(), title), action.GetActionTypeID(), 0,
                          TJUnitCase::Outcome::Skipped, {}, {}, {}, true};
        if (!action.GetEnabled()) {
            m_out << consoleHeader(number, list.size(), title, true) << " (disabled)" << std::endl;
            result.message = "disabled";
        } else if (cleanupStopped()) {
            std::lock_guard lock(m_currentMutex);
            result.message = m_cleanupExpired ? "not run: the clean-up time limit ran out"
                                              : "not run: a second interrupt ended the clean-up";
        } else {
            if (m_watcher.started)
                m_watcher.started(base + index);
            m_log.BeginAction(number, list.size(), title, true);
            const TActionRun run = runAction(action, host);
            ++ran;
            result.seconds = run.seconds;
            result.log = m_log.ActionText();
            result.errors = m_log.ActionErrors();
            if (run.ok) {
                result.outcome = TJUnitCase::Outcome::Passed;
            } else {
                ++failed;
                const bool stopped = cleanupStopped() && wasTerminated(action);
                result.outcome = stopped ? TJUnitCase::Outcome::Failed : failureOutcome(run);
                result.message = stopped ? "stopped" : failureMessage(run);
                result.stopped = stopped;
                m_err << "Clean-up action " << number << " (" << title << ") failed: " << result.message << std::endl;
            }
        }
        m_cases.push_back(std::move(result));
        notifyFinished(base + index);
    }
    {
        std::lock_guard lock(m_currentMutex);
        m_cleanupDone = true;
        m_inCleanup = false;
        m_deadlineChanged.notify_all();
    }
    watchdog.join();
    m_err << "Clean-up: " << plural(ran, "action") << " run, " << failed << " failed." << std::endl;
}

void TBuildRunner::watchCleanupDeadline()
{
    std::unique_lock lock(m_currentMutex);
    while (!m_cleanupDone) {
        if (!m_cleanupDeadline) {
            m_deadlineChanged.wait(lock);
            continue;
        }
        if (m_deadlineChanged.wait_until(lock, *m_cleanupDeadline) == std::cv_status::timeout && !m_cleanupDone) {
            m_cleanupExpired = true;
            m_stopRequest = true;
            if (m_current)
                m_current->TerminateAction();
            return;
        }
    }
}

TJUnitCase::Outcome TBuildRunner::failureOutcome(const TActionRun& run) const
{
    return run.programStarted ? TJUnitCase::Outcome::Failed : TJUnitCase::Outcome::Error;
}

std::string TBuildRunner::failureMessage(const TActionRun& run) const
{
    // A program that failed is told by what it said last on standard error; an action that
    // never started one, by the last thing the host or the action logged.
    return withDetail(run.reason,
                      m_log.LastLine(run.programStarted ? IWFLogSink::Stream::StdErr : IWFLogSink::Stream::Message));
}

void TBuildRunner::notifyFinished(std::size_t index)
{
    if (m_watcher.finished)
        m_watcher.finished(index, m_cases.back());
}

void TBuildRunner::ReportSuccess()
{
    if (m_summary.status != kExitSuccess || !m_log.WriteFailure().empty())
        return;
    m_out << (m_summary.dryRun ? "Dry run succeeded: " : "Build succeeded: ") << plural(m_summary.ran, "action")
          << (m_summary.dryRun ? " prepared" : " run");
    if (m_summary.disabled)
        m_out << ", " << m_summary.disabled << " disabled";
    if (m_summary.ignoredFailures)
        m_out << ", " << plural(m_summary.ignoredFailures, "failure") << " let go (continue on failure)";
    m_out << "." << std::endl;
}
