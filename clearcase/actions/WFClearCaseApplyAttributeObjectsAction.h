#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAttributeAction.h"

#include <string>

/// "ClearCase Apply Attribute (Objects)": cleartool mkattr on object selectors.
class WF_CC_API TClearCaseApplyAttributeObjectsAction : public TClearCaseBaseAttributeAction {
public:
    TClearCaseApplyAttributeObjectsAction();

    std::string GetCommand() override { return "mkattr"; }
    /// "-replace", comment, attribute and value, object selectors; every step runs.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetReplace() const { return m_replace; }
    void SetReplace(bool value) { m_replace = value; }

private:
    bool m_replace = false;
};
