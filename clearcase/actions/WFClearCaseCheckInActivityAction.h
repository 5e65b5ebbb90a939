#pragma once

#include "actions/WFClearCaseCheckInGenericAction.h"

#include <string>

/// "UCM Check In Files for Activity": cleartool checkin of every check-out of an activity.
class TClearCaseCheckInActivityAction : public TClearCaseCheckInGenericAction {
public:
    TClearCaseCheckInActivityAction();

    /// The generic check-in line, then the activity operand; the AND of both.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
