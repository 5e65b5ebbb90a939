// Look-ups ask cleartool about the project's variables' values, and a look-up that finds nothing
// says why on the page; the generic page keeps stored arguments as they were unless edited; the
// comment page's tab order.
#include "PageCase.h"

#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseSetActivityAction.h"
#include "WFServices.h"

#include <cstdlib>

using namespace wfpage;

namespace {

constexpr const char* kVobGone = "cleartool: Error: Unable to determine VOB for pathname \"/vobs/gone\".";

class LookUpPage : public ::testing::TestWithParam<PageCase> {
protected:
    void SetUp() override
    {
        WFDesignApplicationServices().variablesProvider = [] {
            TWFBuildVariables variables;
            variables.Set("VOB", TWFVariant(std::string("/vobs/a")));
            variables.Set("VIEW", TWFVariant(std::string("/tmp")));
            return variables;
        };
    }
    void TearDown() override
    {
        WFDesignApplicationServices().variablesProvider = nullptr;
        ::unsetenv("WF_FAKE_STDERR");
    }
};

const PageCase kLabelCases[] = {
    {.name = "VobVariableExpandedInTheQuery",
     .given = {{"VOBSelector", "%VOB%"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = "REL_1"}},
     .stored = {{"VOBSelector", "%VOB%"}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/a", "REL_1\n"}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/a"}},
    {.name = "FailedLookUpShowsCleartoolsReason",
     .given = {{"VOBSelector", "/vobs/gone"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = ""}, {.control = "lblPageStatus", .text = kVobGone}},
     .stored = {{"VOBSelector", "/vobs/gone"}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/gone", "", 1}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/gone"},
     .setUp = [](wftest::FakeCleartool&) { ::setenv("WF_FAKE_STDERR", kVobGone, 1); }},
    {.name = "UndefinedVariableNamedInTheStatus",
     .given = {{"VOBSelector", "%NOVOB%"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "lblPageStatus", .text = "Could not expand \"%NOVOB%\": \"NOVOB\" is neither a build variable nor an environment variable."}},
     .stored = {{"VOBSelector", "%NOVOB%"}},
     .calls = {"lstype -short -kind lbtype -invob %NOVOB%"}},
};

TEST_P(LookUpPage, LabelPage)
{
    runPageCase<TClearCaseApplyLabelAction>("TClearCaseApplyLabelFrame", "Options", GetParam());
}
INSTANTIATE_TEST_SUITE_P(Cases, LookUpPage, ::testing::ValuesIn(kLabelCases), pageCaseName);

class ViewLookUpPage : public LookUpPage {};
const PageCase kActivityCases[] = {
    {.name = "ViewVariableExpandedInTheFolder",
     .given = {{"ViewContextPath", "%VIEW%"}, {"UseDefaultViewContext", "False"}},
     .steps = {dropDownOf("txtActivityName")},
     .shown = {},
     .stored = {{"ViewContextPath", "%VIEW%"}},
     .calls = {"/tmp|lsstream -long -cview"}},
};
TEST_P(ViewLookUpPage, ActivityPage)
{
    runPageCase<TClearCaseSetActivityAction>("TClearCaseActivitySelectorFrame", "Activity", GetParam());
}
INSTANTIATE_TEST_SUITE_P(Cases, ViewLookUpPage, ::testing::ValuesIn(kActivityCases), pageCaseName);

const PageCase kArgumentCases[] = {
    {.name = "StoredLineFeedsKeptWhenUnedited",
     .given = {{"Command", "mkattr"}, {"Arguments", "-rep\nBuildNo"}},
     .steps = {typeInto("txtCommand", "mkattr")},
     .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}},
     .stored = {{"Arguments", "-rep\nBuildNo"}}},
    {.name = "EditedLinesJoinedByCrLf",
     .given = {{"Command", "mkattr"}, {"Arguments", "-rep\nBuildNo"}},
     .steps = {typeInto("txtArgs", "-rep\nBuildNo\n-nc")},
     .shown = {},
     .stored = {{"Arguments", "-rep\r\nBuildNo\r\n-nc"}}},
};
WF_PAGE_TABLE(CleartoolArguments, TClearCaseCleartoolAction, "TClearCaseCleartoolFrame", "Cleartool Parameters",
              kArgumentCases);

TEST(CommentPage, TabsFromNoCommentToTheCommentToCommentButton)
{
    TClearCaseCheckoutAction action;
    OpenPage page("TClearCaseCommentFrame", action);
    QStringList order;
    QWidget* first = page.control<QWidget>("btnNoComment");
    for (QWidget* widget = first; order.size() < 3; widget = widget->nextInFocusChain())
        if (widget->focusPolicy() & Qt::TabFocus)
            order << widget->objectName();
    EXPECT_EQ(order, QStringList({"btnNoComment", "txtComment", "btnComment"}));
}

} // namespace
