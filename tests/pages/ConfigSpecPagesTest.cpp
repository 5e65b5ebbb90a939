// The set and get config spec, find checkouts and generic cleartool pages, driven as a user
// drives them.
#include "PageCase.h"

#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseFindCheckoutsAction.h"
#include "actions/WFClearCaseGetConfigSpecAction.h"
#include "actions/WFClearCaseSetConfigSpecAction.h"

using namespace wfpage;

namespace {

const PageCase kSetConfigSpecCases[] = {
    {.name = "StreamOpensWithTheFileGreyedOut", .kept = {{"CSpecChoice", "csStream"}, {"CSFilePath", "/specs/rel.cs"}},
     .shown = {{"btnStream", true}, {"txtSpecFile", {}, false, "/specs/rel.cs"}, {"txtSpecFileButton", {}, false}}},
    {.name = "FileChoiceEnablesTheEdit", .steps = {clickOn("btnFile"), typeInto("txtSpecFile", "/specs/new.cs")},
     .shown = {{"txtSpecFile", {}, true}, {"txtSpecFileButton", {}, true}},
     .stored = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/new.cs"}}},
    {.name = "OtherChoiceGreysOutAndKeepsTheFile",
     .given = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/rel.cs"}}, .steps = clicks({"btnDefault"}),
     .shown = {{"txtSpecFile", {}, false}}, .stored = {{"CSpecChoice", "csDefault"}, {"CSFilePath", "/specs/rel.cs"}}},
    {.name = "BrowseOpensOnTheFileAndTakesTheChoice",
     .given = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/old.cs"}}, .steps = clicks({"txtSpecFileButton"}),
     .shown = {{"txtSpecFile", {}, {}, "/specs/new.cs"}},
     .stored = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/new.cs"}}, .answers = {"/specs/new.cs"},
     .browsed = {{"/specs", "Select Config Spec File", "/specs/old.cs", "*.*"}}},
    {.name = "CancelledBrowseKeepsTheFile", .given = {{"CSpecChoice", "csFile"}, {"CSFilePath", ""}},
     .steps = clicks({"txtSpecFileButton"}), .stored = {{"CSFilePath", ""}}, .answers = {std::nullopt},
     .browsed = {{"", "Select Config Spec File", "", "*.*"}}},
    {.name = "ViewContextWrittenToo", .given = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "True"}},
     .steps = clicks({"btnCustomView"}),
     .stored = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "False"}, {"CSpecChoice", "csCurrent"}}},
};
WF_PAGE_TABLE(SetConfigSpecPage, TClearCaseSetConfigSpecAction,
              "TClearCaseSetConfigSpecFrame", "Options", kSetConfigSpecCases);

// ---------------------------------------------------------------------------------------------

const char* const kSaveFilter = "Text Files (*.txt)|*.TXT|All Files (*.*)|*.*";

const PageCase kGetConfigSpecCases[] = {
    {.name = "NoFileGreysOutTheStoredPath", .given = {{"OutputFilePath", "/out/cs.txt"}},
     .shown = {{"boxUseFile", false}, {"txtFilePath", {}, false, "/out/cs.txt"}, {"txtFilePathButton", {}, false}},
     .stored = {{"OutputToFile", "False"}, {"OutputFilePath", "/out/cs.txt"}}},
    {.name = "TickingEnablesTheFile", .steps = {clickOn("boxUseFile"), typeInto("txtFilePath", "/out/cs.txt")},
     .shown = {{"txtFilePathButton", {}, true}},
     .stored = {{"OutputToFile", "True"}, {"OutputFilePath", "/out/cs.txt"}}},
    {.name = "BrowseWithEmptyPathProposesConfigSpecTxt", .given = {{"OutputToFile", "True"}},
     .steps = clicks({"txtFilePathButton"}), .shown = {{"txtFilePath", {}, {}, "/out/chosen.txt"}},
     .stored = {{"OutputFilePath", "/out/chosen.txt"}}, .answers = {"/out/chosen.txt"},
     .browsed = {{"", "Save Config Spec As", "config_spec.txt", kSaveFilter, true}}},
    {.name = "BrowseOpensInTheFolderOfThePath",
     .given = {{"OutputToFile", "True"}, {"OutputFilePath", "/out/specs/cs.txt"}},
     .steps = clicks({"txtFilePathButton"}), .stored = {{"OutputFilePath", "/out/specs/cs.txt"}},
     .answers = {std::nullopt},
     .browsed = {{"/out/specs", "Save Config Spec As", "/out/specs/cs.txt", kSaveFilter, true}}},
};
WF_PAGE_TABLE(GetConfigSpecPage, TClearCaseGetConfigSpecAction,
              "TClearCaseGetConfigSpecFrame", "Options", kGetConfigSpecCases);

