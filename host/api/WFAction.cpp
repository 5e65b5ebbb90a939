#include "WFAction.h"

#include "WFExpression.h"

#include <unistd.h>

std::string TWFActionHost::Remembered(const std::string& key, const std::function<std::string()>& lookUp) const
{
    const auto [entry, added] = remembered.try_emplace(key);
    if (added)
        entry->second = lookUp();
    return entry->second;
}

TCustomWFAction::TCustomWFAction() = default;
TCustomWFAction::~TCustomWFAction() = default;

std::string TCustomWFAction::GetActionLogTitle() const
{
    const std::string description = GetDescription();
    return description.empty() ? GetActionName() : GetActionName() + ": " + description;
}

bool TCustomWFAction::Validate(IWFActionValidationError& /*errors*/)
{
    return true;
}

bool TCustomWFAction::TryExpandExpression(const std::string& propertyName, const std::string& value,
                                          std::string& expanded, bool nameLike) const
{
    const TWFExpressionScope scope = expressionScope(m_host ? m_host->variables : nullptr,
                                                     m_host ? m_host->functions : TWFFunctionResolver());
    std::string error;
    if (!expandExpression(value, scope, expanded, error)) {
        SendMessage("Error: Could not expand " + propertyName + " \"" + value + "\": " + error + ".");
        return false;
    }
    if (nameLike && expanded.find_first_of("\r\n") != std::string::npos) {
        SendMessage("Error: Could not expand " + propertyName + " \"" + value
                    + "\": the result holds a line break, which no name may contain.");
        expanded.clear();
        return false;
    }
    return true;
}

void TCustomWFAction::SendMessage(const std::string& text) const
{
    if (m_host)
        m_host->SendLine(IWFLogSink::Stream::Message, text);
}

TWFVariant TCustomWFAction::GetVariableValue(const std::string& name) const
{
    return m_host && m_host->variables ? m_host->variables->Get(name) : TWFVariant();
}

void TCustomWFAction::SetVariable(const std::string& name, const TWFVariant& value)
{
    if (m_host && m_host->variables)
        m_host->variables->Set(name, value);
}

bool TCustomWFAction::IsVariableDefined(const std::string& name) const
{
    return m_host && m_host->variables && m_host->variables->IsDefined(name);
}

TWFExecuteAbstractAction::TWFExecuteAbstractAction() = default;
TWFExecuteAbstractAction::~TWFExecuteAbstractAction() = default;

bool TWFExecuteAbstractAction::GetCommandLine(ICommandLineBuilder& /*builder*/)
{
    return true;
}

std::string TWFExecuteAbstractAction::GetExecutable()
{
    return {};
}

std::string TWFExecuteAbstractAction::GetStartingDir(const std::string& /*executable*/)
{
    TWFActionHost* host = GetHost();
    if (host && !host->defaultStartingDir.empty())
        return host->defaultStartingDir;
    char buffer[4096];
    return ::getcwd(buffer, sizeof buffer) ? std::string(buffer) : std::string(".");
}

void TWFExecuteAbstractAction::BeforeExecute(ICommandLineBuilder& /*builder*/) {}

bool TWFExecuteAbstractAction::InterpretResult(int exitCode)
{
    return !UseExitCode || exitCode == 0;
}

void TWFExecuteAbstractAction::OnSuccess(int /*exitCode*/) {}

void TWFExecuteAbstractAction::OnFailure(int exitCode)
{
    m_failureReason = "exit code " + std::to_string(exitCode);
    SendMessage("Action Failed: the program ended with exit code " + std::to_string(exitCode) + ".");
}

void TWFExecuteAbstractAction::OnExeNotFound(const std::string& executable)
{
    SendMessage("Error: The program \"" + executable + "\" could not be started.");
}

void TWFExecuteAbstractAction::OnProcessOutput(const std::vector<std::string>& /*lines*/) {}

void TWFExecuteAbstractAction::emitLines(TWFLineSplitter& splitter, const std::string& data, IWFLogSink::Stream stream)
{
    TWFActionHost* host = GetHost();
    if (!host || !host->log)
        return;
    splitter.add(data, [&](std::string_view line) { host->log->Line(stream, line); });
    host->log->Settle();
}

