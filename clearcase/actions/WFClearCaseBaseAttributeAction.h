#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// The value type of an attribute type.
enum TClearCaseAttributeType : int { atString = 0, atInteger = 1, atReal = 2, atDate = 3, atOpaque = 4 };
WF_CC_API const std::vector<std::string>& attributeTypeMembers();

/// Base of the attribute actions: the attribute name, its value and the default-value flag.
/// Persists nothing by itself and is not registered.
class WF_CC_API TClearCaseBaseAttributeAction : public TClearCaseBaseAction {
public:
    TClearCaseBaseAttributeAction();

    /// The operand name[@VOB], expanded, unquoted; false with a message for an empty name.
    bool AddAttributeName(ICommandLineBuilder& builder);
    /// "-default" (when UseDefaultAttributeValue), the operand, then the expanded value
    /// (unless UseDefaultAttributeValue), exactly as it stands.
    bool AddAttributeNameAndValue(ICommandLineBuilder& builder);

    std::string GetAttributeName() const { return m_attributeName; }
    void SetAttributeName(const std::string& value) { m_attributeName = value; }
    std::string GetAttributeValue() const { return m_attributeValue; }
    void SetAttributeValue(const std::string& value) { m_attributeValue = value; }
    bool GetUseDefaultAttributeValue() const { return m_useDefaultAttributeValue; }
    void SetUseDefaultAttributeValue(bool value) { m_useDefaultAttributeValue = value; }

protected:
    void PublishAttributeName();
    void PublishAttributeValue();
    void PublishUseDefaultAttributeValue();

private:
    std::string m_attributeName;
    std::string m_attributeValue;
    bool m_useDefaultAttributeValue = false;
};
