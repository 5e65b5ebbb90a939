// The comment page and the view-context part that many pages share.
#include "PageCase.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "FakeCleartool.h"
#include "pages/WFClearCaseViewContextSubFrame.h"

#include <QLineEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

using namespace wfpage;

namespace {

/// Which of the two radio buttons is checked, and the memo's text.
std::vector<Shown> commentShown(bool noComment, const char* text)
{
    return {{"btnNoComment", noComment}, {"btnComment", !noComment}, {"txtComment", {}, {}, text}};
}

Properties comment(const char* noComment, const char* text)
{
    return {{"NoComment", noComment}, {"Comment", text}};
}

const PageCase kCommentCases[] = {
    {.name = "EmptyOpensOnNoComment", .given = comment("False", ""), .steps = {}, .shown = commentShown(true, ""),
     .stored = comment("True", "")},
    {.name = "TypingChecksRecordComment", .given = comment("False", ""), .steps = {typeInto("txtComment", "fix build")},
     .shown = commentShown(false, "fix build"), .stored = comment("False", "fix build")},
    {.name = "ClearingKeepsRecordComment", .given = comment("False", "old"), .steps = {typeInto("txtComment", "")},
     .shown = commentShown(false, ""), .stored = comment("True", "")},
    {.name = "NoCommentWithTextShowsBoth", .given = comment("True", "kept text"), .steps = {},
     .shown = commentShown(true, "kept text"), .stored = comment("True", "kept text")},
    {.name = "TextKeptWhenNoCommentChosen", .given = comment("False", ""),
     .steps = {typeInto("txtComment", "draft"), clickOn("btnNoComment")}, .shown = commentShown(true, "draft"),
     .stored = comment("True", "draft")},
    {.name = "EnterAddsNoLineBreak", .given = comment("False", ""), .steps = {typeInto("txtComment", "one\nline")},
     .shown = commentShown(false, "oneline"), .stored = comment("False", "oneline")},
};
WF_PAGE_TABLE(CommentPage, TClearCaseCheckoutAction, "TClearCaseCommentFrame", "Comment", kCommentCases);

/// The sub-frame on its own, reading and writing a base action.
class ViewContext : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    BrowseAnswers browse;
    TClearCaseCheckoutAction action;
    TClearCaseViewContextSubFrame frame;

    void SetUp() override { frame.show(); }
    QRadioButton* defaultView() { return frame.findChild<QRadioButton*>("btnDefaultView"); }
    QRadioButton* customView() { return frame.findChild<QRadioButton*>("btnCustomView"); }
    QLineEdit* path() { return frame.findChild<QLineEdit*>("txtViewPath"); }
    void browseClick() { click(frame.findChild<QAbstractButton*>("txtViewPathButton")); }
};

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
