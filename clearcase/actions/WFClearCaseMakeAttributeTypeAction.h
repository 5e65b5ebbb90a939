#pragma once

#include "actions/WFClearCaseBaseAttributeAction.h"

#include <string>
#include <vector>

/// The instance constraint of a new attribute type.
enum TClearCaseLabelConstraints : int { lcDefault = 0, lcVPelement = 1, lcVPbranch = 2, lcVPversion = 3 };
const std::vector<std::string>& labelConstraintsMembers();

/// "ClearCase Make Attribute Type": cleartool mkattype in a VOB; needs no view.
class TClearCaseMakeAttributeTypeAction : public TClearCaseBaseAttributeAction {
public:
    TClearCaseMakeAttributeTypeAction();

    std::string GetCommand() override { return "mkattype"; }
    bool GetActionDoesNotUseViewContext() override { return true; }
    /// The switches, "-vtype" and its keyword, the bounds (MaxValue as the lower bound,
    /// written first; MinValue as the upper), "-default " with its value in one argument,
    /// the comment and the name; the AND of the base step, the comment and the name.
    bool GetCommandLine(ICommandLineBuilder& builder) override;


private:
    bool m_acquire = false;
    bool m_global = false;
    TClearCaseAttributeType m_newAttributeType = atString;
    TClearCaseLabelConstraints m_constraints = lcDefault;
    bool m_minInclusive = false;
    bool m_maxInclusive = false;
    bool m_replace = false;
    bool m_shared = false;
    std::string m_defaultValue;
    std::string m_minValue;
    std::string m_maxValue;
    bool m_useMin = false;
    bool m_useMax = false;
    bool m_useDefaultValue = false;
};
