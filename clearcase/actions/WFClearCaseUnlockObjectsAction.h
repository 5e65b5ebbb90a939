#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Unlock (Objects)": cleartool unlock of object selectors.
class TClearCaseUnlockObjectsAction : public TClearCaseBaseAction {
public:
    TClearCaseUnlockObjectsAction();

    static std::string ActionName() { return "ClearCase Unlock (Objects)"; }
    std::string GetActionName() const override { return ActionName(); }
    std::string GetCommand() override { return "unlock"; }
    int GetHelpTopicID() const override { return 4570; }
    /// Sub-command, comment, the object selectors; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
