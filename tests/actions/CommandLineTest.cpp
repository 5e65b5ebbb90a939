// The command line each action builds, with its result and log lines, through the real
// builder, host, options and expansion. One table per group of actions; every row names an action class,
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
    env.useCleartool(row.cleartool);
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

// The base action's building blocks, through the check-out action, and check out.
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

// Undo check-out.
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

// Check in.
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

// Make element. The action persists no view context: plain path names run in the project folder.
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

// Update snapshot view.
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

// Config spec actions.
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

// Find checkouts and the generic cleartool command.
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

constexpr const char* kNoAttribute = "Error: You have not specified an attribute name.";
constexpr const char* kNoComponents = "Error: No UCM components selected.";

// Make label type. No view: the action runs in the project folder.
const std::vector<CommandLineCase> kMakeLabelTypeCases = {
    {"GlobalAcquireReplace", "TClearCaseMkLbTypeAction",
     {{"MakeGlobal", "True"}, {"Acquire", "True"}, {"Replace", "True"}, {"Comment", "nightly"},
      {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}},
     true, "mklbtype -replace -global -acquire -c \"nightly\" lbtype:REL_1@/vobs/main", {kInProject}},
    {"AcquireNeedsGlobal", "TClearCaseMkLbTypeAction",
     {{"Acquire", "True"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}},
     true, "mklbtype -ordinary -nc lbtype:REL_1@/vobs/main", {kInProject}},
    {"PBranchShared", "TClearCaseMkLbTypeAction",
     {{"PBranch", "True"}, {"Shared", "True"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}},
     true, "mklbtype -ordinary -pbranch -shared -nc lbtype:REL_1@/vobs/main", {kInProject}},
    {"BlankQuotesNameAndVob", "TClearCaseMkLbTypeAction",
     {{"LabelTypeName", "REL %N%"}, {"VOBSelector", "/vobs/main"}},
     true, "mklbtype -ordinary -nc lbtype:\"REL 1@/vobs/main\"", {kInProject}, {}, {}, {{"N", "1"}}},
    {"BothNamesMissing", "TClearCaseMkLbTypeAction", {},
     false, "mklbtype -ordinary -nc lbtype:",
     {kInProject, "Error: You have not specified the label type selector for your new label type.",
      "Error: You have not specified a selector for your new label type's VOB."}},
};
INSTANTIATE_TEST_SUITE_P(MakeLabelType, CommandLineTest, testing::ValuesIn(kMakeLabelTypeCases), caseName);

