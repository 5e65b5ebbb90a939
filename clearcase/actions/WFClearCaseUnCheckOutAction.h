#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Undo Checkout": cleartool uncheckout of a list of path names.
class WF_CC_API TClearCaseUnCheckOutAction : public TClearCaseBaseAction {
public:
    TClearCaseUnCheckOutAction();

    std::string GetCommand() override { return "uncheckout"; }
    /// Sub-command, "-keep" or "-rm", the path names; the AND of the base step and the path names.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetKeep() const { return m_keep; }
    void SetKeep(bool value) { m_keep = value; }

private:
    bool m_keep = false;
};
