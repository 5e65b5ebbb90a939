#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAttributeAction.h"

#include <string>
#include <vector>

/// The instance constraint of a new attribute type.
enum TClearCaseLabelConstraints : int { lcDefault = 0, lcVPelement = 1, lcVPbranch = 2, lcVPversion = 3 };
WF_CC_API const std::vector<std::string>& labelConstraintsMembers();

/// "ClearCase Make Attribute Type": cleartool mkattype in a VOB; needs no view.
class WF_CC_API TClearCaseMakeAttributeTypeAction : public TClearCaseBaseAttributeAction {
public:
    TClearCaseMakeAttributeTypeAction();

    std::string GetCommand() override { return "mkattype"; }
    bool GetActionDoesNotUseViewContext() override { return true; }
    /// The switches, "-vtype" and its keyword, the bounds (MaxValue as the lower bound,
    /// written first; MinValue as the upper), "-default " with its value in one argument,
    /// the comment and the name; the AND of the base step, the comment and the name.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetAcquire() const { return m_acquire; }
    void SetAcquire(bool value) { m_acquire = value; }
    bool GetGlobal() const { return m_global; }
    void SetGlobal(bool value) { m_global = value; }
    TClearCaseAttributeType GetNewAttributeType() const { return m_newAttributeType; }
    void SetNewAttributeType(TClearCaseAttributeType value) { m_newAttributeType = value; }
    TClearCaseLabelConstraints GetConstraints() const { return m_constraints; }
    void SetConstraints(TClearCaseLabelConstraints value) { m_constraints = value; }
    bool GetMinInclusive() const { return m_minInclusive; }
    void SetMinInclusive(bool value) { m_minInclusive = value; }
    bool GetMaxInclusive() const { return m_maxInclusive; }
    void SetMaxInclusive(bool value) { m_maxInclusive = value; }
    bool GetReplace() const { return m_replace; }
    void SetReplace(bool value) { m_replace = value; }
    bool GetShared() const { return m_shared; }
    void SetShared(bool value) { m_shared = value; }
    std::string GetDefaultValue() const { return m_defaultValue; }
    void SetDefaultValue(const std::string& value) { m_defaultValue = value; }
    /// The bounds change only when the host restores the persisted properties.
    std::string GetMinValue() const { return m_minValue; }
    std::string GetMaxValue() const { return m_maxValue; }
    bool GetUseMin() const { return m_useMin; }
    void SetUseMin(bool value) { m_useMin = value; }
    bool GetUseMax() const { return m_useMax; }
    void SetUseMax(bool value) { m_useMax = value; }
    bool GetUseDefaultValue() const { return m_useDefaultValue; }
    void SetUseDefaultValue(bool value) { m_useDefaultValue = value; }

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
