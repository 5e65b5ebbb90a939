// The command line each action builds, with its result and log lines, through the real
// builder, host, options and expansion. One table per Part; every row names an action class,
// its persisted properties (as text) and what GetCommandLine must produce.
#include "ActionTestSupport.h"

#include "WFCommandLine.h"
#include "WFFiles.h"

#include <gtest/gtest.h>

namespace wftest {
namespace {

constexpr const char* kNoView = "Error: The View Context Path you have specified is invalid or does not exist.";
constexpr const char* kNoDefaultView =
    "Error: The Default View you have specified is invalid or does not exist. To rectify go to Tools->Options.";
constexpr const char* kNoPaths = "Action Failed: No pathnames specified to act on.";
constexpr const char* kNoObjects = "Action Failed: No object selectors have been specified.";
constexpr const char* kInView = "Starting Directory: {view}";
constexpr const char* kInProject = "Starting Directory: {project}";
constexpr const char* kNopeComment =
    "Error: Could not expand Comment \"%NOPE%\": \"NOPE\" is neither a build variable nor an environment variable.";

std::string nope(const std::string& label)
{
    return "Error: Could not expand " + label + " \"%NOPE%\": \"NOPE\" is neither a build variable nor an environment variable.";
}

struct CommandLineCase {
    std::string name;
    std::string className;
    PropertyTexts properties;
    bool result;
    std::string commandLine;
    std::vector<std::string> messages;
    /// The options' default view ({view} etc. expanded).
    std::string defaultView = {};
    /// The options' cleartool path: empty for the fake program, "-" for none at all.
    std::string cleartool = {};
    /// Build variables defined for the run.
    PropertyTexts variables = {};
};

void PrintTo(const CommandLineCase& row, std::ostream* out)
{
    *out << row.name;
}

class CommandLineTest : public testing::TestWithParam<CommandLineCase> {};

TEST_P(CommandLineTest, BuildsTheCommandLine)
{
    const CommandLineCase& row = GetParam();
    ActionEnvironment env;
    // No cleartool on the search path when the options hold none.
    ScopedEnv path("PATH", env.project);
    if (row.cleartool == "-")
        env.setCleartoolPath("");
    else if (!row.cleartool.empty())
        env.setCleartoolPath(env.expand(row.cleartool));
    env.setDefaultView(env.expand(row.defaultView));
    for (const auto& [name, value] : row.variables)
        env.variables.Set(name, TWFVariant(env.expand(value)));

    auto action = env.create(row.className, row.properties);
    ASSERT_TRUE(action);
    TCommandLineBuilder builder;
    EXPECT_EQ(action->GetCommandLine(builder), row.result);
    EXPECT_EQ(builder.GetCommandLineText(), env.expand(row.commandLine));
    EXPECT_EQ(env.log.messages(), env.expand(row.messages));
}

std::string caseName(const testing::TestParamInfo<CommandLineCase>& info)
{
    return info.param.name;
}

// Part 3.1 through the check-out action, and Part 3.2.
const std::vector<CommandLineCase> kCheckOutCases = {
    {"Defaults", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"NoComment", "True"}},
     true, "checkout -nc -nquery \"a.c\"", {kInView}},
    {"EmptyCommentGivesNoComment", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"NoComment", "False"}, {"Comment", ""}},
     true, "checkout -nc -nquery \"a.c\"", {kInView}},
    {"CommentOfTwoWordsIsOneArgument", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "two words"}},
     true, "checkout -c \"two words\" -nquery \"a.c\"", {kInView}},
    {"NoCommentWinsOverComment", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "fix"}, {"NoComment", "True"}},
     true, "checkout -nc -nquery \"a.c\"", {kInView}},
    {"CommentExpandsVariables", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "build %BUILD%"}},
     true, "checkout -c \"build 42\" -nquery \"a.c\"", {kInView}, {}, {}, {{"BUILD", "42"}}},
    {"EverySwitchInOrder", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\nb c.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "fix"},
      {"Reserved", "True"}, {"Unreserved", "True"}, {"PreserveTime", "True"}, {"DataLocation", "coOut"},
      {"OutExternalPath", "/tmp/x.c"}, {"SelectionMode", "coVersion"}, {"VersionSelector", "/main/3"}},
     true, "checkout -reserved -unreserved -out \"/tmp/x.c\" -ptime -version \"/main/3\" -c \"fix\" -nquery \"a.c\" \"b c.c\"",
     {kInView}},
    {"NoDataAndBranch", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"DataLocation", "coNoData"},
      {"SelectionMode", "coBranch"}, {"BranchSelector", "/main/dev"}, {"VersionSelector", "/main/3"}},
     true, "checkout -ndata -branch \"/main/dev\" -nc -nquery \"a.c\"", {kInView}},
    {"StringsOfOtherModesAreNotExpanded", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"OutExternalPath", "%NOPE%"},
      {"VersionSelector", "%NOPE%"}, {"BranchSelector", "%NOPE%"}},
     true, "checkout -nc -nquery \"a.c\"", {kInView}},
    {"EmptyExternalPathIsQuoted", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"DataLocation", "coOut"}},
     true, "checkout -out \"\" -nc -nquery \"a.c\"", {kInView}},
    {"FailedExternalPathStopsAtOnce", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Reserved", "True"},
      {"DataLocation", "coOut"}, {"OutExternalPath", "%NOPE%"}},
     false, "checkout -reserved", {kInView, nope("External Pathname")}},
    {"FailedBranchStopsAtOnce", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"PreserveTime", "True"},
      {"SelectionMode", "coBranch"}, {"BranchSelector", "%NOPE%"}},
     false, "checkout -ptime", {kInView, nope("Branch Selector")}},
    {"FailedCommentStillAddsTheRest", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "%NOPE%"}},
     false, "checkout -nquery \"a.c\"", {kInView, kNopeComment}},
    {"NoPathNames", "TClearCaseCheckoutAction", {{"ViewContextPath", "{view}"}},
     false, "checkout -nc -nquery", {kInView, kNoPaths}},
    {"PlainPathNamesBeforeExtendedOnes", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "src/x.c@@/main/2\r\nsrc/a.c\r\nsrc/y.c@@/main/1\r\nsrc/b.c\r\n"},
      {"ViewContextPath", "{view}"}},
     true, "checkout -nc -nquery \"src/a.c\" \"src/b.c\" \"src/x.c@@/main/2\" \"src/y.c@@/main/1\"", {kInView}},
    {"PathNamesExpandVariables", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "%SRC%/a.c\r\n"}, {"ViewContextPath", "{view}"}},
     true, "checkout -nc -nquery \"src/a.c\"", {kInView}, {}, {}, {{"SRC", "src"}}},
    {"FailedPathNameStopsTheList", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n%NOPE%\r\nb.c\r\n"}, {"ViewContextPath", "{view}"}},
     false, "checkout -nc -nquery \"a.c\"", {kInView, nope("Pathname")}},
    {"MissingViewFailsButBuildsTheRest", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{dir}/nowhere"}},
     false, "checkout -nc -nquery \"a.c\"", {kNoView}},
    {"ViewContextPathExpandsVariables", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "%VIEW%"}},
     true, "checkout -nc -nquery \"a.c\"", {kInView}, {}, {}, {{"VIEW", "{view}"}}},
    {"PlainPathsWithoutViewRunInProjectFolder", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}},
     true, "checkout -nc -nquery \"a.c\"", {kInProject}},
    {"ExtendedPathsWithoutViewFail", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c@@/main/1\r\n"}},
     false, "checkout -nc -nquery \"a.c@@/main/1\"", {kNoView}},
    {"MixedPathsWithoutViewFail", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\nb.c@@/main/1\r\n"}},
     false, "checkout -nc -nquery \"a.c\" \"b.c@@/main/1\"", {kNoView}},
    {"DefaultViewFromOptions", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c@@/main/1\r\n"}, {"UseDefaultViewContext", "True"}, {"ViewContextPath", "{dir}/nowhere"}},
     true, "checkout -nc -nquery \"a.c@@/main/1\"", {kInView}, "{view}"},
    {"EmptyDefaultViewWithPlainPathsRunsInProjectFolder", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"UseDefaultViewContext", "True"}, {"ViewContextPath", "{view}"}},
     true, "checkout -nc -nquery \"a.c\"", {kInProject}},
    {"EmptyDefaultViewWithExtendedPathsFails", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c@@/main/1\r\n"}, {"UseDefaultViewContext", "True"}, {"ViewContextPath", "{view}"}},
     false, "checkout -nc -nquery \"a.c@@/main/1\"", {kNoDefaultView}},
    {"MissingDefaultViewFails", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"UseDefaultViewContext", "True"}},
     false, "checkout -nc -nquery \"a.c\"", {kNoDefaultView}, "{dir}/nowhere"},
    {"CleartoolMissing", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}},
     false, "-nc -nquery \"a.c\"",
     {"Cleartool.exe cannot be found at the path specified. Please check under Tools -> Options."}, {}, "{dir}/missing"},
    {"NoCleartoolPath", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}},
     false, "-nc -nquery \"a.c\"",
     {"The path to cleartool.exe has not been specified. Please check under Tools -> Options."}, {}, "-"},
    {"CleartoolFolderIsEnough", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}},
     true, "checkout -nc -nquery \"a.c\"", {kInView}, {}, "{dir}"},
};
INSTANTIATE_TEST_SUITE_P(CheckOut, CommandLineTest, testing::ValuesIn(kCheckOutCases), caseName);

