#include "WFAction.h"
#include "RowName.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

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

/// A run that stops early or fails: the last step the host calls, whether the program started,
/// and a line the log must hold (a piece of it; empty: none asked).
struct StopCase {
    const char* name;
    std::vector<std::pair<const char*, const char*>> environment;
    std::function<void(TRecordingAction&, TWFActionHost&, const wftest::TempDir&)> setUp;
    bool result;
    const char* lastCall;
    bool started;
    const char* logged;
};
WF_ROW_PRINTER(StopCase)

class RunStops : public RunSequence, public ::testing::WithParamInterface<StopCase> {};

TEST_P(RunStops, AtTheRightStepWithAReason)
{
    const StopCase& row = GetParam();
    const std::string record = dir.file("record.txt");
    wftest::ScopedEnv recordEnv("WF_FAKE_RECORD", record);
    std::vector<std::unique_ptr<wftest::ScopedEnv>> environment;
    for (const auto& [name, value] : row.environment)
        environment.push_back(std::make_unique<wftest::ScopedEnv>(name, value));
    row.setUp(action, host, dir);
    EXPECT_EQ(action.Execute(), row.result);
    EXPECT_EQ(calls.back(), row.lastCall);
    EXPECT_EQ(wftest::readInvocations(record).size(), row.started ? 1u : 0u);
    const auto lines = log.lines();
    EXPECT_TRUE(!*row.logged || std::any_of(lines.begin(), lines.end(), [&](const std::string& line) {
        return line.find(row.logged) != std::string::npos;
    })) << ::testing::PrintToString(lines);
}

INSTANTIATE_TEST_SUITE_P(
    Stops, RunStops,
    ::testing::Values(
        StopCase{"FailedCommandLineStartsNoProcess", {}, [](auto& action, auto&, auto&) { action.commandLineOk = false; },
                 false, "GetCommandLine", false, ""},
        StopCase{"DryRunStopsAfterBeforeExecute", {}, [](auto&, auto& host, auto&) { host.dryRun = true; }, true,
                 "BeforeExecute", false, ""},
        StopCase{"NonZeroExitFailsThroughInterpretResult", {{"WF_FAKE_EXIT", "3"}, {"WF_FAKE_STDERR", "cleartool: Error: nope"}},
                 [](auto&, auto&, auto&) {}, false, "OnFailure 3", true, "cleartool: Error: nope"},
        StopCase{"MissingProgramCallsOnExeNotFound", {},
                 [](auto& action, auto&, auto& dir) { action.executable = dir.file("no-such-program"); }, false,
                 "OnExeNotFound", false, "no-such-program"},
        StopCase{"TimeLimitStopsAHungProgram", {{"WF_FAKE_SLEEP_MS", "30000"}},
                 [](auto&, auto& host, auto&) { host.timeoutSeconds = 1; }, false, "OnProcessOutput", true,
                 "still running after 1 second"}),
    wftest::byName);

TEST_F(RunSequence, FailedExpansionIsLoggedWithTheLabel)
{
    variables.Set("V", TWFVariant("multi\nline"));
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
