#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// What an expression may refer to. Each look-up returns nothing for an unknown name.
struct TWFExpressionScope {
    /// Build variables of the run.
    std::function<std::optional<std::string>(const std::string& name)> variable;
    /// Registered script functions: `Name()` alone, or `Name().Property`.
    std::function<std::optional<std::string>(const std::string& function, const std::string& property,
                                             std::string& error)> function;
};

/// Expands `%NAME%` (a build variable, else an environment variable), `%Name().Property%`
/// (a registered script function) and `%%` (a literal percent sign). Values are inserted as
/// they are, never expanded again, so a listing held in a variable may contain `%` safely.
/// Returns false with a reason for an undefined name or an unterminated `%`.
bool expandExpression(std::string_view text, const TWFExpressionScope& scope, std::string& result, std::string& error);
