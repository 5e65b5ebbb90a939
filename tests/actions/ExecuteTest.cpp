// Whole runs of actions through the host's Execute against the fake cleartool: the argv and
// working directory it recorded, the log, and the files and variables the actions write.
#include "ActionTestSupport.h"
#include "RowName.h"

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
    /// The argv the program received (without the program).
    std::vector<std::string> args;
    /// Its working directory, and the command line the log shows.
    std::string cwd;
    std::string commandLine;
    /// The Message lines of the log after those of the start.
    std::vector<std::string> messages = {};
};
WF_ROW_PRINTER(RunCase)

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
    ASSERT_EQ(invocations.size(), 1u);
    EXPECT_EQ(invocations[0].cwd, env.expand(row.cwd));
    EXPECT_EQ(invocations[0].args, env.expand(row.args));
    std::vector<std::string> messages = {"Starting Directory: " + row.cwd, "Starting Directory: " + row.cwd,
                                         "Command Line: " + row.commandLine};
    messages.insert(messages.end(), row.messages.begin(), row.messages.end());
    EXPECT_EQ(env.log.messages(), env.expand(messages));
}

const std::vector<RunCase> kRunCases = {
    {"CheckOutSplitsQuotedArguments", "TClearCaseCheckoutAction",
     {{"PathNameStorageString", "src dir/a b.c\r\nb.c\r\n"}, {"ViewContextPath", "{view}"}, {"Comment", "two words"}},
     true, 0, {"checkout", "-c", "two words", "-nquery", "src dir/a b.c", "b.c"}, "{view}",
     "checkout -c \"two words\" -nquery \"src dir/a b.c\" \"b.c\""},
    {"ExitCodeFailsTheAction", "TClearCaseUnCheckOutAction", {{"PathNameStorageString", "a.c\r\n"}, {"ViewContextPath", "{view}"}},
     false, 1, {"uncheckout", "-rm", "a.c"}, "{view}", "uncheckout -rm \"a.c\"",
     {"Action Failed: the program ended with exit code 1."}},
    {"PlainPathsRunInTheProjectFolder", "TClearCaseCheckoutAction", {{"PathNameStorageString", "a.c\r\n"}}, true, 0,
     {"checkout", "-nc", "-nquery", "a.c"}, "{project}", "checkout -nc -nquery \"a.c\""},
    {"MakeAttributeTypeDefaultSplitsFromItsValue", "TClearCaseMakeAttributeTypeAction",
     {{"NewAttributeType", "atInteger"}, {"UseDefaultValue", "True"}, {"DefaultValue", "1"}, {"AttributeName", "Build"},
      {"VOBSelector", "/vobs/main"}},
     true, 0, {"mkattype", "-ordinary", "-vtype", "integer", "-default", "1", "-nc", "Build@/vobs/main"}, "{project}",
     "mkattype -ordinary -vtype integer -default 1 -nc Build@/vobs/main"},
    {"LockNUsersIsItsOwnArgument", "TClearCaseLockObjectsAction",
     {{"UseNUsers", "True"}, {"NUsersList", "alice,bob"}, {"ObjectsStorageString", "brtype:my branch@/vobs/main\r\n"}},
     true, 0, {"lock", "-nusers", "alice,bob", "-nc", "brtype:my branch@/vobs/main"}, "{project}",
     "lock -nusers alice,bob -nc \"brtype:my branch@/vobs/main\""},
    {"SetActivityQuotedSelector", "TClearCaseSetActivityAction",
     {{"ViewContextPath", "{view}"}, {"ActivityName", "my act"}, {"VOBSelector", "/vobs/pvob"}},
     true, 0, {"setactivity", "-nc", "activity:my act@/vobs/pvob"}, "{view}", "setactivity -nc \"activity:my act@/vobs/pvob\""},
    {"GenericArgumentsSplitLikeACommandLine", "TClearCaseCleartoolAction",
     {{"ViewContextPath", "{view}"}, {"Command", "describe"}, {"Arguments", "-long \"my view\" -fmt %%n"}},
     true, 0, {"describe", "-long", "my view", "-fmt", "%n"}, "{view}", "describe -long \"my view\" -fmt %n"},
};
INSTANTIATE_TEST_SUITE_P(Runs, ExecuteTest, testing::ValuesIn(kRunCases), wftest::byName);

