#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseUCMAction.h"

#include <string>

/// "UCM Set Current Activity": cleartool setactivity in a view.
class WF_CC_API TClearCaseSetActivityAction : public TClearCaseUCMAction {
public:
    TClearCaseSetActivityAction();

    std::string GetCommand() override { return "setactivity"; }
    /// Sub-command, comment, then "-none" or the activity operand; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetSetActivityToNone() const { return m_setActivityToNone; }
    void SetSetActivityToNone(bool value) { m_setActivityToNone = value; }

private:
    bool m_setActivityToNone = false;
};
