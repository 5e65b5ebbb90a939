// Faults of the tool, the disk and the input, met through the real wfbuild with the real
// package: each must end with a clear message, the right exit status and no file damaged.
#include "ProgramRun.h"
#include "RowName.h"
#include "WFTestSupport.h"

#include "WFFiles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

class Faults : public ::testing::Test {
protected:
    Faults()
    {
        cleartool = wftest::installFakeProgram(dir.file("tool"), "cleartool");
        fs::create_directories(view());
        dir.write("config/options.ini", "[ClearCase]\nCleartoolPath=" + cleartool + "\nInstallationType=ClearCase\n");
    }
    std::string view() const { return dir.file("view"); }
    std::string configSpecProject(const std::string& target)
    {
        return dir.write("cs.wfp", "<wfproject version=\"1\"><actions><action type=\"CC_GETCONFIGSPEC\" description=\"spec\">"
                                   "<property name=\"ViewContextPath\">" + view() + "</property>"
                                   "<property name=\"OutputToFile\">True</property>"
                                   "<property name=\"OutputFilePath\">" + target + "</property></action></actions></wfproject>");
    }
    /// Runs wfbuild in the test's folder; `request` may ask for a signal.
    wftest::ProgramRun wfbuild(std::vector<std::string> arguments,
                               std::vector<std::pair<std::string, std::string>> environment = {},
                               wftest::ProgramRequest request = {})
    {
        request.program = WFBUILD_PATH;
        request.arguments = std::move(arguments);
        request.environment = std::move(environment);
        request.workingDirectory = dir.path();
        return wftest::runProgram(request);
    }
    std::string log() const { return wftest::readFile(dir.file("build.log")); }
    /// The tool's child, whose pid it wrote to `pidFile`, is gone.
    static void expectGone(const std::string& pidFile)
    {
        int child = 0;
        std::ifstream(pidFile) >> child;
        ASSERT_GT(child, 0);
        EXPECT_TRUE(wftest::processGone(child));
    }

    wftest::TempDir dir;
    std::string cleartool;
};

TEST_F(Faults, ToolKilledMidOutputFailsTheActionAndKeepsWhatArrived)
{
    const std::string target = dir.file("cs.txt");
    const std::string output = dir.write("out.txt", "element * CHECKEDOUT\nelement * /main/LATEST\n");
    const auto run = wfbuild({"run", configSpecProject(target), "--config-dir", dir.file("config"), "--log", dir.file("build.log")},
                             {{"WF_FAKE_OUTPUT", output}, {"WF_FAKE_KILL_SELF", "1"}});
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_NE(log().find("killed by signal 9"), std::string::npos) << log();
    EXPECT_NE(run.err.find("Action 1 (ClearCase Get Config Spec: spec) failed"), std::string::npos) << run.err;
    EXPECT_EQ(wftest::readFile(target), wftest::readFile(output));
}

TEST_F(Faults, BinaryOutputReachesTheConfigSpecFileByteForByte)
{
    std::string bytes = "element * CHECKEDOUT\n";
    bytes += std::string("nul\0byte\n", 9);
    bytes += "bad utf-8 \xff\xfe\xc3\x28 end\r\n";
    for (int c = 0; c < 256; ++c)
        bytes += static_cast<char>(c);
    const std::string target = dir.file("cs.bin");
    const auto run = wfbuild({"run", configSpecProject(target), "--config-dir", dir.file("config")},
                             {{"WF_FAKE_OUTPUT", dir.write("out.bin", bytes)}, {"WF_FAKE_CHUNKS", "4"}, {"WF_FAKE_CHUNK_DELAY_MS", "5"}});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(wftest::readFile(target), bytes);
}

TEST_F(Faults, FullDiskWhileWritingTheConfigSpecIsReportedNotFatal)
{
    const auto run = wfbuild({"run", configSpecProject("/dev/full"), "--config-dir", dir.file("config"), "--log", dir.file("build.log")},
                             {{"WF_FAKE_OUTPUT", dir.write("out.txt", std::string(200000, 'x') + "\n")}, {"WF_FAKE_CHUNKS", "3"}});
    EXPECT_EQ(run.status, 0) << run.err;
    const std::string text = log();
    const std::string message = "An error occured whilst writing to the file. The file could not be written.";
    ASSERT_NE(text.find(message), std::string::npos) << text.substr(0, 400);
    EXPECT_EQ(text.find(message), text.rfind(message)) << "reported once; later output is not written";
}

