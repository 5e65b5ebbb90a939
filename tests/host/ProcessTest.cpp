#include "WFProcess.h"
#include "RowName.h"

#include "ProgramRun.h"
#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <thread>

#include <signal.h>
#include <sys/stat.h>

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

TEST(Process, ArgumentsAreSplitWithoutAShellAndInputIsEmptyAndClosed)
{
    wftest::TempDir dir;
    wftest::ScopedEnv stdinEnv("WF_FAKE_STDIN", "1");
    const std::string record = dir.file("record.txt");
    wftest::ScopedEnv recordEnv("WF_FAKE_RECORD", record);
    auto process = makeProcess(R"(-c "a b" $HOME `x` "" 'q')");
    process->SetWorkingDirectory(dir.path());
    ASSERT_TRUE(process->Execute());
    const auto runs = wftest::readInvocations(record);
    ASSERT_EQ(runs.size(), 1u);
    EXPECT_EQ(runs[0].cwd, dir.path());
    EXPECT_EQ(runs[0].args, (std::vector<std::string>{"-c", "a b", "$HOME", "`x`", "", "'q'"}));
    EXPECT_EQ(process->GetOutputLines(), (std::vector<std::string>{"stdin:0 bytes"}));
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

// ---- Ends that do not come by themselves: what the program does with its pipes and its
// children must not keep the run going, nor leave anything behind ----

/// How a scenario is ended from outside.
enum class Stopper { None, TimeLimit, Silence, Terminate };

struct EndCase {
    const char* name;
    std::vector<std::pair<const char*, const char*>> environment;
    Stopper stopper;
    /// The program's child, whose pid the program writes to child.pid, must be gone after.
    bool hasChild;
};
WF_ROW_PRINTER(EndCase)

class ProcessEnd : public ::testing::TestWithParam<EndCase> {};

TEST_P(ProcessEnd, EndsAndLeavesNothingRunning)
{
    const EndCase& c = GetParam();
    wftest::TempDir dir;
    const std::string pidFile = dir.file("child.pid");
    std::vector<std::unique_ptr<wftest::ScopedEnv>> environment;
    for (const auto& [name, value] : c.environment)
        environment.push_back(std::make_unique<wftest::ScopedEnv>(name, value));
    if (c.hasChild)
        environment.push_back(std::make_unique<wftest::ScopedEnv>("WF_FAKE_CHILD_PIDFILE", pidFile));
    Chunks handler;
    auto process = makeProcess();
    process->SetOutputHandler(&handler);
    if (c.stopper == Stopper::TimeLimit)
        process->SetTimeLimit(500);
    if (c.stopper == Stopper::Silence)
        process->SetWaitTimeout(300);
    std::thread stopper;
    if (c.stopper == Stopper::Terminate)
        stopper = std::thread([process] {
            std::this_thread::sleep_for(std::chrono::milliseconds(500));
            process->Terminate();
        });
    const auto start = std::chrono::steady_clock::now();
    ASSERT_TRUE(process->Execute()) << process->GetErrorText();
    if (stopper.joinable())
        stopper.join();
    // Generous: only a run that would never end fails this.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
    EXPECT_EQ(process->GetTimedOut(), c.stopper == Stopper::TimeLimit || c.stopper == Stopper::Silence);
    EXPECT_EQ(process->GetTerminated(), c.stopper == Stopper::Terminate);
    if (c.stopper == Stopper::Terminate) {
        EXPECT_EQ(process->GetErrorText(), "Stopped on request");
        EXPECT_NE(process->GetExitCode(), 0);
    }
    if (c.stopper == Stopper::None) {
        EXPECT_EQ(process->GetExitCode(), 0);
    }
    if (c.hasChild) {
        pid_t child = 0;
        std::ifstream(pidFile) >> child;
        ASSERT_GT(child, 0);
        EXPECT_TRUE(wftest::awaitProcessGone(child)) << "the program's child " << child << " still ran";
    }
    // The next program's output is its own, whatever the last one and its children wrote.
    environment.clear();
    wftest::ScopedEnv output("WF_FAKE_OUTPUT", dir.write("next.txt", "next\n"));
    auto next = makeProcess();
    ASSERT_TRUE(next->Execute()) << next->GetErrorText();
    EXPECT_EQ(next->GetOutputLines(), std::vector<std::string>{"next"});
}

TEST(Process, OutputLeftInThePipeAtTheEndArrivesWhole)
{
    // A reader that falls behind at first: the program ends with most of its output unread.
    struct SlowStart final : IWFProcessOutputHandler {
        void OnProcessStdOut(IWFProcess&, const std::string&) override
        {
            if (!slept)
                std::this_thread::sleep_for(std::chrono::milliseconds(300));
            slept = true;
        }
        void OnProcessStdErr(IWFProcess&, const std::string&) override {}
        bool slept = false;
    };
    wftest::TempDir dir;
    std::string text;
    for (int i = 0; i < 85000; ++i)
        text += "line " + std::to_string(i) + "\n";
    for (const std::string& expected : {text, std::string("next\n")}) {
        wftest::ScopedEnv output("WF_FAKE_OUTPUT", dir.write("out.txt", expected));
        SlowStart handler;
        auto process = makeProcess();
        process->SetOutputHandler(&handler);
        ASSERT_TRUE(process->Execute()) << process->GetErrorText();
        std::string joined;
        for (const auto& line : process->GetOutputLines())
            joined += line + "\n";
        EXPECT_EQ(joined.size(), expected.size());
        EXPECT_TRUE(joined == expected);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Scenarios, ProcessEnd,
    ::testing::Values(
        EndCase{"TimeLimitHoldsAfterTheOutputIsClosed", {{"WF_FAKE_CLOSE_OUTPUT", "1"}, {"WF_FAKE_SLEEP_MS", "60000"}},
                Stopper::TimeLimit, false},
        EndCase{"TerminateHoldsAfterTheOutputIsClosed", {{"WF_FAKE_CLOSE_OUTPUT", "1"}, {"WF_FAKE_SLEEP_MS", "60000"}},
                Stopper::Terminate, false},
        EndCase{"ExitSoonAfterTheOutputIsClosed", {{"WF_FAKE_CLOSE_OUTPUT", "1"}, {"WF_FAKE_SLEEP_MS", "300"}},
                Stopper::None, false},
        EndCase{"ExitWhileAChildKeepsWriting", {{"WF_FAKE_CHILD", "writer"}}, Stopper::None, true},
        EndCase{"TerminateStopsADetachedChild", {{"WF_FAKE_CHILD", "detached"}, {"WF_FAKE_SLEEP_MS", "60000"}},
                Stopper::Terminate, true},
        EndCase{"ExitStopsADetachedChild", {{"WF_FAKE_CHILD", "detached"}}, Stopper::None, true},
        EndCase{"SilenceBoundStopsTheWholeTree", {{"WF_FAKE_SLEEP_MS", "60000"}}, Stopper::Silence, true}),
    wftest::byName);

struct PathCase {
    const char* name;
    /// PATH, with @ standing for the test's folder.
    std::string path;
    /// Files to make below the folder, executable when their name ends in "*".
    std::vector<std::string> files;
    /// The expected result below the folder; empty: none found.
    std::string found;
};
WF_ROW_PRINTER(PathCase)

class ProgramOnPath : public ::testing::TestWithParam<PathCase> {};

TEST_P(ProgramOnPath, FindsTheFirstExecutableFile)
{
    const PathCase& c = GetParam();
    wftest::TempDir dir;
    for (std::string file : c.files) {
        const bool executable = file.back() == '*';
        if (executable)
            file.pop_back();
        const std::string path = dir.write(file, "#!/bin/sh\n");
        ::chmod(path.c_str(), executable ? 0755 : 0644);
    }
    std::string path = c.path;
    for (auto at = path.find('@'); at != std::string::npos; at = path.find('@'))
        path.replace(at, 1, dir.path());
    wftest::ScopedEnv pathEnv("PATH", path);
    EXPECT_EQ(findProgramOnPath("tool"), c.found.empty() ? "" : dir.file(c.found));
}

INSTANTIATE_TEST_SUITE_P(
    Table, ProgramOnPath,
    ::testing::Values(PathCase{"FirstMatchWins", "@/a:@/b", {"a/tool*", "b/tool*"}, "a/tool"},
                      PathCase{"NotExecutableIsSkipped", "@/a:@/b", {"a/tool", "b/tool*"}, "b/tool"},
                      PathCase{"FolderIsSkipped", "@/c:@/b", {"c/tool/x*", "b/tool*"}, "b/tool"},
                      PathCase{"TrailingSlashIsKept", "@/b/", {"b/tool*"}, "b/tool"},
                      PathCase{"NothingFound", "@/a", {}, ""}), wftest::byName);

} // namespace
