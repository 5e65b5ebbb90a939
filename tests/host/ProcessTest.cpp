#include "WFProcess.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <thread>

#include <signal.h>

namespace {

class Chunks final : public IWFProcessOutputHandler {
public:
    void OnProcessStdOut(IWFProcess&, const std::string& data) override
    {
        out.push_back(data);
        times.push_back(std::chrono::steady_clock::now());
    }
    void OnProcessStdErr(IWFProcess&, const std::string& data) override { err += data; }
    std::vector<std::string> out;
    std::vector<std::chrono::steady_clock::time_point> times;
    std::string err;
};

std::shared_ptr<IWFProcess> makeProcess(const std::string& parameters = "")
{
    auto process = CreateWFProcess();
    process->SetExecutable(wftest::testAppPath());
    process->SetParameters(parameters);
    process->SetCollectOutput(true);
    return process;
}

bool processAlive(pid_t pid)
{
    // A zombie still answers kill(0); look at its state instead.
    std::ifstream stat("/proc/" + std::to_string(pid) + "/stat");
    std::string line;
    if (!std::getline(stat, line))
        return false;
    const auto close = line.rfind(')');
    return close != std::string::npos && close + 2 < line.size() && line[close + 2] != 'Z';
}

TEST(Process, DeliversOutputInChunksAsItArrives)
{
    wftest::TempDir dir;
    wftest::ScopedEnv output("WF_FAKE_OUTPUT", dir.write("out.txt", "aaaa\nbbbb\ncccc\n"));
    wftest::ScopedEnv chunks("WF_FAKE_CHUNKS", "3");
    wftest::ScopedEnv delay("WF_FAKE_CHUNK_DELAY_MS", "150");
    Chunks handler;
    auto process = makeProcess();
    process->SetOutputHandler(&handler);
    ASSERT_TRUE(process->Execute());
    ASSERT_EQ(handler.out.size(), 3u);
    EXPECT_EQ(handler.out[0] + handler.out[1] + handler.out[2], "aaaa\nbbbb\ncccc\n");
    // Delivered while the program ran, not all at its end.
    EXPECT_GE(handler.times[2] - handler.times[0], std::chrono::milliseconds(200));
    EXPECT_EQ(process->GetOutputLines(), (std::vector<std::string>{"aaaa", "bbbb", "cccc"}));
}

struct ExitCase {
    const char* exitCode;
    int expected;
};

class ProcessExit : public ::testing::TestWithParam<ExitCase> {};

TEST_P(ProcessExit, ReportsTheExitCode)
{
    wftest::ScopedEnv exitCode("WF_FAKE_EXIT", GetParam().exitCode);
    auto process = makeProcess();
    ASSERT_TRUE(process->Execute());
    EXPECT_EQ(process->GetExitCode(), GetParam().expected);
    EXPECT_FALSE(process->GetTimedOut());
}

INSTANTIATE_TEST_SUITE_P(Codes, ProcessExit, ::testing::Values(ExitCase{"0", 0}, ExitCase{"1", 1}, ExitCase{"42", 42}));

TEST(Process, StandardInputIsEmptyAndClosed)
{
    wftest::ScopedEnv stdinEnv("WF_FAKE_STDIN", "1");
    auto process = makeProcess();
    ASSERT_TRUE(process->Execute());
    EXPECT_EQ(process->GetOutputLines(), (std::vector<std::string>{"stdin:0 bytes"}));
}

TEST(Process, ArgumentsAreSplitWithoutAShell)
{
    wftest::TempDir dir;
    const std::string record = dir.file("record.txt");
    wftest::ScopedEnv recordEnv("WF_FAKE_RECORD", record);
    auto process = makeProcess(R"(-c "a b" $HOME `x` "" 'q')");
    process->SetWorkingDirectory(dir.path());
    ASSERT_TRUE(process->Execute());
    const auto runs = wftest::readInvocations(record);
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].cwd, dir.path());
    EXPECT_EQ(runs[0].args, (std::vector<std::string>{"-c", "a b", "$HOME", "`x`", "", "'q'"}));
}

TEST(Process, MissingProgramOrFolderCannotStart)
{
    wftest::TempDir dir;
    auto missing = makeProcess();
    missing->SetExecutable(dir.file("nothing-here"));
    EXPECT_FALSE(missing->Execute());
    EXPECT_NE(missing->GetErrorText().find("nothing-here"), std::string::npos);

    auto badFolder = makeProcess();
    badFolder->SetWorkingDirectory(dir.file("no-folder"));
    EXPECT_FALSE(badFolder->Execute());
    EXPECT_NE(badFolder->GetErrorText().find("no-folder"), std::string::npos);
}

TEST(Process, SilenceBoundKillsTheWholeTree)
{
    wftest::TempDir dir;
    const std::string pidFile = dir.file("child.pid");
    wftest::ScopedEnv sleep("WF_FAKE_SLEEP_MS", "60000");
    wftest::ScopedEnv child("WF_FAKE_CHILD_PIDFILE", pidFile);
    auto process = makeProcess();
    process->SetWaitTimeout(300);
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(process->Execute());
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_TRUE(process->GetTimedOut());
    pid_t grandchild = 0;
    std::ifstream(pidFile) >> grandchild;
    ASSERT_GT(grandchild, 0);
    for (int i = 0; i < 50 && processAlive(grandchild); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    EXPECT_FALSE(processAlive(grandchild));
}

TEST(Process, TerminateFromAnotherThreadStopsIt)
{
    wftest::ScopedEnv sleep("WF_FAKE_SLEEP_MS", "60000");
    auto process = makeProcess();
    std::thread stopper([process] {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        process->Terminate();
    });
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(process->Execute());
    stopper.join();
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_TRUE(process->GetTerminated());
    EXPECT_NE(process->GetExitCode(), 0);
}

} // namespace
