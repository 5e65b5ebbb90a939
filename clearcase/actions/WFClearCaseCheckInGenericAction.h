#pragma once

#include "actions/WFClearCaseUCMAction.h"

#include <string>

/// The check-in switches and everything of a check-in command line except its operands;
/// base of the path-name and activity check-ins. Not registered by itself.
class TClearCaseCheckInGenericAction : public TClearCaseUCMAction {
public:
    TClearCaseCheckInGenericAction();

    std::string GetCommand() override { return "checkin"; }
    /// Sub-command, comment (whose result is ignored), "-nwarn", "-ptime", "-keep" or "-rm",
    /// "-identical"; the base step's result.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    bool m_noWarnings = false;
    bool m_keep = false;
    bool m_remove = false;
    bool m_preserveTime = false;
    bool m_identicalCheckin = false;
};
