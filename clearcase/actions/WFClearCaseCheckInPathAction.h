#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseCheckInGenericAction.h"

#include <string>

/// "ClearCase Check In": cleartool checkin of a list of path names.
class WF_CC_API TClearCaseCheckInPathAction : public TClearCaseCheckInGenericAction {
public:
    TClearCaseCheckInPathAction();

    /// The generic check-in line, then the path names (always); the AND of both.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
