#include "BuildRunner.h"

#include "ConsoleLog.h"
#include "ExitStatus.h"

#include "WFInterrupt.h"
#include "WFProject.h"
#include "WFServices.h"

#include <chrono>
#include <ostream>

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

std::string actionTitle(const TCustomWFAction& action)
{
    const auto* entry = WFActionServices().Find(action.GetActionTypeID());
    const std::string name = entry ? entry->displayName : action.GetActionName();
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

std::vector<TValidationError> prepareCommandLine(TCustomWFAction& action, const TWFActionHost& host)
{
    auto* execute = dynamic_cast<TWFExecuteAbstractAction*>(&action);
    if (!execute)
        return {};
    TCollectedLines logged;
    TWFActionHost dryRun = host;
    dryRun.log = &logged;
    dryRun.dryRun = true;
    action.SetHost(&dryRun);
    const bool ok = execute->Execute();
    action.SetHost(nullptr);
    if (ok)
        return {};
    std::vector<TValidationError> errors{{"Command line", failureReason(action)}};
    for (auto& line : logged.lines)
        errors.push_back({"Command line", std::move(line)});
    return errors;
}

std::size_t validateProject(TWFProject& project, TWFActionHost& host,
                            const std::function<void(const TActionValidation&)>& onInvalid)
{
    std::size_t checked = 0;
    for (std::size_t index = 0; index < project.actions.size(); ++index) {
        TCustomWFAction& action = *project.actions[index];
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
            onInvalid({index, actionTitle(action), std::move(errors)});
    }
    return checked;
}

TBuildRunner::TBuildRunner(TConsoleLog& log, std::ostream& out, std::ostream& err) : m_log(log), m_out(out), m_err(err) {}

void TBuildRunner::Interrupt()
{
    // The flag first: either the loop sees it before starting an action, or the action is
    // already current here and is told to stop.
    m_interrupted = true;
    // Also what is not the action's own program: queries, waits for a FIFO.
    WFRequestStop();
    std::lock_guard lock(m_currentMutex);
    if (m_current)
        m_current->TerminateAction();
}

int TBuildRunner::Run(TWFProject& project, TWFBuildVariables& variables, const TRunSettings& settings)
{
    using Clock = std::chrono::steady_clock;
    m_cases.clear();
    m_summary = {};
    // A stop request of an earlier run must not stop this one; an interrupt that came before
    // the start has set m_interrupted, which the loop honours.
    if (!m_interrupted)
        WFClearStopRequest();
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
    int status = kExitSuccess;
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
        action.SetHost(&host);
        {
            std::lock_guard lock(m_currentMutex);
            m_current = &action;
        }
        const auto started = Clock::now();
        bool ok = false;
        bool programStarted = false;
        std::string reason;
        if (!m_interrupted) {
            const auto errors = validateAction(action, ok);
            for (const auto& line : errors)
                m_log.Line(IWFLogSink::Stream::Message, line);
            if (!ok)
                reason = "validation failed";
        }
        if (ok && !m_interrupted) {
            ok = action.Execute();
            programStarted = programRan(action);
            if (!ok)
                reason = failureReason(action);
        }
        {
            std::lock_guard lock(m_currentMutex);
            m_current = nullptr;
        }
        action.SetHost(nullptr);
        m_log.Flush();
        ++ran;
        result.seconds = std::chrono::duration<double>(Clock::now() - started).count();
        result.log = m_log.ActionText();
        result.errors = m_log.ActionErrors();

        if (m_interrupted && (!ok || wasTerminated(action))) {
            status = kExitInterrupted;
            result.outcome = TJUnitCase::Outcome::Failed;
            result.message = "interrupted";
            m_err << "Interrupted: action " << number << " (" << title << ") was stopped." << std::endl;
        } else if (!ok) {
            status = kExitFailed;
            // A program that failed is told by what it said last on standard error; an action
            // that never started one, by the last thing the host or the action logged.
            result.outcome = programStarted ? TJUnitCase::Outcome::Failed : TJUnitCase::Outcome::Error;
            result.message = withDetail(reason, m_log.LastLine(programStarted ? IWFLogSink::Stream::StdErr
                                                                     : IWFLogSink::Stream::Message));
            m_err << "Action " << number << " (" << title << ") failed: " << reason << std::endl;
        } else {
            result.outcome = TJUnitCase::Outcome::Passed;
        }
        m_cases.push_back(std::move(result));
        notifyFinished(index);
    }
    if (status == kExitSuccess && m_interrupted) {
        status = kExitInterrupted;
        m_err << "Interrupted: no further action was started." << std::endl;
    }
    m_summary = {status, ran, disabled, settings.dryRun};
    return status;
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
    m_out << "." << std::endl;
}
