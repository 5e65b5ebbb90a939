#include "WFAction.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

namespace {

/// Records the order in which the host calls it; runs the test program.
class TRecordingAction final : public TWFExecuteAbstractAction {
public:
    explicit TRecordingAction(std::vector<std::string>& calls) : m_calls(calls)
    {
        LogOutput = true;
        UseExitCode = true;
        KeepOutputLines = true;
    }
    std::string GetActionName() const override { return "Recording"; }

    std::string GetExecutable() override { return note("GetExecutable"), executable; }
    void BeforeGetCommandLine() override { note("BeforeGetCommandLine"); }
    bool GetCommandLine(ICommandLineBuilder& builder) override
    {
        note("GetCommandLine");
        for (const auto& argument : arguments)
            builder.AddArgument(argument, "", akPlain);
        return commandLineOk;
    }
    void AfterGetCommandLine() override { note("AfterGetCommandLine"); }
    std::string GetStartingDir(const std::string& exe) override
    {
        note("GetStartingDir");
        return TWFExecuteAbstractAction::GetStartingDir(exe);
    }
    void BeforeExecute(ICommandLineBuilder& builder) override
    {
        note("BeforeExecute");
        commandLine = builder.GetCommandLineText();
    }
    void OnStdOutData(IWFProcess& process, const std::string& data) override
    {
        if (m_calls.empty() || m_calls.back() != "OnStdOutData")
            note("OnStdOutData");
        stdoutBytes += data;
        TWFExecuteAbstractAction::OnStdOutData(process, data);
    }
    void OnProcessOutput(const std::vector<std::string>& lines) override
    {
        note("OnProcessOutput");
        outputLines = lines;
    }
    bool InterpretResult(int exitCode) override
    {
        note("InterpretResult");
        return TWFExecuteAbstractAction::InterpretResult(exitCode);
    }
    void OnSuccess(int code) override { note("OnSuccess " + std::to_string(code)); }
    void OnFailure(int code) override { note("OnFailure " + std::to_string(code)); }
    void OnExeNotFound(const std::string& exe) override { note("OnExeNotFound"), TWFExecuteAbstractAction::OnExeNotFound(exe); }

    std::string executable = wftest::testAppPath();
    std::vector<std::string> arguments;
    bool commandLineOk = true;
    std::string commandLine;
    std::string stdoutBytes;
    std::vector<std::string> outputLines;

private:
    void note(const std::string& call) { m_calls.push_back(call); }
    std::vector<std::string>& m_calls;
};

class RunSequence : public ::testing::Test {
protected:
    RunSequence() : action(calls)
    {
        host.log = &log;
        host.variables = &variables;
        host.defaultStartingDir = dir.path();
        action.SetHost(&host);
    }
    wftest::TempDir dir;
    wftest::RecordingLog log;
    TWFBuildVariables variables;
    TWFActionHost host;
    std::vector<std::string> calls;
    TRecordingAction action;
};

TEST_F(RunSequence, CallsEveryStepInOrder)
{
    const std::string record = dir.file("record.txt");
    wftest::ScopedEnv recordEnv("WF_FAKE_RECORD", record);
    wftest::ScopedEnv output("WF_FAKE_OUTPUT", dir.write("out.txt", "first\r\nsecond\nthird"));
    wftest::ScopedEnv chunks("WF_FAKE_CHUNKS", "3");
    wftest::ScopedEnv delay("WF_FAKE_CHUNK_DELAY_MS", "20");
    action.arguments = {"checkout", "\"a b.c\""};

    ASSERT_TRUE(action.Execute());
    EXPECT_EQ(calls, (std::vector<std::string>{"GetExecutable", "BeforeGetCommandLine", "GetCommandLine",
                                               "AfterGetCommandLine", "GetStartingDir", "BeforeExecute",
                                               "OnStdOutData", "OnProcessOutput", "InterpretResult", "OnSuccess 0"}));
    EXPECT_EQ(action.commandLine, "checkout \"a b.c\"");
    const auto runs = wftest::readInvocations(record);
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].cwd, dir.path());
    EXPECT_EQ(runs[0].args, (std::vector<std::string>{"checkout", "a b.c"}));
    EXPECT_EQ(action.stdoutBytes, "first\r\nsecond\nthird");
    EXPECT_EQ(action.outputLines, (std::vector<std::string>{"first", "second", "third"}));
    EXPECT_EQ(log.lines(), (std::vector<std::string>{"first", "second", "third"}));
}

