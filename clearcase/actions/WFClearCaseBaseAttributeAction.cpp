#include "actions/WFClearCaseBaseAttributeAction.h"

const std::vector<std::string>& attributeTypeMembers()
{
    static const std::vector<std::string> members{"atString", "atInteger", "atReal", "atDate", "atOpaque"};
    return members;
}

TClearCaseBaseAttributeAction::TClearCaseBaseAttributeAction() = default;

void TClearCaseBaseAttributeAction::PublishAttributeName()
{
    PublishString("AttributeName", &m_attributeName);
}

void TClearCaseBaseAttributeAction::PublishAttributeValue()
{
    PublishString("AttributeValue", &m_attributeValue);
}

void TClearCaseBaseAttributeAction::PublishUseDefaultAttributeValue()
{
    PublishBoolean("UseDefaultAttributeValue", &m_useDefaultAttributeValue);
}

bool TClearCaseBaseAttributeAction::AddAttributeName(ICommandLineBuilder& builder)
{
    if (m_attributeName.empty()) {
        SendMessage("Error: You have not specified an attribute name.");
        return false;
    }
    std::string operand = m_attributeName;
    if (!GetVOBSelector().empty())
        operand += "@" + GetVOBSelector();
    std::string expanded;
    if (!TryExpandExpression("Attribute Name", operand, expanded, true))
        return false;
    addPlain(builder, expanded);
    return true;
}

bool TClearCaseBaseAttributeAction::AddAttributeNameAndValue(ICommandLineBuilder& builder)
{
    if (m_useDefaultAttributeValue)
        addPlain(builder, "-default");
    bool result = AddAttributeName(builder);
    if (!m_useDefaultAttributeValue) {
        // The value is passed through untouched: any quoting cleartool needs is the user's.
        std::string value;
        if (!TryExpandExpression("Attribute Value", m_attributeValue, value, true))
            return false;
        addPlain(builder, value);
    }
    return result;
}
