// Whole runs of actions through the host's Execute against the fake cleartool: the argv and
// working directory it recorded, the log, and the files and variables the actions write.
#include "ActionTestSupport.h"

#include "WFFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace wftest {
namespace {

struct RunCase {
    std::string name;
    std::string className;
    PropertyTexts properties;
    /// Whether Execute succeeds, with the fake program's exit code.
    bool result;
    int exitCode;
    /// The argv the program received (without the program), or none when it must not start.
    std::vector<std::string> args;
    /// Its working directory.
    std::string cwd;
    /// The Message lines of the log.
    std::vector<std::string> messages;
};

void PrintTo(const RunCase& row, std::ostream* out)
{
    *out << row.name;
}

class ExecuteTest : public testing::TestWithParam<RunCase> {};

TEST_P(ExecuteTest, RunsCleartool)
{
    const RunCase& row = GetParam();
    ActionEnvironment env;
    const std::string record = env.dir.file("record.txt");
    ScopedEnv recording("WF_FAKE_RECORD", record);
    ScopedEnv exitCode("WF_FAKE_EXIT", std::to_string(row.exitCode));

    auto action = env.create(row.className, row.properties);
    ASSERT_TRUE(action);
    EXPECT_EQ(action->Execute(), row.result);
    const auto invocations = readInvocations(record);
    if (row.cwd.empty()) {
        EXPECT_TRUE(invocations.empty());
    } else {
        ASSERT_EQ(invocations.size(), 1u);
        EXPECT_EQ(invocations[0].cwd, env.expand(row.cwd));
        EXPECT_EQ(invocations[0].args, env.expand(row.args));
    }
    EXPECT_EQ(env.log.messages(), env.expand(row.messages));
}

std::string caseName(const testing::TestParamInfo<RunCase>& info)
{
    return info.param.name;
}

const std::vector<RunCase> kRunCases = {
    {"CheckOutSplitsQuotedArguments", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "src dir/a b.c\r\nb.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "two words"}},
     true, 0, {"checkout", "-c", "two words", "-nquery", "src dir/a b.c", "b.c"}, "{view}",
     {"Starting Directory: {view}", "Starting Directory: {view}",
      "Command Line: checkout -c \"two words\" -nquery \"src dir/a b.c\" \"b.c\""}},
    {"ExitCodeFailsTheAction", "TClearCaseUnCheckOutAction",
     {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}},
     false, 1, {"uncheckout", "-rm", "a.c"}, "{view}",
     {"Starting Directory: {view}", "Starting Directory: {view}", "Command Line: uncheckout -rm \"a.c\"",
      "Action Failed: the program ended with exit code 1."}},
    {"NoProcessWhenTheCommandLineFails", "TClearCaseUnCheckOutAction", {{"ViewContextPath", "{view}"}},
     false, 0, {}, "",
     {"Starting Directory: {view}", "Action Failed: No pathnames specified to act on."}},
    {"PlainPathsRunInTheProjectFolder", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "a.c\r\n"}},
     true, 0, {"checkout", "-nc", "-nquery", "a.c"}, "{project}",
     {"Starting Directory: {project}", "Starting Directory: {project}", "Command Line: checkout -nc -nquery \"a.c\""}},
    {"MakeAttributeTypeDefaultSplitsFromItsValue", "TClearCaseMakeAttributeTypeAction",
     {{"NewAttributeType", "atInteger"}, {"UseDefaultValue", "True"}, {"DefaultValue", "1"}, {"AttributeName", "Build"},
      {"VOBSelector", "/vobs/main"}},
     true, 0, {"mkattype", "-ordinary", "-vtype", "integer", "-default", "1", "-nc", "Build@/vobs/main"}, "{project}",
     {"Starting Directory: {project}", "Starting Directory: {project}",
      "Command Line: mkattype -ordinary -vtype integer -default 1 -nc Build@/vobs/main"}},
    {"LockNUsersIsItsOwnArgument", "TClearCaseLockObjectsAction",
     {{"UseNUsers", "True"}, {"NUsersList", "alice,bob"}, {"ObjectsStorageString", "brtype:my branch@/vobs/main\r\n"}},
     true, 0, {"lock", "-nusers", "alice,bob", "-nc", "brtype:my branch@/vobs/main"}, "{project}",
     {"Starting Directory: {project}", "Starting Directory: {project}",
      "Command Line: lock -nusers alice,bob -nc \"brtype:my branch@/vobs/main\""}},
    {"SetActivityQuotedSelector", "TClearCaseSetActivityAction",
     {{"ViewContextPath", "{view}"}, {"ActivityName", "my act"}, {"VOBSelector", "/vobs/pvob"}},
     true, 0, {"setactivity", "-nc", "activity:my act@/vobs/pvob"}, "{view}",
     {"Starting Directory: {view}", "Starting Directory: {view}",
      "Command Line: setactivity -nc \"activity:my act@/vobs/pvob\""}},
    {"UndoForActivityWithoutViewStartsNothing", "TClearCaseUnCheckOutActivityAction",
     {{"PathNameStorageString", "a.c\r\n"}}, false, 0, {}, "",
     {"Starting Directory: {project}", "Error: You have not specified a View to undo checkout for."}},
    {"MakeBaselineFromLabelWithoutComponentsRuns", "TClearCaseMakeBaselineFromLabelAction",
     {{"ViewContextPath", "{view}"}, {"SpecifyComponents", "True"}, {"LabelTypeName", "REL 1"}},
     true, 0, {"mkbl", "-nc", "-import", "lbtype:REL 1"}, "{view}",
     {"Starting Directory: {view}", "Error: No UCM components selected.", "Starting Directory: {view}",
      "Command Line: mkbl -nc -import lbtype:\"REL 1\""}},
};
INSTANTIATE_TEST_SUITE_P(Runs, ExecuteTest, testing::ValuesIn(kRunCases), caseName);

