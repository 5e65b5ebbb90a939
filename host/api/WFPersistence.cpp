#include "WFPersistence.h"

#include "WFUtf8.h"

#include <algorithm>
#include <charconv>

bool parseBooleanText(const std::string& text, bool& value)
{
    if (WFCompareIgnoringCase(text, "true") == 0) {
        value = true;
        return true;
    }
    if (WFCompareIgnoringCase(text, "false") == 0) {
        value = false;
        return true;
    }
    return false;
}

void TZTXMLObject::publish(TWFPropertyInfo info)
{
    for (auto& existing : m_properties) {
        if (existing.name == info.name) {
            info.name = existing.name;
            existing = std::move(info);
            return;
        }
    }
    // Most classes publish a dozen or so: one allocation instead of five growths.
    if (m_properties.empty())
        m_properties.reserve(16);
    m_properties.push_back(std::move(info));
}

void TZTXMLObject::PublishText(const std::string& name, std::string* field)
{
    PublishString(name, field);
    for (auto& property : m_properties)
        if (property.name == name)
            property.multiLine = true;
}

const TWFPropertyInfo* TZTXMLObject::FindProperty(const std::string& name) const
{
    for (const auto& property : m_properties)
        if (property.name == name)
            return &property;
    return nullptr;
}

TWFVariant TZTXMLObject::GetPropertyValue(const std::string& name) const
{
    const auto* property = FindProperty(name);
    return property ? property->get() : TWFVariant();
}

bool TZTXMLObject::SetPropertyValue(const std::string& name, const TWFVariant& value)
{
    const auto* property = FindProperty(name);
    if (!property)
        return false;
    if (property->type == TWFPropertyType::Enumeration && value.isString())
        return SetPropertyText(name, value.toString());
    property->set(value);
    return true;
}

std::string TZTXMLObject::GetPropertyText(const std::string& name) const
{
    const auto* property = FindProperty(name);
    if (!property)
        return {};
    const TWFVariant value = property->get();
    if (property->type == TWFPropertyType::Enumeration) {
        const long long ordinal = value.toInteger();
        if (ordinal >= 0 && ordinal < static_cast<long long>(property->enumMembers.size()))
            return property->enumMembers[static_cast<std::size_t>(ordinal)];
        return std::to_string(ordinal);
    }
    return value.toString();
}

bool TZTXMLObject::SetPropertyText(const std::string& name, const std::string& text, std::string* error)
{
    const auto* property = FindProperty(name);
    if (!property) {
        if (error)
            *error = "unknown property \"" + name + "\"";
        return false;
    }
    switch (property->type) {
    case TWFPropertyType::String:
        property->set(TWFVariant(text));
        return true;
    case TWFPropertyType::Boolean: {
        bool value = false;
        if (!parseBooleanText(text, value)) {
            if (error)
                *error = "\"" + text + "\" is not a Boolean (True or False) for property \"" + name + "\"";
            return false;
        }
        property->set(TWFVariant(value));
        return true;
    }
    case TWFPropertyType::Integer: {
        long long value = 0;
        const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
        if (ec != std::errc() || end != text.data() + text.size() || text.empty()) {
            if (error)
                *error = "\"" + text + "\" is not an integer for property \"" + name + "\"";
            return false;
        }
        property->set(TWFVariant(value));
        return true;
    }
    case TWFPropertyType::Enumeration: {
        const auto& members = property->enumMembers;
        const auto found = std::find(members.begin(), members.end(), text);
        if (found == members.end()) {
            if (error) {
                std::string list;
                for (const auto& member : members)
                    list += (list.empty() ? "" : ", ") + member;
                *error = "\"" + text + "\" is not a member of property \"" + name + "\" (expected one of " + list + ")";
            }
            return false;
        }
        property->set(TWFVariant(static_cast<long long>(found - members.begin())));
        return true;
    }
    }
    return false;
}

std::vector<TWFPropertyError> TZTXMLObject::ReadState(const IZTXMLReader& reader)
{
    std::vector<TWFPropertyError> errors;
    for (const auto& property : m_properties) {
        std::string text;
        if (!reader.ReadValue(property.name, text))
            continue;
        std::string error;
        if (!SetPropertyText(property.name, text, &error))
            errors.push_back({property.name, error});
    }
    return errors;
}

void TZTXMLObject::WriteState(IZTXMLWriter& writer) const
{
    for (const auto& property : m_properties)
        writer.WriteValue(property.name, GetPropertyText(property.name));
}
