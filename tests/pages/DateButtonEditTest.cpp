// The date edit: keywords from its menu, the calendar and the time picker, as a user picks them
// for a new attribute type's default time.
#include "PageCase.h"

#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "pages/WFClearCaseDateButtonEdit.h"

#include <QCalendarWidget>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTest>
#include <QToolButton>

using namespace wfpage;

namespace {

constexpr const char* kEdit = "txtDefaultValue";

std::vector<Step> menuItem(const char* item)
{
    return {chooseDate(kEdit, item)};
}

/// The time picker answered with `time` (nullptr: cancelled).
std::vector<Step> timePicked(const char* time)
{
    return {answerTime(kEdit, time), chooseDate(kEdit, "ChooseTime1")};
}

/// The calendar answered with `day` (nullptr: cancelled).
std::vector<Step> dayPicked(const char* day)
{
    return {answerDate(kEdit, day), chooseDate(kEdit, "ChooseDate1")};
}

/// The default time `text`, after `steps` in `language`, stored as `expected`.
PageCase dateRow(const char* name, const char* text, std::vector<Step> steps, const char* expected,
                 QLocale::Language language = QLocale::English)
{
    return {.name = name,
            .given = {{"NewAttributeType", "atDate"}, {"UseDefaultValue", "True"}, {"DefaultValue", text}},
            .steps = std::move(steps),
            .stored = {{"DefaultValue", expected}},
            .setUp = [language](wftest::FakeCleartool&) { QLocale::setDefault(QLocale(language)); }};
}

const PageCase kDateCases[] = {
    dateRow("MondayEnglishInGerman", "", menuItem("Monday1"), "monday", QLocale::German),
    dateRow("TimeReplacesTimeAfterDate", "15-Nov-06.09:00:00", timePicked("14:30:00"), "15-Nov-06.14:30:00"),
    dateRow("TimeOnNowIsTimeAlone", "now", timePicked("14:30:00"), "14:30:00"),
    dateRow("TimeAfterKeywordHourWithoutLeadingZero", "today", timePicked("09:05:07"), "today.9:05:07"),
    dateRow("TimeReplacesTimeAlone", "09:00:00", timePicked("14:30:00"), "14:30:00"),
    dateRow("MidnightLeavesDateAndDot", "15-Nov-06", timePicked("00:00:00"), "15-Nov-06."),
    dateRow("TimeCancelledKeepsText", "today", timePicked(nullptr), "today"),
    dateRow("DateMonthFromLocale", "", dayPicked("2007-05-03"), "03-mai-07", QLocale::French),
    dateRow("DateCancelledKeepsText", "today", dayPicked(nullptr), "today"),
};
WF_PAGE_TABLE(DateEdit, TClearCaseMakeAttributeTypeAction, "TClearCaseMakeAttributeTypeFrame", "New Type", kDateCases);

/// A date edit on its own, shown.
class DateEditAlone : public ::testing::Test {
protected:
    TClearCaseDateButtonEdit edit;

    void SetUp() override
    {
        edit.resize(220, 22);
        edit.show();
    }
    QLineEdit* text() { return edit.findChild<QLineEdit*>("txtEdit"); }
    QToolButton* button() { return edit.findChild<QToolButton*>("txtEditButton"); }
};

TEST_F(DateEditAlone, MenuOpensUnderTheButtonWithItsItemsInOrder)
{
    click(button());
    auto* menu = edit.findChild<QMenu*>("PopupMenu1");
    ASSERT_TRUE(menu->isVisible());
    const QPoint under = edit.mapToGlobal(QPoint(button()->x(), text()->y() + text()->height()));
    EXPECT_LE((menu->pos() - under).manhattanLength(), 4);
    QStringList captions;
    for (const QAction* action : menu->actions())
        captions << (action->isSeparator() ? "-" : action->objectName() + "=" + action->text());
    EXPECT_EQ(captions.join(" "), "NowItem=Now odayItem=Today Yesterday=Yesterday - DayofWeek=Day of Week - "
                                  "ChooseDate1=Choose Date... ChooseTime1=Choose Time...");
    QStringList days;
    for (const QAction* action : edit.findChild<QAction*>("DayofWeek")->menu()->actions())
        days << action->text();
    EXPECT_EQ(days.join(" "), "Monday Tuesday Wednesday Thursday Friday Saturday Sunday");
    menu->hide();
}

TEST_F(DateEditAlone, EnterInTheCalendarPicksTheDayShown)
{
    edit.SetDateString("today");
    answerModal([](QWidget* panel) {
        auto* calendar = panel->findChild<QCalendarWidget*>("Calendar");
        calendar->setSelectedDate(QDate(2006, 11, 15));
        QWidget* days = calendar->findChild<QWidget*>("qt_calendar_calendarview");
        ASSERT_NE(days, nullptr);
        QTest::keyClick(days, Qt::Key_Right);
        QTest::keyClick(days, Qt::Key_Return);
    });
    chooseDateItem(&edit, "ChooseDate1");
    EXPECT_EQ(edit.GetDateString(), "16-Nov-06");
}

} // namespace
