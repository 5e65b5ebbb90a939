// The pages that choose or make a UCM activity, and the VOB lists of the UCM pages.
#include "PageCase.h"
#include "PageHarness.h"

#include "actions/WFClearCaseCheckInActivityAction.h"
#include "actions/WFClearCaseMakeActivityAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "actions/WFClearCaseSetActivityAction.h"
#include "FakeCleartool.h"

#include <QComboBox>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

using namespace wfpage;

namespace {

std::string text(QComboBox* combo)
{
    return combo->currentText().toStdString();
}

// ---- Activity selector ----

using wfpage::PageCase;
using wfpage::Shown;

const char* const kUseCurrent = "Use the Current Activity for the view";
const char* const kSetNone = "Set Current Activity to None (-none)";

const PageCase kSelectorRows[] = {
    {.name = "CurrentActivityDisablesCombosButKeepsNameAndVob",
     .given = {{"UseCurrentActivity", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .steps = {},
     .shown = {{"btnCurrentActivity", true, {}, kUseCurrent},
               {"txtActivityName", {}, false, "fix1"},
               {"txtVOBSelector", {}, false, "/vobs/pvob"}},
     .stored = {{"UseCurrentActivity", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}}},
    {.name = "NamedActivityOpensEnabled",
     .given = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .steps = {typeInto("txtActivityName", "fix 2")},
     .shown = {{"btnCustomActivity", true}, {"txtActivityName", {}, true}, {"txtVOBSelector", {}, true}},
     .stored = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix 2"}, {"VOBSelector", "/vobs/pvob"}}},
    {.name = "ClickingCurrentDisablesCombos",
     .given = {{"ActivityName", "fix1"}},
     .steps = {clickOn("btnCurrentActivity")},
     .shown = {{"btnCustomActivity", false}, {"txtActivityName", {}, false}, {"txtVOBSelector", {}, false}},
     .stored = {{"UseCurrentActivity", "True"}, {"ActivityName", "fix1"}}},
    {.name = "ClickingCustomEnablesCombos",
     .given = {{"UseCurrentActivity", "True"}, {"VOBSelector", "/vobs/pvob"}},
     .steps = {clickOn("btnCustomActivity"), typeInto("txtActivityName", "fix3")},
     .shown = {{"btnCurrentActivity", false}, {"txtActivityName", {}, true}, {"txtVOBSelector", {}, true}},
     .stored = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix3"}, {"VOBSelector", "/vobs/pvob"}}},
};
WF_PAGE_TABLE(ActivitySelectorPage, TClearCaseCheckInActivityAction,
              "TClearCaseActivitySelectorFrame", "Activity", kSelectorRows);

/// Two drop-downs of a VOB list holding a typed VOB, and the lsvob runs they make.
PageCase vobListRow(const char* name, const char* control, const char* lsvob, const char* listed, size_t queries)
{
    return {.name = name,
            .given = {{"VOBSelector", "/vobs/typed"}},
            .steps = {dropDownOf(control), dropDownOf(control)},
            .shown = {{control, {}, {}, "/vobs/typed", listed}},
            .stored = {},
            .responses = {{"lsvob -short", lsvob}},
            .calls = std::vector<std::string>(queries, "lsvob -short")};
}

/// On the set-activity action the first choice means no current activity at all.
const PageCase kSetActivityRows[] = {
    {.name = "ChoosingNoneLeavesUseCurrentAlone",
     .given = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix1"}},
     .steps = {clickOn("btnCurrentActivity")},
     .shown = {{"btnCurrentActivity", true, {}, kSetNone}, {"txtActivityName", {}, false}},
     .stored = {{"SetActivityToNone", "True"}, {"UseCurrentActivity", "False"}, {"ActivityName", "fix1"}}},
    {.name = "OpensFromTheNoneFlagNotUseCurrent",
     .given = {{"UseCurrentActivity", "True"}, {"SetActivityToNone", "False"}, {"ActivityName", "fix1"}},
     .steps = {},
     .shown = {{"btnCustomActivity", true}, {"txtActivityName", {}, true, "fix1"}},
     .stored = {{"SetActivityToNone", "False"}, {"UseCurrentActivity", "True"}, {"ActivityName", "fix1"}}},
    {.name = "NoneOpensDisabled",
     .given = {{"SetActivityToNone", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .steps = {},
     .shown = {{"btnCurrentActivity", true, {}, kSetNone}, {"txtVOBSelector", {}, false, "/vobs/pvob"}},
     .stored = {{"SetActivityToNone", "True"}, {"UseCurrentActivity", "False"}, {"VOBSelector", "/vobs/pvob"}}},
    {.name = "ChoosingNamedClearsNone",
     .given = {{"SetActivityToNone", "True"}, {"UseCurrentActivity", "True"}},
     .steps = {clickOn("btnCustomActivity")},
     .shown = {{"txtActivityName", {}, true}},
     .stored = {{"SetActivityToNone", "False"}, {"UseCurrentActivity", "True"}}},
    // The VOB list is asked for once, unless it came back empty or with a blank first VOB.
    vobListRow("VobsAskedOnce", "txtVOBSelector", "/vobs/a\n/vobs/pvob\n", "/vobs/a|/vobs/pvob", 1),
    vobListRow("VobsAskedAgainAfterNone", "txtVOBSelector", "", "", 2),
    vobListRow("VobsAskedAgainAfterBlankFirstVob", "txtVOBSelector", "\n/vobs/pvob\n", "|/vobs/pvob", 2),
};
WF_PAGE_TABLE(SetActivitySelectorPage, TClearCaseSetActivityAction,
              "TClearCaseActivitySelectorFrame", "Activity", kSetActivityRows);

/// The activity list asks the view the page shows, and only a view that is there.
class ActivitySelectorQueries : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    std::string view = cleartool.temp().path() + "/views/dev";
    TClearCaseCheckInActivityAction action;

    void SetUp() override
    {
        std::filesystem::create_directories(view);
        cleartool.respond("lsstream -long -cview",
                          "stream \"dev\"\n  contains activities:\n    fix2@/vobs/pvob\n    fix1@/vobs/pvob\n  views:\n");
        action.SetUseDefaultViewContext(false);
        action.SetViewContextPath(view);
    }
};

TEST_F(ActivitySelectorQueries, ActivityListAsksTheViewOnEveryDropDown)
{
    OpenPage page("TClearCaseActivitySelectorFrame", action);
    auto* name = page.control<QComboBox>("txtActivityName");
    type(name, "typed");
    dropDown(name);
    dropDown(name);
    EXPECT_EQ(items(name), QStringList({"fix1@/vobs/pvob", "fix2@/vobs/pvob"}));
    EXPECT_EQ(text(name), "typed");
    const std::string query = view + "|lsstream -long -cview";
    EXPECT_EQ(cleartool.calls(), std::vector<std::string>({query, query}));
}

TEST_F(ActivitySelectorQueries, MissingDefaultViewKeepsTheListAndAsksNothing)
{
    cleartool.options().SetDefaultViewPath(cleartool.temp().path() + "/views/gone");
    OpenPage page("TClearCaseActivitySelectorFrame", action);
    auto* name = page.control<QComboBox>("txtActivityName");
    click(page.control<QRadioButton>("btnDefaultView"));
    dropDown(name);
    EXPECT_TRUE(items(name).isEmpty());
    EXPECT_TRUE(cleartool.calls().empty());
    click(page.control<QRadioButton>("btnCustomView"));
    dropDown(name);
    click(page.control<QRadioButton>("btnDefaultView"));
    dropDown(name);
    EXPECT_EQ(items(name), QStringList({"fix1@/vobs/pvob", "fix2@/vobs/pvob"}));
    EXPECT_EQ(cleartool.calls().size(), 1u);
}

// ---- Make activity ----

const wfpage::Properties kCustomView = {{"UseDefaultViewContext", "False"}, {"ViewContextPath", "/views/dev"}};

// Choosing the generated name leaves the name and VOB to edit, and the name is stored.
const PageCase kMakeActivityRows[] = {
    {.name = "GeneratedNameKeepsStoredName",
     .given = {{"AutoGenerateName", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .steps = {},
     .shown = {{"btnGenerateName", true}, {"btnCustomName", false}, {"txtActivityName", {}, true, "fix1"},
               {"txtVOBSelector", {}, true, "/vobs/pvob"}},
     .stored = {{"AutoGenerateName", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}}},
    {.name = "GivenNameHeadlineAndNSetTyped",
     .given = kCustomView,
     .steps = {typeInto("txtActivityName", "fix 2"), typeInto("txtVOBSelector", "/vobs/pvob"), typeInto("txtHeadline", "Fix build"), clickOn("boxNSet")},
     .shown = {{"btnCustomName", true}, {"boxNSet", true}},
     .stored = {{"AutoGenerateName", "False"}, {"ActivityName", "fix 2"}, {"VOBSelector", "/vobs/pvob"},
                {"Headline", "Fix build"}, {"DontSetAsCurrent", "True"}, {"ViewContextPath", "/views/dev"},
                {"UseDefaultViewContext", "False"}}},
    {.name = "ChoosingGeneratedStoresTypedNameToo",
     .given = {{"ActivityName", "fix1"}},
     .steps = {clickOn("btnGenerateName"), typeInto("txtActivityName", "other")},
     .shown = {{"btnCustomName", false}, {"txtActivityName", {}, true}},
     .stored = {{"AutoGenerateName", "True"}, {"ActivityName", "other"}}},
    {.name = "StoredHeadlineAndNSetShown",
     .given = {{"AutoGenerateName", "True"}, {"Headline", "Fix build"}, {"DontSetAsCurrent", "True"}},
     .steps = {clickOn("btnCustomName")},
     .shown = {{"txtHeadline", {}, true, "Fix build"}, {"boxNSet", true}, {"btnGenerateName", false}},
     .stored = {{"AutoGenerateName", "False"}, {"Headline", "Fix build"}, {"DontSetAsCurrent", "True"}}},
    {.name = "ClearingHeadlineAndNSet",
     .given = {{"Headline", "Fix build"}, {"DontSetAsCurrent", "True"}},
     .steps = {typeInto("txtHeadline", ""), clickOn("boxNSet")},
     .shown = {{"boxNSet", false}},
     .stored = {{"Headline", ""}, {"DontSetAsCurrent", "False"}}},    vobListRow("VobsAskedOnce", "txtVOBSelector", "/vobs/pvob\n", "/vobs/pvob", 1),
};
WF_PAGE_TABLE(MakeActivityPage, TClearCaseMakeActivityAction,
              "TClearCaseMakeActivityFrame", "Activity", kMakeActivityRows);

} // namespace
