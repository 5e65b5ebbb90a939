#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Find Checkouts": cleartool lscheckout in the view context's directory, its
/// output optionally collected into a build variable.
class WF_CC_API TClearCaseFindCheckoutsAction : public TClearCaseBaseAction {
public:
    TClearCaseFindCheckoutsAction();

    std::string GetCommand() override { return "lscheckout"; }
    /// Sub-command, then "-short" when UseShort.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
    /// The base step, then the variable (when defined) emptied.
    void BeforeExecute(ICommandLineBuilder& builder) override;
    /// The host's handling, then the chunk appended to the variable (when defined).
    void OnStdOutData(IWFProcess& process, const std::string& data) override;

    bool GetWriteToVariable() const { return m_writeToVariable; }
    void SetWriteToVariable(bool value) { m_writeToVariable = value; }
    std::string GetVariableName() const { return m_variableName; }
    void SetVariableName(const std::string& value) { m_variableName = value; }
    bool GetUseShort() const { return m_useShort; }
    void SetUseShort(bool value) { m_useShort = value; }

private:
    bool m_writeToVariable = false;
    std::string m_variableName;
    bool m_useShort = true;
};
