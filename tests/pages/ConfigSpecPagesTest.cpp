// The set and get config spec, find checkouts and generic cleartool pages, driven as a user
// drives them.
#include "PageCase.h"

#include "actions/WFClearCaseCleartoolAction.h"
#include "actions/WFClearCaseFindCheckoutsAction.h"
#include "actions/WFClearCaseGetConfigSpecAction.h"
#include "actions/WFClearCaseSetConfigSpecAction.h"
#include "WFServices.h"

#include <gtest/gtest.h>

using namespace wfpage;

namespace {

const PageCase kSetConfigSpecCases[] = {
    {.name = "StreamOpensWithTheFileGreyedOut", .given = {{"CSpecChoice", "csStream"}, {"CSFilePath", "/specs/rel.cs"}},
     .shown = {{"btnStream", true}, {"txtSpecFile", {}, false, "/specs/rel.cs"}, {"txtSpecFileButton", {}, false}},
     .stored = {{"CSpecChoice", "csStream"}, {"CSFilePath", "/specs/rel.cs"}}},
    {.name = "FileChoiceEnablesTheEdit", .steps = {clickOn("btnFile"), typeInto("txtSpecFile", "/specs/new.cs")},
     .shown = {{"txtSpecFile", {}, true}, {"txtSpecFileButton", {}, true}},
     .stored = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/new.cs"}}},
    {.name = "OtherChoiceGreysOutAndKeepsTheFile",
     .given = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/rel.cs"}}, .steps = clicks({"btnDefault"}),
     .shown = {{"txtSpecFile", {}, false}}, .stored = {{"CSpecChoice", "csDefault"}, {"CSFilePath", "/specs/rel.cs"}}},
    {.name = "CurrentChosen", .given = {{"CSpecChoice", "csStream"}}, .steps = clicks({"btnCurrent"}),
     .shown = {{"txtSpecFile", {}, false}}, .stored = {{"CSpecChoice", "csCurrent"}}},
    {.name = "BrowseOpensOnTheFileAndTakesTheChoice",
     .given = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/old.cs"}}, .steps = clicks({"txtSpecFileButton"}),
     .shown = {{"txtSpecFile", {}, {}, "/specs/new.cs"}},
     .stored = {{"CSpecChoice", "csFile"}, {"CSFilePath", "/specs/new.cs"}}, .answers = {"/specs/new.cs"},
     .browsed = {{"/specs", "Select Config Spec File", "/specs/old.cs", "*.*"}}},
    {.name = "CancelledBrowseKeepsTheFile", .given = {{"CSpecChoice", "csFile"}, {"CSFilePath", ""}},
     .steps = clicks({"txtSpecFileButton"}), .stored = {{"CSFilePath", ""}}, .answers = {std::nullopt},
     .browsed = {{"", "Select Config Spec File", "", "*.*"}}},
    {.name = "ViewContextWrittenToo", .given = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "True"}},
     .steps = clicks({"btnCustomView"}), .shown = {{"Label5", {}, {}, "View Context"}},
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
    {.name = "UntickingKeepsThePath", .given = {{"OutputToFile", "True"}, {"OutputFilePath", "/out/cs.txt"}},
     .steps = clicks({"boxUseFile"}), .shown = {{"txtFilePath", {}, false}},
     .stored = {{"OutputToFile", "False"}, {"OutputFilePath", "/out/cs.txt"}}},
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

/// The open project's variables, as the designer reports them.
void projectVariables(wftest::FakeCleartool&)
{
    WFDesignApplicationServices().variableNamesProvider = [] {
        return std::vector<std::string>{"CHECKOUTS", "CHECKOUTS_OLD", "LIST"};
    };
}

const PageCase kFindCheckoutsCases[] = {
    {.name = "StoredVariableSelectedAmongTheProjectsVariables",
     .given = {{"WriteToVariable", "True"}, {"VariableName", "CHECKOUTS_OLD"}},
     .shown = {{"boxVariable", true}, {"cmbVariable", {}, {}, "CHECKOUTS_OLD", "CHECKOUTS|CHECKOUTS_OLD|LIST"}},
     .stored = {{"WriteToVariable", "True"}, {"VariableName", "CHECKOUTS_OLD"}}, .setUp = projectVariables},
    {.name = "DeletedVariableSelectsNoneAndStoresEmpty",
     .given = {{"WriteToVariable", "True"}, {"VariableName", "CHECKOUT"}}, .shown = {{"cmbVariable", {}, {}, ""}},
     .stored = {{"WriteToVariable", "True"}, {"VariableName", ""}}, .setUp = projectVariables},
    {.name = "ChosenVariableAndLongFormat",
     .steps = {clickOn("boxVariable"), chooseIn("cmbVariable", "LIST"), clickOn("boxShort")},
     .stored = {{"WriteToVariable", "True"}, {"VariableName", "LIST"}, {"UseShort", "False"}},
     .setUp = projectVariables},
    {.name = "NewActionUsesShortFormat", .shown = {{"boxShort", true}, {"boxVariable", false}},
     .stored = {{"UseShort", "True"}, {"WriteToVariable", "False"}, {"VariableName", ""}}},
    {.name = "VariableKeptWhenNotWritten", .given = {{"WriteToVariable", "True"}, {"VariableName", "LIST"}},
     .steps = clicks({"boxVariable"}), .stored = {{"WriteToVariable", "False"}, {"VariableName", "LIST"}},
     .setUp = projectVariables},
    {.name = "ViewContextWrittenToo", .given = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "False"}},
     .steps = clicks({"btnDefaultView"}),
     .stored = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "True"}}},
};
WF_PAGE_TABLE(FindCheckoutsPage, TClearCaseFindCheckoutsAction, "TClearCaseFindCheckoutsFrame", "Options",
              kFindCheckoutsCases);

