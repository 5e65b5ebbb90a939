#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// Where a new config spec comes from.
enum TConfigSpecType : int { csCurrent = 0, csDefault = 1, csFile = 2, csStream = 3 };
WF_CC_API const std::vector<std::string>& configSpecTypeMembers();

/// "ClearCase Set Config Spec": cleartool setcs with a mode switch or a config spec file.
class WF_CC_API TClearCaseSetConfigSpecAction : public TClearCaseBaseAction {
public:
    TClearCaseSetConfigSpecAction();

    std::string GetCommand() override { return "setcs"; }
    /// Sub-command, the mode switch, or for csFile the quoted (existing) file.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    TConfigSpecType GetCSpecChoice() const { return m_cspecChoice; }
    void SetCSpecChoice(TConfigSpecType value) { m_cspecChoice = value; }
    std::string GetCSFilePath() const { return m_csFilePath; }
    void SetCSFilePath(const std::string& value) { m_csFilePath = value; }

private:
    TConfigSpecType m_cspecChoice = csCurrent;
    std::string m_csFilePath;
};
