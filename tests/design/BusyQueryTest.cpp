// Design-time queries: waited for to their end while the window keeps painting, and cancelled
// from the indicator.
#include "environment/WFClearCaseUtils.h"
#include "FakeCleartool.h"
#include "RowName.h"
#include "WFBusy.h"
#include "WFBusyIndicator.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFontMetrics>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>

namespace {

struct QueryRow {
    const char* name;
    const char* listing;  ///< cleartool's answer
    const char* silenceMs; ///< how long cleartool is silent before it answers; nullptr: not at all
    bool cancel;           ///< the user cancels from the indicator
    const char* vobs;      ///< what the query returns
    const char* indicator; ///< what the indicator said; "" when none showed
};
WF_ROW_PRINTER(QueryRow)

class BusyQuery : public ::testing::TestWithParam<QueryRow> {
protected:
    void SetUp() override { WFInstallBusyIndicator(300); }
    void TearDown() override { SetWFBusyHook(nullptr); }
    wftest::FakeCleartool cleartool;
};

TEST_P(BusyQuery, IsWaitedForWhileEventsRun)
{
    const QueryRow& row = GetParam();
    cleartool.respond("lsvob -short", row.listing);
    std::optional<wftest::ScopedEnv> silence;
    if (row.silenceMs)
        silence.emplace("WF_FAKE_SLEEP_BEFORE_MS", row.silenceMs);
    int ticks = 0;
    QString shown;
    QElapsedTimer clock;
    clock.start();
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        ++ticks;
        QWidget* modal = QApplication::activeModalWidget();
        if (!modal || !shown.isEmpty())
            return;
        shown = modal->objectName() + ": " + modal->findChild<QLabel*>("message")->text();
        // Wide enough for its title in the bold font window systems show it in.
        QFont bold = modal->font();
        bold.setBold(true);
        EXPECT_GT(modal->width(), QFontMetrics(bold).horizontalAdvance(modal->windowTitle()));
        if (row.cancel)
            modal->findChild<QPushButton*>("cancelButton")->click();
    });
    watch.start(20);
    EXPECT_EQ(CCGetVOBNames(), row.vobs);
    EXPECT_EQ(shown.toStdString(), row.indicator);
    // The event loop ran throughout: the window would have repainted.
    EXPECT_GE(ticks, clock.elapsed() / 40);
    if (row.cancel) {
        EXPECT_LT(clock.elapsed(), 10000);
    }
}

// Slow: silent for longer than any silence bound of a headless query.
INSTANTIATE_TEST_SUITE_P(
    Rows, BusyQuery,
    ::testing::Values(QueryRow{"QuickShowsNoIndicator", "b\na\n", nullptr, false, "a\r\nb\r\n", ""},
                      QueryRow{"SlowIsWaitedFor", "\\vobs\\main\n", "8000", false, "\\vobs\\main\r\n",
                               "WFBusyIndicator: Asking ClearCase..."},
                      QueryRow{"HangingIsCancelledFromTheIndicator", "\\vobs\\main\n", "600000", true, "",
                               "WFBusyIndicator: Asking ClearCase..."}),
    wftest::byName);

} // namespace
