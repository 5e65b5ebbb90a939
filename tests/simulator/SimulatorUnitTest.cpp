#include "Dates.h"
#include "Messages.h"
#include "RowName.h"
#include "Options.h"

#include <gtest/gtest.h>

using namespace ccsim;

namespace {

struct DateCase {
    const char* input;
    const char* expected; ///< formatLong of the result, or nullptr when the input must be refused
};

WF_ROW_PRINTER_AS(DateCase, row.input)

class DateParse : public ::testing::TestWithParam<DateCase> {};

TEST_P(DateParse, ReadsUserForms)
{
    const Time now = *clockNow("2013-03-12T10:22:31"); // a Tuesday
    auto t = parseDateTime(GetParam().input, now);
    if (!GetParam().expected) {
        EXPECT_FALSE(t) << GetParam().input;
        return;
    }
    ASSERT_TRUE(t) << GetParam().input;
    EXPECT_EQ(formatLong(*t), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Forms, DateParse,
                         ::testing::Values(DateCase{"now", "12-Mar-13.10:22:31"},
                                           DateCase{"today", "12-Mar-13.00:00:00"},
                                           DateCase{"Yesterday", "11-Mar-13.00:00:00"},
                                           DateCase{"sunday", "10-Mar-13.00:00:00"},
                                           DateCase{"Tue", "12-Mar-13.00:00:00"},
                                           DateCase{"28-Jul-99.14:00:26", "28-Jul-99.14:00:26"},
                                           DateCase{"1-february-2012", "01-Feb-12.00:00:00"},
                                           DateCase{"5-mar", "05-Mar-13.00:00:00"},
                                           DateCase{"9:05", "12-Mar-13.09:05:00"},
                                           DateCase{"yesterday.12:00", "11-Mar-13.12:00:00"},
                                           DateCase{"3-Mar-13.25:00", nullptr},
                                           DateCase{"32-Mar", nullptr},
                                           DateCase{"3-Smarch", nullptr},
                                           DateCase{"soon", nullptr}),
                         [](const auto& info) { return wftest::rowName(info.param.input); });

TEST(Clock, RefusesUnreadableFixedTime)
{
    EXPECT_FALSE(clockNow("12 March"));
    EXPECT_EQ(*clockNow("1000"), 1000);
    EXPECT_EQ(formatShort(*clockNow("2013-12-16T15:47:00"), *clockNow("2013-03-01T00:00:00")), "16-Dec.15:47");
    EXPECT_EQ(formatShort(*clockNow("2012-12-16T15:47:00"), *clockNow("2013-03-01T00:00:00")), "16-Dec-12");
}

constexpr OptionRule kRules[] = {{"reserved", 3}, {"comment", 1, true}, {"cact", 4}, {"ncomment", 2},
                                 {"default", 3, true}};

struct OptionCase {
    std::vector<std::string> words;
    ParseResult::Status status;
    std::string summary; ///< switches as name=value, then "|" and the operands
};

std::string summarize(const ParseResult& r)
{
    std::string out;
    for (const std::string& name : r.args.order())
        out += name + "=" + r.args.value(name).value_or("") + " ";
    out += "|";
    for (const std::string& op : r.args.operands())
        out += " " + op;
    return out;
}

WF_ROW_PRINTER_AS(OptionCase, wftest::rowName(row.words))

class OptionParse : public ::testing::TestWithParam<OptionCase> {};

TEST_P(OptionParse, MatchesAbbreviationsAndValues)
{
    ParseResult r = parseOptions(GetParam().words, kRules);
    EXPECT_EQ(r.status, GetParam().status);
    if (r.status == ParseResult::Status::Ok)
        EXPECT_EQ(summarize(r), GetParam().summary);
    else
        EXPECT_EQ(r.offending, GetParam().summary);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, OptionParse,
    ::testing::Values(OptionCase{{"-res", "-c", "two words", "a.c"}, ParseResult::Status::Ok, "reserved= comment=two words | a.c"},
                      OptionCase{{"-reserved", "-nc", "--", "-cact"}, ParseResult::Status::Ok, "reserved= ncomment= | -cact"},
                      OptionCase{{"-re", "a.c"}, ParseResult::Status::UnknownOption, "-re"},
                      OptionCase{{"-reservedx"}, ParseResult::Status::UnknownOption, "-reservedx"},
                      OptionCase{{"-cac"}, ParseResult::Status::UnknownOption, "-cac"},
                      OptionCase{{"a.c", "-res"}, ParseResult::Status::Ok, "| a.c -res"},
                      OptionCase{{"-default 1", "x"}, ParseResult::Status::Ok, "default=1 | x"},
                      OptionCase{{"-def", "1", "x"}, ParseResult::Status::Ok, "default=1 | x"},
                      OptionCase{{"-c"}, ParseResult::Status::MissingValue, "-c"},
                      OptionCase{{"-res 1"}, ParseResult::Status::UnknownOption, "-res 1"},
                      OptionCase{{"-help", "-zz"}, ParseResult::Status::Help, ""}),
    [](const auto& info) { return wftest::rowName(info.param.words); });

TEST(Messages, SubstitutesArgumentsInOrder)
{
    EXPECT_EQ(message(Msg::LockPrevents, {"label type", "REL1", "make label"}),
              "Lock on label type \"REL1\" prevents operation \"make label\".");
    EXPECT_TRUE(messageIsUnsure(Msg::CreatedLabel));
    EXPECT_FALSE(messageIsUnsure(Msg::CheckedOut));
}

} // namespace
