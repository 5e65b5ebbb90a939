// The comment page and its tab order, and the caption of the view-context part that many pages share (its
// choices are driven on the update page).
#include "PageCase.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "pages/WFClearCaseViewContextSubFrame.h"

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
    {.name = "EmptyOpensOnNoComment", .given = comment("False", ""), .shown = commentShown(true, ""),
     .stored = comment("True", "")},
    {.name = "TypingChecksRecordComment", .given = comment("False", ""), .steps = {typeInto("txtComment", "fix build")},
     .shown = commentShown(false, "fix build"), .stored = comment("False", "fix build")},
    {.name = "ClearingKeepsRecordComment", .given = comment("False", "old"), .steps = {typeInto("txtComment", "")},
     .shown = commentShown(false, ""), .stored = comment("True", "")},
    {.name = "NoCommentWithTextShowsBoth", .kept = comment("True", "kept text"),
     .shown = commentShown(true, "kept text")},
    {.name = "TextKeptWhenNoCommentChosen", .given = comment("False", ""),
     .steps = {typeInto("txtComment", "draft"), clickOn("btnNoComment")}, .shown = commentShown(true, "draft"),
     .stored = comment("True", "draft")},
    {.name = "EnterAddsNoLineBreak", .given = comment("False", ""), .steps = {typeInto("txtComment", "one\nline")},
     .shown = commentShown(false, "oneline"), .stored = comment("False", "oneline")},
    {.name = "TabsFromNoCommentToTheCommentToCommentButton", .check = [](const OpenPage& page) {
         QStringList order;
         for (QWidget* widget = page.control<QWidget>("btnNoComment"); order.size() < 3; widget = widget->nextInFocusChain())
             if (widget->focusPolicy() & Qt::TabFocus)
                 order << widget->objectName();
         EXPECT_EQ(order, QStringList({"btnNoComment", "txtComment", "btnComment"}));
     }},
};
WF_PAGE_TABLE(CommentPage, TClearCaseCheckoutAction, "TClearCaseCommentFrame", "Comment", kCommentCases);

TEST(ViewContext, LongerCaptionStillEndsBevelAtRightEdge)
{
    TClearCaseViewContextSubFrame frame;
    frame.show();
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
