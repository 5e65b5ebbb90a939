// Expansion must never crash and must fail cleanly: on failure the result is empty.
#include "WFExpression.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    TWFExpressionScope scope;
    scope.variable = [](const std::string& name) -> std::optional<std::string> {
        if (name == "A")
            return "%B%";
        if (name == "PCT")
            return "100%";
        return std::nullopt;
    };
    scope.function = [](const std::string& function, const std::string& property, std::string& error) -> std::optional<std::string> {
        if (function == "F" && (property.empty() || property == "P"))
            return "value";
        error = "unknown";
        return std::nullopt;
    };
    std::string result;
    std::string error;
    const bool ok = expandExpression(std::string_view(reinterpret_cast<const char*>(data), size), scope, result, error);
    if (!ok && (!result.empty() || error.empty()))
        std::abort();
    if (ok && !error.empty())
        std::abort();
    return 0;
}
