// The make-label-type and apply-label pages.
#include "PageCase.h"

#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseMkLbTypeAction.h"

using namespace wfpage;

namespace {

const PageCase kMkLbTypeCases[] = {
    {.name = "MixedCaseNameOpensInNormalCaseAndKeepsWhatIsTyped", .given = {{"LabelTypeName", "Rel_1"}},
     .steps = {typeInto("txtLabelSelector", "beta_2")},
     .shown = {{"boxUpperCase", false}, {"txtLabelSelector", {}, {}, "beta_2"}},
     .stored = {{"LabelTypeName", "beta_2"}}},
    {.name = "UpperCaseNameTypesInCapitals", .given = {{"LabelTypeName", "REL_1"}},
     .steps = {typeInto("txtLabelSelector", "rel_2")}, .shown = {{"boxUpperCase", true}},
     .stored = {{"LabelTypeName", "REL_2"}}},
    {.name = "TickingUpperCaseCapitalisesTheName", .given = {{"LabelTypeName", "Rel_1"}},
     .steps = {clickOn("boxUpperCase")}, .shown = {{"txtLabelSelector", {}, {}, "REL_1"}},
     .stored = {{"LabelTypeName", "REL_1"}}},
    {.name = "OrdinaryGreysAcquireButKeepsTick", .given = {{"MakeGlobal", "True"}, {"Acquire", "True"}},
     .steps = {clickOn("btnOrdinary")}, .shown = {{"btnGlobal", false}, {"boxAcquire", true, false}},
     .stored = {{"MakeGlobal", "False"}, {"Acquire", "True"}}},
    {.name = "GlobalEnablesAcquireAndVOBsAreListed", .kept = {{"VOBSelector", "/vobs/main"}},
     .steps = {clickOn("btnGlobal"), clickOn("boxAcquire"), dropDownOf("txtVOBSelector")},
     .shown = {{"btnOrdinary", false}, {"boxAcquire", {}, true}, {"txtVOBSelector", {}, {}, "/vobs/main", "/vobs/a"}},
     .stored = {{"MakeGlobal", "True"}, {"Acquire", "True"}}, .responses = {{"lsvob -short", "/vobs/a\n"}},
     .calls = {"lsvob -short"}},
    {.name = "PerBranchStoredAndUndone", .given = {{"PBranch", "True"}, {"Shared", "True"}},
     .steps = {clickOn("btnNoPbranch"), clickOn("boxShared"), clickOn("boxReplace")}, .shown = {{"btnPBranch", false}},
     .stored = {{"PBranch", "False"}, {"Shared", "False"}, {"Replace", "True"}}},
};
WF_PAGE_TABLE(MkLbTypePage, TClearCaseMkLbTypeAction, "TClearCaseMkLbTypeFrame", "Options", kMkLbTypeCases);

const std::vector<Response> kLabelQueries = {
    {"lsvob -short", "/vobs/b\n/vobs/a\n"},
    {"lstype -short -kind lbtype -invob /vobs/a", "REL_1\nREL_2 (locked)\n"},
    {"lstype -short -kind lbtype -invob /vobs/b", "BETA\n"},
};

const PageCase kApplyLabelCases[] = {
    {.name = "TickingSelectorEnablesIt",
     .steps = {clickOn("boxUseVersionSelector"), typeInto("txtVersionSelector", "/main/rel/3")},
     .shown = {{"txtVersionSelector", {}, true}},
     .stored = {{"UseVersionSelector", "True"}, {"VersionSelector", "/main/rel/3"}}},
    {.name = "UntickingSelectorGreysItAndKeepsIt",
     .given = {{"UseVersionSelector", "True"}, {"VersionSelector", "/main/4"}},
     .steps = {clickOn("boxUseVersionSelector")}, .shown = {{"txtVersionSelector", {}, false}},
     .stored = {{"UseVersionSelector", "False"}, {"VersionSelector", "/main/4"}}},
    {.name = "SwitchesAndNamesRoundTrip",
     .given = {{"Replace", "True"}, {"FollowLinks", "True"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/a"}},
     .steps = {clickOn("boxReplace"), clickOn("boxRecurse"), typeInto("txtLabelName", "REL_2")},
     .shown = {{"txtVOBSelector", {}, {}, "/vobs/a"}, {"boxFollow", true}},
     .stored = {{"Replace", "False"}, {"Recurse", "True"}, {"FollowLinks", "True"}, {"LabelTypeName", "REL_2"},
                 {"VOBSelector", "/vobs/a"}}},
    {.name = "VOBsOnceLabelsEveryTimeForTheTypedVOB", .given = {{"LabelTypeName", "REL_1"}},
     .steps = {dropDownOf("txtVOBSelector"), dropDownOf("txtVOBSelector"), typeInto("txtVOBSelector", "/vobs/a"),
               dropDownOf("txtLabelName"), typeInto("txtVOBSelector", "/vobs/b"), dropDownOf("txtLabelName")},
     .shown = {{.control = "txtVOBSelector", .items = "/vobs/a|/vobs/b"}, {.control = "txtLabelName", .text = "REL_1", .items = "BETA"}},
     .stored = {{"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/b"}}, .responses = kLabelQueries,
     .calls = {"lsvob -short", "lstype -short -kind lbtype -invob /vobs/a", "lstype -short -kind lbtype -invob /vobs/b"}},
    {.name = "NoVOBAsksWithoutOne", .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = ""}}, .stored = {{"VOBSelector", ""}, {"LabelTypeName", ""}},
     .responses = kLabelQueries, .calls = {"lstype -short -kind lbtype -invob"}},
};
WF_PAGE_TABLE(ApplyLabelPage, TClearCaseApplyLabelAction, "TClearCaseApplyLabelFrame", "Options", kApplyLabelCases);

} // namespace
