// The command line each action builds, with its result and log lines, through the real
// builder, host, options and expansion. One table per group of actions, of rows per action class:
// the persisted properties (as text), what Validate and GetCommandLine must produce and, for a
// few, the argv the fake cleartool receives when the action runs.
#include "ActionTestSupport.h"
#include "RowName.h"

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
const std::string kNoCleartool = "The path to cleartool.exe has not been specified. Please check under Tools -> Options.";
const std::string kCleartoolMissing = "Cleartool.exe cannot be found at the path specified. Please check under Tools -> Options.";

std::string nope(const std::string& label)
{
    return "Error: Could not expand " + label + " \"%NOPE%\": \"NOPE\" is neither a build variable nor an environment variable.";
}
const std::string kNopeComment = nope("Comment");

struct CommandLineCase {
    std::string name;
    PropertyTexts properties;
    bool result;
    std::string commandLine;
    std::vector<std::string> messages = {};
    /// The options' default view ({view} etc. expanded).
    std::string defaultView = {};
    /// The options' cleartool path: empty for the fake program, "-" for none at all.
    std::string cleartool = {};
    /// Build variables defined for the run.
    PropertyTexts variables = {};
    /// What Validate reports.
    std::vector<std::string> invalid = {};
    /// Set: Execute runs the fake cleartool, which gets this argv in the row's starting directory.
    std::vector<std::string> argv = {};
    /// Set by rowsOf.
    std::string className = {};
};

/// Rows of one action class; a row that names no log messages expects `start` alone.
std::vector<CommandLineCase> rowsOf(const std::string& className, const std::string& start,
                                    std::vector<CommandLineCase> rows)
{
    for (CommandLineCase& row : rows) {
        row.className = className;
        if (row.messages.empty())
            row.messages = {start};
    }
    return rows;
}

