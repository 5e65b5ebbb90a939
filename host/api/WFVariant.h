#pragma once

#include "WFExport.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

class TZTXMLObject;
class TWFTextBuffer;

/// The value of a build variable or script expression: a string, an integer, a Boolean or an
/// object. Strings share an append-only buffer, so `value + chunk` where `value` ends at the
/// buffer's end appends in place: a variable grown chunk by chunk costs linear time overall.
class WF_API TWFVariant {
public:
    enum class Type { Empty, String, Integer, Boolean, Object };

    TWFVariant() = default;
    TWFVariant(std::string_view text);
    TWFVariant(const std::string& text) : TWFVariant(std::string_view(text)) {}
    TWFVariant(const char* text) : TWFVariant(std::string_view(text)) {}
    TWFVariant(long long value) : m_type(Type::Integer), m_integer(value) {}
    TWFVariant(int value) : TWFVariant(static_cast<long long>(value)) {}
    TWFVariant(bool value) : m_type(Type::Boolean), m_boolean(value) {}
    static TWFVariant FromObject(TZTXMLObject* object);

    Type type() const { return m_type; }
    bool isString() const { return m_type == Type::String; }

    /// The text form: strings as they are, integers in decimal, Booleans "True"/"False".
    std::string toString() const;
    /// A view of a string value without copying it; empty for other types.
    std::string_view stringView() const;
    long long toInteger() const;
    bool toBoolean() const;
    TZTXMLObject* toObject() const { return m_type == Type::Object ? m_object : nullptr; }

    /// Variant addition: integer + integer adds, Boolean + Boolean is a logical or,
    /// anything else concatenates the text forms.
    friend WF_API TWFVariant operator+(const TWFVariant& left, const TWFVariant& right);
    friend WF_API bool operator==(const TWFVariant& left, const TWFVariant& right);

private:
    Type m_type = Type::Empty;
    std::shared_ptr<TWFTextBuffer> m_buffer;
    std::size_t m_length = 0;
    long long m_integer = 0;
    bool m_boolean = false;
    TZTXMLObject* m_object = nullptr;
};
