#include "WFVariables.h"
#include "WFVariant.h"

#include <gtest/gtest.h>

namespace {

TEST(Variant, GrowingInPlaceLeavesEarlierValuesAsTheyWere)
{
    const TWFVariant empty("");
    const TWFVariant first = empty + TWFVariant("a.c\n");
    const TWFVariant second = first + TWFVariant("b.c\n");
    // `first` no longer ends at its buffer's end, so adding to it again must copy.
    const TWFVariant branch = first + TWFVariant("x.c\n");
    EXPECT_EQ(empty.toString(), "");
    EXPECT_EQ(first.toString(), "a.c\n");
    EXPECT_EQ(second.toString(), "a.c\nb.c\n");
    EXPECT_EQ(branch.toString(), "a.c\nx.c\n");
    EXPECT_EQ((second + second).toString(), "a.c\nb.c\na.c\nb.c\n");
}

TEST(Variant, AdditionFollowsTheTypes)
{
    EXPECT_EQ((TWFVariant(2) + TWFVariant(3)).toInteger(), 5);
    EXPECT_EQ((TWFVariant("n=") + TWFVariant(3)).toString(), "n=3");
    EXPECT_EQ((TWFVariant(3) + TWFVariant("x")).toString(), "3x");
    EXPECT_EQ((TWFVariant(true) + TWFVariant(false)).toBoolean(), true);
    EXPECT_EQ((TWFVariant("flag ") + TWFVariant(false)).toString(), "flag False");
    EXPECT_EQ((TWFVariant() + TWFVariant("x")).toString(), "x");
}

TEST(Variant, VariableGrownChunkByChunkKeepsEveryByteAcrossBufferMoves)
{
    TWFBuildVariables variables;
    variables.Set("OUT", TWFVariant(""));
    const TWFVariant early = variables.Get("OUT") + TWFVariant("start|");
    variables.Set("OUT", early);
    std::string expected = "start|";
    for (int i = 0; i < 64; ++i) {
        const std::string chunk = std::string(64 * 1024, static_cast<char>('a' + i % 26)) + std::string(1, '\0') + "\r\n";
        variables.Set("OUT", variables.Get("OUT") + TWFVariant(chunk));
        expected += chunk;
    }
    EXPECT_EQ(variables.Get("OUT").stringView().size(), expected.size());
    EXPECT_TRUE(variables.Get("OUT").stringView() == expected);
    EXPECT_EQ(early.toString(), "start|");
}

TEST(BuildVariables, JsonIsOneLineWithEscapes)
{
    TWFBuildVariables variables;
    variables.Set("B", TWFVariant(true));
    variables.Set("A", TWFVariant("x\"y\\z\r\n\t\x01"));
    variables.Set("N", TWFVariant(42));
    EXPECT_EQ(variables.ToJson(), R"({"A":"x\"y\\z\r\n\t\u0001","B":true,"N":42})");
}

} // namespace
