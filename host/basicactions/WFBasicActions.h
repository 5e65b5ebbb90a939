#pragma once

#include "WFAction.h"

#include <string>

/// Expands a text and writes it to the build log, one log line per line of text.
class TWFLogMessageAction final : public TCustomWFAction {
public:
    TWFLogMessageAction();
    static std::string ActionName() { return "Log Message"; }
    std::string GetActionName() const override { return ActionName(); }
    bool Validate(IWFActionValidationError& errors) override;
    bool Execute() override;

private:
    std::string m_text;
};

/// Expands a value into a build variable, creating it when needed.
class TWFSetVariableAction final : public TCustomWFAction {
public:
    TWFSetVariableAction();
    static std::string ActionName() { return "Set Variable"; }
    std::string GetActionName() const override { return ActionName(); }
    bool Validate(IWFActionValidationError& errors) override;
    bool Execute() override;

private:
    std::string m_variableName;
    std::string m_value;
};

/// Expands a text into a file, replacing it atomically or appending to it.
class TWFWriteTextFileAction final : public TCustomWFAction {
public:
    TWFWriteTextFileAction();
    static std::string ActionName() { return "Write Text File"; }
    std::string GetActionName() const override { return ActionName(); }
    bool Validate(IWFActionValidationError& errors) override;
    bool Execute() override;

private:
    std::string m_fileName;
    std::string m_text;
    bool m_append = false;
};

/// Runs any program with arguments in a working directory; judged by its exit code.
class TWFRunProgramAction final : public TWFExecuteAbstractAction {
public:
    TWFRunProgramAction();
    static std::string ActionName() { return "Run Program"; }
    std::string GetActionName() const override { return ActionName(); }
    bool Validate(IWFActionValidationError& errors) override;
    std::string GetExecutable() override;
    bool GetCommandLine(ICommandLineBuilder& builder) override;
    std::string GetStartingDir(const std::string& executable) override;
    void BeforeExecute(ICommandLineBuilder& builder) override;

private:
    std::string m_program;
    std::string m_arguments;
    std::string m_workingDirectory;
    std::string m_expandedProgram;
    bool m_programExpanded = false;
    std::string m_expandedDirectory;
};

/// Registers the four actions under the category "Basic".
void RegisterBasicActions();
