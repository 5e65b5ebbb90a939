// The comment page and the view-context part that many pages share.
#include "PageHarness.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "FakeCleartool.h"
#include "pages/WFClearCaseViewContextSubFrame.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace wfpage;

namespace {

struct CommentCase {
    const char* name;
    bool noComment;
    const char* comment;
    const char* typed;       // nullptr: the memo is left alone
    bool clickNoComment;
    bool expectNoCommentChecked; // after reading and typing
    const char* storedNoComment;
    const char* storedComment;
};

void PrintTo(const CommentCase& c, std::ostream* os)
{
    *os << c.name;
}

class CommentPage : public ::testing::TestWithParam<CommentCase> {};

TEST_P(CommentPage, RoundTrip)
{
    const CommentCase& c = GetParam();
    TClearCaseCheckoutAction action;
    action.SetComment(c.comment);
    action.SetNoComment(c.noComment);
    OpenPage page("TClearCaseCommentFrame", action);
    EXPECT_EQ(page.page().PageName(), "Comment");
    EXPECT_EQ(page.control<QPlainTextEdit>("txtComment")->toPlainText().toStdString(), c.comment);
    if (c.typed)
        type(page.control<QPlainTextEdit>("txtComment"), c.typed);
    if (c.clickNoComment)
        click(page.control<QRadioButton>("btnNoComment"));
    EXPECT_EQ(page.control<QRadioButton>("btnNoComment")->isChecked(), c.expectNoCommentChecked);
    EXPECT_NE(page.control<QRadioButton>("btnComment")->isChecked(), c.expectNoCommentChecked);
    page.accept();
    EXPECT_EQ(property(action, "NoComment"), c.storedNoComment);
    EXPECT_EQ(property(action, "Comment"), c.storedComment);
}

const CommentCase kCommentCases[] = {
    {"EmptyOpensOnNoComment", false, "", nullptr, false, true, "True", ""},
    {"TypingChecksRecordComment", false, "", "fix build", false, false, "False", "fix build"},
    {"ClearingKeepsRecordComment", false, "old", "", false, false, "True", ""},
    {"NoCommentWithTextShowsBoth", true, "kept text", nullptr, false, true, "True", "kept text"},
    {"TextKeptWhenNoCommentChosen", false, "", "draft", true, true, "True", "draft"},
    {"EnterAddsNoLineBreak", false, "", "one\nline", false, false, "False", "oneline"},
};
INSTANTIATE_TEST_SUITE_P(Cases, CommentPage, ::testing::ValuesIn(kCommentCases),
                         [](const auto& info) { return std::string(info.param.name); });

/// The sub-frame on its own, reading and writing a base action.
class ViewContext : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    wftest::ScopedEnv config{"WF_CONFIG_DIR", cleartool.temp().path()};
    BrowseAnswers browse;
    TClearCaseCheckoutAction action;
    TClearCaseViewContextSubFrame frame;

    void SetUp() override { frame.show(); }
    QRadioButton* defaultView() { return frame.findChild<QRadioButton*>("btnDefaultView"); }
    QRadioButton* customView() { return frame.findChild<QRadioButton*>("btnCustomView"); }
    QLineEdit* path() { return frame.findChild<QLineEdit*>("txtViewPath"); }
    void browseClick() { click(frame.findChild<QAbstractButton*>("txtViewPathButton")); }
};

TEST_F(ViewContext, BlankCustomViewOpensOnDefaultAndIsStoredSo)
{
    action.SetUseDefaultViewContext(false);
    action.SetViewContextPath("");
    frame.ReadActionData(action);
    EXPECT_TRUE(defaultView()->isChecked());
    EXPECT_FALSE(customView()->isChecked());
    frame.WriteActionData(action);
    EXPECT_EQ(property(action, "UseDefaultViewContext"), "True");
}

TEST_F(ViewContext, PathShownWithHintAndKeptWhenDefaultChosen)
{
    action.SetUseDefaultViewContext(false);
    action.SetViewContextPath("/views/rel");
    frame.ReadActionData(action);
    EXPECT_TRUE(customView()->isChecked());
    EXPECT_EQ(path()->toolTip(), "/views/rel");
    EXPECT_EQ(path()->cursorPosition(), 10);
    click(defaultView());
    frame.WriteActionData(action);
    EXPECT_EQ(property(action, "UseDefaultViewContext"), "True");
    EXPECT_EQ(property(action, "ViewContextPath"), "/views/rel");
}

TEST_F(ViewContext, ContextPathFollowsTheChosenRadio)
{
    cleartool.options().SetDefaultViewPath("/views/default");
    action.SetUseDefaultViewContext(true);
    action.SetViewContextPath("/views/mine");
    frame.ReadActionData(action);
    EXPECT_EQ(frame.GetContextPath(), "/views/default");
    click(customView());
    EXPECT_EQ(frame.GetContextPath(), "/views/mine");
}

TEST_F(ViewContext, BrowseStartsAtLastViewAndConfirmChoosesCustomView)
{
    CCSetLastViewDirectory("/views/last");
    action.SetUseDefaultViewContext(true);
    frame.ReadActionData(action);
    browse.next("/views/picked");
    browseClick();
    ASSERT_EQ(browse.requests().size(), 1u);
    EXPECT_EQ(browse.requests()[0].initialDir, "/views/last");
    EXPECT_EQ(browse.requests()[0].caption, "Select View");
    EXPECT_TRUE(customView()->isChecked());
    EXPECT_EQ(path()->text(), "/views/picked");
    EXPECT_EQ(CCGetLastViewDirectory(), "/views/picked");
    // The next browse starts from the path now on the page.
    browse.next(std::nullopt);
    browseClick();
    EXPECT_EQ(browse.requests()[1].initialDir, "/views/picked");
}

TEST_F(ViewContext, CancelledBrowseChangesNothing)
{
    CCSetLastViewDirectory("/views/last");
    action.SetUseDefaultViewContext(true);
    frame.ReadActionData(action);
    browse.next(std::nullopt);
    browseClick();
    EXPECT_TRUE(defaultView()->isChecked());
    EXPECT_EQ(path()->text(), "");
    EXPECT_EQ(CCGetLastViewDirectory(), "/views/last");
}

TEST_F(ViewContext, LongerCaptionStillEndsBevelAtRightEdge)
{
    for (const char* caption : {"View Context", "View Context (Starting Directory)", "Snapshot View to update"}) {
        frame.SetCaption(caption);
        const QWidget* bevel = frame.findChild<QWidget*>("Bevel2");
        const QWidget* label = frame.findChild<QWidget*>("Label5");
        EXPECT_EQ(frame.GetCaption(), caption);
        EXPECT_EQ(bevel->geometry().right() + 1, 497) << caption;
        EXPECT_EQ(bevel->x(), label->x() + label->width() + 8) << caption;
    }
}

} // namespace