// Part 3.4.
const std::vector<CommandLineCase> kUnCheckOutCases = {
    {"RemovesByDefault", "TClearCaseUnCheckOutAction",
     {{"PathNameStorageString", "src/a.c\r\nsrc/b.c\r\n"}, {"ViewContextPath", "{view}"}},
     true, "uncheckout -rm \"src/a.c\" \"src/b.c\"", {kInView}},
    {"Keep", "TClearCaseUnCheckOutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Keep", "True"}},
     true, "uncheckout -keep \"a.c\"", {kInView}},
    {"NoPathNames", "TClearCaseUnCheckOutAction", {{"ViewContextPath", "{view}"}},
     false, "uncheckout -rm", {kInView, kNoPaths}},
    {"MissingViewStillAddsTheRest", "TClearCaseUnCheckOutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{dir}/nowhere"}, {"Keep", "True"}},
     false, "uncheckout -keep \"a.c\"", {kNoView}},
};
INSTANTIATE_TEST_SUITE_P(UnCheckOut, CommandLineTest, testing::ValuesIn(kUnCheckOutCases), caseName);

// Part 3.3.
const std::vector<CommandLineCase> kCheckInCases = {
    {"NoCommentTwoPaths", "TClearCaseCheckInPathAction",
     {{"PathNameStorageString", "a.c\r\nb.c\r\n"}, {"ViewContextPath", "{view}"}, {"NoComment", "True"}},
     true, "checkin -nc \"a.c\" \"b.c\"", {kInView}},
    {"EverySwitchKeepWins", "TClearCaseCheckInPathAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "fix"}, {"NoWarnings", "True"},
      {"PreserveTime", "True"}, {"Keep", "True"}, {"Remove", "True"}, {"IdenticalCheckin", "True"}},
     true, "checkin -c \"fix\" -nwarn -ptime -keep -identical \"a.c\"", {kInView}},
    {"RemoveAlone", "TClearCaseCheckInPathAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"PreserveTime", "True"}, {"Remove", "True"},
      {"IdenticalCheckin", "True"}},
     true, "checkin -nc -ptime -rm -identical \"a.c\"", {kInView}},
    {"FailedCommentIsIgnored", "TClearCaseCheckInPathAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "%NOPE%"}, {"NoWarnings", "True"}},
     true, "checkin -nwarn \"a.c\"", {kInView, kNopeComment}},
    {"NoPathNames", "TClearCaseCheckInPathAction", {{"ViewContextPath", "{view}"}},
     false, "checkin -nc", {kInView, kNoPaths}},
    {"FailedBaseStepStillAddsPathNames", "TClearCaseCheckInPathAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{dir}/nowhere"}, {"Keep", "True"}},
     false, "checkin \"a.c\"", {kNoView}},
    {"GenericPartAlone", "TClearCaseCheckInGenericAction",
     {{"ViewContextPath", "{view}"}, {"Keep", "True"}},
     true, "checkin -nc -keep", {kInView}},
};
INSTANTIATE_TEST_SUITE_P(CheckIn, CommandLineTest, testing::ValuesIn(kCheckInCases), caseName);

