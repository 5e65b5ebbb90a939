#pragma once

#include "actions/WFClearCaseCheckInGenericAction.h"

#include <string>

/// "UCM Check In Files for Activity": cleartool checkin of every check-out of an activity.
class TClearCaseCheckInActivityAction : public TClearCaseCheckInGenericAction {
public:
    TClearCaseCheckInActivityAction();

    static std::string ActionName() { return "UCM Check In Files for Activity"; }
    std::string GetActionName() const override { return ActionName(); }
    int GetHelpTopicID() const override { return 4630; }
    /// The generic check-in line, then the activity operand; the AND of both.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
