// The date edit: keywords from its menu, the calendar and the time picker, as a user picks them.
#include "PageHarness.h"
#include "RowName.h"

#include "pages/WFClearCaseDateButtonEdit.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QLocale>
#include <QMenu>
#include <QTest>
#include <QTimeEdit>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

using namespace wfpage;

namespace {

/// Runs `answer` on the visible top-level widget named `name` once it is open; fails the test
/// when none opens within two seconds.
void answerPanel(const char* name, std::function<void(QWidget* panel)> answer)
{
    auto started = std::make_shared<QElapsedTimer>();
    started->start();
    auto poll = std::make_shared<std::function<void()>>();
    *poll = [name = QString(name), answer = std::move(answer), started, poll] {
        for (QWidget* widget : QApplication::topLevelWidgets())
            if (widget->objectName() == name && widget->isVisible()) {
                answer(widget);
                *poll = nullptr;
                return;
            }
        if (started->elapsed() > 2000) {
            ADD_FAILURE() << "no panel " << name.toStdString() << " opened";
            *poll = nullptr;
            return;
        }
        QTimer::singleShot(10, [poll] {
            if (*poll)
                (*poll)();
        });
    };
    QTimer::singleShot(0, [poll] { (*poll)(); });
}

/// Sets the locale for one test and puts the previous one back.
class ScopedLocale {
public:
    explicit ScopedLocale(const QLocale& locale) { QLocale::setDefault(locale); }
    ~ScopedLocale() { QLocale::setDefault(m_previous); }

private:
    QLocale m_previous;
};

/// A window opened at `under` (the platform may add its frame margin).
void expectUnder(const QWidget* panel, const QPoint& under)
{
    EXPECT_LE((panel->pos() - under).manhattanLength(), 4) << panel->pos().x() << "," << panel->pos().y();
}

struct DateCase {
    const char* name;
    const char* text;     // in the edit before the user picks
    const char* item;     // the menu item chosen
    std::optional<QDate> date; // picked in the calendar (nullopt with ChooseDate1: cancelled)
    std::optional<QTime> time; // picked in the time picker (nullopt with ChooseTime1: cancelled)
    QLocale::Language language;
    const char* expected;
};

WF_ROW_PRINTER(DateCase)

class DateEdit : public ::testing::TestWithParam<DateCase> {
protected:
    TClearCaseDateButtonEdit edit;