// Part 3.5. The action persists no view context: plain path names run in the project folder.
const std::vector<CommandLineCase> kMakeElementCases = {
    {"Defaults", "TClearCaseMakeElementAction", {{"PathNameStorageString", "a.c\r\n"}, {"NoComment", "True"}},
     true, "mkelem -nc \"a.c\"", {kInProject}},
    {"CheckedInKeepsTime", "TClearCaseMakeElementAction",
     {{"PathNameStorageString", "src/new.c\r\n"}, {"Comment", "new"}, {"UseElementType", "True"},
      {"ElementType", "text_file"}, {"Checkout", "ccCheckedIn"}, {"PreserveTime", "True"}, {"MakePath", "True"}},
     true, "mkelem -eltype text_file -ci -ptime -mkpath -c \"new\" \"src/new.c\"", {kInProject}},
    {"EverySwitchWithNoCheckOut", "TClearCaseMakeElementAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"UseElementType", "True"}, {"ElementType", "binary"},
      {"Checkout", "ccNoCheckOut"}, {"PreserveTime", "True"}, {"MakePath", "True"}, {"Master", "True"},
      {"NoWarnings", "True"}},
     true, "mkelem -eltype binary -nco -mkpath -master -nwarn -nc \"a.c\"", {kInProject}},
    {"PreserveTimeOnlyWhenCheckedIn", "TClearCaseMakeElementAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"Checkout", "ccCheckedOut"}, {"PreserveTime", "True"}},
     true, "mkelem -nc \"a.c\"", {kInProject}},
    {"ElementTypeOnlyWhenAsked", "TClearCaseMakeElementAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ElementType", "text_file"}},
     true, "mkelem -nc \"a.c\"", {kInProject}},
    {"EmptyElementTypeIsNotChecked", "TClearCaseMakeElementAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"UseElementType", "True"}},
     true, "mkelem -eltype  -nc \"a.c\"", {kInProject}},
    {"EveryFailureIsReported", "TClearCaseMakeElementAction", {{"Comment", "%NOPE%"}, {"MakePath", "True"}},
     false, "mkelem -mkpath", {kNoView, kNopeComment, kNoPaths}},
    {"ExtendedPathNeedsAView", "TClearCaseMakeElementAction", {{"PathNameStorageString", "a.c@@/main/1\r\n"}},
     false, "mkelem -nc \"a.c@@/main/1\"", {kNoView}},
};
INSTANTIATE_TEST_SUITE_P(MakeElement, CommandLineTest, testing::ValuesIn(kMakeElementCases), caseName);

