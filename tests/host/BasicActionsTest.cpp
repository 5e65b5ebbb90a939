#include "WFBasicActions.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

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
    template <typename T>
    bool run(T& action, const std::vector<std::pair<std::string, std::string>>& properties)
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
    TWFLogMessageAction broken;
    EXPECT_FALSE(run(broken, {{"Text", "%UNDEFINED_X%"}}));
}

TEST_F(BasicActions, SetVariableExpandsIntoTheVariable)
{
    TWFSetVariableAction action;
    ASSERT_TRUE(run(action, {{"VariableName", "GREETING"}, {"Value", "hi %WHO%"}}));
    EXPECT_EQ(variables.Get("GREETING").toString(), "hi world");
    TWFSetVariableAction nameless;
    EXPECT_FALSE(run(nameless, {{"Value", "x"}}));
    EXPECT_EQ(validation, (std::vector<std::string>{"Variable: No variable name has been given."}));
}

TEST_F(BasicActions, WriteTextFileReplacesOrAppendsAndNamesAFolderItCannotMake)
{
    TWFWriteTextFileAction write;
    ASSERT_TRUE(run(write, {{"FileName", "out/notes.txt"}, {"Text", "one %WHO%\n"}}));
    TWFWriteTextFileAction append;
    ASSERT_TRUE(run(append, {{"FileName", dir.file("out/notes.txt")}, {"Text", "two\n"}, {"Append", "True"}}));
    EXPECT_EQ(wftest::readFile(dir.file("out/notes.txt")), "one world\ntwo\n");
    TWFWriteTextFileAction replace;
    ASSERT_TRUE(run(replace, {{"FileName", "out/notes.txt"}, {"Text", "three\n"}}));
    EXPECT_EQ(wftest::readFile(dir.file("out/notes.txt")), "three\n");

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

    // A working directory that fails to expand starts nothing.
    TWFRunProgramAction unexpanded;
    EXPECT_FALSE(run(unexpanded, {{"Program", wftest::testAppPath()}, {"WorkingDirectory", "%NO_SUCH_FOLDER_VARIABLE%"}}));
    EXPECT_EQ(wftest::readInvocations(dir.file("record.txt")).size(), 1u);
    EXPECT_NE(log.messages().back().find("Working Directory"), std::string::npos) << log.messages().back();

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

} // namespace
