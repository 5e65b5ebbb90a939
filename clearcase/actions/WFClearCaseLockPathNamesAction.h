#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseLockGenericAction.h"

#include <string>

/// "ClearCase Lock (Paths)": cleartool lock of path names in a view.
class WF_CC_API TClearCaseLockPathNamesAction : public TClearCaseLockGenericAction {
public:
    TClearCaseLockPathNamesAction();

    /// The lock options, "-pname", the path names; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
