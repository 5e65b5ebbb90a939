#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Make Label Type": cleartool mklbtype in a VOB; needs no view.
class WF_CC_API TClearCaseMkLbTypeAction : public TClearCaseBaseAction {
public:
    TClearCaseMkLbTypeAction();

    std::string GetCommand() override { return "mklbtype"; }
    bool GetActionDoesNotUseViewContext() override { return true; }
    /// Every step runs; a missing label type name or VOB is logged and fails the result.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetMakeGlobal() const { return m_makeGlobal; }
    void SetMakeGlobal(bool value) { m_makeGlobal = value; }
    bool GetAcquire() const { return m_acquire; }
    void SetAcquire(bool value) { m_acquire = value; }
    bool GetPBranch() const { return m_pbranch; }
    void SetPBranch(bool value) { m_pbranch = value; }
    bool GetShared() const { return m_shared; }
    void SetShared(bool value) { m_shared = value; }
    bool GetReplace() const { return m_replace; }
    void SetReplace(bool value) { m_replace = value; }

private:
    bool m_acquire = false;
    bool m_pbranch = false;
    bool m_makeGlobal = false;
    bool m_shared = false;
    bool m_replace = false;
};
