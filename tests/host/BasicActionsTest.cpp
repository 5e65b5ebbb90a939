#include "WFBasicActions.h"

#include "RowName.h"
#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <memory>

namespace {

class BasicActions : public ::testing::Test {
protected:
    BasicActions()
    {
        host.log = &log;
        host.variables = &variables;
        host.defaultStartingDir = dir.path();
        variables.Set("WHO", TWFVariant("world"));
    }
    bool run(TCustomWFAction& action, const std::vector<std::pair<std::string, std::string>>& properties)
    {
        for (const auto& [name, value] : properties)
            EXPECT_TRUE(action.SetPropertyText(name, value)) << name;
        action.SetHost(&host);
        wftest::RecordingErrors errors;
        if (!action.Validate(errors)) {
            validation = errors.errors;
            return false;
        }
        return action.Execute();
    }
    wftest::TempDir dir;
    wftest::RecordingLog log;
    TWFBuildVariables variables;
    TWFActionHost host;
    std::vector<std::string> validation;
};

TEST_F(BasicActions, LogMessageWritesOneLinePerLine)
{
    TWFLogMessageAction action;
    ASSERT_TRUE(run(action, {{"Text", "hello %WHO%\r\nsecond line\n"}}));
    EXPECT_EQ(log.messages(), (std::vector<std::string>{"hello world", "second line"}));
}

TEST_F(BasicActions, SetVariableExpandsIntoTheVariable)
{
    TWFSetVariableAction action;
    ASSERT_TRUE(run(action, {{"VariableName", "GREETING"}, {"Value", "hi %WHO%"}}));
    EXPECT_EQ(variables.Get("GREETING").toString(), "hi world");
}

TEST_F(BasicActions, WriteTextFileReplacesOrAppendsLeavesItAloneInADryRunAndNamesAFolderItCannotMake)
{
    TWFWriteTextFileAction write;
    ASSERT_TRUE(run(write, {{"FileName", "out/notes.txt"}, {"Text", "one %WHO%\n"}}));
    TWFWriteTextFileAction append;
    ASSERT_TRUE(run(append, {{"FileName", dir.file("out/notes.txt")}, {"Text", "two\n"}, {"Append", "True"}}));
    EXPECT_EQ(wftest::readFile(dir.file("out/notes.txt")), "one world\ntwo\n");
    TWFWriteTextFileAction replace;
    ASSERT_TRUE(run(replace, {{"FileName", "out/notes.txt"}, {"Text", "three\n"}}));
    EXPECT_EQ(wftest::readFile(dir.file("out/notes.txt")), "three\n");

    host.dryRun = true;
    TWFWriteTextFileAction dry;
    ASSERT_TRUE(run(dry, {{"FileName", "out/notes.txt"}, {"Text", "four\n"}, {"Append", "True"}}));
    EXPECT_EQ(log.messages().back(), "Would append 5 bytes to \"" + dir.file("out/notes.txt") + "\"");
    EXPECT_EQ(wftest::readFile(dir.file("out/notes.txt")), "three\n");
    host.dryRun = false;

    TWFWriteTextFileAction belowAFile;
    EXPECT_FALSE(run(belowAFile, {{"FileName", "out/notes.txt/sub/x.txt"}, {"Text", "x"}}));
    EXPECT_NE(log.messages().back().find("out/notes.txt/sub"), std::string::npos) << log.messages().back();
    EXPECT_EQ(wftest::readFile(dir.file("out/notes.txt")), "three\n");
}

TEST_F(BasicActions, RunProgramPassesArgumentsAndJudgesTheExitCode)
{
    wftest::ScopedEnv record("WF_FAKE_RECORD", dir.file("record.txt"));
    dir.write("work/.keep", "");
    TWFRunProgramAction action;
    ASSERT_TRUE(run(action, {{"Program", wftest::testAppPath()}, {"Arguments", "-x \"%WHO% wide\""}, {"WorkingDirectory", "work"}}))
        << ::testing::PrintToString(log.lines());
    const auto runs = wftest::readInvocations(dir.file("record.txt"));
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].cwd, dir.file("work"));
    EXPECT_EQ(runs[0].args, (std::vector<std::string>{"-x", "world wide"}));

    wftest::ScopedEnv failing("WF_FAKE_EXIT", "2");
    TWFRunProgramAction failed;
    EXPECT_FALSE(run(failed, {{"Program", wftest::testAppPath()}}));
}

