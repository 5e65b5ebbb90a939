#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseCheckInGenericAction.h"

#include <string>

/// "UCM Check In Files for Activity": cleartool checkin of every check-out of an activity.
class WF_CC_API TClearCaseCheckInActivityAction : public TClearCaseCheckInGenericAction {
public:
    TClearCaseCheckInActivityAction();

    /// The generic check-in line, then the activity operand; the AND of both.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
