#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// The state a new element is left in.
enum TClearCaseCheckOutType : int { ccCheckedOut = 0, ccCheckedIn = 1, ccNoCheckOut = 2 };
WF_CC_API const std::vector<std::string>& checkOutTypeMembers();

/// "ClearCase Make Element": cleartool mkelem of a list of path names.
class WF_CC_API TClearCaseMakeElementAction : public TClearCaseBaseAction {
public:
    TClearCaseMakeElementAction();

    std::string GetCommand() override { return "mkelem"; }
    /// Every step runs; the AND of the base step, the comment and the path names.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    TClearCaseCheckOutType GetCheckout() const { return m_checkout; }
    void SetCheckout(TClearCaseCheckOutType value) { m_checkout = value; }
    bool GetUseElementType() const { return m_useElementType; }
    void SetUseElementType(bool value) { m_useElementType = value; }
    std::string GetElementType() const { return m_elementType; }
    void SetElementType(const std::string& value) { m_elementType = value; }
    bool GetPreserveTime() const { return m_preserveTime; }
    void SetPreserveTime(bool value) { m_preserveTime = value; }
    bool GetMakePath() const { return m_makePath; }
    void SetMakePath(bool value) { m_makePath = value; }
    bool GetMaster() const { return m_master; }
    void SetMaster(bool value) { m_master = value; }
    bool GetNoWarnings() const { return m_noWarnings; }
    void SetNoWarnings(bool value) { m_noWarnings = value; }

private:
    TClearCaseCheckOutType m_checkout = ccCheckedOut;
    bool m_useElementType = false;
    std::string m_elementType;
    bool m_preserveTime = false;
    bool m_makePath = false;
    bool m_master = false;
    bool m_noWarnings = false;
};
