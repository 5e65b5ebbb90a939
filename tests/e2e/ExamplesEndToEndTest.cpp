// The example projects and the demo, run as a user runs them, so that neither can rot.
#include "ClearCaseWorld.h"
#include "RowName.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <regex>

namespace {

namespace fs = std::filesystem;

struct ExampleCase {
    std::string project;
    std::vector<e2e::Look> after;
    std::vector<e2e::SameAs> same = {};
};

WF_ROW_PRINTER_AS(ExampleCase, row.project)

class Example : public ::testing::TestWithParam<ExampleCase> {};

TEST_P(Example, RunsAgainstTheSimulator)
{
    const ExampleCase& c = GetParam();
    e2e::ClearCaseWorld world;
    const wftest::ProgramRun run = world.wfbuild(std::string(WF_EXAMPLES_DIR) + "/" + c.project, {"--print-variables"});
    EXPECT_EQ(run.status, 0) << wftest::readFile(world.logFile()) << run.err;
    e2e::expectLooks(world, c.after);
    e2e::expectSame(world, c.same, run.out);

    // Every project can run again on the same store with another build number.
    const wftest::ProgramRun again = world.wfbuild(std::string(WF_EXAMPLES_DIR) + "/" + c.project, {"--set", "BUILD=8"});
    EXPECT_EQ(again.status, 0) << wftest::readFile(world.logFile()) << again.err;
}

const std::string kSrc = "vobs/main/src";

INSTANTIATE_TEST_SUITE_P(Projects, Example, ::testing::Values(
    ExampleCase{"release.wfp",
        {{"vobs/main", {"lstype", "-short", "-kind", "lbtype", "-invob", "/vobs/main"}, {"REL_7 (locked)\n", "REL_7_BL\n"}},
         {kSrc, {"describe", "version.h"}, {"    REL_7\n", "BuildNumber = 7\n"}},
         {kSrc + "/version.h", {}, {"#define BUILD_NUMBER 7\n"}},
         {"vobs/main/Makefile", {}, {"VERSION = 1.0.7\n"}},
         {"vobs/main", {"lshistory", "Makefile"}, {"create version \"Makefile@@/main/2\"\n  \"Build 7\""}},
         {"", {"lsbl", "-short", "-stream", "release_dev@/vobs/pvob"}, {"REL_7_BL\n"}}},
        {{"", "release-configspec.txt", "", {"catcs"}}}},
    ExampleCase{"elements-and-views.wfp",
        {{kSrc, {"lshistory", "greet.c"}, {"create version \"greet.c@@/main/2\"\n  \"Build 7 marker\""}},
         {kSrc + "/greet.c", {}, {"void greet(void) {}\n/* built as 7 */\n"}},
         {kSrc, {"lscheckout", "-short"}, {}, {"main.c", "greet.c"}}},
        {{"", "elements-configspec.txt", "", {"catcs"}}}},
    ExampleCase{"labels-and-attributes.wfp",
        {{kSrc, {"describe", "main.c"}, {"    NIGHTLY_7\n", "NightlyNumber = 7\n"}},
         {"vobs/main", {"describe", "Makefile"}, {}, {"NIGHTLY_7"}},
         {"vobs/main", {"describe", "lbtype:NIGHTLY_7@/vobs/main"}, {"QAStatus = \"untested\""}},
         {kSrc, {"mkattr", "-nc", "NightlyNumber", "0", "version.h"}, {"cleartool: Error: "}, {}, 1}}},
    ExampleCase{"locks.wfp",
        {{"vobs/main", {"lstype", "-short", "-kind", "lbtype", "-invob", "/vobs/main"}, {"FROZEN_7\n"}, {"FROZEN_7 (locked)"}},
         {"vobs/main", {"describe", "Makefile@@"}, {"file element"}, {"(locked)"}}}},
    ExampleCase{"ucm.wfp",
        {{"", {"lsbl", "-short", "-component", "main_comp@/vobs/pvob"}, {"BUILD_7\n", "IMPORT_7\n"}},
         {"", {"describe", "activity:build_7@/vobs/pvob"}, {"title: Build 7", "stream: release_dev@/vobs/pvob", "version.h@@/main/2"}},
         {kSrc, {"lshistory", "version.h"}, {"create version \"version.h@@/main/2\"\n  \"Build 7\""}},
         {"", {"describe", "baseline:BUILD_7@/vobs/pvob"}, {"\"Build 7\"", "label status: Incrementally Labeled"}},
         {kSrc, {"lscheckout", "-short"}, {}, {"main.c"}},
         {kSrc, {"describe", "version.h"}, {"    BUILD_7\n"}}}}
), [](const auto& info) { return wftest::rowName(fs::path(info.param.project).stem().string()); });

// The release job broken on purpose at a step: its clean-up gives back the check-outs and
// thaws the label type, and the report shows both the broken step and the clean-up.
struct BrokenReleaseCase {
    std::string name;
    /// The release job's action before which the broken step goes.
    std::string before;
    /// The broken step's shell command; @DIR@ is the world's folder.
    std::string command;
    /// Sent when the step has written DIR/started; 0: none.
    int signal;
    int status;
    std::string failure;
};

WF_ROW_PRINTER(BrokenReleaseCase)

class BrokenRelease : public ::testing::TestWithParam<BrokenReleaseCase> {};

TEST_P(BrokenRelease, CleansUpAfterItself)
{
    const BrokenReleaseCase& c = GetParam();
    e2e::ClearCaseWorld world;
    std::string project = wftest::readFile(std::string(WF_EXAMPLES_DIR) + "/release.wfp");
    const std::string command = std::regex_replace(c.command, std::regex("@DIR@"), world.dir());
    const std::string broken = "<action type=\"WF_RUNPROGRAM\" description=\"Broken step\" enabled=\"True\">"
                               "<property name=\"Program\">/bin/sh</property>"
                               "<property name=\"Arguments\">-c \"" + command + "\"</property></action>\n    ";
    const auto at = project.find("<action type=\"" + c.before + "\"");
    ASSERT_NE(at, std::string::npos) << c.before;
    project.insert(at, broken);
    const std::string path = world.where("dir:broken-release.wfp");
    world.write("dir:broken-release.wfp", project);
    wftest::ProgramRequest request;
    if (c.signal) {
        request.signalWhenFileReady = world.dir() + "/started";
        request.signal = c.signal;
    }
    const wftest::ProgramRun run = world.wfbuild(path, {"--junit", world.dir() + "/junit.xml"}, request);

    EXPECT_EQ(run.status, c.status) << wftest::readFile(world.logFile()) << run.err;
    e2e::expectLooks(world, {{"vobs/main", {"lscheckout", "-short", "-recurse"}, {}, {"version.h", "Makefile"}},
                             {"vobs/main", {"lstype", "-short", "-kind", "lbtype", "-invob", "/vobs/main"}, {}, {"(locked)"}}});
    const std::string log = wftest::readFile(world.logFile());
    EXPECT_NE(log.find("=== Clean-up (the build "), std::string::npos) << log;
    EXPECT_NE(log.find("Build 7 cleaned up after action "), std::string::npos) << log;
    const std::string report = wftest::readFile(world.dir() + "/junit.xml");
    const auto cleanupSuite = report.find("<testsuite name=\"broken-release.wfp (clean-up)\"");
    ASSERT_NE(cleanupSuite, std::string::npos) << report;
    const auto brokenCase = report.find(" Run Program: Broken step\" classname=");
    ASSERT_LT(brokenCase, cleanupSuite) << report;
    EXPECT_EQ(report.find("<failure message=\"" + c.failure + "\""), report.find("<failure", brokenCase)) << report;
    for (const char* cleanup : {"Give back the release check-outs", "Thaw the release label", "Say what went wrong"})
        EXPECT_NE(report.find(cleanup, cleanupSuite), std::string::npos) << cleanup << "\n" << report;
}

INSTANTIATE_TEST_SUITE_P(Release, BrokenRelease, ::testing::Values(
    BrokenReleaseCase{"FailsAfterTheCheckOuts", "WF_WRITETEXTFILE", "exit 1", 0, 1, "exit code 1"},
    BrokenReleaseCase{"FailsAfterTheLock", "CC_GETCONFIGSPEC", "exit 1", 0, 1, "exit code 1"},
    BrokenReleaseCase{"IsStoppedAfterTheCheckOuts", "WF_WRITETEXTFILE", "echo up > @DIR@/started; sleep 30", SIGTERM, 130,
                      "interrupted"}
), wftest::byName);

// The demo's main job exactly as scripts/demo.sh runs it after building, in a scratch folder.
TEST(Demo, RunsTheReleaseJobAndSummarisesIt)
{
    wftest::TempDir dir;
    const std::string work = dir.file("demo");
    const std::string buildDir = fs::path(e2e::wfbuildPath()).parent_path().parent_path().string();
    wftest::ProgramRequest request;
    request.program = "/bin/bash";
    request.arguments = {std::string(WF_SOURCE_DIR) + "/scripts/run-demo.sh", "--build-dir", buildDir, "--work-dir", work};
    request.deadlineMs = 60000;
    const wftest::ProgramRun run = wftest::runProgram(request);
    ASSERT_EQ(run.status, 0) << run.out << run.err;
    EXPECT_NE(run.out.find("label type   REL_42 (locked)\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("version.h    BuildNumber = 42\n"), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("baselines    REL_42_BL\n"), std::string::npos) << run.out;
    // The job ends by showing the changed file's history through the simulator.
    const std::string log = wftest::readFile(work + "/release.log");
    EXPECT_NE(log.find("  Labels:\n    REL_42\n"), std::string::npos) << log;
    EXPECT_NE(log.find("create version \"src/version.h@@/main/2\"\n  \"Build 42\"\n"), std::string::npos) << log;
    EXPECT_LT(run.elapsedMs, 30000);

    // A second start begins from a clean store, not from the first run's leftovers.
    const wftest::ProgramRun again = wftest::runProgram(request);
    EXPECT_EQ(again.status, 0) << again.out << again.err;

    // A folder the script did not make is never removed.
    request.arguments[4] = dir.path();
    const wftest::ProgramRun refused = wftest::runProgram(request);
    EXPECT_EQ(refused.status, 2);
    EXPECT_TRUE(fs::exists(work + "/release.log"));
}

} // namespace
