#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseUCMAction.h"

#include <string>
#include <vector>

/// What a baseline is made of.
enum TSelectionType : int { slAll = 0, slComponents = 1, slActivities = 2 };
/// The kind of baseline and its labelling.
enum TLabelBehaviour : int { lbIncremental = 0, lbAll = 1, lbNone = 2 };
WF_CC_API const std::vector<std::string>& selectionTypeMembers();
WF_CC_API const std::vector<std::string>& labelBehaviourMembers();

/// "UCM Make Baseline": cleartool mkbl for all components, chosen components or activities.
class WF_CC_API TClearCaseMakeBaselineAction : public TClearCaseUCMAction {
public:
    TClearCaseMakeBaselineAction();

    std::string GetCommand() override { return "mkbl"; }
    /// Sub-command, comment, the selection, "-identical", the labelling switch, the root
    /// name; every step runs and the results are ANDed.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    TLabelBehaviour GetLabelling() const { return m_labelling; }
    void SetLabelling(TLabelBehaviour value) { m_labelling = value; }
    std::string GetBaselineRootName() const { return m_baselineRootName; }
    void SetBaselineRootName(const std::string& value) { m_baselineRootName = value; }
    bool GetUseBaselineNameTemplate() const { return m_useBaselineNameTemplate; }
    void SetUseBaselineNameTemplate(bool value) { m_useBaselineNameTemplate = value; }
    TSelectionType GetSelectionType() const { return m_selectionType; }
    void SetSelectionType(TSelectionType value) { m_selectionType = value; }

private:
    bool m_selectIdenticalComponents = false;
    TLabelBehaviour m_labelling = lbIncremental;
    std::string m_baselineRootName;
    bool m_useBaselineNameTemplate = false;
    TSelectionType m_selectionType = slAll;
};