TEST_F(BasicActions, RunProgramCutsALineWithoutBreaksAtTheBound)
{
    const std::string bytes = std::string(TWFLineSplitter::kMaxPendingLine * 2 + 10, 'x') + "\nend\n";
    wftest::ScopedEnv output("WF_FAKE_OUTPUT", dir.write("out.txt", bytes));
    TWFRunProgramAction action;
    ASSERT_TRUE(run(action, {{"Program", wftest::testAppPath()}}));
    std::vector<std::size_t> sizes;
    for (const auto& entry : log.entries)
        if (entry.stream == IWFLogSink::Stream::StdOut)
            sizes.push_back(entry.text.size());
    EXPECT_EQ(sizes, (std::vector<std::size_t>{TWFLineSplitter::kMaxPendingLine, TWFLineSplitter::kMaxPendingLine, 10, 3}));
}

/// An action that stops before it does anything, and the validation error or log line that says why.
struct RefusalCase {
    std::string name;
    std::function<std::unique_ptr<TCustomWFAction>()> make;
    std::vector<std::pair<std::string, std::string>> properties;
    std::string why;
};

WF_ROW_PRINTER(RefusalCase)

class BasicActionRefusals : public BasicActions, public testing::WithParamInterface<RefusalCase> {};

TEST_P(BasicActionRefusals, StopBeforeAnyEffectAndSayWhy)
{
    const RefusalCase& row = GetParam();
    const wftest::TempDir records;
    wftest::ScopedEnv record("WF_FAKE_RECORD", records.file("record.txt"));
    const auto action = row.make();
    EXPECT_FALSE(run(*action, row.properties));
    EXPECT_EQ(validation.empty() ? log.messages().back() : validation.front(), row.why);
    EXPECT_TRUE(std::filesystem::is_empty(dir.path()));
    EXPECT_FALSE(std::filesystem::exists(records.file("record.txt")));
    EXPECT_FALSE(variables.IsDefined("X"));
}

template <typename T>
std::function<std::unique_ptr<TCustomWFAction>()> make()
{
    return [] { return std::make_unique<T>(); };
}

std::string undefined(const std::string& label, const std::string& text)
{
    return "Error: Could not expand " + label + " \"" + text + "\": \"NO_X\" is neither a build variable nor an environment variable.";
}

INSTANTIATE_TEST_SUITE_P(
    Refusals, BasicActionRefusals,
    testing::Values(
        RefusalCase{"LogMessageOfAnUndefinedVariable", make<TWFLogMessageAction>(), {{"Text", "%NO_X%"}}, undefined("Text", "%NO_X%")},
        RefusalCase{"SetVariableWithoutAName", make<TWFSetVariableAction>(), {{"Value", "x"}},
                    "Variable: No variable name has been given."},
        RefusalCase{"SetVariableToAnUndefinedVariable", make<TWFSetVariableAction>(), {{"VariableName", "X"}, {"Value", "%NO_X%"}},
                    undefined("Value", "%NO_X%")},
        RefusalCase{"WriteTextFileWithoutAName", make<TWFWriteTextFileAction>(), {{"Text", "x"}},
                    "File: No file name has been given."},
        RefusalCase{"WriteTextFileToAnUndefinedName", make<TWFWriteTextFileAction>(), {{"FileName", "%NO_X%.txt"}},
                    undefined("File Name", "%NO_X%.txt")},
        RefusalCase{"WriteTextFileOfUndefinedText", make<TWFWriteTextFileAction>(), {{"FileName", "a.txt"}, {"Text", "%NO_X%"}},
                    undefined("Text", "%NO_X%")},
        RefusalCase{"RunProgramWithoutAProgram", make<TWFRunProgramAction>(), {{"Arguments", "-x"}},
                    "Program: No program has been given."},
        RefusalCase{"RunProgramWithUndefinedArguments", make<TWFRunProgramAction>(),
                    {{"Program", wftest::testAppPath()}, {"Arguments", "%NO_X%"}}, undefined("Arguments", "%NO_X%")},
        RefusalCase{"RunProgramInAnUndefinedFolder", make<TWFRunProgramAction>(),
                    {{"Program", wftest::testAppPath()}, {"WorkingDirectory", "%NO_X%"}}, undefined("Working Directory", "%NO_X%")}),
    wftest::byName);

} // namespace
