#pragma once

#include "WFCommandLine.h"
#include "WFExport.h"
#include "WFExpression.h"
#include "WFLineSplitter.h"
#include "WFLog.h"
#include "WFPersistence.h"
#include "WFProcess.h"
#include "WFVariables.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

/// Collects design-time validation errors.
class WF_API IWFActionValidationError {
public:
    virtual ~IWFActionValidationError() = default;
    /// Location names where the user fixes it: "Options" or a property page's caption.
    virtual void AddError(const std::string& location, const std::string& message) = 0;
};

/// What a host gives the actions it runs: the log, the build variables, the default working
/// directory and the run settings. One per run; actions never own it.
class WF_API TWFActionHost {
public:
    IWFLogSink* log = nullptr;
    TWFBuildVariables* variables = nullptr;
    /// Working directory of actions that need no particular one: the project file's folder.
    std::string defaultStartingDir;
    /// Run every step up to BeforeExecute but start no process.
    bool dryRun = false;
    /// Longest a process may run, in seconds (at most kWFMaxTimeLimitSeconds); 0: no bound.
    std::int64_t timeoutSeconds = 0;
    /// Resolves `%Name().Property%` in expressions; without one, every function is unknown.
    TWFFunctionResolver functions;

    void SendLine(IWFLogSink::Stream stream, std::string_view text) const
    {
        if (log)
            log->Line(stream, text);
    }

    /// What cannot change while a run lasts (where a program lies, whether it is there), looked
    /// up once per run and host instead of once per action.
    std::string Remembered(const std::string& key, const std::function<std::string()>& lookUp) const;
    /// Remembered's answers so far.
    mutable std::map<std::string, std::string> remembered;
};

/// Any action: identity, description, persisted properties and the host's services.
class WF_API TCustomWFAction : public TZTXMLObject {
public:
    TCustomWFAction();
    ~TCustomWFAction() override;

    // Virtual operations in the host's slot order (those the packages use).
    virtual void SetActionTypeID(const std::string& typeId) { m_actionTypeId = typeId; }
    virtual bool Execute() = 0;
    virtual std::string GetActionLogTitle() const;
    virtual std::string GetDescription() const { return m_description; }
    virtual void SetDescription(const std::string& description) { m_description = description; }
    /// The host's own checks; packages call it first and keep its result.
    virtual bool Validate(IWFActionValidationError& errors);
    virtual void TerminateAction() {}
    virtual bool CanTerminate() const { return false; }
    virtual std::string GetQuickHelpFilename() const { return {}; }
    virtual int GetHelpTopicID() const { return 0; }
    /// The display name of the action's class.
    virtual std::string GetActionName() const { return "Action"; }

    std::string GetActionTypeID() const { return m_actionTypeId; }
    bool GetEnabled() const { return m_enabled; }
    void SetEnabled(bool enabled) { m_enabled = enabled; }
    /// When set, a failure of this action is logged and reported but the build goes on as if
    /// it had succeeded.
    bool GetContinueOnFailure() const { return m_continueOnFailure; }
    void SetContinueOnFailure(bool goOn) { m_continueOnFailure = goOn; }

    // Services the host provides to every action (not virtual).
    /// Expands the host's expressions in Value. On failure the host logs one line naming
    /// PropertyName and the reason, and the caller gives up without a message of its own.
    /// NameLike marks a value that names something (a path, selector or type): such a value
    /// may not expand to text with a line break, which would split one name into several.
    bool TryExpandExpression(const std::string& propertyName, const std::string& value, std::string& expanded,
                             bool nameLike) const;
    /// Appends one line to the running action's log.
    void SendMessage(const std::string& text) const;
    TWFVariant GetVariableValue(const std::string& name) const;
    void SetVariable(const std::string& name, const TWFVariant& value);
    bool IsVariableDefined(const std::string& name) const;

    void SetHost(TWFActionHost* host) { m_host = host; }
    TWFActionHost* GetHost() const { return m_host; }

private:
    std::string m_actionTypeId;
    std::string m_description;
    bool m_enabled = true;
    bool m_continueOnFailure = false;
    TWFActionHost* m_host = nullptr;
};

/// An action that runs an external program: the run-time sequence of the host.
class WF_API TWFExecuteAbstractAction : public TCustomWFAction, private IWFProcessOutputHandler {
public:
    TWFExecuteAbstractAction();
    ~TWFExecuteAbstractAction() override;

    /// Validate is the caller's; Execute runs GetExecutable, BeforeGetCommandLine,
    /// GetCommandLine, AfterGetCommandLine, GetStartingDir, BeforeExecute, the process with
    /// its output, OnProcessOutput, InterpretResult and OnSuccess or OnFailure.
    bool Execute() override;
    /// Stops a running process with its process tree; safe from another thread.
    void TerminateAction() override;
    bool CanTerminate() const override { return true; }

    virtual bool GetCommandLine(ICommandLineBuilder& builder);
    virtual std::string GetExecutable();
    /// The host's default: the project file's folder.
    virtual std::string GetStartingDir(const std::string& executable);
    virtual void BeforeGetCommandLine() {}
    virtual void AfterGetCommandLine() {}
    virtual void BeforeExecute(ICommandLineBuilder& builder);
    /// With UseExitCode, success is exit code 0; without it every completed run succeeds.
    virtual bool InterpretResult(int exitCode);
    virtual void OnSuccess(int exitCode);
    /// Logs the exit code that failed the action.
    virtual void OnFailure(int exitCode);
    /// Logs why the program could not be started.
    virtual void OnExeNotFound(const std::string& executable);
    /// All standard output lines, at the end; only when KeepOutputLines is set.
    virtual void OnProcessOutput(const std::vector<std::string>& lines);
    /// Each chunk of standard error; the host's handling logs it line by line.
    virtual void OnStdErrData(IWFProcess& process, const std::string& data);
    /// Each chunk of standard output; the host's handling logs it line by line.
    virtual void OnStdOutData(IWFProcess& process, const std::string& data);

    // Execution settings. The first two are off on a new action; an action that runs a
    // program whose output and exit code matter switches them on in its constructor.
    /// Send every line of the program's output to the build log.
    bool LogOutput = false;
    /// Judge the run by the exit code (0 succeeds).
    bool UseExitCode = false;
    /// Keep all standard output lines for OnProcessOutput.
    bool KeepOutputLines = false;

    /// Why the last Execute failed, for reports ("exit code 1", "timed out").
    const std::string& GetFailureReason() const { return m_failureReason; }
    /// The exit code of the last run, or -1 when no process ran.
    int GetLastExitCode() const { return m_lastExitCode; }
    bool WasTerminated() const { return m_wasTerminated; }

private:
    void OnProcessStdOut(IWFProcess& process, const std::string& data) override;
    void OnProcessStdErr(IWFProcess& process, const std::string& data) override;
    void emitLines(TWFLineSplitter& splitter, const std::string& data, IWFLogSink::Stream stream);
    void flushLines();

    std::mutex m_runningMutex;
    std::shared_ptr<IWFProcess> m_running;
    bool m_terminateRequested = false;
    TWFLineSplitter m_outLines;
    TWFLineSplitter m_errLines;
    std::string m_failureReason;
    int m_lastExitCode = -1;
    bool m_wasTerminated = false;
};