// ---------------------------------------------------------------------------------------------

const Properties kVariables = {{"CHECKOUTS", ""}, {"CHECKOUTS_OLD", ""}, {"LIST", ""}};

const PageCase kFindCheckoutsCases[] = {
    {.name = "StoredVariableSelectedAmongTheProjectsVariables",
     .kept = {{"WriteToVariable", "True"}, {"VariableName", "CHECKOUTS_OLD"}},
     .shown = {{"boxVariable", true}, {"cmbVariable", {}, {}, "CHECKOUTS_OLD", "CHECKOUTS|CHECKOUTS_OLD|LIST"}},
     .variables = kVariables},
    {.name = "DeletedVariableSelectsNoneAndStoresEmpty",
     .given = {{"WriteToVariable", "True"}, {"VariableName", "CHECKOUT"}}, .shown = {{"cmbVariable", {}, {}, ""}},
     .stored = {{"WriteToVariable", "True"}, {"VariableName", ""}}, .variables = kVariables},
    {.name = "ChosenVariableLongFormatAndView", .kept = {{"ViewContextPath", "/views/a"}},
     .steps = {clickOn("boxVariable"), chooseIn("cmbVariable", "LIST"), clickOn("boxShort"), clickOn("btnCustomView")},
     .stored = {{"WriteToVariable", "True"}, {"VariableName", "LIST"}, {"UseShort", "False"}, {"UseDefaultViewContext", "False"}},
     .variables = kVariables},
};
WF_PAGE_TABLE(FindCheckoutsPage, TClearCaseFindCheckoutsAction, "TClearCaseFindCheckoutsFrame", "Options",
              kFindCheckoutsCases);

// ---------------------------------------------------------------------------------------------

const PageCase kCleartoolCases[] = {
    {.name = "CommandWithoutArgumentsPreviewsTheTrailingBlank", .kept = {{"ViewContextPath", "/views/a"}},
     .steps = {typeInto("txtCommand", "lsco"), clickOn("btnCustomView")},
     .shown = {{"lblPath", {}, {}, "Full Command Will Be: 'cleartool lsco '"}},
     .stored = {{"Command", "lsco"}, {"Arguments", ""}, {"UseDefaultViewContext", "False"}}},
    {.name = "StoredCommandPreviewedOnOpening", .kept = {{"Command", "lsview"}, {"Arguments", "-short -cview"}},
     .shown = {{"txtCommand", {}, {}, "lsview"}, {"lblPath", {}, {}, "Full Command Will Be: 'cleartool lsview -short -cview'"}}},
    {.name = "LinesOfTheArgumentsJoinedByCrLf", .given = {{"Command", "mkattr"}},
     .steps = {typeInto("txtArgs", "-rep\nBuildNo")}, .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}},
     .stored = {{"Arguments", "-rep\r\nBuildNo"}}},
    {.name = "StoredLinesRoundTripUnchanged", .given = {{"Command", "mkattr"}, {"Arguments", "-rep\r\nBuildNo"}},
     .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}}, .stored = {{"Arguments", "-rep\r\nBuildNo"}}},
    {.name = "StoredLineFeedsKeptWhenUnedited", .given = {{"Command", "mkattr"}, {"Arguments", "-rep\nBuildNo"}},
     .steps = {typeInto("txtCommand", "mkattr")}, .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}},
     .stored = {{"Arguments", "-rep\nBuildNo"}}},
};
WF_PAGE_TABLE(CleartoolPage, TClearCaseCleartoolAction,
              "TClearCaseCleartoolFrame", "Cleartool Parameters", kCleartoolCases);

} // namespace
