// Whole runs of actions through the host's Execute against the fake cleartool: the argv and
// working directory it recorded, the log, and the files and variables the actions write.
#include "ActionTestSupport.h"

#include <gtest/gtest.h>

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
    if (row.cleartool == "-")
        env.setCleartoolPath("");
    else if (!row.cleartool.empty())
        env.setCleartoolPath(env.expand(row.cleartool));
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
};
INSTANTIATE_TEST_SUITE_P(Validate, ValidateTest, testing::ValuesIn(kValidateCases), validateName);

} // namespace
} // namespace wftest