TEST_F(Faults, HungToolStoppedByTheTimeoutLeavesNothingRunning)
{
    const std::string pidFile = dir.file("child.pid");
    const auto run = wfbuild({"run", configSpecProject(dir.file("cs.txt")), "--config-dir", dir.file("config"),
                              "--timeout", "1", "--log", dir.file("build.log")},
                             {{"WF_FAKE_SLEEP_MS", "60000"}, {"WF_FAKE_CHILD_PIDFILE", pidFile}});
    EXPECT_EQ(run.status, 1) << run.err;
    EXPECT_LT(run.elapsedMs, 8000);
    EXPECT_NE(log().find("still running after 1 second"), std::string::npos) << log();
    expectGone(pidFile);
}

TEST_F(Faults, InterruptStopsTheToolAndExits130)
{
    const std::string pidFile = dir.file("child.pid");
    wftest::ProgramRequest request;
    request.signalWhenFileReady = pidFile;
    request.signal = SIGINT;
    const auto run = wfbuild({"run", configSpecProject(dir.file("cs.txt")), "--config-dir", dir.file("config")},
                             {{"WF_FAKE_SLEEP_MS", "60000"}, {"WF_FAKE_CHILD_PIDFILE", pidFile}}, request);
    EXPECT_EQ(run.status, 130) << run.err;
    expectGone(pidFile);
}

