#include "Dates.h"
#include "Messages.h"
#include "RowName.h"

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

TEST(Messages, SubstitutesArgumentsInOrder)
{
    EXPECT_EQ(message(Msg::LockPrevents, {"label type", "REL1", "make label"}),
              "Lock on label type \"REL1\" prevents operation \"make label\".");
    EXPECT_TRUE(messageIsUnsure(Msg::CreatedLabel));
    EXPECT_FALSE(messageIsUnsure(Msg::CheckedOut));
}

} // namespace
