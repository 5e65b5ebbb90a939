#include "WFVariables.h"

#include "WFUtf8.h"

#include <cstdio>

TWFVariant TWFBuildVariables::Get(const std::string& name) const
{
    const auto found = m_values.find(name);
    return found == m_values.end() ? TWFVariant() : found->second;
}

std::string variableNameProblem(std::string_view name)
{
    if (name.empty())
        return "a variable needs a name";
    for (const char c : name)
        if (c == '%' || c == ' ' || static_cast<unsigned char>(c) < 0x20 || c == 0x7f)
            return "\"" + std::string(name) + "\" cannot name a variable: %NAME% expressions cannot reach a name"
                   " holding a blank, a control character or %";
    return {};
}

void appendJsonString(std::string& out, std::string_view text)
{
    out += '"';
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const auto u = static_cast<unsigned char>(c);
        if (u >= 0x80) {
            // JSON is UTF-8: a byte that starts no character (a Latin-1 file name) becomes
            // U+FFFD, as in the JUnit report, rather than making the whole line unreadable.
            const std::size_t length = utf8SequenceLength(text, i);
            if (length == 0) {
                out += "\\ufffd";
            } else {
                out.append(text.substr(i, length));
                i += length - 1;
            }
            continue;
        }
        switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        default:
            if (u < 0x20) {
                char escaped[8];
                std::snprintf(escaped, sizeof escaped, "\\u%04x", u);
                out += escaped;
            } else {
                out += c;
            }
        }
    }
    out += '"';
}

std::string TWFBuildVariables::ToJson() const
{
    std::string out = "{";
    bool first = true;
    for (const auto& [name, value] : m_values) {
        if (!first)
            out += ',';
        first = false;
        appendJsonString(out, name);
        out += ':';
        switch (value.type()) {
        case TWFVariant::Type::Integer:
            out += std::to_string(value.toInteger());
            break;
        case TWFVariant::Type::Boolean:
            out += value.toBoolean() ? "true" : "false";
            break;
        case TWFVariant::Type::String:
            appendJsonString(out, value.stringView());
            break;
        default:
            out += "null";
        }
    }
    out += '}';
    return out;
}