// Apply label.
const std::vector<CommandLineCase> kApplyLabelCases = {
    {"Plain", "TClearCaseApplyLabelAction",
     {{"ViewContextPath", "{view}"}, {"LabelTypeName", "REL_1"}, {"PathNameStorageString", "a.c\r\n"},
      {"VersionSelector", "/main/2"}},
     true, "mklabel -nc lbtype:REL_1 \"a.c\"", {kInView}},
    {"EverySwitch", "TClearCaseApplyLabelAction",
     {{"ViewContextPath", "{view}"}, {"Replace", "True"}, {"Recurse", "True"}, {"FollowLinks", "True"},
      {"UseVersionSelector", "True"}, {"VersionSelector", "/main/LATEST"}, {"Comment", "lbl"},
      {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}, {"PathNameStorageString", "a.c\r\nsrc\r\n"}},
     true, "mklabel -replace -recurse -follow -version /main/LATEST -c \"lbl\" lbtype:REL_1@/vobs/main \"a.c\" \"src\"",
     {kInView}},
    {"FollowWithoutRecurse", "TClearCaseApplyLabelAction",
     {{"ViewContextPath", "{view}"}, {"FollowLinks", "True"}, {"LabelTypeName", "REL_1"},
      {"PathNameStorageString", "a.c\r\n"}, {"UseVersionSelector", "True"}},
     true, "mklabel -follow -nc lbtype:REL_1 \"a.c\"", {kInView}},
    {"FailedVersionSelectorStillBuildsTheRest", "TClearCaseApplyLabelAction",
     {{"ViewContextPath", "{view}"}, {"UseVersionSelector", "True"}, {"VersionSelector", "%NOPE%"},
      {"LabelTypeName", "REL_1"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "mklabel -nc lbtype:REL_1 \"a.c\"", {kInView, nope("Version Selector")}},
    {"FailedLabelTypeStillAddsPaths", "TClearCaseApplyLabelAction",
     {{"ViewContextPath", "{view}"}, {"LabelTypeName", "%NOPE%"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "mklabel -nc \"a.c\"", {kInView, nope("Label Type Name")}},
};
INSTANTIATE_TEST_SUITE_P(ApplyLabel, CommandLineTest, testing::ValuesIn(kApplyLabelCases), caseName);

// Lock and unlock.
const std::vector<CommandLineCase> kLockCases = {
    {"PathsReplace", "TClearCaseLockPathNamesAction",
     {{"ViewContextPath", "{view}"}, {"Replace", "True"}, {"PathNameStorageString", "a.c\r\n"}},
     true, "lock -replace -nc -pname \"a.c\"", {kInView}},
    {"NUsersWinsOverObsolete", "TClearCaseLockPathNamesAction",
     {{"ViewContextPath", "{view}"}, {"UseNUsers", "True"}, {"NUsersList", "alice,bob"}, {"Obsolete", "True"},
      {"PathNameStorageString", "a.c\r\n"}},
     true, "lock -nusers alice,bob -nc -pname \"a.c\"", {kInView}},
    {"EmptyNUsersIsWrittenAsItIs", "TClearCaseLockPathNamesAction",
     {{"ViewContextPath", "{view}"}, {"UseNUsers", "True"}, {"PathNameStorageString", "a.c\r\n"}},
     true, "lock -nusers  -nc -pname \"a.c\"", {kInView}},
    {"ObsoleteWithComment", "TClearCaseLockPathNamesAction",
     {{"ViewContextPath", "{view}"}, {"Obsolete", "True"}, {"Comment", "frozen"}, {"PathNameStorageString", "a.c\r\nb.c\r\n"}},
     true, "lock -obsolete -c \"frozen\" -pname \"a.c\" \"b.c\"", {kInView}},
    {"PathsFailedCommentStillAddsPaths", "TClearCaseLockPathNamesAction",
     {{"ViewContextPath", "{view}"}, {"Comment", "%NOPE%"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "lock -pname \"a.c\"", {kInView, kNopeComment}},
    {"ObjectsRunWithoutView", "TClearCaseLockObjectsAction",
     {{"ObjectsStorageString", "lbtype:REL_1@/vobs/main\r\nbrtype:my branch@/vobs/main\r\nvob:%VOB%\r\n"}},
     true, "lock -nc lbtype:REL_1@/vobs/main \"brtype:my branch@/vobs/main\" vob:/vobs/main", {kInProject}, {}, {},
     {{"VOB", "/vobs/main"}}},
    {"NoObjects", "TClearCaseLockObjectsAction", {{"Replace", "True"}},
     false, "lock -replace -nc", {kNoView, kNoObjects}},
    {"UnlockPaths", "TClearCaseUnlockPathNamesAction",
     {{"ViewContextPath", "{view}"}, {"Comment", "done"}, {"PathNameStorageString", "a.c\r\n"}},
     true, "unlock -c \"done\" -pname \"a.c\"", {kInView}},
    {"UnlockNoPaths", "TClearCaseUnlockPathNamesAction", {{"ViewContextPath", "{view}"}},
     false, "unlock -nc -pname", {kInView, kNoPaths}},
    {"UnlockObjects", "TClearCaseUnlockObjectsAction", {{"ObjectsStorageString", "vob:/vobs/main\r\n"}},
     true, "unlock -nc vob:/vobs/main", {kInProject}},
    {"UnlockObjectsFailedSelectorStops", "TClearCaseUnlockObjectsAction",
     {{"ObjectsStorageString", "a\r\n%NOPE%\r\nb\r\n"}},
     false, "unlock -nc a", {kInProject, nope("Object Selector")}},
};
INSTANTIATE_TEST_SUITE_P(Lock, CommandLineTest, testing::ValuesIn(kLockCases), caseName);

// Apply attribute. The path action uses no view context: it runs in the project folder.
const std::vector<CommandLineCase> kApplyAttributeCases = {
    {"Paths", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "BuildNo"}, {"AttributeValue", "42"}, {"PathNameStorageString", "a.c\r\n"}},
     true, "mkattr -pname -nc BuildNo 42 \"a.c\"", {kInProject}},
    {"PathsEverySwitch", "TClearCaseApplyAttributePathNamesAction",
     {{"Replace", "True"}, {"Recurse", "True"}, {"UseVersionSelector", "True"}, {"VersionSelector", "/main/3"},
      {"Comment", "attr"}, {"AttributeName", "BuildNo"}, {"VOBSelector", "/vobs/main"}, {"AttributeValue", "42"},
      {"PathNameStorageString", "a.c\r\nb.c@@/main/1\r\n"}},
     true, "mkattr -replace -recurse -version /main/3 -pname -c \"attr\" BuildNo@/vobs/main 42 \"a.c\" \"b.c@@/main/1\"",
     {kInProject}},
    {"PathsVersionSelectorOnlyWhenAsked", "TClearCaseApplyAttributePathNamesAction",
     {{"VersionSelector", "%NOPE%"}, {"AttributeName", "BuildNo"}, {"AttributeValue", "42"},
      {"PathNameStorageString", "a.c\r\n"}},
     true, "mkattr -pname -nc BuildNo 42 \"a.c\"", {kInProject}},
    {"DefaultValueReplacesTheValue", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "BuildNo"}, {"AttributeValue", "42"}, {"UseDefaultAttributeValue", "True"},
      {"PathNameStorageString", "a.c\r\n"}},
     true, "mkattr -pname -nc -default BuildNo \"a.c\"", {kInProject}},
    {"ValueQuotesAreTheUsers", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "Status"}, {"AttributeValue", "\"Release %N%\""}, {"PathNameStorageString", "a.c\r\n"}},
     true, "mkattr -pname -nc Status \"Release 1\" \"a.c\"", {kInProject}, {}, {}, {{"N", "1"}}},
    {"NameWithBlankIsNotQuoted", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "Build No"}, {"VOBSelector", "/vobs/my vob"}, {"AttributeValue", "1"},
      {"PathNameStorageString", "a.c\r\n"}},
     true, "mkattr -pname -nc Build No@/vobs/my vob 1 \"a.c\"", {kInProject}},
    {"EmptyValueIsAnEmptyArgument", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "BuildNo"}, {"PathNameStorageString", "a.c\r\n"}},
     true, "mkattr -pname -nc BuildNo  \"a.c\"", {kInProject}},
    {"MissingNameAfterDefault", "TClearCaseApplyAttributePathNamesAction",
     {{"UseDefaultAttributeValue", "True"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "mkattr -pname -nc -default \"a.c\"", {kInProject, kNoAttribute}},
    {"MissingNameStillWritesTheValue", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeValue", "42"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "mkattr -pname -nc 42 \"a.c\"", {kInProject, kNoAttribute}},
    {"FailedValue", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "BuildNo"}, {"AttributeValue", "%NOPE%"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "mkattr -pname -nc BuildNo \"a.c\"", {kInProject, nope("Attribute Value")}},
    {"FailedName", "TClearCaseApplyAttributePathNamesAction",
     {{"AttributeName", "%NOPE%"}, {"AttributeValue", "1"}, {"PathNameStorageString", "a.c\r\n"}},
     false, "mkattr -pname -nc 1 \"a.c\"", {kInProject, nope("Attribute Name")}},
    {"Objects", "TClearCaseApplyAttributeObjectsAction",
     {{"Replace", "True"}, {"AttributeName", "BuildNo"}, {"VOBSelector", "/vobs/main"}, {"AttributeValue", "42"},
      {"ObjectsStorageString", "lbtype:REL_1@/vobs/main\r\n"}},
     true, "mkattr -replace -nc BuildNo@/vobs/main 42 lbtype:REL_1@/vobs/main", {kInProject}},
    {"ObjectsNone", "TClearCaseApplyAttributeObjectsAction",
     {{"AttributeName", "BuildNo"}, {"UseDefaultAttributeValue", "True"}},
     false, "mkattr -nc -default BuildNo", {kNoView, kNoObjects}},
};
INSTANTIATE_TEST_SUITE_P(ApplyAttribute, CommandLineTest, testing::ValuesIn(kApplyAttributeCases), caseName);

// Make attribute type. No view: the project folder.
const std::vector<CommandLineCase> kMakeAttributeTypeCases = {
    {"CrossedBounds", "TClearCaseMakeAttributeTypeAction",
     {{"NewAttributeType", "atInteger"}, {"UseMax", "True"}, {"MaxValue", "0"}, {"UseMin", "True"},
      {"MinValue", "100"}, {"MinInclusive", "True"}, {"UseDefaultValue", "True"}, {"DefaultValue", "1"},
      {"AttributeName", "Build"}, {"VOBSelector", "/vobs/main"}},
     true, "mkattype -ordinary -vtype integer -gt 0 -le 100 -default 1 -nc Build@/vobs/main", {kInProject}},
    {"OtherInclusiveFlags", "TClearCaseMakeAttributeTypeAction",
     {{"UseMax", "True"}, {"MaxValue", "5"}, {"MaxInclusive", "True"}, {"UseMin", "True"}, {"MinValue", "9"},
      {"AttributeName", "Build"}, {"NewAttributeType", "atReal"}, {"Constraints", "lcVPelement"}},
     true, "mkattype -ordinary -vpelement -vtype real -ge 5 -lt 9 -nc Build", {kInProject}},
    {"Defaults", "TClearCaseMakeAttributeTypeAction",
     {{"AttributeName", "Build"}, {"MinValue", "1"}, {"MaxValue", "2"}, {"DefaultValue", "3"}},
     true, "mkattype -ordinary -vtype string -nc Build", {kInProject}},
    {"GlobalEverySwitchDate", "TClearCaseMakeAttributeTypeAction",
     {{"Replace", "True"}, {"Global", "True"}, {"Acquire", "True"}, {"Constraints", "lcVPbranch"},
      {"Shared", "True"}, {"NewAttributeType", "atDate"}, {"Comment", "when"}, {"AttributeName", "Stamp"}},
     true, "mkattype -replace -global -acquire -vpbranch -shared -vtype time -c \"when\" Stamp", {kInProject}},
    {"AcquireNeedsGlobal", "TClearCaseMakeAttributeTypeAction",
     {{"Acquire", "True"}, {"Constraints", "lcVPversion"}, {"NewAttributeType", "atOpaque"}, {"AttributeName", "Blob"}},
     true, "mkattype -ordinary -vpversion -vtype opaque -nc Blob", {kInProject}},
    {"EmptyDefaultValueKeepsItsBlank", "TClearCaseMakeAttributeTypeAction",
     {{"UseDefaultValue", "True"}, {"AttributeName", "Build"}},
     true, "mkattype -ordinary -vtype string -default  -nc Build", {kInProject}},
    {"MissingName", "TClearCaseMakeAttributeTypeAction", {{"Comment", "%NOPE%"}},
     false, "mkattype -ordinary -vtype string", {kInProject, kNopeComment, kNoAttribute}},
};
INSTANTIATE_TEST_SUITE_P(MakeAttributeType, CommandLineTest, testing::ValuesIn(kMakeAttributeTypeCases), caseName);

// The UCM building blocks and the activity actions.
const std::vector<CommandLineCase> kActivityCases = {
    {"SetQuotesNameWithBlank", "TClearCaseSetActivityAction",
     {{"ViewContextPath", "{view}"}, {"ActivityName", "my act"}, {"VOBSelector", "/vobs/pvob"}},
     true, "setactivity -nc \"activity:my act@/vobs/pvob\"", {kInView}},
    {"SetWithoutVob", "TClearCaseSetActivityAction", {{"ViewContextPath", "{view}"}, {"ActivityName", "a%N%"}},
     true, "setactivity -nc activity:a1", {kInView}, {}, {}, {{"N", "1"}}},
    {"SetNoneIgnoresTheName", "TClearCaseSetActivityAction",
     {{"ViewContextPath", "{view}"}, {"ActivityName", "a1"}, {"SetActivityToNone", "True"}},
     true, "setactivity -nc -none", {kInView}},
    {"SetNoNameIsCurrent", "TClearCaseSetActivityAction", {{"ViewContextPath", "{view}"}},
     true, "setactivity -nc -cact", {kInView}},
    {"SetCurrentIgnoresTheName", "TClearCaseSetActivityAction",
     {{"ViewContextPath", "{view}"}, {"ActivityName", "a1"}, {"UseCurrentActivity", "True"}},
     true, "setactivity -nc -cact", {kInView}},
    {"SetEmptyNameIsAnEntry", "TClearCaseSetActivityAction",
     {{"ViewContextPath", "{view}"}, {"ActivityName", ""}, {"VOBSelector", "/vobs/pvob"}},
     true, "setactivity -nc activity:@/vobs/pvob", {kInView}},
    {"SetFailedName", "TClearCaseSetActivityAction", {{"ViewContextPath", "{view}"}, {"ActivityName", "%NOPE%"}},
     false, "setactivity -nc",
     {kInView, "Error: Could not expand Activity Name \"activity:%NOPE%\": \"NOPE\" is neither a build variable nor an "
               "environment variable."}},
    {"CheckInCurrent", "TClearCaseCheckInActivityAction", {{"ViewContextPath", "{view}"}, {"UseCurrentActivity", "True"}},
     true, "checkin -nc -cact", {kInView}},
    {"CheckInNamed", "TClearCaseCheckInActivityAction",
     {{"ViewContextPath", "{view}"}, {"Comment", "done"}, {"Keep", "True"}, {"ActivityName", "fix1"},
      {"VOBSelector", "/vobs/pvob"}, {"PathNameStorageString", "ignored.c\r\n"}},
     true, "checkin -c \"done\" -keep activity:fix1@/vobs/pvob", {kInView}},
    {"CheckInWithoutView", "TClearCaseCheckInActivityAction", {{"Keep", "True"}},
     false, "checkin -cact", {kNoView}},
    {"UndoRemoves", "TClearCaseUnCheckOutActivityAction",
     {{"ViewContextPath", "{view}"}, {"PathNameStorageString", "ignored.c\r\n"}},
     true, "uncheckout -rm -cact", {kInView}},
    {"UndoKeeps", "TClearCaseUnCheckOutActivityAction", {{"UseDefaultViewContext", "True"}, {"Keep", "True"}},
     true, "uncheckout -keep -cact", {kInView}, "{view}"},
    {"UndoWithoutViewFailsInTheBaseStep", "TClearCaseUnCheckOutActivityAction", {},
     false, "uncheckout -rm -cact", {kNoView}},
    {"UndoWithoutViewAfterASuccessfulStep", "TClearCaseUnCheckOutActivityAction",
     {{"PathNameStorageString", "a.c\r\n"}},
     false, "uncheckout -rm -cact", {kInProject, "Error: You have not specified a View to undo checkout for."}},
};
INSTANTIATE_TEST_SUITE_P(Activity, CommandLineTest, testing::ValuesIn(kActivityCases), caseName);

// Make activity.
const std::vector<CommandLineCase> kMakeActivityCases = {
    {"Full", "TClearCaseMakeActivityAction",
     {{"ViewContextPath", "{view}"}, {"Comment", "new"}, {"Headline", "Fix build"}, {"DontSetAsCurrent", "True"},
      {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}},
     true, "mkactivity -c \"new\" -headline \"Fix build\" -nset -force activity:fix1@/vobs/pvob", {kInView}},
    {"HeadlineAlwaysQuoted", "TClearCaseMakeActivityAction",
     {{"ViewContextPath", "{view}"}, {"Headline", "%WORD%"}, {"ActivityName", "fix1"}},
     true, "mkactivity -nc -headline \"one\" -force activity:fix1", {kInView}, {}, {}, {{"WORD", "one"}}},
    {"AutoGenerateName", "TClearCaseMakeActivityAction",
     {{"ViewContextPath", "{view}"}, {"AutoGenerateName", "True"}, {"ActivityName", "fix1"}},
     true, "mkactivity -nc -force", {kInView}},
    {"NoNameIsCurrent", "TClearCaseMakeActivityAction", {{"ViewContextPath", "{view}"}},
     true, "mkactivity -nc -force -cact", {kInView}},
    {"FailedHeadlineStops", "TClearCaseMakeActivityAction",
     {{"ViewContextPath", "{view}"}, {"Headline", "%NOPE%"}, {"DontSetAsCurrent", "True"}, {"ActivityName", "fix1"}},
     false, "mkactivity -nc", {kInView, nope("Headline")}},
};
INSTANTIATE_TEST_SUITE_P(MakeActivity, CommandLineTest, testing::ValuesIn(kMakeActivityCases), caseName);

// Make baseline.
const std::vector<CommandLineCase> kBaselineCases = {
    {"Defaults", "TClearCaseMakeBaselineAction", {{"ViewContextPath", "{view}"}, {"BaselineRootName", "BL_%N%"}},
     true, "mkbl -nc -all -incremental BL_1", {kInView}, {}, {}, {{"N", "1"}}},
    {"AllIdentical", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"SelectIdenticalComponents", "True"}, {"Comment", "nightly"},
      {"BaselineRootName", "BL"}},
     true, "mkbl -c \"nightly\" -all -identical -incremental BL", {kInView}},
    {"ActivitiesIgnoreIdentical", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"SelectionType", "slActivities"}, {"SelectIdenticalComponents", "True"},
      {"ActivitySelectorStorageString", "a1\r\nb 2@/vobs/pvob\r\n"}, {"Labelling", "lbAll"}, {"BaselineRootName", "BL"}},
     true, "mkbl -nc -activities \"activity:a1,activity:b 2@/vobs/pvob\" -full BL", {kInView}},
    {"NoActivitiesIsCurrent", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"SelectionType", "slActivities"}, {"UseBaselineNameTemplate", "True"},
      {"BaselineRootName", "BL"}},
     true, "mkbl -nc -activities -cact -incremental", {kInView}},
    {"Components", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"SelectionType", "slComponents"}, {"SelectIdenticalComponents", "True"},
      {"ComponentSelectorStorageString", "c1@/vobs/pvob\r\nc2@/vobs/pvob\r\n"}, {"Labelling", "lbNone"},
      {"BaselineRootName", "BL"}},
     true, "mkbl -nc -component c1@/vobs/pvob,c2@/vobs/pvob -identical -nlabel BL", {kInView}},
    {"ComponentsWithBlankQuotedOnce", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"SelectionType", "slComponents"},
      {"ComponentSelectorStorageString", "c 1@/vobs/pvob\r\nc2@/vobs/pvob"}, {"BaselineRootName", "BL"}},
     true, "mkbl -nc -component \"c 1@/vobs/pvob,c2@/vobs/pvob\" -incremental BL", {kInView}},
    {"NoComponentsFails", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"SelectionType", "slComponents"}, {"BaselineRootName", "BL"}},
     false, "mkbl -nc -component -incremental BL", {kInView, kNoComponents}},
    {"EmptyRootNameIsAnEmptyArgument", "TClearCaseMakeBaselineAction", {{"ViewContextPath", "{view}"}},
     true, "mkbl -nc -all -incremental ", {kInView}},
    {"FailedRootName", "TClearCaseMakeBaselineAction",
     {{"ViewContextPath", "{view}"}, {"BaselineRootName", "%NOPE%"}},
     false, "mkbl -nc -all -incremental", {kInView, nope("Baseline Root Name")}},
    {"FromLabel", "TClearCaseMakeBaselineFromLabelAction",
     {{"ViewContextPath", "{view}"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"},
      {"ComponentSelectorStorageString", "c1@/vobs/pvob\r\n"}},
     true, "mkbl -nc -import lbtype:REL_1@/vobs/main", {kInView}},
    {"FromLabelWithComponents", "TClearCaseMakeBaselineFromLabelAction",
     {{"ViewContextPath", "{view}"}, {"Comment", "imp"}, {"SpecifyComponents", "True"},
      {"ComponentSelectorStorageString", "c1@/vobs/pvob\r\nc2@/vobs/pvob\r\n"}, {"LabelTypeName", "REL_1"}},
     true, "mkbl -c \"imp\" -import c1@/vobs/pvob,c2@/vobs/pvob lbtype:REL_1", {kInView}},
    {"FromLabelNoComponentsStillRuns", "TClearCaseMakeBaselineFromLabelAction",
     {{"ViewContextPath", "{view}"}, {"SpecifyComponents", "True"}, {"LabelTypeName", "REL_1"}},
     true, "mkbl -nc -import lbtype:REL_1", {kInView, kNoComponents}},
    {"FromLabelFailedLabelType", "TClearCaseMakeBaselineFromLabelAction",
     {{"ViewContextPath", "{view}"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "%NOPE%"}},
     false, "mkbl -nc -import", {kInView, nope("VOB Selector")}},
};
INSTANTIATE_TEST_SUITE_P(Baseline, CommandLineTest, testing::ValuesIn(kBaselineCases), caseName);

} // namespace
} // namespace wftest
