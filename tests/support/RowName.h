#pragma once

// Test names and printers for table rows: a failure then reads "TooShort/checkout_re" rather
// than an index or a byte dump.
#include <cctype>
#include <ostream>
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

/// Names a parameterised test after its row's `name`.
struct ByName {
    template <typename Info>
    std::string operator()(const Info& info) const
    {
        return std::string(info.param.name);
    }
};
inline constexpr ByName byName;

} // namespace wftest

/// Prints a row of a table by its `name` wherever gtest shows the parameter. Must stand in the
/// row type's own namespace.
#define WF_ROW_PRINTER(Row) WF_ROW_PRINTER_AS(Row, row.name)
/// Prints a row by the given expression of `row`.
#define WF_ROW_PRINTER_AS(Row, text)                                                                              \
    [[maybe_unused]] inline void PrintTo(const Row& row, std::ostream* out)                                        \
    {                                                                                                              \
        *out << (text);                                                                                            \
    }
