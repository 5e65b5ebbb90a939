#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// The lock options shared by the two lock actions; not registered by itself.
class TClearCaseLockGenericAction : public TClearCaseBaseAction {
public:
    TClearCaseLockGenericAction();

    std::string GetCommand() override { return "lock"; }
    /// Sub-command, "-replace", "-nusers" with its list or else "-obsolete", the comment; the
    /// AND of the base step and the comment.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    bool m_useNUsers = false;
    bool m_obsolete = false;
    bool m_replace = false;
    std::string m_nusersList;
};
