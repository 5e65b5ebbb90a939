#pragma once

#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ccsim {

/// One switch of a sub-command: its full name without the dash, the shortest
/// abbreviation accepted (in characters), and whether it takes the next word as its value.
struct OptionRule {
    std::string_view name;
    size_t minLength;
    bool takesValue = false;
};

/// A parsed command line: switches by full name (value empty for flags), operands in order.
class ParsedArgs {
public:
    bool has(std::string_view name) const { return m_options.count(std::string(name)) != 0; }
    std::optional<std::string> value(std::string_view name) const;
    const std::vector<std::string>& operands() const { return m_operands; }
    /// Switches in the order given, for rules about which of two came last.
    const std::vector<std::string>& order() const { return m_order; }

    void set(std::string name, std::string value);
    void addOperand(std::string operand) { m_operands.push_back(std::move(operand)); }

private:
    std::map<std::string, std::string> m_options;
    std::vector<std::string> m_order;
    std::vector<std::string> m_operands;
};

struct ParseResult {
    enum class Status { Ok, Help, UnknownOption, MissingValue };
    Status status = Status::Ok;
    std::string offending; ///< the word that failed
    ParsedArgs args;
};

/// Parses argv after the sub-command: switches (abbreviated to at least their minimum)
/// come first; "--" or the first operand ends them. "-h" and "-help" ask for usage.
/// A value switch takes the next word, or the rest of its own word after a blank ("-default 1").
ParseResult parseOptions(std::span<const std::string> words, std::span<const OptionRule> rules);

} // namespace ccsim
