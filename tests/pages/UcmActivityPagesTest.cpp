// The pages that choose or make a UCM activity, and the VOB lists of the UCM pages.
#include "PageCase.h"

#include "actions/WFClearCaseCheckInActivityAction.h"
#include "actions/WFClearCaseMakeActivityAction.h"
#include "actions/WFClearCaseSetActivityAction.h"

using namespace wfpage;

namespace {

// ---- Activity selector ----

const char* const kUseCurrent = "Use the Current Activity for the view";
const char* const kSetNone = "Set Current Activity to None (-none)";

const Properties kInTmp = {{"UseDefaultViewContext", "False"}, {"ViewContextPath", "/tmp"}};
const Response kStream = {"lsstream -long -cview",
                          "stream \"dev\"\n  contains activities:\n    fix2@/vobs/pvob\n    fix1@/vobs/pvob\n  views:\n"};

const PageCase kSelectorRows[] = {
    {.name = "CurrentActivityDisablesCombosButKeepsNameAndVob",
     .kept = {{"UseCurrentActivity", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .shown = {{"btnCurrentActivity", true, {}, kUseCurrent},
               {"txtActivityName", {}, false, "fix1"},
               {"txtVOBSelector", {}, false, "/vobs/pvob"}}},
    {.name = "NamedActivityOpensEnabled",
     .given = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .steps = {typeInto("txtActivityName", "fix 2")},
     .shown = {{"btnCustomActivity", true}, {"txtActivityName", {}, true}, {"txtVOBSelector", {}, true}},
     .stored = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix 2"}, {"VOBSelector", "/vobs/pvob"}}},
    // The activity list asks the view the page shows on every drop-down, and only a view that is there.
    {.name = "ActivityListAsksTheViewOnEveryDropDown", .given = kInTmp,
     .steps = {typeInto("txtActivityName", "typed"), dropDownOf("txtActivityName"), dropDownOf("txtActivityName")},
     .shown = {{"txtActivityName", {}, {}, "typed", "fix1@/vobs/pvob|fix2@/vobs/pvob"}},
     .responses = {kStream}, .calls = {"/tmp|lsstream -long -cview", "/tmp|lsstream -long -cview"}},
    {.name = "MissingDefaultViewKeepsTheListAndAsksNothing", .given = kInTmp,
     .steps = {clickOn("btnDefaultView"), dropDownOf("txtActivityName"), clickOn("btnCustomView"),
               dropDownOf("txtActivityName"), clickOn("btnDefaultView"), dropDownOf("txtActivityName")},
     .shown = {{"txtActivityName", {}, {}, nullptr, "fix1@/vobs/pvob|fix2@/vobs/pvob"}}, .responses = {kStream},
     .calls = {"/tmp|lsstream -long -cview"},
     .setUp = [](wftest::FakeCleartool& cleartool) { cleartool.options().SetDefaultViewPath("/tmp/no such view"); }},
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
            .responses = {{"lsvob -short", lsvob}},
            .calls = std::vector<std::string>(queries, "lsvob -short")};
}

/// On the set-activity action the first choice means no current activity at all.
const PageCase kSetActivityRows[] = {
    {.name = "ChoosingNoneLeavesUseCurrentAlone", .given = {{"UseCurrentActivity", "False"}, {"ActivityName", "fix1"}},
     .steps = {clickOn("btnCurrentActivity")},
     .shown = {{"btnCurrentActivity", true, {}, kSetNone}, {"txtActivityName", {}, false}},
     .stored = {{"SetActivityToNone", "True"}, {"UseCurrentActivity", "False"}, {"ActivityName", "fix1"}}},
    {.name = "OpensFromTheNoneFlagNotUseCurrent",
     .given = {{"UseCurrentActivity", "True"}, {"SetActivityToNone", "False"}, {"ActivityName", "fix1"}},
     .shown = {{"btnCustomActivity", true}, {"txtActivityName", {}, true, "fix1"}},
     .stored = {{"SetActivityToNone", "False"}, {"UseCurrentActivity", "True"}, {"ActivityName", "fix1"}}},
    {.name = "ChoosingNamedClearsNone", .given = {{"SetActivityToNone", "True"}, {"UseCurrentActivity", "True"}},
     .steps = {clickOn("btnCustomActivity")}, .shown = {{"txtActivityName", {}, true}},
     .stored = {{"SetActivityToNone", "False"}, {"UseCurrentActivity", "True"}}},
    // The VOB list is asked for once, unless it came back empty or with a blank first VOB.
    vobListRow("VobsAskedOnce", "txtVOBSelector", "/vobs/a\n/vobs/pvob\n", "/vobs/a|/vobs/pvob", 1),
    vobListRow("VobsAskedAgainAfterNone", "txtVOBSelector", "", "", 2),
    vobListRow("VobsAskedAgainAfterBlankFirstVob", "txtVOBSelector", "\n/vobs/pvob\n", "|/vobs/pvob", 2),
};
WF_PAGE_TABLE(SetActivitySelectorPage, TClearCaseSetActivityAction,
              "TClearCaseActivitySelectorFrame", "Activity", kSetActivityRows);

// ---- Make activity ----

const wfpage::Properties kCustomView = {{"UseDefaultViewContext", "False"}, {"ViewContextPath", "/views/dev"}};

// Choosing the generated name leaves the name and VOB to edit, and the name is stored.
const PageCase kMakeActivityRows[] = {
    {.name = "GeneratedNameKeepsStoredName",
     .kept = {{"AutoGenerateName", "True"}, {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     .shown = {{"btnGenerateName", true}, {"btnCustomName", false}, {"txtActivityName", {}, true, "fix1"},
               {"txtVOBSelector", {}, true, "/vobs/pvob"}}},
    {.name = "GivenNameHeadlineAndNSetTyped", .given = kCustomView,
     .steps = {typeInto("txtActivityName", "fix 2"), typeInto("txtVOBSelector", "/vobs/pvob"), typeInto("txtHeadline", "Fix build"), clickOn("boxNSet")},
     .shown = {{"btnCustomName", true}, {"boxNSet", true}},
     .stored = {{"AutoGenerateName", "False"}, {"ActivityName", "fix 2"}, {"VOBSelector", "/vobs/pvob"},
                {"Headline", "Fix build"}, {"DontSetAsCurrent", "True"}, {"ViewContextPath", "/views/dev"},
                {"UseDefaultViewContext", "False"}}},
    vobListRow("VobsAskedOnce", "txtVOBSelector", "/vobs/pvob\n", "/vobs/pvob", 1),
};
WF_PAGE_TABLE(MakeActivityPage, TClearCaseMakeActivityAction,
              "TClearCaseMakeActivityFrame", "Activity", kMakeActivityRows);

} // namespace
