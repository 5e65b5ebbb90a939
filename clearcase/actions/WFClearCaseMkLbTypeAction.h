#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Make Label Type": cleartool mklbtype in a VOB; needs no view.
class TClearCaseMkLbTypeAction : public TClearCaseBaseAction {
public:
    TClearCaseMkLbTypeAction();

    std::string GetCommand() override { return "mklbtype"; }
    bool GetActionDoesNotUseViewContext() override { return true; }
    /// Every step runs; a missing label type name or VOB is logged and fails the result.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    bool m_acquire = false;
    bool m_pbranch = false;
    bool m_makeGlobal = false;
    bool m_shared = false;
    bool m_replace = false;
};
