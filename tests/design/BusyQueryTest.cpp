// Design-time queries: waited for to their end while the window keeps painting, and cancelled
// from the indicator.
#include "environment/WFClearCaseUtils.h"
#include "FakeCleartool.h"
#include "WFBusy.h"
#include "WFBusyIndicator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <thread>

namespace {

class BusyQuery : public ::testing::Test {
protected:
    void SetUp() override { WFInstallBusyIndicator(300); }
    void TearDown() override { SetWFBusyHook(nullptr); }
    wftest::FakeCleartool cleartool;
};

TEST_F(BusyQuery, SlowQueryIsWaitedForWhileEventsRun)
{
    // Silent for 8 s before it answers: longer than any silence bound of a headless query.
    cleartool.respond("lsvob -short", "\\vobs\\main\n");
    wftest::ScopedEnv slow("WF_FAKE_SLEEP_BEFORE_MS", "8000");
    int ticks = 0;
    QTimer tick;
    QObject::connect(&tick, &QTimer::timeout, [&] { ++ticks; });
    tick.start(100);
    EXPECT_EQ(CCGetVOBNames(), "\\vobs\\main\r\n");
    // The event loop ran throughout: the window would have repainted.
    EXPECT_GT(ticks, 40);
}

TEST_F(BusyQuery, HangingQueryIsCancelledFromTheIndicator)
{
    cleartool.respond("lsvob -short", "\\vobs\\main\n");
    wftest::ScopedEnv hang("WF_FAKE_SLEEP_BEFORE_MS", "600000");
    QString message;
    QElapsedTimer clock;
    clock.start();
    std::function<void()> poll = [&] {
        QWidget* indicator = QApplication::activeModalWidget();
        if (indicator && indicator->objectName() == "WFBusyIndicator") {
            message = indicator->findChild<QLabel*>("message")->text();
            indicator->findChild<QPushButton*>("cancelButton")->click();
            return;
        }
        if (clock.elapsed() < 10000)
            QTimer::singleShot(20, poll);
    };
    QTimer::singleShot(0, poll);
    EXPECT_EQ(CCGetVOBNames(), "");
    EXPECT_EQ(message, "Asking ClearCase...");
    EXPECT_LT(clock.elapsed(), 10000);
}

TEST_F(BusyQuery, QuickQueryShowsNoIndicator)
{
    cleartool.respond("lsvob -short", "b\na\n");
    bool shown = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] { shown = shown || QApplication::activeModalWidget(); });
    watch.start(5);
    EXPECT_EQ(CCGetVOBNames(), "a\r\nb\r\n");
    EXPECT_FALSE(shown);
}

TEST(BusyHook, WithoutHookWorkRunsOnTheCallingThread)
{
    SetWFBusyHook(nullptr);
    EXPECT_FALSE(WFBusyCanCancel());
    const auto caller = std::this_thread::get_id();
    std::thread::id ran;
    WFRunBusy("x", [&] { ran = std::this_thread::get_id(); }, [] {});
    EXPECT_EQ(ran, caller);
}

} // namespace