void TWFExecuteAbstractAction::flushLines()
{
    TWFActionHost* host = GetHost();
    for (auto [splitter, stream] : {std::pair{&m_outLines, IWFLogSink::Stream::StdOut},
                                    std::pair{&m_errLines, IWFLogSink::Stream::StdErr}}) {
        splitter->finish([&](std::string_view line) {
            if (host && host->log)
                host->log->Line(stream, line);
        });
    }
}

void TWFExecuteAbstractAction::OnStdOutData(IWFProcess& /*process*/, const std::string& data)
{
    if (LogOutput)
        emitLines(m_outLines, data, IWFLogSink::Stream::StdOut);
}

void TWFExecuteAbstractAction::OnStdErrData(IWFProcess& /*process*/, const std::string& data)
{
    if (LogOutput)
        emitLines(m_errLines, data, IWFLogSink::Stream::StdErr);
}

void TWFExecuteAbstractAction::OnProcessStdOut(IWFProcess& process, const std::string& data)
{
    OnStdOutData(process, data);
}

void TWFExecuteAbstractAction::OnProcessStdErr(IWFProcess& process, const std::string& data)
{
    OnStdErrData(process, data);
}

void TWFExecuteAbstractAction::TerminateAction()
{
    std::shared_ptr<IWFProcess> running;
    {
        std::lock_guard lock(m_runningMutex);
        m_terminateRequested = true;
        running = m_running;
    }
    if (running)
        running->Terminate();
}

bool TWFExecuteAbstractAction::Execute()
{
    m_failureReason.clear();
    m_lastExitCode = -1;
    m_wasTerminated = false;
    m_outLines.clear();
    m_errLines.clear();

    const std::string executable = GetExecutable();
    BeforeGetCommandLine();
    TCommandLineBuilder builder;
    if (!GetCommandLine(builder)) {
        m_failureReason = "the command line could not be built";
        return false;
    }
    AfterGetCommandLine();
    const std::string directory = GetStartingDir(executable);
    BeforeExecute(builder);

    TWFActionHost* host = GetHost();
    if (host && host->dryRun)
        return true;

    std::shared_ptr<IWFProcess> process = CreateWFProcess();
    if (!process) {
        m_failureReason = "no process runner";
        OnExeNotFound(executable);
        return false;
    }
    process->SetExecutable(executable);
    process->SetParameters(builder.GetCommandLineText());
    process->SetWorkingDirectory(directory);
    process->SetRunHidden(true);
    process->SetCollectOutput(KeepOutputLines);
    process->SetOutputHandler(this);
    const std::int64_t timeout = host ? host->timeoutSeconds : 0;
    process->SetTimeLimit(timeout > 0 ? timeout * 1000 : 0);
    {
        std::lock_guard lock(m_runningMutex);
        if (m_terminateRequested) {
            m_terminateRequested = false;
            m_wasTerminated = true;
            m_failureReason = "stopped";
            return false;
        }
        m_running = process;
    }
    // What the action logged so far is on the console before the program can print.
    if (host && host->log)
        host->log->Settle();
    const bool started = process->Execute();
    {
        std::lock_guard lock(m_runningMutex);
        m_running.reset();
        m_terminateRequested = false;
    }
    process->SetOutputHandler(nullptr);
    if (!started) {
        m_failureReason = process->GetErrorText();
        if (!process->GetTerminated()) {
            OnExeNotFound(executable);
            SendMessage("Error: " + process->GetErrorText() + ".");
        }
        m_wasTerminated = process->GetTerminated();
        return false;
    }
    flushLines();
    m_lastExitCode = process->GetExitCode();
    if (KeepOutputLines)
        OnProcessOutput(process->GetOutputLines());
    if (process->GetTimedOut()) {
        m_failureReason = "timed out after " + std::to_string(timeout) + " s";
        SendMessage("Action Failed: the program was still running after " + std::to_string(timeout)
                    + (timeout == 1 ? " second" : " seconds") + " and was stopped with everything it started.");
        return false;
    }
    if (process->GetTerminated()) {
        m_wasTerminated = true;
        m_failureReason = "stopped";
        SendMessage("Action Failed: the program was stopped on request.");
        return false;
    }
    if (!process->GetErrorText().empty())
        SendMessage("Error: " + process->GetErrorText() + ".");
    const bool ok = InterpretResult(m_lastExitCode);
    if (ok)
        OnSuccess(m_lastExitCode);
    else
        OnFailure(m_lastExitCode);
    return ok;
}
