#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAttributeAction.h"

#include <string>

/// "ClearCase Apply Attribute (Paths)": cleartool mkattr on path names, taken as they stand
/// (the action declares that it uses no view context).
class WF_CC_API TClearCaseApplyAttributePathNamesAction : public TClearCaseBaseAttributeAction {
public:
    TClearCaseApplyAttributePathNamesAction();

    std::string GetCommand() override { return "mkattr"; }
    bool GetActionDoesNotUseViewContext() override { return true; }
    /// "-replace", "-recurse", the version selector, "-pname", comment, attribute and value,
    /// path names; every step runs and the results are ANDed.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetRecurse() const { return m_recurse; }
    void SetRecurse(bool value) { m_recurse = value; }
    bool GetReplace() const { return m_replace; }
    void SetReplace(bool value) { m_replace = value; }

private:
    bool m_recurse = false;
    bool m_replace = false;
};
