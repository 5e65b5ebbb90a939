#include "Options.h"

namespace ccsim {

std::optional<std::string> ParsedArgs::value(std::string_view name) const
{
    auto it = m_options.find(std::string(name));
    if (it == m_options.end())
        return std::nullopt;
    return it->second;
}

void ParsedArgs::set(std::string name, std::string value)
{
    m_order.push_back(name);
    m_options[std::move(name)] = std::move(value);
}

namespace {

/// The switch a word names: its full name wins over another switch it abbreviates ("-nco" is not "-ncomment").
const OptionRule* match(std::string_view word, std::span<const OptionRule> rules)
{
    for (const OptionRule& rule : rules) {
        if (rule.name == word)
            return &rule;
    }
    for (const OptionRule& rule : rules) {
        if (word.size() >= rule.minLength && word.size() <= rule.name.size() && rule.name.starts_with(word))
            return &rule;
    }
    return nullptr;
}

} // namespace

ParseResult parseOptions(std::span<const std::string> words, std::span<const OptionRule> rules)
{
    ParseResult result;
    for (size_t i = 0; i < words.size(); ++i) {
        const std::string& word = words[i];
        if (word == "--") {
            for (++i; i < words.size(); ++i)
                result.args.addOperand(words[i]);
            break;
        }
        if (word.size() < 2 || word[0] != '-') {
            for (; i < words.size(); ++i)
                result.args.addOperand(words[i]);
            break;
        }
        if (word == "-h" || word == "-help") {
            result.status = ParseResult::Status::Help;
            return result;
        }
        std::string_view body = std::string_view(word).substr(1);
        std::optional<std::string> inlineValue;
        const size_t blank = body.find(' ');
        if (blank != std::string_view::npos) {
            inlineValue = std::string(body.substr(blank + 1));
            body = body.substr(0, blank);
        }
        const OptionRule* rule = match(body, rules);
        if (!rule || (inlineValue && !rule->takesValue)) {
            result.status = ParseResult::Status::UnknownOption;
            result.offending = word;
            return result;
        }
        std::string value;
        if (rule->takesValue) {
            if (inlineValue) {
                value = *inlineValue;
            } else if (i + 1 < words.size()) {
                value = words[++i];
            } else {
                result.status = ParseResult::Status::MissingValue;
                result.offending = word;
                return result;
            }
        }
        result.args.set(std::string(rule->name), std::move(value));
    }
    return result;
}

} // namespace ccsim
