#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Unlock (Objects)": cleartool unlock of object selectors.
class WF_CC_API TClearCaseUnlockObjectsAction : public TClearCaseBaseAction {
public:
    TClearCaseUnlockObjectsAction();

    std::string GetCommand() override { return "unlock"; }
    /// Sub-command, comment, the object selectors; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
