#include "WFCommandLine.h"
#include "RowName.h"

#include <gtest/gtest.h>

namespace {

struct SplitCase {
    const char* name;
    const char* text;
    std::vector<std::string> expected;
};
WF_ROW_PRINTER(SplitCase)

class SplitCommandLine : public ::testing::TestWithParam<SplitCase> {};

TEST_P(SplitCommandLine, GivesTheArguments)
{
    EXPECT_EQ(splitCommandLine(GetParam().text), GetParam().expected) << GetParam().text;
}

INSTANTIATE_TEST_SUITE_P(
    Rules, SplitCommandLine,
    ::testing::Values(
        SplitCase{"runsOfBlanks", "  a \t b  ", {"a", "b"}},
        SplitCase{"quoteInsideArgument", R"(-out"C:\x y"z)", {R"(-outC:\x yz)"}},
        SplitCase{"emptyQuoted", R"(a "" b)", {"a", "", "b"}},
        SplitCase{"trailingBackslashBeforeQuote", R"("C:\dir\\" next)", {R"(C:\dir\)", "next"}},
        SplitCase{"oddBackslashesBeforeQuote", R"("a\\\"b")", {R"(a\"b)"}},
        SplitCase{"doubledQuoteInsideQuotes", R"("say ""hi""")", {R"(say "hi")"}},
        SplitCase{"unterminatedQuoteRunsToEnd", R"(-c "open end)", {"-c", "open end"}},
        SplitCase{"attributeValueKeepsQuotes", R"(BuildNo \"abc\")", {"BuildNo", R"("abc")"}}), wftest::byName);

} // namespace
