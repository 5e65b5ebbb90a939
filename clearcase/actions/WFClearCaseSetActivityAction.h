#pragma once

#include "actions/WFClearCaseUCMAction.h"

#include <string>

/// "UCM Set Current Activity": cleartool setactivity in a view.
class TClearCaseSetActivityAction : public TClearCaseUCMAction {
public:
    TClearCaseSetActivityAction();

    static std::string ActionName() { return "UCM Set Current Activity"; }
    std::string GetActionName() const override { return ActionName(); }
    std::string GetCommand() override { return "setactivity"; }
    int GetHelpTopicID() const override { return 4620; }
    /// Sub-command, comment, then "-none" or the activity operand; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetSetActivityToNone() const { return m_setActivityToNone; }
    void SetSetActivityToNone(bool value) { m_setActivityToNone = value; }

private:
    bool m_setActivityToNone = false;
};
