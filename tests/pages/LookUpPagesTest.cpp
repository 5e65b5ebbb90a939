// Look-ups ask cleartool about the project's variables' values, and a look-up that finds nothing
// says why on the page.
#include "PageCase.h"

#include "actions/WFClearCaseApplyLabelAction.h"
#include "actions/WFClearCaseSetActivityAction.h"
#include "WFServices.h"

using namespace wfpage;

namespace {

constexpr const char* kVobGone = "cleartool: Error: Unable to determine VOB for pathname \"/vobs/gone\".";

/// The open project's variables, as the designer reports them.
void projectVariables(wftest::FakeCleartool&)
{
    WFDesignApplicationServices().variablesProvider = [] {
        TWFBuildVariables variables;
        variables.Set("VOB", TWFVariant(std::string("/vobs/a")));
        variables.Set("VIEW", TWFVariant(std::string("/tmp")));
        return variables;
    };
}

const PageCase kLabelCases[] = {
    {.name = "VobVariableExpandedInTheQuery",
     .given = {{"VOBSelector", "%VOB%"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = "REL_1"}},
     .stored = {{"VOBSelector", "%VOB%"}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/a", "REL_1\n"}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/a"},
     .setUp = projectVariables},
    {.name = "FailedLookUpShowsCleartoolsReason",
     .given = {{"VOBSelector", "/vobs/gone"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "txtLabelName", .items = ""}, {.control = "lblPageStatus", .text = kVobGone}},
     .stored = {{"VOBSelector", "/vobs/gone"}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/gone", "", 1}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/gone"},
     .setUp = projectVariables,
     .environment = {{"WF_FAKE_STDERR", kVobGone}}},
    {.name = "UndefinedVariableNamedInTheStatus",
     .given = {{"VOBSelector", "%NOVOB%"}},
     .steps = {dropDownOf("txtLabelName")},
     .shown = {{.control = "lblPageStatus", .text = "Could not expand \"%NOVOB%\": \"NOVOB\" is neither a build variable nor an environment variable."}},
     .stored = {{"VOBSelector", "%NOVOB%"}},
     .calls = {"lstype -short -kind lbtype -invob %NOVOB%"},
     .setUp = projectVariables},
};
WF_PAGE_TABLE(LookUpPage, TClearCaseApplyLabelAction, "TClearCaseApplyLabelFrame", "Options", kLabelCases);

const PageCase kActivityCases[] = {
    {.name = "ViewVariableExpandedInTheFolder",
     .given = {{"ViewContextPath", "%VIEW%"}, {"UseDefaultViewContext", "False"}},
     .steps = {dropDownOf("txtActivityName")},
     .stored = {{"ViewContextPath", "%VIEW%"}},
     .calls = {"/tmp|lsstream -long -cview"},
     .setUp = projectVariables},
};
WF_PAGE_TABLE(ViewLookUpPage, TClearCaseSetActivityAction, "TClearCaseActivitySelectorFrame", "Activity", kActivityCases);

} // namespace
