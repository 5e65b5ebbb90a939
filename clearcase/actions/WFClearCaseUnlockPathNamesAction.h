#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Unlock (Paths)": cleartool unlock of path names in a view.
class WF_CC_API TClearCaseUnlockPathNamesAction : public TClearCaseBaseAction {
public:
    TClearCaseUnlockPathNamesAction();

    std::string GetCommand() override { return "unlock"; }
    /// Sub-command, comment, "-pname", the path names; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
