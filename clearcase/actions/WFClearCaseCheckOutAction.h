#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// Where the checked-out data goes.
enum TCCDataLocation : int { coView = 0, coOut = 1, coNoData = 2 };
/// Which version is checked out.
enum TCCCheckOutSelector : int { coDefault = 0, coVersion = 1, coBranch = 2 };
const std::vector<std::string>& dataLocationMembers();
const std::vector<std::string>& checkOutSelectorMembers();

/// "ClearCase Check Out": cleartool checkout of a list of path names.
class TClearCaseCheckoutAction : public TClearCaseBaseAction {
public:
    TClearCaseCheckoutAction();

    std::string GetCommand() override { return "checkout"; }
    /// Every step runs and the results are ANDed, except that a failed expansion of the
    /// external path or the version/branch selector stops at once.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    bool m_reserved = false;
    bool m_unreserved = false;
    bool m_preserveTime = false;
    TCCDataLocation m_dataLocation = coView;
    TCCCheckOutSelector m_selectionMode = coDefault;
    std::string m_outExternalPath;
    std::string m_branchSelector;
};