TEST(ExecuteOutput, ProgramOutputGoesToTheLog)
{
    ActionEnvironment env;
    ScopedEnv output("WF_FAKE_OUTPUT", env.dir.write("out.txt", "Checked out \"a.c\" from version \"/main/1\".\n"));
    ScopedEnv error("WF_FAKE_STDERR", "cleartool: Warning: something");
    auto action = env.create("TClearCaseCheckoutAction", {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}});
    ASSERT_TRUE(action->Execute());
    const auto lines = env.log.lines();
    EXPECT_NE(std::find(lines.begin(), lines.end(), "Checked out \"a.c\" from version \"/main/1\"."), lines.end());
    EXPECT_NE(std::find(lines.begin(), lines.end(), "cleartool: Warning: something"), lines.end());
}

struct ValidateCase {
    std::string name;
    std::string className;
    PropertyTexts properties;
    /// The options' cleartool path: empty for the fake program, "-" for none at all.
    std::string cleartool;
    bool result;
    std::vector<std::string> errors;
};

void PrintTo(const ValidateCase& row, std::ostream* out)
{
    *out << row.name;
}

class ValidateTest : public testing::TestWithParam<ValidateCase> {};

TEST_P(ValidateTest, ReportsErrors)
{
    const ValidateCase& row = GetParam();
    ActionEnvironment env;
    ScopedEnv path("PATH", env.project);
    env.useCleartool(row.cleartool);
    auto action = env.create(row.className, row.properties);
    RecordingErrors errors;
    EXPECT_EQ(action->Validate(errors), row.result);
    EXPECT_EQ(errors.errors, row.errors);
}

std::string validateName(const testing::TestParamInfo<ValidateCase>& info)
{
    return info.param.name;
}

const std::vector<ValidateCase> kValidateCases = {
    {"Valid", "TClearCaseCheckoutAction", {}, "", true, {}},
    {"NoCleartoolPath", "TClearCaseCheckoutAction", {}, "-", false,
     {"Options: The path to cleartool.exe has not been specified. Please check under Tools -> Options."}},
    {"CleartoolMissing", "TClearCaseUnCheckOutAction", {}, "{dir}/missing", false,
     {"Options: Cleartool.exe cannot be found at the path specified. Please check under Tools -> Options."}},
    {"UpdateWithoutView", "TClearCaseUpdateAction", {}, "", false,
     {"Update Options: You have not specified a snapshot view to update."}},
    {"UpdateWithoutViewOrCleartool", "TClearCaseUpdateAction", {}, "-", false,
     {"Options: The path to cleartool.exe has not been specified. Please check under Tools -> Options.",
      "Update Options: You have not specified a snapshot view to update."}},
    {"UpdateInDefaultView", "TClearCaseUpdateAction", {{"UseDefaultViewContext", "True"}}, "", true, {}},
    {"UpdateInView", "TClearCaseUpdateAction", {{"ViewContextPath", "{dir}/nowhere"}}, "", true, {}},
};
INSTANTIATE_TEST_SUITE_P(Validate, ValidateTest, testing::ValuesIn(kValidateCases), validateName);

} // namespace
} // namespace wftest