TEST_F(RunSequence, FailedCommandLineStartsNoProcess)
{
    const std::string record = dir.file("record.txt");
    wftest::ScopedEnv recordEnv("WF_FAKE_RECORD", record);
    action.commandLineOk = false;
    EXPECT_FALSE(action.Execute());
    EXPECT_EQ(calls, (std::vector<std::string>{"GetExecutable", "BeforeGetCommandLine", "GetCommandLine"}));
    EXPECT_TRUE(wftest::readInvocations(record).empty());
}

TEST_F(RunSequence, DryRunStopsAfterBeforeExecute)
{
    const std::string record = dir.file("record.txt");
    wftest::ScopedEnv recordEnv("WF_FAKE_RECORD", record);
    host.dryRun = true;
    EXPECT_TRUE(action.Execute());
    EXPECT_EQ(calls.back(), "BeforeExecute");
    EXPECT_TRUE(wftest::readInvocations(record).empty());
}

TEST_F(RunSequence, NonZeroExitFailsThroughInterpretResult)
{
    wftest::ScopedEnv exitCode("WF_FAKE_EXIT", "3");
    wftest::ScopedEnv stderrText("WF_FAKE_STDERR", "cleartool: Error: nope");
    EXPECT_FALSE(action.Execute());
    EXPECT_EQ(calls.back(), "OnFailure 3");
    ASSERT_FALSE(log.entries.empty());
    EXPECT_EQ(log.entries.front().stream, IWFLogSink::Stream::StdErr);
    EXPECT_EQ(log.entries.front().text, "cleartool: Error: nope");
}

TEST_F(RunSequence, MissingProgramCallsOnExeNotFound)
{
    action.executable = dir.file("no-such-program");
    EXPECT_FALSE(action.Execute());
    EXPECT_EQ(calls.back(), "OnExeNotFound");
    const auto messages = log.messages();
    ASSERT_FALSE(messages.empty());
    EXPECT_NE(messages.back().find("no-such-program"), std::string::npos);
}

TEST_F(RunSequence, TimeLimitStopsAHungProgram)
{
    wftest::ScopedEnv sleep("WF_FAKE_SLEEP_MS", "30000");
    host.timeoutSeconds = 1;
    EXPECT_FALSE(action.Execute());
    EXPECT_NE(action.GetFailureReason().find("timed out"), std::string::npos);
    EXPECT_NE(log.messages().back().find("still running after 1 second"), std::string::npos);
}

TEST(ExpandInAction, FailureIsLoggedWithTheLabel)
{
    std::vector<std::string> calls;
    TRecordingAction action(calls);
    wftest::RecordingLog log;
    TWFBuildVariables variables;
    variables.Set("V", TWFVariant("multi\nline"));
    TWFActionHost host;
    host.log = &log;
    host.variables = &variables;
    action.SetHost(&host);
    std::string out;
    EXPECT_FALSE(action.TryExpandExpression("Pathname", "%MISSING_NAME_X%", out, true));
    ASSERT_EQ(log.messages().size(), 1u);
    EXPECT_NE(log.messages()[0].find("Pathname"), std::string::npos);
    EXPECT_NE(log.messages()[0].find("MISSING_NAME_X"), std::string::npos);
    EXPECT_TRUE(action.TryExpandExpression("Comment", "%V%", out, false));
    EXPECT_EQ(out, "multi\nline");
    EXPECT_FALSE(action.TryExpandExpression("Pathname", "%V%", out, true));
}

} // namespace