TEST_F(Faults, InterruptWhileWaitingForAFifoReaderExits130)
{
    // Nobody ever opens the FIFO for reading: opening it for writing waits for ever.
    const std::string fifo = dir.file("cs.fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    wftest::ProgramRequest request;
    request.signalAfterMs = 500;
    request.signal = SIGINT;
    const auto run = wfbuild({"run", configSpecProject(fifo), "--config-dir", dir.file("config"), "--log", dir.file("build.log")},
                             {{"WF_FAKE_RECORD", dir.file("record.txt")}}, request);
    EXPECT_EQ(run.status, 130) << run.err;
    EXPECT_NE(run.err.find("Interrupted: action 1 (ClearCase Get Config Spec: spec) was stopped."), std::string::npos)
        << run.err;
    EXPECT_TRUE(wftest::readInvocations(dir.file("record.txt")).empty()) << "cleartool was started";
}

struct BadProject {
    const char* name;
    const char* bytes;     // nullptr: the project path is `special`
    const char* expected;  // a piece of the message
    const char* special = "folder";  // "folder", "fifo" or a device's path
};

WF_ROW_PRINTER(BadProject)

class BadProjects : public Faults, public ::testing::WithParamInterface<BadProject> {};

TEST_P(BadProjects, AreRefusedWithExit2AndLeftUntouched)
{
    std::string path = dir.file("bad.wfp");
    const std::string special = GetParam().special;
    if (GetParam().bytes)
        dir.write("bad.wfp", GetParam().bytes);
    else if (special == "folder")
        fs::create_directories(path);
    else if (special == "fifo")
        ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);
    else
        path = special;
    for (const char* command : {"run", "validate", "resave"}) {
        std::vector<std::string> arguments{command, path};
        if (std::string(command) != "resave")
            arguments.insert(arguments.end(), {"--config-dir", dir.file("config")});
        const auto run = wfbuild(arguments);
        EXPECT_EQ(run.status, 2) << command << ": " << run.err;
        EXPECT_NE(run.err.find(GetParam().expected), std::string::npos) << command << ": " << run.err;
        EXPECT_NE(run.err.find(path), std::string::npos) << command << ": " << run.err;
        if (GetParam().bytes) {
            EXPECT_EQ(wftest::readFile(path), GetParam().bytes) << command;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, BadProjects,
    ::testing::Values(
        BadProject{"aFolder", nullptr, "it is a folder, not a regular file"},
        // Nobody writes to the FIFO: opening it would wait for ever.
        BadProject{"aFifo", nullptr, "it is a FIFO, not a regular file", "fifo"},
        // Endless: reading it would fill the memory.
        BadProject{"anEndlessDevice", nullptr, "it is a device, not a regular file", "/dev/zero"},
        BadProject{"truncated", "<wfproject version=\"1\"><actions><action type=\"CC_CHECKOUT\"><property name=\"Comm", "malformed XML"},
        BadProject{"notXml", "this is not a project\n", "malformed XML"},
        BadProject{"binary", "\x7f" "ELF\x02\x01\x01\x00\x00", "malformed XML"}), wftest::byName);

TEST_F(Faults, OptionsSetTakesTheNamesShowPrintsAndLeavesTheStoreIntactOnFailure)
{
    dir.write("plain-file", "not a folder");
    const auto blocked =
        wfbuild({"options", "--config-dir", dir.file("plain-file/config"), "set", "ClearCase.DefaultViewPath", "/v"});
    EXPECT_EQ(blocked.status, 2) << blocked.err;
    EXPECT_NE(blocked.err.find("plain-file/config"), std::string::npos) << blocked.err;
    EXPECT_EQ(wftest::readFile(dir.file("plain-file")), "not a folder");

    const std::string config = dir.file("config");
    fs::create_directories(dir.file("bin"));
    const std::string tool = dir.write("bin/cleartool", "");
    struct Row {
        const char* option;
        const char* value;
        std::string stored;  // the line the store holds afterwards; empty: refused, the store unchanged
    };
    for (const Row& row : std::vector<Row>{
             {"ClearCase.DefaultViewPath", "/views/dev", "DefaultView=/views/dev"},
             {"ClearCase.ClearCaseType", "ccLT", "InstallationType=ClearCaseLT"},
             {"ClearCase.TestForClearCaseType", "True", "InstallationType=Auto"},
             // Stored absolute: a run from another folder starts the same program.
             {"ClearCase.CleartoolPath", "bin/cleartool", "CleartoolPath=" + tool},
             {"ClearCase.DefaultView", "/v", ""},
             {"ClearCase.InstallationType", "Auto", ""},
             {"ClearCase.ClearCaseType", "ccSome", ""},
             {"Nobody.Colour", "blue", ""}}) {
        SCOPED_TRACE(row.option);
        const std::string before = wftest::readFile(dir.file("config/options.ini"));
        const auto set = wfbuild({"options", "--config-dir", config, "set", row.option, row.value});
        const std::string after = wftest::readFile(dir.file("config/options.ini"));
        if (row.stored.empty()) {
            EXPECT_EQ(set.status, 2) << set.err;
            EXPECT_NE(set.err.find(row.option), std::string::npos) << set.err;
            EXPECT_EQ(after, before);
        } else {
            EXPECT_EQ(set.status, 0) << set.err;
            EXPECT_NE(after.find(row.stored + "\n"), std::string::npos) << after;
        }
    }
    const auto show = wfbuild({"options", "--config-dir", config, "show"});
    EXPECT_NE(show.out.find("ClearCase.DefaultViewPath=/views/dev\n"), std::string::npos) << show.out;
    EXPECT_NE(show.out.find("ClearCase.CleartoolPath=" + tool + "\n"), std::string::npos) << show.out;
}

TEST_F(Faults, OptionsSetWaitsAFewSecondsForTheLockThenNamesItsHolder)
{
    const TWFFileLock held(dir.file("config/options.ini"));
    ASSERT_TRUE(held.locked()) << held.error();
    const auto set = wfbuild({"options", "--config-dir", dir.file("config"), "set", "ClearCase.DefaultViewPath", "/v"});
    EXPECT_EQ(set.status, 2) << set.err;
    EXPECT_NE(set.err.find(": process " + std::to_string(::getpid()) + " ("), std::string::npos) << set.err;
    EXPECT_NE(set.err.find("still holds it after 5 s"), std::string::npos) << set.err;
    EXPECT_EQ(wftest::readFile(dir.file("config/options.ini")).find("DefaultView="), std::string::npos);
}

} // namespace
