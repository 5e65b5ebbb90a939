#include "WFBasicActions.h"

#include "WFFiles.h"
#include "WFServices.h"

namespace {

constexpr const char* kCategory = "Basic";

} // namespace

TWFLogMessageAction::TWFLogMessageAction()
{
    PublishText("Text", &m_text);
}

bool TWFLogMessageAction::Validate(IWFActionValidationError& /*errors*/)
{
    return true;
}

bool TWFLogMessageAction::Execute()
{
    std::string expanded;
    if (!TryExpandExpression("Text", m_text, expanded, false))
        return false;
    std::size_t start = 0;
    while (start <= expanded.size()) {
        auto end = expanded.find('\n', start);
        if (end == std::string::npos)
            end = expanded.size();
        std::string line = expanded.substr(start, end - start);
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        if (end < expanded.size() || !line.empty() || start == 0)
            SendMessage(line);
        start = end + 1;
    }
    return true;
}

TWFSetVariableAction::TWFSetVariableAction()
{
    PublishString("VariableName", &m_variableName);
    PublishString("Value", &m_value);
}

bool TWFSetVariableAction::Validate(IWFActionValidationError& errors)
{
    if (!m_variableName.empty())
        return true;
    errors.AddError("Variable", "No variable name has been given.");
    return false;
}

bool TWFSetVariableAction::Execute()
{
    std::string expanded;
    if (!TryExpandExpression("Value", m_value, expanded, false))
        return false;
    SetVariable(m_variableName, TWFVariant(expanded));
    SendMessage("Set variable " + m_variableName + " to \"" + expanded + "\"");
    return true;
}

TWFWriteTextFileAction::TWFWriteTextFileAction()
{
    PublishString("FileName", &m_fileName);
    PublishText("Text", &m_text);
    PublishBoolean("Append", &m_append);
}

bool TWFWriteTextFileAction::Validate(IWFActionValidationError& errors)
{
    if (!m_fileName.empty())
        return true;
    errors.AddError("File", "No file name has been given.");
    return false;
}

bool TWFWriteTextFileAction::Execute()
{
    std::string fileName;
    std::string text;
    if (!TryExpandExpression("File Name", m_fileName, fileName, true) || !TryExpandExpression("Text", m_text, text, false))
        return false;
    const TWFActionHost* host = GetHost();
    if (!fileName.empty() && fileName.front() != '/' && host && !host->defaultStartingDir.empty())
        fileName = host->defaultStartingDir + "/" + fileName;
    // A dry run shows what the build would do and changes nothing on disk.
    if (host && host->dryRun) {
        SendMessage(std::string(m_append ? "Would append " : "Would write ") + std::to_string(text.size()) + " bytes to \""
                    + fileName + "\"");
        return true;
    }
    std::string bytes;
    std::string error;
    if (m_append && fileExists(fileName) && !readWholeFile(fileName, bytes, error)) {
        SendMessage("Action Failed: " + error + ".");
        return false;
    }
    bytes += text;
    if (!writeFileCreatingFolder(fileName, bytes, error)) {
        SendMessage("Action Failed: " + error + ".");
        return false;
    }
    SendMessage((m_append ? "Appended " : "Wrote ") + std::to_string(text.size()) + " bytes to \"" + fileName + "\"");
    return true;
}

TWFRunProgramAction::TWFRunProgramAction()
{
    LogOutput = true;
    UseExitCode = true;
    PublishString("Program", &m_program);
    PublishString("Arguments", &m_arguments);
    PublishString("WorkingDirectory", &m_workingDirectory);
}

bool TWFRunProgramAction::Validate(IWFActionValidationError& errors)
{
    if (!m_program.empty())
        return true;
    errors.AddError("Program", "No program has been given.");
    return false;
}

std::string TWFRunProgramAction::GetExecutable()
{
    // The host asks for the program first; a failed expansion fails the command line next.
    m_programExpanded = TryExpandExpression("Program", m_program, m_expandedProgram, true);
    return m_expandedProgram;
}

bool TWFRunProgramAction::GetCommandLine(ICommandLineBuilder& builder)
{
    // The working directory is expanded here, where a failure can still fail the action:
    // GetStartingDir has no way to say that it failed.
    std::string arguments;
    m_expandedDirectory.clear();
    if (!m_programExpanded || !TryExpandExpression("Arguments", m_arguments, arguments, false)
        || (!m_workingDirectory.empty()
            && !TryExpandExpression("Working Directory", m_workingDirectory, m_expandedDirectory, true)))
        return false;
    if (!arguments.empty())
        builder.AddArgument(arguments, "", akPlain);
    return true;
}

std::string TWFRunProgramAction::GetStartingDir(const std::string& executable)
{
    std::string directory = m_expandedDirectory;
    if (directory.empty())
        return TWFExecuteAbstractAction::GetStartingDir(executable);
    const TWFActionHost* host = GetHost();
    if (directory.front() != '/' && host && !host->defaultStartingDir.empty())
        directory = host->defaultStartingDir + "/" + directory;
    return directory;
}

void TWFRunProgramAction::BeforeExecute(ICommandLineBuilder& builder)
{
    TWFExecuteAbstractAction::BeforeExecute(builder);
    SendMessage("Command Line: " + m_expandedProgram + (builder.GetCommandLineText().empty() ? "" : " ")
                + builder.GetCommandLineText());
}

void RegisterBasicActions()
{
    auto& services = WFActionServices();
    services.RegisterAction(TWFLogMessageAction::ActionName(), kCategory, WFActionClassOf<TWFLogMessageAction>("TWFLogMessageAction"), "WF_LOGMESSAGE");
    services.RegisterAction(TWFSetVariableAction::ActionName(), kCategory, WFActionClassOf<TWFSetVariableAction>("TWFSetVariableAction"), "WF_SETVARIABLE");
    services.RegisterAction(TWFWriteTextFileAction::ActionName(), kCategory, WFActionClassOf<TWFWriteTextFileAction>("TWFWriteTextFileAction"), "WF_WRITETEXTFILE");
    services.RegisterAction(TWFRunProgramAction::ActionName(), kCategory, WFActionClassOf<TWFRunProgramAction>("TWFRunProgramAction"), "WF_RUNPROGRAM");
}