    void SetUp() override
    {
        edit.resize(220, 22);
        edit.show();
    }
    QLineEdit* text() { return edit.findChild<QLineEdit*>("txtEdit"); }
    QToolButton* button() { return edit.findChild<QToolButton*>("txtEditButton"); }
    QMenu* menu() { return edit.findChild<QMenu*>("PopupMenu1"); }
};

TEST_P(DateEdit, PickedValueBecomesText)
{
    const DateCase& c = GetParam();
    ScopedLocale locale{QLocale(c.language)};
    edit.SetDateString(c.text);
    const QPoint under = text()->mapToGlobal(QPoint(0, text()->height()));
    if (std::string(c.item) == "ChooseDate1")
        answerPanel("DatePanel", [&](QWidget* panel) {
            expectUnder(panel, under);
            if (c.date)
                panel->findChild<QCalendarWidget*>("Calendar")->setSelectedDate(*c.date);
            pressButton(panel, c.date ? "OK" : "Cancel");
        });
    if (std::string(c.item) == "ChooseTime1")
        answerPanel("TimePanel", [&](QWidget* panel) {
            expectUnder(panel, under);
            if (c.time)
                panel->findChild<QTimeEdit*>("TimePicker")->setTime(*c.time);
            pressButton(panel, c.time ? "OK" : "Cancel");
        });
    chooseDateItem(&edit, c.item);
    EXPECT_EQ(edit.GetDateString(), c.expected);
    // The panels are freed, picked or cancelled.
    for (QWidget* widget : QApplication::topLevelWidgets())
        EXPECT_FALSE(widget->objectName().endsWith("Panel")) << widget->objectName().toStdString();
}

const QDate kNov15{2006, 11, 15};
const QTime kHalfPastTwo{14, 30, 0};

const DateCase kDateCases[] = {
    {"NowReplacesText", "15-Nov-06", "NowItem", {}, {}, QLocale::English, "now"},
    {"Today", "", "odayItem", {}, {}, QLocale::English, "today"},
    {"Yesterday", "now", "Yesterday", {}, {}, QLocale::English, "yesterday"},
    {"MondayEnglishInGerman", "", "Monday1", {}, {}, QLocale::German, "monday"},
    {"SundayEnglishInFrench", "x", "Sunday1", {}, {}, QLocale::French, "sunday"},
    {"TimeReplacesTimeAfterDate", "15-Nov-06.09:00:00", "ChooseTime1", {}, kHalfPastTwo, QLocale::English,
     "15-Nov-06.14:30:00"},
    {"TimeOnNowIsTimeAlone", "now", "ChooseTime1", {}, kHalfPastTwo, QLocale::English, "14:30:00"},
    {"TimeAfterKeyword", "today", "ChooseTime1", {}, kHalfPastTwo, QLocale::English, "today.14:30:00"},
    {"TimeReplacesTimeAlone", "09:00:00", "ChooseTime1", {}, kHalfPastTwo, QLocale::English, "14:30:00"},
    {"HourWithoutLeadingZero", "", "ChooseTime1", {}, QTime(9, 5, 7), QLocale::English, "9:05:07"},
    {"MidnightLeavesDateAndDot", "15-Nov-06", "ChooseTime1", {}, QTime(0, 0), QLocale::English, "15-Nov-06."},
    {"MidnightAloneLeavesEmpty", "now", "ChooseTime1", {}, QTime(0, 0), QLocale::English, ""},
    {"TimeCancelledKeepsText", "today", "ChooseTime1", {}, std::nullopt, QLocale::English, "today"},
    {"DateReplacesKeyword", "now", "ChooseDate1", kNov15, {}, QLocale::English, "15-Nov-06"},
    {"DateDropsTime", "15-Nov-06.14:30:00", "ChooseDate1", QDate(2007, 1, 2), {}, QLocale::English, "02-Jan-07"},
    {"DateMonthFromLocale", "", "ChooseDate1", QDate(2007, 5, 3), {}, QLocale::French, "03-mai-07"},
    {"DateCancelledKeepsText", "today", "ChooseDate1", std::nullopt, {}, QLocale::English, "today"},
};
INSTANTIATE_TEST_SUITE_P(Cases, DateEdit, ::testing::ValuesIn(kDateCases), wftest::byName);

TEST_F(DateEdit, MenuOpensUnderTheButtonWithItsItemsInOrder)
{
    click(button());
    ASSERT_TRUE(menu()->isVisible());
    expectUnder(menu(), edit.mapToGlobal(QPoint(button()->x(), text()->y() + text()->height())));
    QStringList captions;
    for (const QAction* action : menu()->actions())
        captions << (action->isSeparator() ? "-" : action->objectName() + "=" + action->text());
    EXPECT_EQ(captions.join(" "), "NowItem=Now odayItem=Today Yesterday=Yesterday - DayofWeek=Day of Week - "
                                  "ChooseDate1=Choose Date... ChooseTime1=Choose Time...");
    QStringList days;
    for (const QAction* action : edit.findChild<QAction*>("DayofWeek")->menu()->actions())
        days << action->text();
    EXPECT_EQ(days.join(" "), "Monday Tuesday Wednesday Thursday Friday Saturday Sunday");
    menu()->hide();
}

TEST_F(DateEdit, EnterInTheCalendarPicksTheDayShown)
{
    edit.SetDateString("today");
    answerPanel("DatePanel", [](QWidget* panel) {
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

TEST_F(DateEdit, DisablingTheFrameDisablesEditAndButton)
{
    edit.SetEnabled(false);
    EXPECT_FALSE(text()->isEnabled());
    EXPECT_FALSE(button()->isEnabled());
    EXPECT_THROW(click(button()), std::runtime_error);
    edit.SetEnabled(true);
    EXPECT_TRUE(text()->isEnabled());
    EXPECT_TRUE(button()->isEnabled());
}

TEST_F(DateEdit, HiddenButtonLeavesTheEditTheWholeWidth)
{
    edit.SetShowButton(false);
    QApplication::processEvents();
    EXPECT_FALSE(edit.GetShowButton());
    EXPECT_FALSE(button()->isVisible());
    EXPECT_EQ(text()->width(), edit.width());
    edit.SetShowButton(true);
    QApplication::processEvents();
    EXPECT_TRUE(button()->isVisible());
    EXPECT_LT(text()->width(), edit.width() - button()->width());
}

} // namespace
