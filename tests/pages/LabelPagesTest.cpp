// The make-label-type and apply-label pages, and the headings of the label, lock and
// make-element pages.
#include "PageScript.h"

#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseLockPathNamesAction.h"
#include "actions/WFClearCaseMakeElementAction.h"
#include "actions/WFClearCaseMkLbTypeAction.h"

#include <QLabel>

using namespace wfpage;
using namespace wfpage::script;

namespace {

class MkLbTypePage : public ::testing::TestWithParam<PageCase> {};

TEST_P(MkLbTypePage, RoundTrip)
{
    TClearCaseMkLbTypeAction action;
    playPageCase("TClearCaseMkLbTypeFrame", "Options", action, GetParam());
}

const PageCase kMkLbTypeCases[] = {
    {.name = "MixedCaseNameOpensInNormalCase",
     .stored = {{"LabelTypeName", "Rel_1"}},
     .steps = {},
     .shown = {{"boxUpperCase", "off"}, {"txtLabelSelector", "text:Rel_1"}},
     .written = {{"LabelTypeName", "Rel_1"}}},
    {.name = "NormalCaseKeepsWhatIsTyped",
     .stored = {{"LabelTypeName", "Rel_1"}},
     .steps = {typeInto("txtLabelSelector", "beta_2")},
     .shown = {{"txtLabelSelector", "text:beta_2"}},
     .written = {{"LabelTypeName", "beta_2"}}},
    {.name = "UpperCaseNameTypesInCapitals",
     .stored = {{"LabelTypeName", "REL_1"}},
     .steps = {typeInto("txtLabelSelector", "rel_2")},
     .shown = {{"boxUpperCase", "on"}},
     .written = {{"LabelTypeName", "REL_2"}}},
    {.name = "EmptyNameOpensInCapitals",
     .stored = {},
     .steps = {typeInto("txtLabelSelector", "nightly")},
     .shown = {{"boxUpperCase", "on"}},
     .written = {{"LabelTypeName", "NIGHTLY"}}},
    {.name = "UntickingUpperCaseAllowsLowerCase",
     .stored = {{"LabelTypeName", "REL_1"}},
     .steps = {clickOn("boxUpperCase"), typeInto("txtLabelSelector", "rel_2")},
     .shown = {{"boxUpperCase", "off"}},
     .written = {{"LabelTypeName", "rel_2"}}},
    {.name = "TickingUpperCaseCapitalisesTheName",
     .stored = {{"LabelTypeName", "Rel_1"}},
     .steps = {clickOn("boxUpperCase")},
     .shown = {{"txtLabelSelector", "text:REL_1"}},
     .written = {{"LabelTypeName", "REL_1"}}},
    {.name = "OrdinaryGreysAcquireButKeepsTick",
     .stored = {{"MakeGlobal", "True"}, {"Acquire", "True"}},
     .steps = {clickOn("btnOrdinary")},
     .shown = {{"btnGlobal", "off"}, {"boxAcquire", "disabled"}, {"boxAcquire", "on"}},
     .written = {{"MakeGlobal", "False"}, {"Acquire", "True"}}},
    {.name = "StoredAcquireOnOrdinaryShownGreyed",
     .stored = {{"MakeGlobal", "False"}, {"Acquire", "True"}},
     .steps = {},
     .shown = {{"btnOrdinary", "on"}, {"btnGlobal", "off"}, {"boxAcquire", "disabled"}, {"boxAcquire", "on"}},
     .written = {{"MakeGlobal", "False"}, {"Acquire", "True"}}},
    {.name = "GlobalEnablesAcquire",
     .stored = {},
     .steps = {clickOn("btnGlobal"), clickOn("boxAcquire")},
     .shown = {{"btnOrdinary", "off"}, {"boxAcquire", "enabled"}},
     .written = {{"MakeGlobal", "True"}, {"Acquire", "True"}}},
    {.name = "PerBranchChosen",
     .stored = {{"Replace", "True"}},
     .steps = {clickOn("btnPBranch"), clickOn("boxShared")},
     .shown = {{"btnNoPbranch", "off"}, {"boxReplace", "on"}},
     .written = {{"PBranch", "True"}, {"Shared", "True"}, {"Replace", "True"}}},
    {.name = "PerBranchStoredAndUndone",
     .stored = {{"PBranch", "True"}, {"Shared", "True"}},
     .steps = {clickOn("btnNoPbranch"), clickOn("boxShared"), clickOn("boxReplace")},
     .shown = {{"btnPBranch", "off"}},
     .written = {{"PBranch", "False"}, {"Shared", "False"}, {"Replace", "True"}}},
    {.name = "VOBListQueriedOnceKeepingTheText",
     .stored = {{"VOBSelector", "/vobs/main"}},
     .steps = {dropDownOf("txtVOBSelector"), dropDownOf("txtVOBSelector")},
     .shown = {{"txtVOBSelector", "items:/vobs/a|/vobs/b"}, {"txtVOBSelector", "text:/vobs/main"}},
     .written = {{"VOBSelector", "/vobs/main"}},
     .responses = {{"lsvob -short", "/vobs/b\n/vobs/a\n"}},
     .calls = {"lsvob -short"}},
    {.name = "EmptyVOBListAsksAgain",
     .stored = {},
     .steps = {dropDownOf("txtVOBSelector"), dropDownOf("txtVOBSelector"), typeInto("txtVOBSelector", "/vobs/typed")},
     .shown = {{"txtVOBSelector", "items:"}},
     .written = {{"VOBSelector", "/vobs/typed"}},
     .responses = {},
     .calls = {"lsvob -short", "lsvob -short"}},
};
INSTANTIATE_TEST_SUITE_P(Cases, MkLbTypePage, ::testing::ValuesIn(kMkLbTypeCases),
                         [](const auto& info) { return std::string(info.param.name); });

class ApplyLabelPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(ApplyLabelPage, RoundTrip)
{
    TClearCaseApplyLabelAction action;
    playPageCase("TClearCaseApplyLabelFrame", "Options", action, GetParam());
}

const std::vector<Response> kLabelQueries = {
    {"lsvob -short", "/vobs/b\n/vobs/a\n"},
    {"lstype -short -kind lbtype -invob /vobs/a", "REL_1\nREL_2 (locked)\n"},
    {"lstype -short -kind lbtype -invob /vobs/b", "BETA\n"},
};

const PageCase kApplyLabelCases[] = {
    {.name = "UnusedSelectorShownGreyedAndKept",
     .stored = {{"UseVersionSelector", "False"}, {"VersionSelector", "/main/LATEST"}},
     .steps = {},
     .shown = {{"txtVersionSelector", "disabled"}, {"txtVersionSelector", "text:/main/LATEST"}},
     .written = {{"UseVersionSelector", "False"}, {"VersionSelector", "/main/LATEST"}}},
    {.name = "TickingSelectorEnablesIt",
     .stored = {},
     .steps = {clickOn("boxUseVersionSelector"), typeInto("txtVersionSelector", "/main/rel/3")},
     .shown = {{"txtVersionSelector", "enabled"}},
     .written = {{"UseVersionSelector", "True"}, {"VersionSelector", "/main/rel/3"}}},
    {.name = "UntickingSelectorGreysItAndKeepsIt",
     .stored = {{"UseVersionSelector", "True"}, {"VersionSelector", "/main/4"}},
     .steps = {clickOn("boxUseVersionSelector")},
     .shown = {{"txtVersionSelector", "disabled"}},
     .written = {{"UseVersionSelector", "False"}, {"VersionSelector", "/main/4"}}},
    {.name = "SwitchesAndNamesRoundTrip",
     .stored = {{"Replace", "True"}, {"FollowLinks", "True"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/a"}},
     .steps = {clickOn("boxReplace"), clickOn("boxRecurse"), typeInto("txtLabelName", "REL_2")},
     .shown = {{"txtVOBSelector", "text:/vobs/a"}, {"boxFollow", "on"}},
     .written = {{"Replace", "False"}, {"Recurse", "True"}, {"FollowLinks", "True"}, {"LabelTypeName", "REL_2"},
                 {"VOBSelector", "/vobs/a"}}},
    {.name = "VOBsOnceLabelsEveryTimeForTheTypedVOB",
     .stored = {{"LabelTypeName", "REL_1"}},
     .steps = {dropDownOf("txtVOBSelector"), dropDownOf("txtVOBSelector"), typeInto("txtVOBSelector", "/vobs/a"),
               dropDownOf("txtLabelName"), typeInto("txtVOBSelector", "/vobs/b"), dropDownOf("txtLabelName")},
     .shown = {{"txtVOBSelector", "items:/vobs/a|/vobs/b"}, {"txtLabelName", "items:BETA"},
               {"txtLabelName", "text:REL_1"}},
     .written = {{"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/b"}},
     .responses = kLabelQueries,
     .calls = {"lsvob -short", "lstype -short -kind lbtype -invob /vobs/a", "lstype -short -kind lbtype -invob /vobs/b"}},
    {.name = "LockedLabelsListedByName",
     .stored = {{"VOBSelector", "/vobs/a"}},
     .steps = {dropDownOf("txtLabelName"), dropDownOf("txtLabelName")},
     .shown = {{"txtLabelName", "items:REL_1|REL_2"}},
     .written = {{"VOBSelector", "/vobs/a"}},
     .responses = kLabelQueries,
     .calls = {"lstype -short -kind lbtype -invob /vobs/a", "lstype -short -kind lbtype -invob /vobs/a"}},
    {.name = "NoVOBAsksWithoutOne",
     .stored = {},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{"txtLabelName", "items:"}},
     .written = {{"VOBSelector", ""}, {"LabelTypeName", ""}},
     .responses = kLabelQueries,
     .calls = {"lstype -short -kind lbtype -invob"}},
};
INSTANTIATE_TEST_SUITE_P(Cases, ApplyLabelPage, ::testing::ValuesIn(kApplyLabelCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace

namespace {

/// The section headings of a page, top to bottom, and the action it is opened on.
struct HeadingCase {
    const char* name;
    const char* pageClass;
    std::function<std::unique_ptr<TCustomWFAction>()> makeAction;
    std::vector<const char*> headings;
};

void PrintTo(const HeadingCase& row, std::ostream* out)
{
    *out << row.name;
}

class PageHeadings : public ::testing::TestWithParam<HeadingCase> {};

TEST_P(PageHeadings, BevelsRunToTheRightEdgeAndNothingSticksOut)
{
    const HeadingCase& row = GetParam();
    wftest::FakeCleartool cleartool;
    cleartool.options().SetTestForClearCaseType(false);
    auto action = row.makeAction();
    OpenPage page(row.pageClass, *action);
    for (std::size_t i = 0; i < row.headings.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        const QLabel* label = page.control<QLabel>(("Label" + number).c_str());
        const QWidget* bevel = page.control<QWidget>(("Bevel" + number).c_str());
        EXPECT_EQ(label->text().toStdString(), row.headings[i]);
        // The label is as wide as its text, and the bevel starts just after it.
        EXPECT_EQ(label->width(), label->sizeHint().width()) << row.headings[i];
        EXPECT_EQ(bevel->x(), label->x() + label->width() + 8) << row.headings[i];
        EXPECT_EQ(bevel->geometry().right() + 1, 497) << row.headings[i];
    }
    for (const QWidget* child : page.widget()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        EXPECT_LE(child->geometry().right() + 1, 497) << child->objectName().toStdString();
}

template <typename T>
std::unique_ptr<TCustomWFAction> make()
{
    return std::make_unique<T>();
}

const HeadingCase kHeadingCases[] = {
    {"MakeLabelType", "TClearCaseMkLbTypeFrame", make<TClearCaseMkLbTypeAction>,
     {"New Label Type Name", "View", "Usage Constraints", "Creation Options"}},
    {"ApplyLabel", "TClearCaseApplyLabelFrame", make<TClearCaseApplyLabelAction>,
     {"Label Type Selector", "Version", "Options"}},
    {"Lock", "TClearCaseLockFrame", make<TClearCaseLockPathNamesAction>, {"Lock Options"}},
    {"MakeElement", "TClearCaseMakeElementFrame", make<TClearCaseMakeElementAction>,
     {"New Element Checkout", "Element Creation Options"}},
};
INSTANTIATE_TEST_SUITE_P(Pages, PageHeadings, ::testing::ValuesIn(kHeadingCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