namespace wftest {
namespace {

/// Runs get-config-spec into `target` with the fake program printing `output`.
struct ConfigSpecRun {
    ConfigSpecRun(ActionEnvironment& env, const std::string& target, const std::string& output, int chunks = 1)
        : outputFile("WF_FAKE_OUTPUT", env.dir.write("catcs.txt", output)),
          chunking("WF_FAKE_CHUNKS", std::to_string(chunks)), delay("WF_FAKE_CHUNK_DELAY_MS", "20"),
          record("WF_FAKE_RECORD", env.dir.file("record.txt"))
    {
        auto action = env.create("TClearCaseGetConfigSpecAction", {{"ViewContextPath", "{view}"},
                                                                   {"OutputToFile", target.empty() ? "False" : "True"},
                                                                   {"OutputFilePath", target}});
        result = action->Execute();
        ran = readInvocations(env.dir.file("record.txt")).size() == 1;
    }
    ScopedEnv outputFile;
    ScopedEnv chunking;
    ScopedEnv delay;
    ScopedEnv record;
    bool result = false;
    bool ran = false;
};

const std::string kConfigSpec = "element * CHECKEDOUT\nelement * /main/LATEST\nload /vobs/main\n";

TEST(GetConfigSpec, OverwritesTheStartOfAnExistingFileInChunks)
{
    ActionEnvironment env;
    std::string old;
    for (int line = 1; line <= 10; ++line)
        old += "old line number " + std::to_string(line) + "\n";
    const std::string target = env.dir.write("cs.txt", old);
    ConfigSpecRun run(env, target, kConfigSpec, 3);
    EXPECT_TRUE(run.result);
    EXPECT_TRUE(run.ran);
    EXPECT_EQ(readFile(target), kConfigSpec + old.substr(kConfigSpec.size()));
    EXPECT_EQ(env.log.messages(), env.expand(std::vector<std::string>{
                                      "Starting Directory: {view}", "Starting Directory: {view}", "Command Line: catcs"}));
}

TEST(GetConfigSpec, CreatesAMissingFile)
{
    ActionEnvironment env;
    const std::string target = env.dir.file("new cs.txt");
    ConfigSpecRun run(env, target, kConfigSpec);
    EXPECT_TRUE(run.result);
    EXPECT_EQ(readFile(target), kConfigSpec);
}

TEST(GetConfigSpec, MissingFolderIsReportedAndCatcsStillRuns)
{
    ActionEnvironment env;
    const std::string target = env.dir.file("nowhere/cs.txt");
    ConfigSpecRun run(env, target, kConfigSpec);
    EXPECT_TRUE(run.result);
    EXPECT_TRUE(run.ran);
    EXPECT_FALSE(fileExists(target));
    const auto messages = env.log.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(),
                         "An error occured trying to open the file \"" + target + "\" for writing"), 1);
    const auto lines = env.log.lines();
    EXPECT_NE(std::find(lines.begin(), lines.end(), "load /vobs/main"), lines.end());
}

TEST(GetConfigSpec, WriteErrorIsReportedOnceAndDoesNotFail)
{
    if (!fileExists("/dev/full") && !std::filesystem::exists("/dev/full"))
        GTEST_SKIP() << "no /dev/full";
    ActionEnvironment env;
    ConfigSpecRun run(env, "/dev/full", kConfigSpec, 3);
    EXPECT_TRUE(run.result);
    const auto messages = env.log.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(),
                         "An error occured whilst writing to the file. The file could not be written."), 1);
}

