#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseLockGenericAction.h"

#include <string>

/// "ClearCase Lock (Objects)": cleartool lock of object selectors.
class WF_CC_API TClearCaseLockObjectsAction : public TClearCaseLockGenericAction {
public:
    TClearCaseLockObjectsAction();

    /// The lock options, then the object selectors; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
