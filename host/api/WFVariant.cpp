#include "WFVariant.h"

#include <charconv>

TWFVariant::TWFVariant(std::string_view text)
    : m_type(Type::String), m_buffer(std::make_shared<std::string>(text)), m_length(text.size())
{
}

TWFVariant TWFVariant::FromObject(TZTXMLObject* object)
{
    TWFVariant result;
    result.m_type = Type::Object;
    result.m_object = object;
    return result;
}

std::string_view TWFVariant::stringView() const
{
    if (m_type != Type::String)
        return {};
    return std::string_view(m_buffer->data(), m_length);
}

std::string TWFVariant::toString() const
{
    switch (m_type) {
    case Type::String:
        return std::string(stringView());
    case Type::Integer:
        return std::to_string(m_integer);
    case Type::Boolean:
        return m_boolean ? "True" : "False";
    case Type::Object:
    case Type::Empty:
        break;
    }
    return {};
}

long long TWFVariant::toInteger() const
{
    switch (m_type) {
    case Type::Integer:
        return m_integer;
    case Type::Boolean:
        return m_boolean ? 1 : 0;
    case Type::String: {
        long long value = 0;
        const auto text = stringView();
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }
    default:
        return 0;
    }
}

bool TWFVariant::toBoolean() const
{
    switch (m_type) {
    case Type::Boolean:
        return m_boolean;
    case Type::Integer:
        return m_integer != 0;
    case Type::String: {
        const auto text = stringView();
        return text.size() == 4 && (text[0] == 'T' || text[0] == 't') && (text[1] | 0x20) == 'r'
            && (text[2] | 0x20) == 'u' && (text[3] | 0x20) == 'e';
    }
    default:
        return false;
    }
}

TWFVariant operator+(const TWFVariant& left, const TWFVariant& right)
{
    using Type = TWFVariant::Type;
    if (left.m_type == Type::Integer && right.m_type == Type::Integer)
        return TWFVariant(left.m_integer + right.m_integer);
    if (left.m_type == Type::Boolean && right.m_type == Type::Boolean)
        return TWFVariant(left.m_boolean || right.m_boolean);

    const std::string rightText = right.m_type == Type::String ? std::string() : right.toString();
    const std::string_view tail = right.m_type == Type::String ? right.stringView() : std::string_view(rightText);

    // Appending in place is safe: every other holder of the buffer sees only its own prefix.
    if (left.m_type == Type::String && left.m_length == left.m_buffer->size()
        && left.m_buffer != right.m_buffer) {
        TWFVariant result = left;
        result.m_buffer->append(tail);
        result.m_length = result.m_buffer->size();
        return result;
    }
    std::string joined = left.toString();
    joined.append(tail);
    return TWFVariant(std::string_view(joined));
}

bool operator==(const TWFVariant& left, const TWFVariant& right)
{
    if (left.m_type != right.m_type)
        return false;
    switch (left.m_type) {
    case TWFVariant::Type::String:
        return left.stringView() == right.stringView();
    case TWFVariant::Type::Integer:
        return left.m_integer == right.m_integer;
    case TWFVariant::Type::Boolean:
        return left.m_boolean == right.m_boolean;
    case TWFVariant::Type::Object:
        return left.m_object == right.m_object;
    case TWFVariant::Type::Empty:
        return true;
    }
    return false;
}
