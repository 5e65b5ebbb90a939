#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// "ClearCase Apply Label": cleartool mklabel over a list of path names in a view.
class WF_CC_API TClearCaseApplyLabelAction : public TClearCaseBaseAction {
public:
    TClearCaseApplyLabelAction();

    std::string GetCommand() override { return "mklabel"; }
    /// Every step runs; the AND of the base step and the four shared steps.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetReplace() const { return m_replace; }
    void SetReplace(bool value) { m_replace = value; }
    bool GetRecurse() const { return m_recurse; }
    void SetRecurse(bool value) { m_recurse = value; }
    bool GetFollowLinks() const { return m_followLinks; }
    void SetFollowLinks(bool value) { m_followLinks = value; }

private:
    bool m_followLinks = false;
    bool m_recurse = false;
    bool m_replace = false;
};