std::vector<CommandLineCase> operator+(std::vector<CommandLineCase> first, const std::vector<CommandLineCase>& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

const std::pair<std::string, std::string> kView{"ViewContextPath", "{view}"};
const std::pair<std::string, std::string> kAC{"PathNameStorageString", "a.c\r\n"};

WF_ROW_PRINTER(CommandLineCase)

class CommandLineTest : public testing::TestWithParam<CommandLineCase> {};

TEST_P(CommandLineTest, BuildsTheCommandLine)
{
    const CommandLineCase& row = GetParam();
    ActionEnvironment env;
    // No cleartool on the search path when the options hold none.
    ScopedEnv path("PATH", env.project);
    env.useCleartool(row.cleartool);
    env.cleartool.options().SetDefaultViewPath(env.expand(row.defaultView));
    for (const auto& [name, value] : row.variables)
        env.variables.Set(name, TWFVariant(env.expand(value)));

    auto action = env.create(row.className, row.properties);
    ASSERT_TRUE(action);
    RecordingErrors errors;
    EXPECT_EQ(action->Validate(errors), row.invalid.empty());
    EXPECT_EQ(errors.errors, row.invalid);
    TCommandLineBuilder builder;
    EXPECT_EQ(action->GetCommandLine(builder), row.result);
    EXPECT_EQ(builder.GetCommandLineText(), env.expand(row.commandLine));
    EXPECT_EQ(env.log.messages(), env.expand(row.messages));
    if (row.argv.empty())
        return;
    env.log.entries.clear();
    EXPECT_TRUE(action->Execute());
    const auto invocations = env.cleartool.invocations();
    ASSERT_EQ(invocations.size(), 1u);
    EXPECT_EQ(invocations[0].args, row.argv);
    const std::string start = env.expand(row.messages[0]);
    EXPECT_EQ(invocations[0].cwd, start.substr(start.find(": ") + 2));
    EXPECT_EQ(env.log.messages(), (std::vector<std::string>{start, start, "Command Line: " + builder.GetCommandLineText()}));
}

// The base action's building blocks, through the check-out action, and check out.
const std::vector<CommandLineCase> kCheckOutCases = rowsOf("TClearCaseCheckoutAction", kInView, {
    {"Defaults", {kAC, kView, {"NoComment", "True"}}, true, "checkout -nc -nquery \"a.c\""},
    {"EmptyCommentGivesNoComment", {kAC, kView, {"NoComment", "False"}, {"Comment", ""}}, true,
     "checkout -nc -nquery \"a.c\""},
    {"CommentOfTwoWordsIsOneArgument", {kAC, kView, {"Comment", "two words"}}, true,
     "checkout -c \"two words\" -nquery \"a.c\"", {}, {}, {}, {}, {}, {"checkout", "-c", "two words", "-nquery", "a.c"}},
    {"NoCommentWinsOverComment", {kAC, kView, {"Comment", "fix"}, {"NoComment", "True"}}, true,
     "checkout -nc -nquery \"a.c\""},
    {"EverySwitchInOrder", {{"PathNameStorageString", "a.c\r\nb c.c\r\n"}, kView, {"Comment", "fix"},
      {"Reserved", "True"}, {"Unreserved", "True"}, {"PreserveTime", "True"}, {"DataLocation", "coOut"},
      {"OutExternalPath", "/tmp/x.c"}, {"SelectionMode", "coVersion"}, {"VersionSelector", "/main/3"}}, true,
     "checkout -reserved -unreserved -out \"/tmp/x.c\" -ptime -version \"/main/3\" -c \"fix\" -nquery \"a.c\" \"b c.c\""},
    {"NoDataAndBranch", {kAC, kView, {"DataLocation", "coNoData"}, {"SelectionMode", "coBranch"},
      {"BranchSelector", "/main/dev"}, {"VersionSelector", "/main/3"}}, true,
     "checkout -ndata -branch \"/main/dev\" -nc -nquery \"a.c\""},
    {"FailedExternalPathStopsAtOnce", {kAC, kView, {"Reserved", "True"}, {"DataLocation", "coOut"},
      {"OutExternalPath", "%NOPE%"}}, false, "checkout -reserved", {kInView, nope("External Pathname")}},
    {"FailedBranchStopsAtOnce", {kAC, kView, {"PreserveTime", "True"}, {"SelectionMode", "coBranch"},
      {"BranchSelector", "%NOPE%"}}, false, "checkout -ptime", {kInView, nope("Branch Selector")}},
    {"FailedCommentStillAddsTheRest", {kAC, kView, {"Comment", "%NOPE%"}}, false, "checkout -nquery \"a.c\"",
     {kInView, kNopeComment}},
    {"PlainPathNamesBeforeExtendedOnes",
     {{"PathNameStorageString", "src/x.c@@/main/2\r\nsrc/a.c\r\nsrc/y.c@@/main/1\r\nsrc/b.c\r\n"}, kView}, true,
     "checkout -nc -nquery \"src/a.c\" \"src/b.c\" \"src/x.c@@/main/2\" \"src/y.c@@/main/1\""},
    {"FailedPathNameStopsTheList", {{"PathNameStorageString", "a.c\r\n%NOPE%\r\nb.c\r\n"}, kView}, false,
     "checkout -nc -nquery \"a.c\"", {kInView, nope("Pathname")}},
    {"ExtendedPathsWithoutViewFail", {{"PathNameStorageString", "a.c@@/main/1\r\n"}}, false,
     "checkout -nc -nquery \"a.c@@/main/1\"", {kNoView}},
    {"MixedPathsWithoutViewFail", {{"PathNameStorageString", "a.c\r\nb.c@@/main/1\r\n"}}, false,
     "checkout -nc -nquery \"a.c\" \"b.c@@/main/1\"", {kNoView}},
    {"DefaultViewFromOptions", {{"PathNameStorageString", "a.c@@/main/1\r\n"}, {"UseDefaultViewContext", "True"},
      {"ViewContextPath", "{dir}/nowhere"}}, true, "checkout -nc -nquery \"a.c@@/main/1\"", {}, "{view}"},
    {"EmptyDefaultViewWithPlainPathsRunsInProjectFolder", {kAC, {"UseDefaultViewContext", "True"}, kView}, true,
     "checkout -nc -nquery \"a.c\"", {kInProject}},
    {"EmptyDefaultViewWithExtendedPathsFails", {{"PathNameStorageString", "a.c@@/main/1\r\n"},
      {"UseDefaultViewContext", "True"}, kView}, false, "checkout -nc -nquery \"a.c@@/main/1\"", {kNoDefaultView}},
    {"CleartoolMissing", {kAC, kView}, false, "-nc -nquery \"a.c\"", {kCleartoolMissing}, {}, "{dir}/missing", {},
     {"Options: " + kCleartoolMissing}},
    {"NoCleartoolPath", {kAC, kView}, false, "-nc -nquery \"a.c\"", {kNoCleartool}, {}, "-", {},
     {"Options: " + kNoCleartool}},
});
INSTANTIATE_TEST_SUITE_P(CheckOut, CommandLineTest, testing::ValuesIn(kCheckOutCases), wftest::byName);

// Undo check-out.
const std::vector<CommandLineCase> kUnCheckOutCases = rowsOf("TClearCaseUnCheckOutAction", kInView, {
    {"Keep", {kAC, kView, {"Keep", "True"}}, true, "uncheckout -keep \"a.c\""},
    {"NoPathNames", {kView}, false, "uncheckout -rm", {kInView, kNoPaths}},
    {"MissingViewStillAddsTheRest", {kAC, {"ViewContextPath", "{dir}/nowhere"}, {"Keep", "True"}}, false,
     "uncheckout -keep \"a.c\"", {kNoView}},
});
INSTANTIATE_TEST_SUITE_P(UnCheckOut, CommandLineTest, testing::ValuesIn(kUnCheckOutCases), wftest::byName);

// Check in.
const std::vector<CommandLineCase> kCheckInCases = rowsOf("TClearCaseCheckInPathAction", kInView, {
    {"EverySwitchKeepWins", {kAC, kView, {"Comment", "fix"}, {"NoWarnings", "True"}, {"PreserveTime", "True"},
      {"Keep", "True"}, {"Remove", "True"}, {"IdenticalCheckin", "True"}}, true,
     "checkin -c \"fix\" -nwarn -ptime -keep -identical \"a.c\""},
    {"RemoveAlone", {kAC, kView, {"PreserveTime", "True"}, {"Remove", "True"}, {"IdenticalCheckin", "True"}}, true,
     "checkin -nc -ptime -rm -identical \"a.c\""},
    {"FailedCommentIsIgnored", {kAC, kView, {"Comment", "%NOPE%"}, {"NoWarnings", "True"}}, true,
     "checkin -nwarn \"a.c\"", {kInView, kNopeComment}},
    {"NoPathNames", {kView}, false, "checkin -nc", {kInView, kNoPaths}},
    {"FailedBaseStepStillAddsPathNames", {kAC, {"ViewContextPath", "{dir}/nowhere"}, {"Keep", "True"}}, false,
     "checkin \"a.c\"", {kNoView}},
}) + rowsOf("TClearCaseCheckInGenericAction", "", {
    {"GenericPartAlone", {kView, {"Keep", "True"}}, true, "checkin -nc -keep", {kInView}},
});
INSTANTIATE_TEST_SUITE_P(CheckIn, CommandLineTest, testing::ValuesIn(kCheckInCases), wftest::byName);

// Make element. The action persists no view context: plain path names run in the project folder.
const std::vector<CommandLineCase> kMakeElementCases = rowsOf("TClearCaseMakeElementAction", kInProject, {
    {"Defaults", {kAC, {"NoComment", "True"}}, true, "mkelem -nc \"a.c\"", {}, {}, {}, {}, {}, {"mkelem", "-nc", "a.c"}},
    {"CheckedInKeepsTime", {{"PathNameStorageString", "src/new.c\r\n"}, {"Comment", "new"}, {"UseElementType", "True"},
      {"ElementType", "text_file"}, {"Checkout", "ccCheckedIn"}, {"PreserveTime", "True"}, {"MakePath", "True"}}, true,
     "mkelem -eltype text_file -ci -ptime -mkpath -c \"new\" \"src/new.c\""},
    {"EverySwitchWithNoCheckOut", {kAC, {"UseElementType", "True"}, {"ElementType", "binary"},
      {"Checkout", "ccNoCheckOut"}, {"PreserveTime", "True"}, {"MakePath", "True"}, {"Master", "True"},
      {"NoWarnings", "True"}}, true, "mkelem -eltype binary -nco -mkpath -master -nwarn -nc \"a.c\""},
    {"EveryFailureIsReported", {{"Comment", "%NOPE%"}, {"MakePath", "True"}}, false, "mkelem -mkpath",
     {kNoView, kNopeComment, kNoPaths}},
    {"ExtendedPathNeedsAView", {{"PathNameStorageString", "a.c@@/main/1\r\n"}}, false, "mkelem -nc \"a.c@@/main/1\"",
     {kNoView}},
});
INSTANTIATE_TEST_SUITE_P(MakeElement, CommandLineTest, testing::ValuesIn(kMakeElementCases), wftest::byName);

// Update snapshot view.
const std::vector<CommandLineCase> kUpdateCases = rowsOf("TClearCaseUpdateAction", kInView, {
    {"DefaultsInDefaultView", {{"UseDefaultViewContext", "True"}}, true, "update -force -overwrite", {}, "{view}"},
    {"PretendRenameCheckinTime", {kView, {"PretendOnly", "True"}, {"HijackMode", "hmRename"},
      {"UpdateTimestamp", "tbCheckin"}}, true, "update -print -force -rename -ptime"},
    {"NoOverwriteCurrentTime", {kView, {"HijackMode", "hmNooverwrite"}, {"UpdateTimestamp", "tbCurrent"}}, true,
     "update -force -nooverwrite -ctime"},
    {"NoViewKeepsPrint", {{"PretendOnly", "True"}}, false, "update -print",
     {kNoView, "Update failed: No snapshot view specified to update!"}, {}, {}, {},
     {"Update Options: You have not specified a snapshot view to update."}},
});
INSTANTIATE_TEST_SUITE_P(Update, CommandLineTest, testing::ValuesIn(kUpdateCases), wftest::byName);

// Config spec actions.
const std::vector<CommandLineCase> kConfigSpecCases = rowsOf("TClearCaseSetConfigSpecAction", kInView, {
    {"Current", {kView, {"CSFilePath", "%NOPE%"}}, true, "setcs -current"},
    {"Default", {kView, {"CSpecChoice", "csDefault"}}, true, "setcs -default"},
    {"Stream", {kView, {"CSpecChoice", "csStream"}}, true, "setcs -stream"},
    {"File", {kView, {"CSpecChoice", "csFile"}, {"CSFilePath", "%SPECS%/rel 1.cs"}}, true,
     "setcs \"{dir}/specs/rel 1.cs\"", {}, {}, {}, {{"SPECS", "{dir}/specs"}}},
    {"MissingFile", {kView, {"CSpecChoice", "csFile"}, {"CSFilePath", "{dir}/specs/none.cs"}}, false, "setcs",
     {kInView, "Error: The file you have specified for the config spec does not exist."}},
    {"FileThatFailsToExpand", {kView, {"CSpecChoice", "csFile"}, {"CSFilePath", "%NOPE%"}}, false, "setcs",
     {kInView, nope("Config Spec File")}},
}) + rowsOf("TClearCaseGetConfigSpecAction", "", {
    {"GetIsTheSubCommandAlone", {kView, {"OutputToFile", "True"}, {"OutputFilePath", "{dir}/cs.txt"}}, true, "catcs",
     {kInView}},
});
INSTANTIATE_TEST_SUITE_P(ConfigSpec, CommandLineTest, testing::ValuesIn(kConfigSpecCases), wftest::byName);

// Find checkouts and the generic cleartool command.
const std::vector<CommandLineCase> kListAndGenericCases = rowsOf("TClearCaseFindCheckoutsAction", kInView, {
    {"FindCheckoutsShortByDefault", {kView}, true, "lscheckout -short"},
    {"FindCheckoutsLong", {kView, {"UseShort", "False"}}, true, "lscheckout"},
}) + rowsOf("TClearCaseCleartoolAction", kInView, {
    {"GenericArguments", {kView, {"Command", "lsview"}, {"Arguments", "-short -cview"}}, true, "lsview -short -cview"},
    {"GenericQuotingAsTyped", {kView, {"Command", "describe"}, {"Arguments", "-long  \"my %WHAT%\""}}, true,
     "describe -long  \"my view\"", {}, {}, {}, {{"WHAT", "view"}}, {}, {"describe", "-long", "my view"}},
    {"GenericArgumentsFailToExpand", {kView, {"Command", "lsview"}, {"Arguments", "%NOPE%"}}, false, "lsview",
     {kInView, nope("Arguments")}},
});
INSTANTIATE_TEST_SUITE_P(ListAndGeneric, CommandLineTest, testing::ValuesIn(kListAndGenericCases), wftest::byName);

constexpr const char* kNoAttribute = "Error: You have not specified an attribute name.";
constexpr const char* kNoComponents = "Error: No UCM components selected.";

// Make label type. No view: the action runs in the project folder.
const std::vector<CommandLineCase> kMakeLabelTypeCases = rowsOf("TClearCaseMkLbTypeAction", kInProject, {
    {"GlobalAcquireReplace", {{"MakeGlobal", "True"}, {"Acquire", "True"}, {"Replace", "True"}, {"Comment", "nightly"},
      {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}}, true,
     "mklbtype -replace -global -acquire -c \"nightly\" lbtype:REL_1@/vobs/main"},
    {"PBranchShared", {{"PBranch", "True"}, {"Shared", "True"}, {"LabelTypeName", "REL_1"},
      {"VOBSelector", "/vobs/main"}}, true, "mklbtype -ordinary -pbranch -shared -nc lbtype:REL_1@/vobs/main"},
    {"BothNamesMissing", {}, false, "mklbtype -ordinary -nc lbtype:",
     {kInProject, "Error: You have not specified the label type selector for your new label type.",
      "Error: You have not specified a selector for your new label type's VOB."}},
    {"FailedCommentStillNamesTheType", {{"Comment", "%NOPE%"}, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}},
     false, "mklbtype -ordinary lbtype:REL_1@/vobs/main", {kInProject, kNopeComment}},
});
INSTANTIATE_TEST_SUITE_P(MakeLabelType, CommandLineTest, testing::ValuesIn(kMakeLabelTypeCases), wftest::byName);

