// The basic actions' pages: each control bound to its property, the project's variables offered
// for a variable's name, browse buttons answered by the host's browsers.
#include "PageCase.h"
#include "WFBasicActionPages.h"
#include "WFBasicActions.h"
#include "WFTestSupport.h"

using namespace wfpage;

namespace {

TWFPageClass basicPage(const char* name)
{
    for (const auto& row : WFBasicActionPages())
        if (row.page.className == name)
            return row.page;
    throw std::runtime_error(std::string("no basic page ") + name);
}

const PageCase kMessageCases[] = {
    {.name = "MemoKeepsStoredLinesAndTakesTypedOnes", .given = {{"Text", "first\r\nsecond"}},
     .steps = {typeInto("txtText", "Built %BUILD%\ndone")}, .stored = {{"Text", "Built %BUILD%\ndone"}}},
};
WF_PAGE_TABLE(MessagePage, TWFLogMessageAction, basicPage("TWFLogMessageFrame"), "Message", kMessageCases);

const Properties kVariables = {{"BUILD", ""}, {"VOB", ""}};

const PageCase kVariableCases[] = {
    {.name = "VariableOfferedFromTheProject", .kept = {{"VariableName", "VOB"}},
     .shown = {{"cmbVariableName", {}, {}, "VOB", "BUILD|VOB"}},
     .variables = kVariables},
    {.name = "NewNameTyped", .given = {{"VariableName", "VOB"}, {"Value", "x"}},
     .steps = {typeInto("cmbVariableName", "NEW_ONE"), typeInto("txtValue", "%BUILD%-1")},
     .stored = {{"VariableName", "NEW_ONE"}, {"Value", "%BUILD%-1"}}, .variables = kVariables},
};
constexpr const char* kVariableTitle = "Variable";
WF_PAGE_TABLE(VariablePage, TWFSetVariableAction, basicPage("TWFSetVariableFrame"), kVariableTitle, kVariableCases);

const PageCase kFileCases[] = {
    {.name = "FileChosenWithTheBrowserAndAppendTicked", .given = {{"FileName", "/out/out.txt"}},
     .steps = clicks({"txtFileNameButton", "boxAppend"}), .stored = {{"FileName", "/tmp/report.txt"}, {"Append", "True"}},
     .answers = {"/tmp/report.txt"}, .browsed = {{"/out", "Save As", "/out/out.txt", "All Files|*", true}}},
    {.name = "BrowserCancelledKeepsTheFile", .given = {{"FileName", "/out/out.txt"}, {"Text", "a\nb"}},
     .steps = clicks({"txtFileNameButton"}), .stored = {{"FileName", "/out/out.txt"}, {"Append", "False"}, {"Text", "a\nb"}},
     .answers = {std::nullopt}, .browsed = {{"/out", "Save As", "/out/out.txt", "All Files|*", true}}},
};
constexpr const char* kFileTitle = "File";
WF_PAGE_TABLE(WriteFilePage, TWFWriteTextFileAction, basicPage("TWFWriteTextFileFrame"), kFileTitle, kFileCases);

const PageCase kProgramCases[] = {
    {.name = "ProgramArgumentsAndFolderChosen", .given = {{"Program", "make"}},
     .steps = {typeInto("txtArguments", "-j2 all"), clickOn("txtWorkingDirectoryButton")},
     .stored = {{"Program", "make"}, {"Arguments", "-j2 all"}, {"WorkingDirectory", "/src/build"}},
     .answers = {"/src/build"}, .browsed = {{"", "Select Folder"}}},
};
constexpr const char* kProgramTitle = "Program";
WF_PAGE_TABLE(ProgramPage, TWFRunProgramAction, basicPage("TWFRunProgramFrame"), kProgramTitle, kProgramCases);

// The designer opens the tab a validation error names: it must be the page's own title.
TEST(BasicActionPages, AnEmptyActionsErrorNamesThePageThatFixesIt)
{
    TWFSetVariableAction variable;
    TWFWriteTextFileAction file;
    TWFRunProgramAction program;
    const std::pair<TCustomWFAction*, std::string> rows[] = {{&variable, kVariableTitle}, {&file, kFileTitle}, {&program, kProgramTitle}};
    for (const auto& [action, title] : rows) {
        wftest::RecordingErrors errors;
        EXPECT_FALSE(action->Validate(errors));
        ASSERT_EQ(errors.errors.size(), 1u) << title;
        EXPECT_EQ(errors.errors[0].substr(0, title.size() + 2), title + ": ") << errors.errors[0];
    }
}

} // namespace
