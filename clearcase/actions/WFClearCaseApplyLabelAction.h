#pragma once

#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Apply Label": cleartool mklabel over a list of path names in a view.
class TClearCaseApplyLabelAction : public TClearCaseBaseAction {
public:
    TClearCaseApplyLabelAction();

    std::string GetCommand() override { return "mklabel"; }
    /// Every step runs; the AND of the base step and the four shared steps.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    bool m_followLinks = false;
    bool m_recurse = false;
    bool m_replace = false;
};
