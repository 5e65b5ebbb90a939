#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Run Cleartool (Generic)": any sub-command with the user's own arguments.
class WF_CC_API TClearCaseCleartoolAction : public TClearCaseBaseAction {
public:
    TClearCaseCleartoolAction();

    /// The stored Command, unchecked.
    std::string GetCommand() override { return m_command; }
    /// Sub-command, then the expanded Arguments as one argument written unchanged.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    std::string GetArguments() const { return m_arguments; }
    void SetArguments(const std::string& value) { m_arguments = value; }
    void SetCommand(const std::string& value) { m_command = value; }

private:
    std::string m_arguments;
    std::string m_command;
};