struct ValidateCase {
    std::string name;
    std::string className;
    PropertyTexts properties;
    /// The options' cleartool path: empty for the fake program, "-" for none at all.
    std::string cleartool;
    bool result;
    std::vector<std::string> errors;
};

WF_ROW_PRINTER(ValidateCase)

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
INSTANTIATE_TEST_SUITE_P(Validate, ValidateTest, testing::ValuesIn(kValidateCases), wftest::byName);

const std::string kConfigSpec = "element * CHECKEDOUT\nelement * /main/LATEST\nload /vobs/main\n";
const std::string kOldSpec = "old line number 1\nold line number 2\nold line number 3\nold line number 4\n";

struct ConfigSpecCase {
    std::string name;
    /// The file asked for ({dir} expanded), what it held before ("-": nothing), whether to write it.
    std::string target;
    std::string before;
    bool outputToFile;
    int exitCode;
    /// The file afterwards ("-": absent), and a message the log must hold once (empty: none).
    std::string after;
    std::string message = {};
};
WF_ROW_PRINTER(ConfigSpecCase)

class GetConfigSpec : public testing::TestWithParam<ConfigSpecCase> {};

TEST_P(GetConfigSpec, WritesTheFileChunkByChunkAndRunsCatcsWhateverTheFile)
{
    const ConfigSpecCase& row = GetParam();
    ActionEnvironment env;
    const std::string target = env.expand(row.target);
    if (row.before != "-")
        env.dir.write(std::filesystem::path(target).filename(), row.before);
    ScopedEnv output("WF_FAKE_OUTPUT", env.dir.write("catcs.txt", kConfigSpec));
    ScopedEnv chunks("WF_FAKE_CHUNKS", "3");
    ScopedEnv delay("WF_FAKE_CHUNK_DELAY_MS", "20");
    ScopedEnv record("WF_FAKE_RECORD", env.dir.file("record.txt"));
    ScopedEnv exitCode("WF_FAKE_EXIT", std::to_string(row.exitCode));
    auto action = env.create("TClearCaseGetConfigSpecAction", {{"ViewContextPath", "{view}"},
                                                               {"OutputToFile", row.outputToFile ? "True" : "False"},
                                                               {"OutputFilePath", target}});
    EXPECT_EQ(action->Execute(), row.exitCode == 0);
    EXPECT_EQ(readInvocations(env.dir.file("record.txt")).size(), 1u);
    EXPECT_EQ(fileExists(target) ? readFile(target) : "-", env.expand(row.after));
    const auto messages = env.log.messages();
    EXPECT_EQ(std::count(messages.begin(), messages.end(), "Command Line: catcs"), 1);
    if (!row.message.empty()) {
        EXPECT_EQ(std::count(messages.begin(), messages.end(), env.expand(row.message)), 1);
    } else {
        EXPECT_EQ(messages.size(), 3u);
    }
    const auto lines = env.log.lines();
    EXPECT_NE(std::find(lines.begin(), lines.end(), "load /vobs/main"), lines.end());
}

const std::vector<ConfigSpecCase> kConfigSpecCases = {
    {"OverwritesTheStartOfAnExistingFile", "{dir}/cs.txt", kOldSpec + kOldSpec, true, 0,
     kConfigSpec + (kOldSpec + kOldSpec).substr(kConfigSpec.size())},
    {"CreatesAMissingFile", "{dir}/new cs.txt", "-", true, 0, kConfigSpec},
    {"MissingFolderIsReported", "{dir}/nowhere/cs.txt", "-", true, 0, "-",
     "An error occured trying to open the file \"{dir}/nowhere/cs.txt\" for writing"},
    {"WithoutOutputToFileNoFileIsTouched", "{dir}/untouched.txt", "-", false, 0, "-"},
    {"ExitCodeStillDecides", "{dir}/cs.txt", "-", true, 1, kConfigSpec, "Action Failed: the program ended with exit code 1."},
};
INSTANTIATE_TEST_SUITE_P(Files, GetConfigSpec, testing::ValuesIn(kConfigSpecCases), wftest::byName);

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

WF_ROW_PRINTER(FindCheckoutsCase)

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

INSTANTIATE_TEST_SUITE_P(Variables, FindCheckoutsTest, testing::ValuesIn(kFindCheckouts), wftest::byName);

} // namespace
} // namespace wftest