// ---------------------------------------------------------------------------------------------

const PageCase kCleartoolCases[] = {
    {.name = "CommandWithoutArgumentsPreviewsTheTrailingBlank", .steps = {typeInto("txtCommand", "lsco")},
     .shown = {{"lblPath", {}, {}, "Full Command Will Be: 'cleartool lsco '"}},
     .stored = {{"Command", "lsco"}, {"Arguments", ""}}},
    {.name = "ArgumentsWithoutCommandPreviewTwoBlanks", .steps = {typeInto("txtArgs", "-short")},
     .shown = {{"lblPath", {}, {}, "Full Command Will Be: 'cleartool  -short'"}},
     .stored = {{"Command", ""}, {"Arguments", "-short"}}},
    {.name = "StoredCommandPreviewedOnOpening", .given = {{"Command", "lsview"}, {"Arguments", "-short -cview"}},
     .shown = {{"txtCommand", {}, {}, "lsview"}, {"lblPath", {}, {}, "Full Command Will Be: 'cleartool lsview -short -cview'"}},
     .stored = {{"Command", "lsview"}, {"Arguments", "-short -cview"}}},
    {.name = "QuotedPathWithBlanksKeptAsTyped", .given = {{"Command", "describe"}},
     .steps = {typeInto("txtArgs", "-fmt \"%n\"  \"/vobs/my dir/a.c\"")},
     .stored = {{"Command", "describe"}, {"Arguments", "-fmt \"%n\"  \"/vobs/my dir/a.c\""}}},
    {.name = "LinesOfTheArgumentsJoinedByCrLf", .given = {{"Command", "mkattr"}},
     .steps = {typeInto("txtArgs", "-rep\nBuildNo")}, .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}},
     .stored = {{"Arguments", "-rep\r\nBuildNo"}}},
    {.name = "StoredLinesRoundTripUnchanged", .given = {{"Command", "mkattr"}, {"Arguments", "-rep\r\nBuildNo"}},
     .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}}, .stored = {{"Arguments", "-rep\r\nBuildNo"}}},
    {.name = "StoredLineFeedsKeptWhenUnedited", .given = {{"Command", "mkattr"}, {"Arguments", "-rep\nBuildNo"}},
     .steps = {typeInto("txtCommand", "mkattr")}, .shown = {{"txtArgs", {}, {}, "-rep\nBuildNo"}},
     .stored = {{"Arguments", "-rep\nBuildNo"}}},
    {.name = "StartingDirectoryHeadingAndViewWritten",
     .given = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "False"}},
     .steps = clicks({"btnDefaultView"}), .shown = {{"Label5", {}, {}, "View Context (Starting Directory)"}},
     .stored = {{"ViewContextPath", "/views/a"}, {"UseDefaultViewContext", "True"}}},
};
WF_PAGE_TABLE(CleartoolPage, TClearCaseCleartoolAction,
              "TClearCaseCleartoolFrame", "Cleartool Parameters", kCleartoolCases);

} // namespace