// Part 3.6.
const std::vector<CommandLineCase> kUpdateCases = {
    {"DefaultsInDefaultView", "TClearCaseUpdateAction", {{"UseDefaultViewContext", "True"}},
     true, "update -force -overwrite", {kInView}, "{view}"},
    {"PretendRenameCheckinTime", "TClearCaseUpdateAction",
     {{"ViewContextPath", "{view}"}, {"PretendOnly", "True"}, {"HijackMode", "hmRename"}, {"UpdateTimestamp", "tbCheckin"}},
     true, "update -print -force -rename -ptime", {kInView}},
    {"NoOverwriteCurrentTime", "TClearCaseUpdateAction",
     {{"ViewContextPath", "{view}"}, {"HijackMode", "hmNooverwrite"}, {"UpdateTimestamp", "tbCurrent"}},
     true, "update -force -nooverwrite -ctime", {kInView}},
    {"NoViewKeepsPrint", "TClearCaseUpdateAction", {{"PretendOnly", "True"}},
     false, "update -print", {kNoView, "Update failed: No snapshot view specified to update!"}},
};
INSTANTIATE_TEST_SUITE_P(Update, CommandLineTest, testing::ValuesIn(kUpdateCases), caseName);

// Part 3.7.
const std::vector<CommandLineCase> kConfigSpecCases = {
    {"Current", "TClearCaseSetConfigSpecAction", {{"ViewContextPath", "{view}"}, {"CSFilePath", "%NOPE%"}},
     true, "setcs -current", {kInView}},
    {"Default", "TClearCaseSetConfigSpecAction", {{"ViewContextPath", "{view}"}, {"CSpecChoice", "csDefault"}},
     true, "setcs -default", {kInView}},
    {"Stream", "TClearCaseSetConfigSpecAction", {{"ViewContextPath", "{view}"}, {"CSpecChoice", "csStream"}},
     true, "setcs -stream", {kInView}},
    {"File", "TClearCaseSetConfigSpecAction",
     {{"ViewContextPath", "{view}"}, {"CSpecChoice", "csFile"}, {"CSFilePath", "%SPECS%/rel 1.cs"}},
     true, "setcs \"{dir}/specs/rel 1.cs\"", {kInView}, {}, {}, {{"SPECS", "{dir}/specs"}}},
    {"MissingFile", "TClearCaseSetConfigSpecAction",
     {{"ViewContextPath", "{view}"}, {"CSpecChoice", "csFile"}, {"CSFilePath", "{dir}/specs/none.cs"}},
     false, "setcs", {kInView, "Error: The file you have specified for the config spec does not exist."}},
    {"FileThatFailsToExpand", "TClearCaseSetConfigSpecAction",
     {{"ViewContextPath", "{view}"}, {"CSpecChoice", "csFile"}, {"CSFilePath", "%NOPE%"}},
     false, "setcs", {kInView, nope("Config Spec File")}},
    {"GetIsTheSubCommandAlone", "TClearCaseGetConfigSpecAction",
     {{"ViewContextPath", "{view}"}, {"OutputToFile", "True"}, {"OutputFilePath", "{dir}/cs.txt"}},
     true, "catcs", {kInView}},
};
INSTANTIATE_TEST_SUITE_P(ConfigSpec, CommandLineTest, testing::ValuesIn(kConfigSpecCases), caseName);

