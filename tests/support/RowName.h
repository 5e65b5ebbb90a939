#pragma once

// Test names for table rows keyed by text: a failure then reads "TooShort/checkout_re" rather
// than an index or a byte dump.
#include <cctype>
#include <string>
#include <string_view>
#include <vector>

namespace wftest {

/// Letters and digits kept, every other run of characters one '_'; "empty" for no words.
inline std::string rowName(std::string_view text)
{
    std::string name;
    for (const char c : text) {
        if (std::isalnum(static_cast<unsigned char>(c)))
            name += c;
        else if (!name.empty() && name.back() != '_')
            name += '_';
    }
    while (!name.empty() && name.back() == '_')
        name.pop_back();
    return name.empty() ? "empty" : name;
}

inline std::string rowName(const std::vector<std::string>& words)
{
    std::string joined;
    for (const std::string& word : words)
        joined += word + ' ';
    return rowName(joined);
}

} // namespace wftest
