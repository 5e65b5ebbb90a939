#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// The state a new element is left in.
enum TClearCaseCheckOutType : int { ccCheckedOut = 0, ccCheckedIn = 1, ccNoCheckOut = 2 };
const std::vector<std::string>& checkOutTypeMembers();

/// "ClearCase Make Element": cleartool mkelem of a list of path names.
class TClearCaseMakeElementAction : public TClearCaseBaseAction {
public:
    TClearCaseMakeElementAction();

    std::string GetCommand() override { return "mkelem"; }
    /// Every step runs; the AND of the base step, the comment and the path names.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    TClearCaseCheckOutType m_checkout = ccCheckedOut;
    bool m_useElementType = false;
    std::string m_elementType;
    bool m_preserveTime = false;
    bool m_makePath = false;
    bool m_master = false;
    bool m_noWarnings = false;
};
