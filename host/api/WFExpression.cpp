#include "WFExpression.h"

#include "WFVariables.h"

#include <cstdlib>

namespace {

bool expandAt(std::string_view text, const TWFExpressionScope& scope, std::string& result, std::string& error)
{
    std::size_t i = 0;
    while (i < text.size()) {
        const std::size_t percent = text.find('%', i);
        if (percent == std::string_view::npos) {
            result.append(text.substr(i));
            break;
        }
        result.append(text.substr(i, percent - i));
        const std::size_t close = text.find('%', percent + 1);
        if (close == std::string_view::npos) {
            error = "unterminated '%' at position " + std::to_string(percent + 1);
            return false;
        }
        const std::string name(text.substr(percent + 1, close - percent - 1));
        i = close + 1;
        if (name.empty()) {
            result += '%';
            continue;
        }

        const std::size_t paren = name.find("()");
        if (paren != std::string::npos && paren > 0) {
            const std::string function = name.substr(0, paren);
            std::string property;
            const std::string rest = name.substr(paren + 2);
            if (!rest.empty()) {
                if (rest[0] != '.' || rest.size() == 1) {
                    error = "\"" + name + "\" is not of the form Name() or Name().Property";
                    return false;
                }
                property = rest.substr(1);
            }
            std::string reason;
            const auto value = scope.function ? scope.function(function, property, reason) : std::nullopt;
            if (!value) {
                error = reason.empty() ? "unknown function \"" + function + "()\"" : reason;
                return false;
            }
            result += *value;
            continue;
        }

        if (const std::optional<std::string> value = scope.variable ? scope.variable(name) : std::nullopt) {
            result += *value;
            continue;
        }
        if (const char* environment = std::getenv(name.c_str())) {
            result += environment;
            continue;
        }
        error = "\"" + name + "\" is neither a build variable nor an environment variable";
        return false;
    }
    return true;
}

} // namespace

bool expandExpression(std::string_view text, const TWFExpressionScope& scope, std::string& result, std::string& error)
{
    result.clear();
    error.clear();
    if (expandAt(text, scope, result, error))
        return true;
    result.clear();
    return false;
}

TWFExpressionScope expressionScope(const TWFBuildVariables* variables, TWFFunctionResolver functions)
{
    TWFExpressionScope scope;
    scope.variable = [variables](const std::string& name) -> std::optional<std::string> {
        if (!variables || !variables->IsDefined(name))
            return std::nullopt;
        return variables->Get(name).toString();
    };
    scope.function = std::move(functions);
    return scope;
}