// Apply label.
const std::vector<CommandLineCase> kApplyLabelCases = rowsOf("TClearCaseApplyLabelAction", kInView, {
    {"EverySwitch", {kView, {"Replace", "True"}, {"Recurse", "True"}, {"FollowLinks", "True"},
      {"UseVersionSelector", "True"}, {"VersionSelector", "/main/LATEST"}, {"Comment", "lbl"},
      {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"}, {"PathNameStorageString", "a.c\r\nsrc\r\n"}}, true,
     "mklabel -replace -recurse -follow -version /main/LATEST -c \"lbl\" lbtype:REL_1@/vobs/main \"a.c\" \"src\""},
    {"FollowWithoutRecurse", {kView, {"FollowLinks", "True"}, {"LabelTypeName", "REL_1"}, kAC,
      {"UseVersionSelector", "True"}}, true, "mklabel -follow -nc lbtype:REL_1 \"a.c\""},
    {"FailedVersionSelectorStillBuildsTheRest", {kView, {"UseVersionSelector", "True"}, {"VersionSelector", "%NOPE%"},
      {"LabelTypeName", "REL_1"}, kAC}, false, "mklabel -nc lbtype:REL_1 \"a.c\"", {kInView, nope("Version Selector")}},
    {"FailedLabelTypeStillAddsPaths", {kView, {"LabelTypeName", "%NOPE%"}, kAC}, false, "mklabel -nc \"a.c\"",
     {kInView, nope("Label Type Name")}},
    {"FailedCommentStillAddsTheRest", {kView, {"Comment", "%NOPE%"}, {"LabelTypeName", "REL_1"}, kAC}, false,
     "mklabel lbtype:REL_1 \"a.c\"", {kInView, kNopeComment}},
});
INSTANTIATE_TEST_SUITE_P(ApplyLabel, CommandLineTest, testing::ValuesIn(kApplyLabelCases), wftest::byName);

// Lock and unlock.
const std::vector<CommandLineCase> kLockCases = rowsOf("TClearCaseLockPathNamesAction", kInView, {
    {"PathsReplace", {kView, {"Replace", "True"}, kAC}, true, "lock -replace -nc -pname \"a.c\""},
    {"NUsersWinsOverObsolete", {kView, {"UseNUsers", "True"}, {"NUsersList", "alice,bob"}, {"Obsolete", "True"}, kAC},
     true, "lock -nusers alice,bob -nc -pname \"a.c\"", {}, {}, {}, {}, {},
     {"lock", "-nusers", "alice,bob", "-nc", "-pname", "a.c"}},
    {"ObsoleteWithComment", {kView, {"Obsolete", "True"}, {"Comment", "frozen"},
      {"PathNameStorageString", "a.c\r\nb.c\r\n"}}, true, "lock -obsolete -c \"frozen\" -pname \"a.c\" \"b.c\""},
    {"PathsFailedCommentStillAddsPaths", {kView, {"Comment", "%NOPE%"}, kAC}, false, "lock -pname \"a.c\"",
     {kInView, kNopeComment}},
}) + rowsOf("TClearCaseLockObjectsAction", "", {
    {"ObjectsRunWithoutView",
     {{"ObjectsStorageString", "lbtype:REL_1@/vobs/main\r\nbrtype:my branch@/vobs/main\r\nvob:%VOB%\r\n"}}, true,
     "lock -nc lbtype:REL_1@/vobs/main \"brtype:my branch@/vobs/main\" vob:/vobs/main", {kInProject}, {}, {},
     {{"VOB", "/vobs/main"}}},
    {"NoObjects", {{"Replace", "True"}}, false, "lock -replace -nc", {kNoView, kNoObjects}},
}) + rowsOf("TClearCaseUnlockPathNamesAction", "", {
    {"UnlockPaths", {kView, {"Comment", "done"}, kAC}, true, "unlock -c \"done\" -pname \"a.c\"", {kInView}},
    {"UnlockNoPaths", {kView}, false, "unlock -nc -pname", {kInView, kNoPaths}},
    {"UnlockFailedCommentStillAddsPaths", {kView, {"Comment", "%NOPE%"}, kAC}, false, "unlock -pname \"a.c\"",
     {kInView, kNopeComment}},
}) + rowsOf("TClearCaseUnlockObjectsAction", "", {
    {"UnlockObjects", {{"ObjectsStorageString", "vob:/vobs/main\r\n"}}, true, "unlock -nc vob:/vobs/main",
     {kInProject}},
    {"UnlockObjectsFailedSelectorStops", {{"ObjectsStorageString", "a\r\n%NOPE%\r\nb\r\n"}}, false, "unlock -nc a",
     {kInProject, nope("Object Selector")}},
});
INSTANTIATE_TEST_SUITE_P(Lock, CommandLineTest, testing::ValuesIn(kLockCases), wftest::byName);

// Apply attribute. The path action uses no view context: it runs in the project folder.
const std::vector<CommandLineCase> kApplyAttributeCases = rowsOf("TClearCaseApplyAttributePathNamesAction", kInProject, {
    {"PathsEverySwitch", {{"Replace", "True"}, {"Recurse", "True"}, {"UseVersionSelector", "True"},
      {"VersionSelector", "/main/3"}, {"Comment", "attr"}, {"AttributeName", "BuildNo"}, {"VOBSelector", "/vobs/main"},
      {"AttributeValue", "42"}, {"PathNameStorageString", "a.c\r\nb.c@@/main/1\r\n"}}, true,
     "mkattr -replace -recurse -version /main/3 -pname -c \"attr\" BuildNo@/vobs/main 42 \"a.c\" \"b.c@@/main/1\""},
    {"DefaultValueReplacesTheValue", {{"AttributeName", "BuildNo"}, {"AttributeValue", "42"},
      {"UseDefaultAttributeValue", "True"}, kAC}, true, "mkattr -pname -nc -default BuildNo \"a.c\""},
    {"MissingNameAfterDefault", {{"UseDefaultAttributeValue", "True"}, kAC}, false,
     "mkattr -pname -nc -default \"a.c\"", {kInProject, kNoAttribute}},
    {"FailedValue", {{"AttributeName", "BuildNo"}, {"AttributeValue", "%NOPE%"}, kAC}, false,
     "mkattr -pname -nc BuildNo \"a.c\"", {kInProject, nope("Attribute Value")}},
    {"FailedName", {{"AttributeName", "%NOPE%"}, {"AttributeValue", "1"}, kAC}, false, "mkattr -pname -nc 1 \"a.c\"",
     {kInProject, nope("Attribute Name")}},
}) + rowsOf("TClearCaseApplyAttributeObjectsAction", "", {
    {"Objects", {{"Replace", "True"}, {"AttributeName", "BuildNo"}, {"VOBSelector", "/vobs/main"},
      {"AttributeValue", "42"}, {"ObjectsStorageString", "lbtype:REL_1@/vobs/main\r\n"}}, true,
     "mkattr -replace -nc BuildNo@/vobs/main 42 lbtype:REL_1@/vobs/main", {kInProject}},
    {"ObjectsNone", {{"AttributeName", "BuildNo"}, {"UseDefaultAttributeValue", "True"}}, false,
     "mkattr -nc -default BuildNo", {kNoView, kNoObjects}},
    {"ObjectsFailedComment", {{"Comment", "%NOPE%"}, {"AttributeName", "BuildNo"}, {"AttributeValue", "42"},
      {"ObjectsStorageString", "vob:/vobs/main\r\n"}}, false, "mkattr BuildNo 42 vob:/vobs/main", {kInProject, kNopeComment}},
});
INSTANTIATE_TEST_SUITE_P(ApplyAttribute, CommandLineTest, testing::ValuesIn(kApplyAttributeCases), wftest::byName);

// Make attribute type. No view: the project folder.
const std::vector<CommandLineCase> kMakeAttributeTypeCases = rowsOf("TClearCaseMakeAttributeTypeAction", kInProject, {
    {"CrossedBounds", {{"NewAttributeType", "atInteger"}, {"UseMax", "True"}, {"MaxValue", "0"}, {"UseMin", "True"},
      {"MinValue", "100"}, {"MinInclusive", "True"}, {"UseDefaultValue", "True"}, {"DefaultValue", "1"},
      {"AttributeName", "Build"}, {"VOBSelector", "/vobs/main"}}, true,
     "mkattype -ordinary -vtype integer -gt 0 -le 100 -default 1 -nc Build@/vobs/main", {}, {}, {}, {}, {},
     {"mkattype", "-ordinary", "-vtype", "integer", "-gt", "0", "-le", "100", "-default", "1", "-nc", "Build@/vobs/main"}},
    {"OtherInclusiveFlags", {{"UseMax", "True"}, {"MaxValue", "5"}, {"MaxInclusive", "True"}, {"UseMin", "True"},
      {"MinValue", "9"}, {"AttributeName", "Build"}, {"NewAttributeType", "atReal"}, {"Constraints", "lcVPelement"}},
     true, "mkattype -ordinary -vpelement -vtype real -ge 5 -lt 9 -nc Build"},
    {"GlobalEverySwitchDate", {{"Replace", "True"}, {"Global", "True"}, {"Acquire", "True"},
      {"Constraints", "lcVPbranch"}, {"Shared", "True"}, {"NewAttributeType", "atDate"}, {"Comment", "when"},
      {"AttributeName", "Stamp"}}, true,
     "mkattype -replace -global -acquire -vpbranch -shared -vtype time -c \"when\" Stamp"},
    {"AcquireNeedsGlobal", {{"Acquire", "True"}, {"Constraints", "lcVPversion"}, {"NewAttributeType", "atOpaque"},
      {"AttributeName", "Blob"}}, true, "mkattype -ordinary -vpversion -vtype opaque -nc Blob"},
    {"MissingName", {{"Comment", "%NOPE%"}}, false, "mkattype -ordinary -vtype string",
     {kInProject, kNopeComment, kNoAttribute}},
});
INSTANTIATE_TEST_SUITE_P(MakeAttributeType, CommandLineTest, testing::ValuesIn(kMakeAttributeTypeCases), wftest::byName);

// The UCM building blocks and the activity actions.
const std::vector<CommandLineCase> kActivityCases = rowsOf("TClearCaseSetActivityAction", kInView, {
    {"SetQuotesNameWithBlank", {kView, {"ActivityName", "my act"}, {"VOBSelector", "/vobs/pvob"}}, true,
     "setactivity -nc \"activity:my act@/vobs/pvob\"", {}, {}, {}, {}, {}, {"setactivity", "-nc", "activity:my act@/vobs/pvob"}},
    {"SetNoneIgnoresTheName", {kView, {"ActivityName", "a1"}, {"SetActivityToNone", "True"}}, true,
     "setactivity -nc -none"},
    {"SetNoNameIsCurrent", {kView}, true, "setactivity -nc -cact"},
    {"SetCurrentIgnoresTheName", {kView, {"ActivityName", "a1"}, {"UseCurrentActivity", "True"}}, true,
     "setactivity -nc -cact"},
    {"SetFailedName", {kView, {"ActivityName", "%NOPE%"}}, false, "setactivity -nc",
     {kInView, "Error: Could not expand Activity Name \"activity:%NOPE%\": \"NOPE\" is neither a build variable nor an "
               "environment variable."}},
}) + rowsOf("TClearCaseCheckInActivityAction", kInView, {
    {"CheckInCurrent", {kView, {"UseCurrentActivity", "True"}}, true, "checkin -nc -cact"},
    {"CheckInNamed", {kView, {"Comment", "done"}, {"Keep", "True"}, {"ActivityName", "fix1"},
      {"VOBSelector", "/vobs/pvob"}, {"PathNameStorageString", "ignored.c\r\n"}}, true,
     "checkin -c \"done\" -keep activity:fix1@/vobs/pvob"},
    {"CheckInWithoutView", {{"Keep", "True"}}, false, "checkin -cact", {kNoView}},
}) + rowsOf("TClearCaseUnCheckOutActivityAction", kInView, {
    {"UndoRemoves", {kView, {"PathNameStorageString", "ignored.c\r\n"}}, true, "uncheckout -rm -cact"},
    {"UndoKeeps", {{"UseDefaultViewContext", "True"}, {"Keep", "True"}}, true, "uncheckout -keep -cact", {}, "{view}"},
    {"UndoWithoutViewFailsInTheBaseStep", {}, false, "uncheckout -rm -cact", {kNoView}},
    {"UndoWithoutViewAfterASuccessfulStep", {kAC}, false, "uncheckout -rm -cact",
     {kInProject, "Error: You have not specified a View to undo checkout for."}},
});
INSTANTIATE_TEST_SUITE_P(Activity, CommandLineTest, testing::ValuesIn(kActivityCases), wftest::byName);

// Make activity.
const std::vector<CommandLineCase> kMakeActivityCases = rowsOf("TClearCaseMakeActivityAction", kInView, {
    {"Full", {kView, {"Comment", "new"}, {"Headline", "Fix build"}, {"DontSetAsCurrent", "True"},
      {"ActivityName", "fix1"}, {"VOBSelector", "/vobs/pvob"}}, true,
     "mkactivity -c \"new\" -headline \"Fix build\" -nset -force activity:fix1@/vobs/pvob"},
    {"AutoGenerateName", {kView, {"AutoGenerateName", "True"}, {"ActivityName", "fix1"}}, true,
     "mkactivity -nc -force"},
    {"NoNameIsCurrent", {kView}, true, "mkactivity -nc -force -cact"},
    {"FailedCommentWithoutView", {{"Comment", "%NOPE%"}, {"ActivityName", "fix1"}}, false,
     "mkactivity -force activity:fix1", {kNoView, kNopeComment}},
    {"FailedHeadlineStops", {kView, {"Headline", "%NOPE%"}, {"DontSetAsCurrent", "True"}, {"ActivityName", "fix1"}},
     false, "mkactivity -nc", {kInView, nope("Headline")}},
});
INSTANTIATE_TEST_SUITE_P(MakeActivity, CommandLineTest, testing::ValuesIn(kMakeActivityCases), wftest::byName);

// Make baseline.
const std::vector<CommandLineCase> kBaselineCases = rowsOf("TClearCaseMakeBaselineAction", kInView, {
    {"Defaults", {kView, {"BaselineRootName", "BL_%N%"}}, true, "mkbl -nc -all -incremental BL_1", {}, {}, {},
     {{"N", "1"}}},
    {"ActivitiesIgnoreIdentical", {kView, {"SelectionType", "slActivities"}, {"SelectIdenticalComponents", "True"},
      {"ActivitySelectorStorageString", "a1\r\nb 2@/vobs/pvob\r\n"}, {"Labelling", "lbAll"},
      {"BaselineRootName", "BL"}}, true, "mkbl -nc -activities \"activity:a1,activity:b 2@/vobs/pvob\" -full BL"},
    {"NoActivitiesIsCurrent", {kView, {"SelectionType", "slActivities"}, {"UseBaselineNameTemplate", "True"},
      {"BaselineRootName", "BL"}}, true, "mkbl -nc -activities -cact -incremental"},
    {"Components", {kView, {"SelectionType", "slComponents"}, {"SelectIdenticalComponents", "True"},
      {"ComponentSelectorStorageString", "c1@/vobs/pvob\r\nc2@/vobs/pvob\r\n"}, {"Labelling", "lbNone"},
      {"BaselineRootName", "BL"}}, true, "mkbl -nc -component c1@/vobs/pvob,c2@/vobs/pvob -identical -nlabel BL"},
    {"NoComponentsFails", {kView, {"SelectionType", "slComponents"}, {"BaselineRootName", "BL"}}, false,
     "mkbl -nc -component -incremental BL", {kInView, kNoComponents}},
    {"FailedRootName", {kView, {"BaselineRootName", "%NOPE%"}}, false, "mkbl -nc -all -incremental",
     {kInView, nope("Baseline Root Name")}},
    {"FailedCommentWithoutView", {{"Comment", "%NOPE%"}, {"SelectionType", "slActivities"}, {"BaselineRootName", "BL"}},
     false, "mkbl -activities -cact -incremental BL", {kNoView, kNopeComment}},
}) + rowsOf("TClearCaseMakeBaselineFromLabelAction", kInView, {
    {"FromLabel", {kView, {"LabelTypeName", "REL_1"}, {"VOBSelector", "/vobs/main"},
      {"ComponentSelectorStorageString", "c1@/vobs/pvob\r\n"}}, true, "mkbl -nc -import lbtype:REL_1@/vobs/main"},
    {"FromLabelWithComponents", {kView, {"Comment", "imp"}, {"SpecifyComponents", "True"},
      {"ComponentSelectorStorageString", "c1@/vobs/pvob\r\nc2@/vobs/pvob\r\n"}, {"LabelTypeName", "REL_1"}}, true,
     "mkbl -c \"imp\" -import c1@/vobs/pvob,c2@/vobs/pvob lbtype:REL_1"},
    {"FromLabelNoComponentsStillRuns", {kView, {"SpecifyComponents", "True"}, {"LabelTypeName", "REL_1"}}, true,
     "mkbl -nc -import lbtype:REL_1", {kInView, kNoComponents}},
    {"FromLabelFailedLabelType", {kView, {"LabelTypeName", "REL_1"}, {"VOBSelector", "%NOPE%"}}, false,
     "mkbl -nc -import", {kInView, nope("VOB Selector")}},
});
INSTANTIATE_TEST_SUITE_P(Baseline, CommandLineTest, testing::ValuesIn(kBaselineCases), wftest::byName);

} // namespace
} // namespace wftest
