#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Unlock (Paths)": cleartool unlock of path names in a view.
class TClearCaseUnlockPathNamesAction : public TClearCaseBaseAction {
public:
    TClearCaseUnlockPathNamesAction();

    static std::string ActionName() { return "ClearCase Unlock (Paths)"; }
    std::string GetActionName() const override { return ActionName(); }
    std::string GetCommand() override { return "unlock"; }
    int GetHelpTopicID() const override { return 4570; }
    /// Sub-command, comment, "-pname", the path names; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