TEST(GetConfigSpec, WithoutOutputToFileNoFileIsTouched)
{
    ActionEnvironment env;
    const std::string target = env.dir.file("untouched.txt");
    ScopedEnv outputFile("WF_FAKE_OUTPUT", env.dir.write("catcs.txt", kConfigSpec));
    auto action = env.create("TClearCaseGetConfigSpecAction", {{"ViewContextPath", "{view}"}, {"OutputFilePath", target}});
    EXPECT_TRUE(action->Execute());
    EXPECT_FALSE(std::filesystem::exists(target));
}

TEST(GetConfigSpec, ExitCodeStillDecides)
{
    ActionEnvironment env;
    ScopedEnv exitCode("WF_FAKE_EXIT", "1");
    const std::string target = env.dir.file("cs.txt");
    ConfigSpecRun run(env, target, kConfigSpec);
    EXPECT_FALSE(run.result);
    EXPECT_EQ(readFile(target), kConfigSpec);
}

struct FindCheckoutsCase {
    std::string name;
    /// The variable's value before the run; "-" leaves it undefined.
    std::string before;
    bool writeToVariable;
    std::string output;
    int chunks;
    /// The value after the run; "-" for still undefined.
    std::string after;
};

void PrintTo(const FindCheckoutsCase& row, std::ostream* out)
{
    *out << row.name;
}

class FindCheckoutsTest : public testing::TestWithParam<FindCheckoutsCase> {};

TEST_P(FindCheckoutsTest, CollectsTheOutput)
{
    const FindCheckoutsCase& row = GetParam();
    ActionEnvironment env;
    ScopedEnv output("WF_FAKE_OUTPUT", env.dir.write("lsco.txt", row.output));
    ScopedEnv chunks("WF_FAKE_CHUNKS", std::to_string(row.chunks));
    ScopedEnv delay("WF_FAKE_CHUNK_DELAY_MS", "20");
    if (row.before != "-")
        env.variables.Set("CHECKOUTS", TWFVariant(row.before));
    auto action = env.create("TClearCaseFindCheckoutsAction",
                             {{"ViewContextPath", "{view}"}, {"WriteToVariable", row.writeToVariable ? "True" : "False"},
                              {"VariableName", "CHECKOUTS"}});
    EXPECT_TRUE(action->Execute());
    if (row.after == "-")
        EXPECT_FALSE(env.variables.IsDefined("CHECKOUTS"));
    else
        EXPECT_EQ(env.variables.Get("CHECKOUTS").toString(), row.after);
    EXPECT_EQ(env.log.messages(), env.expand(std::vector<std::string>{
                                      "Starting Directory: {view}", "Starting Directory: {view}",
                                      "Command Line: lscheckout -short"}));
}

const std::string kListing = "src/a.c\r\nsrc/b.c\r\nsrc/sub dir/c.c\r\ndoc/readme.txt\r\n";

const std::vector<FindCheckoutsCase> kFindCheckouts = {
    {"ReplacesTheOldValueChunkByChunk", "old", true, kListing, 4, kListing},
    {"OneChunk", "", true, kListing, 1, kListing},
    {"NoCheckoutsEmptiesTheVariable", "old", true, "", 1, ""},
    {"UndefinedVariableIsLeftAlone", "-", true, kListing, 2, "-"},
    {"WithoutWriteToVariableNothingChanges", "old", false, kListing, 2, "old"},
};

INSTANTIATE_TEST_SUITE_P(Variables, FindCheckoutsTest, testing::ValuesIn(kFindCheckouts),
                         [](const auto& info) { return info.param.name; });

TEST(GenericCleartool, ArgumentsAreSplitLikeACommandLine)
{
    ActionEnvironment env;
    ScopedEnv record("WF_FAKE_RECORD", env.dir.file("record.txt"));
    auto action = env.create("TClearCaseCleartoolAction", {{"ViewContextPath", "{view}"}, {"Command", "describe"},
                                                           {"Arguments", "-long \"my view\" -fmt %%n"}});
    EXPECT_TRUE(action->Execute());
    const auto invocations = readInvocations(env.dir.file("record.txt"));
    ASSERT_EQ(invocations.size(), 1u);
    EXPECT_EQ(invocations[0].args, (std::vector<std::string>{"describe", "-long", "my view", "-fmt", "%n"}));
}

} // namespace
} // namespace wftest
