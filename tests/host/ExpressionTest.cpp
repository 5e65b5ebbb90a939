#include "WFExpression.h"
#include "RowName.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <map>

namespace {

struct ExpandCase {
    const char* name;
    const char* text;
    bool ok;
    const char* expected; // the result, or a piece of the reason
};
WF_ROW_PRINTER(ExpandCase)

class ExpandExpression : public ::testing::TestWithParam<ExpandCase> {};

TEST_P(ExpandExpression, ExpandsOrNamesTheReason)
{
    wftest::ScopedEnv home("WF_TEST_ENV_ONLY", "from-env");
    wftest::ScopedEnv shadowed("WF_TEST_SHADOWED", "env-loses");
    const std::map<std::string, std::string> variables = {
        {"VIEW", "/views/dev"}, {"WF_TEST_SHADOWED", "variable-wins"}, {"PCT", "100%"}, {"REF", "%VIEW%"}};
    TWFExpressionScope scope;
    scope.variable = [&](const std::string& name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional<std::string>(found->second);
    };
    scope.function = [](const std::string& function, const std::string& property, std::string& error) -> std::optional<std::string> {
        if (function != "Options") {
            error = "unknown function \"" + function + "()\"";
            return std::nullopt;
        }
        if (property.empty())
            return "options";
        if (property == "Path")
            return "/opt/tool";
        error = "no property \"" + property + "\"";
        return std::nullopt;
    };
    std::string result;
    std::string error;
    const auto& c = GetParam();
    const bool ok = expandExpression(c.text, scope, result, error);
    ASSERT_EQ(ok, c.ok) << "result: " << result << " error: " << error;
    if (c.ok) {
        EXPECT_EQ(result, c.expected);
    } else {
        EXPECT_NE(error.find(c.expected), std::string::npos) << error;
        EXPECT_TRUE(result.empty());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rules, ExpandExpression,
    ::testing::Values(
        ExpandCase{"variableBeforeEnvironment", "%WF_TEST_SHADOWED%", true, "variable-wins"},
        ExpandCase{"environmentFallback", "%WF_TEST_ENV_ONLY%", true, "from-env"},
        ExpandCase{"percentAroundName", "%%%VIEW%%%", true, "%/views/dev%"},
        ExpandCase{"valueNotExpandedAgain", "%REF% and %PCT%", true, "%VIEW% and 100%"},
        ExpandCase{"functionProperty", "%Options().Path%/bin", true, "/opt/tool/bin"},
        ExpandCase{"functionAlone", "%Options()%", true, "options"},
        ExpandCase{"undefined", "%NOPE%", false, "\"NOPE\""},
        ExpandCase{"unterminated", "50% done", false, "unterminated"},
        ExpandCase{"unknownFunction", "%Other().X%", false, "Other()"},
        ExpandCase{"malformedCall", "%Options()Path%", false, "Name().Property"}), wftest::byName);

} // namespace
