// Look-ups ask cleartool about the project's variables' values, and a look-up that finds nothing
// says why on the page.
#include "PageCase.h"

#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseSetActivityAction.h"

using namespace wfpage;

namespace {

constexpr const char* kVobGone = "cleartool: Error: Unable to determine VOB for pathname \"/vobs/gone\".";

const Properties kVariables = {{"VOB", "/vobs/a"}, {"VIEW", "/tmp"}};

const PageCase kLabelCases[] = {
    {.name = "VobVariableExpandedInTheQuery",
     .kept = {{"VOBSelector", "%VOB%"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = "REL_1"}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/a", "REL_1\n"}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/a"},
     .variables = kVariables},
    {.name = "FailedLookUpShowsCleartoolsReason",
     .kept = {{"VOBSelector", "/vobs/gone"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = ""}, {.control = "lblPageStatus", .text = kVobGone}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/gone", "", 1}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/gone"},
     .environment = {{"WF_FAKE_STDERR", kVobGone}},
     .variables = kVariables},
    {.name = "UndefinedVariableNamedInTheStatus",
     .kept = {{"VOBSelector", "%NOVOB%"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "lblPageStatus", .text = "Could not expand \"%NOVOB%\": \"NOVOB\" is neither a build variable nor an environment variable."}},
     .calls = {"lstype -short -kind lbtype -invob %NOVOB%"},
     .variables = kVariables},
};
WF_PAGE_TABLE(LookUpPage, TClearCaseApplyLabelAction, "TClearCaseApplyLabelFrame", "Options", kLabelCases);

const PageCase kActivityCases[] = {
    {.name = "ViewVariableExpandedInTheFolder",
     .given = {{"ViewContextPath", "%VIEW%"}, {"UseDefaultViewContext", "False"}},
     .steps = {dropDownOf("txtActivityName")},
     .stored = {{"ViewContextPath", "%VIEW%"}},
     .calls = {"/tmp|lsstream -long -cview"},
     .variables = kVariables},
};
WF_PAGE_TABLE(ViewLookUpPage, TClearCaseSetActivityAction, "TClearCaseActivitySelectorFrame", "Activity", kActivityCases);

} // namespace