// Parts 3.8 and 3.9.
const std::vector<CommandLineCase> kListAndGenericCases = {
    {"FindCheckoutsShortByDefault", "TClearCaseFindCheckoutsAction", {{"ViewContextPath", "{view}"}},
     true, "lscheckout -short", {kInView}},
    {"FindCheckoutsLong", "TClearCaseFindCheckoutsAction", {{"ViewContextPath", "{view}"}, {"UseShort", "False"}},
     true, "lscheckout", {kInView}},
    {"GenericArguments", "TClearCaseCleartoolAction",
     {{"ViewContextPath", "{view}"}, {"Command", "lsview"}, {"Arguments", "-short -cview"}},
     true, "lsview -short -cview", {kInView}},
    {"GenericQuotingAsTyped", "TClearCaseCleartoolAction",
     {{"ViewContextPath", "{view}"}, {"Command", "describe"}, {"Arguments", "-long  \"my %WHAT%\""}},
     true, "describe -long  \"my view\"", {kInView}, {}, {}, {{"WHAT", "view"}}},
    {"GenericEmptyArguments", "TClearCaseCleartoolAction", {{"ViewContextPath", "{view}"}, {"Command", "lsview"}},
     true, "lsview ", {kInView}},
    {"GenericArgumentsFailToExpand", "TClearCaseCleartoolAction",
     {{"ViewContextPath", "{view}"}, {"Command", "lsview"}, {"Arguments", "%NOPE%"}},
     false, "lsview", {kInView, nope("Arguments")}},
};
INSTANTIATE_TEST_SUITE_P(ListAndGeneric, CommandLineTest, testing::ValuesIn(kListAndGenericCases), caseName);

} // namespace
} // namespace wftest
