#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// Where the checked-out data goes.
enum TCCDataLocation : int { coView = 0, coOut = 1, coNoData = 2 };
/// Which version is checked out.
enum TCCCheckOutSelector : int { coDefault = 0, coVersion = 1, coBranch = 2 };
WF_CC_API const std::vector<std::string>& dataLocationMembers();
WF_CC_API const std::vector<std::string>& checkOutSelectorMembers();

/// "ClearCase Check Out": cleartool checkout of a list of path names.
class WF_CC_API TClearCaseCheckoutAction : public TClearCaseBaseAction {
public:
    TClearCaseCheckoutAction();

    std::string GetCommand() override { return "checkout"; }
    /// Every step runs and the results are ANDed, except that a failed expansion of the
    /// external path or the version/branch selector stops at once.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetReserved() const { return m_reserved; }
    void SetReserved(bool value) { m_reserved = value; }
    bool GetUnreserved() const { return m_unreserved; }
    void SetUnreserved(bool value) { m_unreserved = value; }
    bool GetPreserveTime() const { return m_preserveTime; }
    void SetPreserveTime(bool value) { m_preserveTime = value; }
    TCCDataLocation GetDataLocation() const { return m_dataLocation; }
    void SetDataLocation(TCCDataLocation value) { m_dataLocation = value; }
    TCCCheckOutSelector GetSelectionMode() const { return m_selectionMode; }
    void SetSelectionMode(TCCCheckOutSelector value) { m_selectionMode = value; }
    std::string GetOutExternalPath() const { return m_outExternalPath; }
    void SetOutExternalPath(const std::string& value) { m_outExternalPath = value; }
    std::string GetBranchSelector() const { return m_branchSelector; }
    void SetBranchSelector(const std::string& value) { m_branchSelector = value; }

private:
    bool m_reserved = false;
    bool m_unreserved = false;
    bool m_preserveTime = false;
    TCCDataLocation m_dataLocation = coView;
    TCCCheckOutSelector m_selectionMode = coDefault;
    std::string m_outExternalPath;
    std::string m_branchSelector;
};
