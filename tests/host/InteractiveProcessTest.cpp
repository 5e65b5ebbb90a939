// The interactive process: a program kept running and talked to through its standard input.
#include "WFInteractiveProcess.h"
#include "RowName.h"
#include "WFProcess.h"
#include "ProgramRun.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace {

/// Reads until `text` has arrived or the program ends.
std::string readUntil(IWFInteractiveProcess& process, const std::string& text)
{
    std::string output;
    while (output.find(text) == std::string::npos)
        if (process.Read(output, 5000) != IWFInteractiveProcess::ReadResult::Data)
            break;
    return output;
}

TEST(InteractiveProcess, ErrorOutputNeverBlocksTheProgram)
{
    const auto process = CreateWFInteractiveProcess();
    // Far more than a pipe holds on standard error before the answer on standard output.
    ASSERT_TRUE(process->Start("/bin/sh", {"-c", "head -c 1000000 /dev/zero | tr '\\0' e >&2; echo done"}, ""));
    EXPECT_EQ(readUntil(*process, "done\n"), "done\n");
    EXPECT_EQ(process->GetErrorOutput().size(), 64u * 1024u);
}

TEST(InteractiveProcess, WritingToAProgramThatEndedFailsQuietly)
{
    const auto process = CreateWFInteractiveProcess();
    ASSERT_TRUE(process->Start("/bin/true", {}, ""));
    std::string output;
    EXPECT_EQ(process->Read(output, 5000), IWFInteractiveProcess::ReadResult::Closed);
    // Without SIGPIPE turned off for the write this would end the test program.
    bool written = true;
    for (int i = 0; i < 3 && written; ++i)
        written = process->Write(std::string(256 * 1024, 'x'));
    EXPECT_FALSE(written);
}

// The reasons a start fails are the runner's, shared with it and checked there.
TEST(InteractiveProcess, ProgramThatCannotStartIsNamedAndTakesNoInput)
{
    const auto process = CreateWFInteractiveProcess();
    EXPECT_FALSE(process->Start("/no/such/program", {}, ""));
    EXPECT_NE(process->GetErrorText().find("Could not start \"/no/such/program\""), std::string::npos)
        << process->GetErrorText();
    EXPECT_FALSE(process->Write("x\n"));
}

// --- Both kinds of process start the same way ------------------------------------------

/// The program's open descriptors one a line, its ignored signals, and the pid of a child that
/// left its process group.
constexpr const char* kInspect =
    "ls /proc/$$/fd; grep SigIgn /proc/$$/status; setsid sleep 600 >/dev/null 2>&1 & echo $!";

struct KindCase {
    const char* name;
    /// Runs the script and lets the program go; its standard output.
    std::function<std::string(const std::string& script)> run;
};

WF_ROW_PRINTER(KindCase)

class SpawnedProgram : public testing::TestWithParam<KindCase> {};

TEST_P(SpawnedProgram, InheritsNoDescriptorNoIgnoredSignalAndLeavesNothingBehind)
{
    // What a host's caller may hand down: a descriptor left open, a file size signal ignored.
    const int stray = ::open("/dev/null", O_RDONLY);
    ASSERT_EQ(::dup2(stray, 251), 251);
    const auto previous = ::signal(SIGXFSZ, SIG_IGN);
    const std::string output = GetParam().run(kInspect);
    ::signal(SIGXFSZ, previous);
    ::close(251);
    ::close(stray);

    std::istringstream lines(output);
    std::vector<std::string> fds;
    std::string line;
    while (std::getline(lines, line) && line.rfind("SigIgn:", 0) != 0)
        fds.push_back(line);
    EXPECT_EQ(fds, (std::vector<std::string>{"0", "1", "2"})) << output;
    ASSERT_EQ(line.rfind("SigIgn:", 0), 0u) << output;
    const unsigned long long ignored = std::strtoull(line.substr(7).c_str(), nullptr, 16);
    EXPECT_EQ(ignored & (1ull << (SIGXFSZ - 1)), 0u) << line;
    int detached = 0;
    ASSERT_TRUE(lines >> detached) << output;
    EXPECT_TRUE(wftest::awaitProcessGone(detached)) << "the detached child " << detached << " still runs";
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, SpawnedProgram,
    testing::Values(KindCase{"Runner",
                             [](const std::string& script) {
                                 const auto process = CreateWFProcess();
                                 process->SetExecutable("/bin/sh");
                                 process->SetParameters("-c \"" + script + "\"");
                                 process->SetCollectOutput(true);
                                 std::string output;
                                 if (process->Execute())
                                     for (const auto& line : process->GetOutputLines())
                                         output += line + "\n";
                                 return output;
                             }},
                    KindCase{"InteractiveOnceReleased",
                             [](const std::string& script) {
                                 auto process = CreateWFInteractiveProcess();
                                 std::string output;
                                 if (process->Start("/bin/sh", {"-c", script + "; cat"}, ""))
                                     while (std::count(output.begin(), output.end(), '\n') < 5
                                            && process->Read(output, 5000) == IWFInteractiveProcess::ReadResult::Data) {
                                     }
                                 process.reset();
                                 return output;
                             }}), wftest::byName);

} // namespace
