#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseUCMAction.h"

#include <string>

/// "UCM Make Baseline from Label": cleartool mkbl -import of an existing label type.
class WF_CC_API TClearCaseMakeBaselineFromLabelAction : public TClearCaseUCMAction {
public:
    TClearCaseMakeBaselineFromLabelAction();

    std::string GetCommand() override { return "mkbl"; }
    /// Sub-command, comment, "-import", the component list (whose failure does not fail the
    /// run), the label type operand.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetSpecifyComponents() const { return m_specifyComponents; }
    void SetSpecifyComponents(bool value) { m_specifyComponents = value; }

private:
    bool m_specifyComponents = false;
};
