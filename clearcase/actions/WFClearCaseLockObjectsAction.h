#pragma once

#include "actions/WFClearCaseLockGenericAction.h"

#include <string>

/// "ClearCase Lock (Objects)": cleartool lock of object selectors.
class TClearCaseLockObjectsAction : public TClearCaseLockGenericAction {
public:
    TClearCaseLockObjectsAction();

    /// The lock options, then the object selectors; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
