#pragma once

#include "actions/WFClearCaseCheckInGenericAction.h"

#include <string>

/// "ClearCase Check In": cleartool checkin of a list of path names.
class TClearCaseCheckInPathAction : public TClearCaseCheckInGenericAction {
public:
    TClearCaseCheckInPathAction();

    static std::string ActionName() { return "ClearCase Check In"; }
    std::string GetActionName() const override { return ActionName(); }
    int GetHelpTopicID() const override { return 4470; }
    /// The generic check-in line, then the path names (always); the AND of both.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
};
