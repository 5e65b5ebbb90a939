// The comment page and its tab order.
#include "PageCase.h"

#include "actions/WFClearCaseCheckOutAction.h"

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
    {.name = "TypingChecksRecordComment", .given = comment("False", ""), .steps = {typeInto("txtComment", "fix build")},
     .shown = commentShown(false, "fix build"), .stored = comment("False", "fix build")},
    {.name = "ClearingKeepsRecordComment", .given = comment("False", "old"), .steps = {typeInto("txtComment", "")},
     .shown = commentShown(false, ""), .stored = comment("True", "")},
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

} // namespace
