// Whole runs of the actions that handle cleartool's output through the host's Execute against
// the fake cleartool: the files and variables they write, and the log.
#include "ActionTestSupport.h"
#include "RowName.h"

#include "WFFiles.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace wftest {
namespace {

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
    {"MissingFolderIsReported", "{dir}/nowhere/cs.txt", "-", true, 0, "-",
     "An error occured trying to open the file \"{dir}/nowhere/cs.txt\" for writing"},
    {"WithoutOutputToFileNoFileIsTouched", "{dir}/untouched.txt", "-", false, 0, "-"},
    {"ExitCodeStillDecides", "{dir}/cs.txt", "-", true, 1, kConfigSpec, "Action Failed: the program ended with exit code 1."},
};
INSTANTIATE_TEST_SUITE_P(Files, GetConfigSpec, testing::ValuesIn(kConfigSpecCases), wftest::byName);

TEST(GetConfigSpecDryRun, ValidationNeitherStartsCatcsNorCreatesTheFile)
{
    ActionEnvironment env;
    env.host.dryRun = true;
    ScopedEnv record("WF_FAKE_RECORD", env.dir.file("record.txt"));
    auto action = env.create("TClearCaseGetConfigSpecAction",
                             {{"ViewContextPath", "{view}"}, {"OutputToFile", "True"}, {"OutputFilePath", env.dir.file("cs.txt")}});
    EXPECT_TRUE(action->Execute());
    EXPECT_FALSE(fileExists(env.dir.file("cs.txt")));
    EXPECT_FALSE(fileExists(env.dir.file("record.txt")));
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
    {"UndefinedVariableIsLeftAlone", "-", true, kListing, 2, "-"},
    {"WithoutWriteToVariableNothingChanges", "old", false, kListing, 2, "old"},
};

INSTANTIATE_TEST_SUITE_P(Variables, FindCheckoutsTest, testing::ValuesIn(kFindCheckouts), wftest::byName);

} // namespace
} // namespace wftest
