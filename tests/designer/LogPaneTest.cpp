// The build log pane driven by keys and its menu's actions: find, the errors-only view,
// sections, save as and clear.
#include "DesignerTestSupport.h"

#include "LogPane.h"

#include "RowName.h"
#include "WFTestSupport.h"

#include "WFBrowse.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTest>
#include <QTextBlock>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace {

using K = TLogLineKind;

class LogPane : public ::testing::Test {
protected:
    void SetUp() override
    {
        pane.resize(700, 400);
        pane.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
        pane.view()->setFocus();
    }
    void add(const QString& text, K kind = K::Output, int times = 1)
    {
        for (int i = 0; i < times; ++i)
            pane.appendLine(times == 1 ? text : text + QString::number(i), kind);
    }
    QString shownText()
    {
        pane.flush();
        return pane.view()->toPlainText();
    }
    QString topLine() { return pane.view()->cursorForPosition(QPoint(0, 0)).block().text(); }
    void trigger(const char* action) { pane.findChild<QAction*>(action)->trigger(); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    TLogPane pane;
};

struct FindRow {
    const char* name;
    QString needle;
    bool matchCase;
    /// 'n' F3, 'p' Shift+F3; the count reads as listed after typing and after each key.
    std::string keys;
    QStringList counts;
    int highlights;
};
WF_ROW_PRINTER(FindRow)

class LogPaneFind : public LogPane, public ::testing::WithParamInterface<FindRow> {};

TEST_P(LogPaneFind, CountsSelectsAndHighlightsEveryMatch)
{
    const FindRow& row = GetParam();
    for (const char* line : {"alpha beta", "Beta gamma", "delta", "BETA beta"})
        add(line);
    press(Qt::Key_F, Qt::ControlModifier);
    ASSERT_TRUE(pane.findChild<QWidget*>("logFindBar")->isVisible());
    pane.findChild<QCheckBox*>("logFindMatchCase")->setChecked(row.matchCase);
    QTest::keyClicks(pane.findChild<QLineEdit*>("logFindText"), row.needle);
    const auto* count = pane.findChild<QLabel*>("logFindCount");
    EXPECT_EQ(count->text(), row.counts.front());
    for (std::size_t i = 0; i < row.keys.size(); ++i) {
        press(Qt::Key_F3, row.keys[i] == 'p' ? Qt::ShiftModifier : Qt::NoModifier);
        EXPECT_EQ(count->text(), row.counts[static_cast<qsizetype>(i + 1)]) << "after key " << i + 1;
        if (row.highlights > 0) {
            EXPECT_EQ(pane.view()->textCursor().selectedText().compare(row.needle, Qt::CaseInsensitive), 0);
        }
    }
    EXPECT_EQ(pane.view()->extraSelections().size(), row.highlights);
    press(Qt::Key_Escape);
    EXPECT_FALSE(pane.findChild<QWidget*>("logFindBar")->isVisible());
    EXPECT_TRUE(pane.view()->extraSelections().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LogPaneFind,
    ::testing::Values(FindRow{"F3 walks every match in any case and wraps around and Shift F3 walks back", "beta", false, "nnnnpp",
                              {"1 of 4", "2 of 4", "3 of 4", "4 of 4", "1 of 4", "4 of 4", "3 of 4"}, 4},
                      FindRow{"match case narrows the matches", "beta", true, "nn", {"1 of 2", "2 of 2", "1 of 2"}, 2},
                      FindRow{"a text found nowhere says so", "zeta", false, "n", {"No matches", "No matches"}, 0}),
    [](const auto& info) { return wftest::rowName(info.param.name); });

TEST_F(LogPane, OnlyErrorsShowsStandardErrorAndFailuresAndBackEverything)
{
    struct Row {
        QString text;
        bool fromStandardError;
        bool isError;
    };
    const Row rows[] = {{"warning: from the program's standard error", true, true},
                        {"Action Failed: the program ended with exit code 3.", false, true},
                        {"Error: The program \"x\" could not be started.", false, true},
                        {"no Error: here, it is mid-line", false, false}};
    QStringList all;
    QStringList errors;
    for (const Row& row : rows) {
        add(row.text, logLineKind(row.text, row.fromStandardError));
        all << row.text;
        if (row.isError)
            errors << row.text;
    }
    trigger("actionLogErrorsOnly");
    EXPECT_EQ(shownText(), errors.join('\n'));
    add("more output");
    add("more errors", K::Error);
    EXPECT_EQ(shownText(), (errors << "more errors").join('\n'));
    trigger("actionLogErrorsOnly");
    EXPECT_EQ(shownText(), (all << "more output" << "more errors").join('\n'));
}

TEST_F(LogPane, SelectingAnActionScrollsToItsSection)
{
    for (int section = 0; section < 3; ++section) {
        pane.beginSection(section, QString("action %1").arg(section));
        add(QString("[%1/3] action").arg(section + 1));
        add(QString("output %1 ").arg(section), K::Output, 40);
        if (section != 1)
            add(QString("error %1 ").arg(section), K::Error, 40);
    }
    struct Row {
        bool errorsOnly;
        int section;
        QString top; // empty: the pane says it has nothing to show
    };
    for (const Row& row : {Row{false, 1, "[2/3] action"}, Row{true, 2, "error 2 0"}, Row{true, 1, ""}, Row{false, 7, ""}}) {
        pane.setErrorsOnly(row.errorsOnly);
        EXPECT_EQ(pane.scrollToSection(row.section), !row.top.isEmpty()) << row.section;
        if (!row.top.isEmpty()) {
            EXPECT_EQ(topLine(), row.top);
        }
    }
}

TEST(LogPaneCap, TheOldestLinesGoWithTheSectionsTheyHeld)
{
    TLogPane pane(nullptr, 10);
    for (const int section : {0, 1}) {
        pane.beginSection(section, {});
        for (int i = 0; i < (section == 0 ? 5 : 9); ++i)
            pane.appendLine(QString("s%1 %2").arg(section).arg(i), K::Error);
        pane.flush();
    }
    pane.beginSection(2, {});
    pane.appendLine("s2 0", K::Error);
    pane.setErrorsOnly(true);
    EXPECT_FALSE(pane.scrollToSection(0));
    EXPECT_TRUE(pane.scrollToSection(1));
    EXPECT_EQ(pane.view()->textCursor().block().text(), "s1 0");
    EXPECT_EQ(pane.view()->document()->blockCount(), 10);
}

TEST_F(LogPane, KeysMoveThroughTheLog)
{
    add("line ", K::Output, 200);
    pane.flush();
    press(Qt::Key_End, Qt::ControlModifier);
    EXPECT_TRUE(pane.view()->textCursor().atEnd());
    press(Qt::Key_PageUp);
    EXPECT_LT(pane.view()->textCursor().blockNumber(), 199);
}

TEST_F(LogPane, SaveAsReplacesTheFileWholeOrLeavesItAsItWas)
{
    wftest::TempDir dir;
    for (const bool writable : {true, false}) {
        const std::string path = dir.write(writable ? "build.log" : "locked.log", "old\n");
        if (!writable)
            ::chmod(path.c_str(), 0444);
        SetWFBrowseForFileHook([&](const TWFBrowseFileRequest& request, std::string& file) {
            EXPECT_TRUE(request.save);
            file = path;
            return true;
        });
        QString message;
        if (!writable)
            designertest::answerNextBox("OK", &message);
        pane.clear();
        add("one");
        add("two", K::Error);
        pane.setErrorsOnly(true); // hides nothing from the file
        trigger("actionLogSaveAs");
        EXPECT_EQ(wftest::readFile(path), writable ? "one\ntwo\n" : "old\n");
        EXPECT_EQ(message.contains(QString::fromStdString(path)), !writable) << message.toStdString();
    }
    SetWFBrowseForFileHook(nullptr);
}

TEST_F(LogPane, ClearForgetsLinesSectionsAndMatches)
{
    pane.beginSection(0, "first");
    add("needle", K::Error);
    pane.openFind();
    QTest::keyClicks(pane.findChild<QLineEdit*>("logFindText"), "needle");
    trigger("actionLogClear");
    EXPECT_EQ(shownText(), "");
    EXPECT_FALSE(pane.scrollToSection(0));
    EXPECT_EQ(pane.findChild<QLabel*>("logFindCount")->text(), "No matches");
    add("after");
    EXPECT_EQ(shownText(), "after");
}

} // namespace
