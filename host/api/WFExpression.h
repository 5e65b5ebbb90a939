#pragma once

#include "WFExport.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

/// Looks up a registered script function, `Name()` alone or `Name().Property`: its text, or
/// nothing with a reason.
using TWFFunctionResolver = std::function<std::optional<std::string>(const std::string& function,
                                                                     const std::string& property, std::string& error)>;

/// What an expression may refer to. Each look-up returns nothing for an unknown name.
struct WF_API TWFExpressionScope {
    /// Build variables of the run.
    std::function<std::optional<std::string>(const std::string& name)> variable;
    TWFFunctionResolver function;
};

class TWFBuildVariables;

/// The scope of a run or a project: its build variables (none: nullptr) and script functions.
WF_API TWFExpressionScope expressionScope(const TWFBuildVariables* variables, TWFFunctionResolver functions);

/// Expands `%NAME%` (a build variable, else an environment variable), `%Name().Property%`
/// (a registered script function) and `%%` (a literal percent sign). Values are inserted as
/// they are, never expanded again, so a listing held in a variable may contain `%` safely.
/// Returns false with a reason for an undefined name or an unterminated `%`.
WF_API bool expandExpression(std::string_view text, const TWFExpressionScope& scope, std::string& result, std::string& error);
