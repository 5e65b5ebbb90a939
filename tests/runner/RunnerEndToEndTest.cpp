// wfbuild driven as a user drives it: the real program, the test package, projects on disk.
#include "ProgramRun.h"
#include "RowName.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <map>
#include <optional>
#include <regex>

namespace {

using wftest::ProgramRequest;
using wftest::ProgramRun;
using wftest::TempDir;
using Properties = std::vector<std::pair<std::string, std::string>>;

/// One <action> element of the test package.
std::string action(const std::string& type, const std::string& description, const Properties& properties = {},
                   bool enabled = true)
{
    std::string xml = "    <action type=\"" + type + "\" description=\"" + description + "\" enabled=\""
        + (enabled ? "True" : "False") + "\">\n";
    for (const auto& [name, value] : properties)
        xml += "      <property name=\"" + name + "\">" + value + "</property>\n";
    return xml + "    </action>\n";
}

std::string testRun(const std::string& description, const Properties& properties = {}, bool enabled = true)
{
    return action("TEST_RUN", description, properties, enabled);
}

std::string projectXml(const std::string& actions, const std::string& variables = "", const std::string& rootAttributes = "",
                       const std::string& cleanup = "")
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<wfproject version=\"" + std::string(cleanup.empty() ? "1" : "2")
        + "\"" + rootAttributes + ">\n  <variables>\n" + variables + "  </variables>\n  <actions>\n" + actions
        + "  </actions>\n" + (cleanup.empty() ? "" : "  <cleanup>\n" + cleanup + "  </cleanup>\n") + "</wfproject>\n";
}

/// An action whose failure lets the build go on.
std::string goingOn(const std::string& actionXml)
{
    return wftest::replaceAll(actionXml, "enabled=\"True\"", "enabled=\"True\" continueOnFailure=\"True\"");
}

std::string variable(const std::string& name, const std::string& value)
{
    return "    <variable name=\"" + name + "\" type=\"string\" value=\"" + value + "\"/>\n";
}

class Wfbuild : public ::testing::Test {
protected:
    /// Runs wfbuild with the test package and the basic actions only, and a configuration folder
    /// of the test's own. Every program the actions start records its start in record.txt.
    ProgramRun wfbuild(std::vector<std::string> arguments, ProgramRequest request = {})
    {
        request.program = WFBUILD_PATH;
        request.arguments = std::move(arguments);
        if (request.arguments.empty() || request.arguments[0] != "help") {
            request.arguments.insert(request.arguments.end(), {"--no-default-plugins", "--plugin", WF_RUNNER_TEST_PLUGIN, "--plugin",
                                                                      WF_BASICACTIONS_PLUGIN});
        }
        request.environment.emplace_back("WF_CONFIG_DIR", dir.file("config"));
        request.environment.emplace_back("WF_FAKE_RECORD", record());
        return wftest::runProgram(request);
    }
    std::string writeProject(const std::string& xml, const std::string& name = "project.wfp")
    {
        return dir.write(name, expand(xml));
    }
    /// Replaces @DIR@ by the test's folder.
    std::string expand(const std::string& text) const { return wftest::replaceAll(text, "@DIR@", dir.path()); }
    std::string record() const { return dir.file("record.txt"); }
    std::size_t programStarts() const { return wftest::readInvocations(record()).size(); }

    TempDir dir;
};

// ---- Runs: exit status, the plain log whole, how many programs started ----

struct RunCase {
    std::string name;
    std::string actions;
    std::vector<std::string> arguments;
    int status;
    std::string log;
    std::size_t starts;
    /// A line that standard error must hold; empty: standard error stays empty.
    std::string errLine;
    std::string variables = {};
    std::string rootAttributes = {};
    std::map<std::string, std::string> files = {};
    std::string cleanup = {};
};
WF_ROW_PRINTER(RunCase)

class WfbuildRun : public Wfbuild, public ::testing::WithParamInterface<RunCase> {};

TEST_P(WfbuildRun, LogStatusAndStarts)
{
    const RunCase& c = GetParam();
    for (const auto& [name, bytes] : c.files)
        dir.write(name, bytes);
    const std::string project = writeProject(projectXml(c.actions, c.variables, c.rootAttributes, c.cleanup));
    std::vector<std::string> arguments{"run", project, "--log", dir.file("build.log")};
    for (const auto& argument : c.arguments)
        arguments.push_back(expand(argument));
    const ProgramRun run = wfbuild(arguments);

    EXPECT_EQ(run.status, c.status) << run.out << run.err;
    EXPECT_EQ(wftest::readFile(dir.file("build.log")), expand(c.log));
    EXPECT_EQ(programStarts(), c.starts);
    if (c.errLine.empty())
        EXPECT_EQ(run.err, "");
    else
        EXPECT_NE(run.err.find(expand(c.errLine) + "\n"), std::string::npos) << run.err;
    EXPECT_LT(run.elapsedMs, 2000);
}

INSTANTIATE_TEST_SUITE_P(
    Runs, WfbuildRun,
    ::testing::Values(
        RunCase{"AllSucceed",
                testRun("first", {{"Arguments", "one &quot;two three&quot;"}, {"Environment", "WF_FAKE_OUTPUT=@DIR@/out.txt"}})
                    + testRun("second", {{"Environment", "WF_FAKE_STDERR=warning: careful"}}),
                {}, 0, "Command Line: one \"two three\"\nalpha\n\nbeta\nCommand Line: \nwarning: careful\n", 2, "warning: careful",
                "", "", {{"out.txt", "alpha\r\n\nbeta"}}},
        RunCase{"ValidationErrorsOneLineEachAndNothingStarts",
                testRun("checked", {{"Program", ""}, {"Mode", "tmFailValidation"}}) + testRun("later"), {}, 1,
                "Program: No program has been given.\nTest Options: The action was set to fail validation.\n", 0,
                "Action 1 (Test Run: checked) failed: validation failed"},
        RunCase{"DryRunStartsNothing",
                testRun("a", {{"Arguments", "x"}}) + testRun("b", {{"Environment", "WF_FAKE_EXIT=3"}}), {"--dry-run"}, 0,
                "Command Line: x\nCommand Line: \n", 0, ""},
        RunCase{"SetOverridesAndAddsVariables", testRun("a", {{"Arguments", "%GREETING% %TARGET% %EXTRA%"}}),
                {"--set", "GREETING=hi there", "--set", "EXTRA=new=1"}, 0, "Command Line: hi there all new=1\n", 1, "",
                variable("GREETING", "hello") + variable("TARGET", "all")},
        RunCase{"ProjectTimeoutApplies", testRun("slow", {{"Environment", "WF_FAKE_SLEEP_MS=5000"}}), {}, 1,
                "Command Line: \nAction Failed: the program was still running after 1 second and was stopped with "
                "everything it started.\n",
                1, "Action 1 (Test Run: slow) failed: timed out after 1 s", "", " timeout=\"1\""},
        RunCase{"MissingProgram", testRun("gone", {{"Program", "@DIR@/missing"}}), {}, 1,
                "Command Line: \nError: The program \"@DIR@/missing\" could not be started.\nError: Could not start "
                "\"@DIR@/missing\": No such file or directory.\n",
                0, "Action 1 (Test Run: gone) failed: Could not start \"@DIR@/missing\": No such file or directory"},
        RunCase{"SetVariableFeedsLaterActions",
                action("WF_SETVARIABLE", "v", {{"VariableName", "WHO"}, {"Value", "%TestOptions().Greeting%, %USER_NAME%"}})
                    + testRun("use", {{"Arguments", "%WHO%"}}),
                {"--set", "USER_NAME=ann"}, 0, "Set variable WHO to \"hello, ann\"\nCommand Line: hello, ann\n", 1, ""},
        RunCase{"CleanupRunsAfterAFailureEachWhateverTheOneBeforeDid",
                testRun("first") + testRun("second", {{"Environment", "WF_FAKE_EXIT=3"}}) + testRun("third"), {}, 1,
                "Command Line: \nCommand Line: \nAction Failed: the program ended with exit code 3.\n"
                "=== Clean-up (the build failed at action 2): 2 actions ===\n"
                "Command Line: \nAction Failed: the program ended with exit code 5.\n"
                "Command Line: 2|Test Run|second|exit code 3\n",
                4, "Clean-up: 2 actions run, 1 failed.", "", "", {},
                testRun("undo", {{"Environment", "WF_FAKE_EXIT=5"}}) + testRun("off", {}, false)
                    + testRun("tell", {{"Arguments", "%FAILED_ACTION%|%FAILED_ACTION_NAME%|%FAILED_ACTION_DESCRIPTION%|%FAILURE%"}})},
        RunCase{"ContinueOnFailureLetsTheBuildGoOnAndStartsNoCleanup",
                goingOn(testRun("lint", {{"Environment", "WF_FAKE_EXIT=3"}})) + testRun("build"), {}, 0,
                "Command Line: \nAction Failed: the program ended with exit code 3.\nCommand Line: \n", 2,
                "Action 1 (Test Run: lint) failed: exit code 3; the build goes on (continue on failure).", "", "", {},
                testRun("undo")}), wftest::byName);

TEST_F(Wfbuild, PrintVariablesIsTheLastLineAlsoAfterAFailure)
{
    const std::string project = writeProject(projectXml(
        action("WF_SETVARIABLE", "v", {{"VariableName", "B"}, {"Value", "two\"quoted\""}})
            + testRun("end", {{"Environment", "WF_FAKE_EXIT=1"}})
            + action("WF_SETVARIABLE", "never on failure", {{"VariableName", "Z"}, {"Value", "z"}}),
        variable("A", "1") + "    <variable name=\"N\" type=\"integer\" value=\"42\"/>\n"));
    // Bytes that are not UTF-8 print as replacement characters.
    const ProgramRun run = wfbuild({"run", project, "--print-variables", "--set", "C=%x", "--set", "F=caf\xE9.c", "--set",
                                    "G=ok \xC3\xA9 \xC3", "--set", "H=\xED\xA0\x80"});
    EXPECT_EQ(run.status, 1);
    const std::string json = std::string("{\"A\":\"1\",\"B\":\"two\\\"quoted\\\"\",\"C\":\"%x\",\"F\":\"caf\\ufffd.c\",")
        + "\"G\":\"ok \xC3\xA9 \\ufffd\",\"H\":\"\\ufffd\\ufffd\\ufffd\",\"N\":42}\n";
    ASSERT_GE(run.out.size(), json.size());
    EXPECT_EQ(run.out.substr(run.out.size() - json.size()), json);
    EXPECT_EQ(run.out[run.out.size() - json.size() - 1], '\n');
}

// ---- JUnit reports: each case told apart, the text cleaned, valid under the published schema ----

/// The report with what changes from run to run (times, start, machine) made fixed.
std::string stableReport(const std::string& path)
{
    const std::string xml = std::regex_replace(wftest::readFile(path), std::regex("time=\"[0-9.]+\""), "time=\"T\"");
    return std::regex_replace(xml, std::regex("timestamp=\"[0-9T:-]{19}\" hostname=\"[^\" ]+\""),
                              "timestamp=\"S\" hostname=\"H\"");
}

/// A report of the one suite "project.wfp" as stableReport shows it; `counts` are the tests,
/// failures and errors as attributes.
std::string suiteReport(const std::string& counts, int skipped, const std::string& cases)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<testsuites name=\"wfbuild\" " + counts + " time=\"T\">\n"
           "  <testsuite name=\"project.wfp\" " + counts + " skipped=\"" + std::to_string(skipped)
        + "\" time=\"T\" timestamp=\"S\" hostname=\"H\">\n" + cases + "  </testsuite>\n</testsuites>\n";
}

/// The build variable every report run sets, as the report lists it.
const std::string kProperties = "    <properties>\n      <property name=\"V\" value=\"a&quot;b\"/>\n    </properties>\n";

struct ReportCase {
    std::string name;
    std::string project;
    int status;
    /// The whole report as stableReport shows it.
    std::string report;
    /// The console whole, where given.
    std::string console = {};
};
WF_ROW_PRINTER(ReportCase)

class WfbuildReport : public Wfbuild, public ::testing::WithParamInterface<ReportCase> {};

TEST_P(WfbuildReport, TellsEveryCaseApartAndMatchesTheSchema)
{
    const ReportCase& c = GetParam();
    dir.write("ok.txt", "hello\n");
    dir.write("bad.txt", "<tag> & \x01 \x1B[1;31merror:\x1B[0m \xE9t\xC3\xA9\n");
    std::filesystem::create_directories(dir.file("reports"));
    const std::string report = dir.write("reports/junit.xml", "the report of an earlier run");
    const ProgramRun run = wfbuild({"run", writeProject(c.project), "--junit", report, "--set", "V=a\"b"});
    EXPECT_EQ(run.status, c.status) << run.err;
    EXPECT_EQ(stableReport(report), expand(c.report));
    if (!c.console.empty()) {
        EXPECT_EQ(run.out, c.console);
    }

    if (std::string(XMLLINT_PATH).empty())
        GTEST_SKIP() << "xmllint is not installed (bash scripts/setup.sh installs it)";
    ProgramRequest lint;
    lint.program = XMLLINT_PATH;
    lint.arguments = {"--noout", "--schema", JUNIT_SCHEMA, report};
    const ProgramRun linted = wftest::runProgram(lint);
    EXPECT_EQ(linted.status, 0) << linted.err;
}

INSTANTIATE_TEST_SUITE_P(
    Reports, WfbuildReport,
    ::testing::Values(
        ReportCase{"PassedSkippedAndFailed",
                   projectXml(testRun("ok &amp; fine", {{"Environment", "WF_FAKE_OUTPUT=@DIR@/ok.txt&#10;WF_FAKE_STDERR=note"}})
                              + testRun("off", {}, false)
                              + testRun("bad", {{"Environment", "WF_FAKE_OUTPUT=@DIR@/bad.txt&#10;WF_FAKE_EXIT=4&#10;"
                                                                "WF_FAKE_STDERR=make: *** [all] Error 1"}})
                              + testRun("after")),
                   1,
                   suiteReport("tests=\"4\" failures=\"1\" errors=\"0\"", 2, kProperties +
                   "    <testcase name=\"1 Test Run: ok &amp; fine\" classname=\"project.TEST_RUN\" time=\"T\">\n"
                   "      <system-out>Command Line: \nhello\nnote\n</system-out>\n"
                   "      <system-err>note\n</system-err>\n"
                   "    </testcase>\n"
                   "    <testcase name=\"2 Test Run: off\" classname=\"project.TEST_RUN\" time=\"T\">\n"
                   "      <skipped message=\"disabled\"/>\n"
                   "    </testcase>\n"
                   "    <testcase name=\"3 Test Run: bad\" classname=\"project.TEST_RUN\" time=\"T\">\n"
                   "      <failure message=\"exit code 4: make: *** [all] Error 1\" type=\"ActionFailed\">Command Line: \n"
                   "&lt;tag&gt; &amp;  error: ?t\xC3\xA9\n"
                   "make: *** [all] Error 1\n"
                   "Action Failed: the program ended with exit code 4.\n"
                   "</failure>\n"
                   "      <system-err>make: *** [all] Error 1\n</system-err>\n"
                   "    </testcase>\n"
                   "    <testcase name=\"4 Test Run: after\" classname=\"project.TEST_RUN\" time=\"T\">\n"
                   "      <skipped message=\"not run: an earlier action failed\"/>\n"
                   "    </testcase>\n"),
                   "[1/4] Test Run: ok & fine\nCommand Line: \nhello\n[2/4] Test Run: off (disabled)\n[3/4] Test Run: bad\n"
                   "Command Line: \n<tag> & \x01 \x1B[1;31merror:\x1B[0m \xE9t\xC3\xA9\n"
                   "Action Failed: the program ended with exit code 4.\n"},
        ReportCase{"AnActionThatCannotStartIsAnError",
                   projectXml(testRun("unprepared", {{"Mode", "tmFailCommandLine"}})), 1,
                   suiteReport("tests=\"1\" failures=\"0\" errors=\"1\"", 0, kProperties +
                   "    <testcase name=\"1 Test Run: unprepared\" classname=\"project.TEST_RUN\" time=\"T\">\n"
                   "      <error message=\"the command line could not be built: Error: The action was set to fail its "
                   "command line.\" type=\"ActionNotStarted\">Error: The action was set to fail its command line.\n"
                   "</error>\n"
                   "    </testcase>\n")},
        ReportCase{"AProjectThatCannotBeReadIsOneError", projectXml(action("TEST_NOPE", "x")), 2,
                   suiteReport("tests=\"1\" failures=\"0\" errors=\"1\"", 0,
                   "    <testcase name=\"0 Project\" classname=\"project.wfbuild\" time=\"T\">\n"
                   "      <error message=\"@DIR@/project.wfp:6:60: error: unknown action type &quot;TEST_NOPE&quot;\""
                   " type=\"ActionNotStarted\">@DIR@/project.wfp:6:60: error: unknown action type \"TEST_NOPE\"\n"
                   "the project \"@DIR@/project.wfp\" could not be read; nothing was done.\n"
                   "</error>\n"
                   "    </testcase>\n")}), wftest::byName);

// ---- Output as it happens: every line reaches the console and the log while the program still runs ----

TEST_F(Wfbuild, LinesBeforeAHangAreOnTheConsoleAndInTheLog)
{
    // Two lines 10 ms apart, then a hang; wfbuild is killed outright, so only what it had
    // already written can be seen.
    dir.write("two.txt", "x\ny\n");
    const std::string project = writeProject(projectXml(testRun(
        "hangs", {{"Environment", "WF_FAKE_OUTPUT=@DIR@/two.txt&#10;WF_FAKE_CHUNKS=2&#10;WF_FAKE_CHUNK_DELAY_MS=10&#10;"
                                  "WF_FAKE_SLEEP_MS=4000"}})));
    ProgramRequest request;
    request.signal = SIGKILL;
    request.signalAfterMs = 1500;
    const ProgramRun run = wfbuild({"run", project, "--log", dir.file("build.log")}, request);
    EXPECT_EQ(run.status, 128 + SIGKILL);
    EXPECT_EQ(run.out, "[1/1] Test Run: hangs\nCommand Line: \nx\ny\n");
    EXPECT_EQ(wftest::readFile(dir.file("build.log")), "Command Line: \nx\ny\n");
}

// ---- Interrupts: the program and what it started are gone, nothing further runs; a clean-up
// runs under its own time limit and a second interrupt ends it ----

struct InterruptCase {
    std::string name;
    int signal;
    /// The first clean-up action's program and arguments, a second one following; none: no clean-up.
    std::string program = {};
    std::string arguments = {};
    std::vector<std::string> options = {};
    /// What the report says of the second clean-up action.
    std::string second = {};
};
WF_ROW_PRINTER(InterruptCase)

class WfbuildInterrupt : public Wfbuild, public ::testing::WithParamInterface<InterruptCase> {};

TEST_P(WfbuildInterrupt, StopsTheRunningProgramTreeAndExits130)
{
    const InterruptCase& c = GetParam();
    const std::string pidFile = dir.file("child.pid");
    const std::string cleanup = c.program.empty() ? ""
        : testRun("undo", {{"Program", c.program}, {"Arguments", c.arguments}}) + testRun("tell", {{"Arguments", "%FAILURE%"}});
    const std::string project = writeProject(projectXml(
        testRun("long", {{"Environment", "WF_FAKE_CHILD_PIDFILE=@DIR@/child.pid&#10;WF_FAKE_SLEEP_MS=20000"}})
        + testRun("never"), "", "", cleanup));
    ProgramRequest request;
    request.signalWhenFileReady = pidFile;
    request.signal = c.signal;
    std::vector<std::string> arguments{"run", project, "--log", dir.file("build.log"), "--junit", dir.file("junit.xml")};
    arguments.insert(arguments.end(), c.options.begin(), c.options.end());
    const ProgramRun run = wfbuild(arguments, request);

    EXPECT_EQ(run.status, 130) << run.err;
    EXPECT_LT(run.elapsedMs, cleanup.empty() ? 2000 : 4000);
    const std::string log = wftest::readFile(dir.file("build.log"));
    const std::string report = wftest::readFile(dir.file("junit.xml"));
    EXPECT_NE(report.find("<failure message=\"interrupted\""), std::string::npos) << report;
    const int child = std::stoi(wftest::readFile(pidFile));
    EXPECT_TRUE(wftest::awaitProcessGone(child)) << "the program's child " << child << " still ran";
    if (cleanup.empty()) {
        EXPECT_EQ(programStarts(), 1u);
        EXPECT_EQ(log, "Command Line: \nAction Failed: the program was stopped on request.\n");
        EXPECT_EQ(run.err, "Interrupted: action 1 (Test Run: long) was stopped.\n");
    } else {
        EXPECT_NE(log.find("=== Clean-up (the build was interrupted at action 1; time limit "), std::string::npos) << log;
        EXPECT_NE(report.find("<testsuites name=\"wfbuild\" tests=\"4\""), std::string::npos) << report;
        EXPECT_NE(report.find("<testsuite name=\"project.wfp (clean-up)\" tests=\"2\""), std::string::npos) << report;
        EXPECT_NE(report.find(c.second), std::string::npos) << report;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Signals, WfbuildInterrupt,
    ::testing::Values(
        InterruptCase{"INT", SIGINT}, InterruptCase{"TERM", SIGTERM}, InterruptCase{"HUP", SIGHUP},
        InterruptCase{"CleanupRunsToItsEndWithinTheTimeLimit", SIGTERM, "/bin/sh", "-c true", {},
                      "<testcase name=\"2 Test Run: tell\" classname=\"project.TEST_RUN\" time=\""},
        InterruptCase{"CleanupIsStoppedWhenItsTimeLimitRunsOut", SIGTERM, "/bin/sh", "-c \"sleep 20\"", {"--cleanup-timeout", "1"},
                      "<skipped message=\"not run: the clean-up time limit ran out\"/>"},
        InterruptCase{"CleanupIsEndedAtOnceByASecondInterrupt", SIGTERM, "/bin/sh", "-c \"kill -TERM $PPID; sleep 20\"", {},
                      "<skipped message=\"not run: a second interrupt ended the clean-up\"/>"}), wftest::byName);

// ---- Signals that are no interrupt: the run goes on without its console or log, and
// nothing is left running ----

struct LostOutputCase {
    std::string name;
    bool closeStandardOutput;
    long fileSizeLimit;
    /// A line that standard error must hold.
    std::string errLine;
};
WF_ROW_PRINTER(LostOutputCase)

class WfbuildLostOutput : public Wfbuild, public ::testing::WithParamInterface<LostOutputCase> {};

TEST_P(WfbuildLostOutput, EndsWithoutBeingKilledAndStopsTheProgramTree)
{
    const LostOutputCase& c = GetParam();
    dir.write("out.txt", std::string(64 * 1024, 'x') + "\n");
    const std::string project = writeProject(projectXml(testRun(
        "noisy", {{"Environment", "WF_FAKE_OUTPUT=@DIR@/out.txt&#10;WF_FAKE_CHILD_PIDFILE=@DIR@/child.pid&#10;"
                                  "WF_FAKE_CHILD=detached&#10;WF_FAKE_SLEEP_MS=500"}})));
    ProgramRequest request;
    request.closeStandardOutput = c.closeStandardOutput;
    request.fileSizeLimit = c.fileSizeLimit;
    const ProgramRun run = wfbuild({"run", project, "--log", dir.file("build.log"), "--junit", dir.file("junit.xml")},
                                   request);

    EXPECT_GE(run.status, 0) << run.err;
    EXPECT_LT(run.status, 128) << "wfbuild was killed by signal " << run.status - 128;
    EXPECT_NE(run.err.find(c.errLine), std::string::npos) << run.err;
    // Under a file size limit the report, which carries the action's output, cannot be written either.
    if (c.fileSizeLimit == 0) {
        EXPECT_NE(wftest::readFile(dir.file("junit.xml")).find("<testcase name=\"1 Test Run: noisy\""), std::string::npos);
    }
    const int child = std::stoi(wftest::readFile(dir.file("child.pid")));
    EXPECT_TRUE(wftest::awaitProcessGone(child)) << "the program's child " << child << " still ran";
}

INSTANTIATE_TEST_SUITE_P(
    Signals, WfbuildLostOutput,
    ::testing::Values(LostOutputCase{"SIGPIPE", true, 0, "wfbuild: standard output could not be written"},
                      LostOutputCase{"SIGXFSZ", false, 16 * 1024, ""}), wftest::byName);

// ---- Commands as a user types them: status, what they print and the files they leave. A project
// with errors is named with line and column and stays as it was; the reader's other refusals
// are in the project tests and the reliability tables ----

const std::string kProject = "@DIR@/project.wfp";

const std::string kCanonical =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<wfproject version=\"1\" timeout=\"30\">\n"
    "  <variables>\n"
    "    <variable name=\"NAME\" type=\"string\" value=\"Zo\xC3\xAB &amp; &lt;co&gt;\"/>\n"
    "    <variable name=\"COUNT\" type=\"integer\" value=\"7\"/>\n"
    "  </variables>\n"
    "  <actions>\n"
    "    <action type=\"TEST_RUN\" description=\"\xE6\x97\xA5\xE6\x9C\xAC \xE2\x80\x94 nightly\" enabled=\"True\">\n"
    "      <property name=\"Program\">/bin/true</property>\n"
    "      <property name=\"Arguments\">a&#13;&#10;b&#13;c&#10;  d</property>\n"
    "      <property name=\"Environment\"/>\n"
    "      <property name=\"Mode\">tmFailCommandLine</property>\n"
    "    </action>\n"
    "    <action type=\"WF_WRITETEXTFILE\" description=\"\" enabled=\"False\">\n"
    "      <property name=\"FileName\">&lt;&amp;&gt;&quot;'</property>\n"
    "      <property name=\"Text\">tab\there</property>\n"
    "      <property name=\"Append\">True</property>\n"
    "    </action>\n"
    "  </actions>\n"
    "</wfproject>\n";

/// kCanonical with properties out of order, Booleans in any case and defaults omitted.
const std::string kLoose =
    "<wfproject version=\"1\" timeout=\"30\"><variables>"
    "<variable name=\"NAME\" value=\"Zo\xC3\xAB &amp; &lt;co>\"/><variable name=\"COUNT\" type=\"integer\" value=\"7\"/>"
    "</variables><actions>"
    "<action type=\"TEST_RUN\" description=\"\xE6\x97\xA5\xE6\x9C\xAC \xE2\x80\x94 nightly\">"
    "<property name=\"Mode\">tmFailCommandLine</property><property name=\"Program\">/bin/true</property>"
    "<property name=\"Arguments\">a&#13;&#10;b&#13;c&#10;  d</property></action>"
    "<action type=\"WF_WRITETEXTFILE\" enabled=\"false\"><property name=\"Append\">tRUE</property>"
    "<property name=\"Text\">tab\there</property><property name=\"FileName\">&lt;&amp;>\"'</property></action>"
    "</actions></wfproject>";

/// Entity references the reader cannot resolve, and what every command that reads it says.
const std::string kEntities = wftest::replaceAll(projectXml(testRun("&desc;", {{"Arguments", "a &arg; b"}})), "<wfproject",
                                                 "<!DOCTYPE wfproject SYSTEM \"wf.dtd\">\n<wfproject");
const std::string kEntitiesRefused =
    kProject + ":7:42: error: the entity reference &desc; is not resolved (it would read as empty text); write its text "
    "instead\n" + kProject + ":8:36: error: the entity reference &arg; is not resolved (it would read as empty text); write "
    "its text instead\nwfbuild: the project \"" + kProject + "\" could not be read; nothing was done.\n";

/// What resaving would drop, and the warnings naming it.
const std::string kLossy =
    projectXml("    <!-- keep the nightly settings -->\n" + testRun("x", {{"Colour", "blue"}, {"Program", "/bin/true"}}));
const std::string kColourWarning =
    kProject + ":8:30: warning: action TEST_RUN does not persist a property \"Colour\"; ignored\n";

const std::string kDefaults = "Testing.Greeting=hello\nTesting.Verbose=False\nTesting.Level=lvLow\n";

struct CommandCase {
    std::string name;
    /// Run without the test package, as a user's first try is.
    bool bare = false;
    /// Run as installed (bin/wfbuild, the test package in lib/wrenfield/plugins), naming no package.
    bool installed = false;
    /// Files written first, then links (name, target) made, then files made read-only; @DIR@ is
    /// the test's folder, here and in every text below.
    std::map<std::string, std::string> files = {};
    std::map<std::string, std::string> links = {};
    std::vector<std::string> readOnly = {};
    std::vector<std::string> arguments = {};
    int status = 0;
    /// Standard output whole, or with a leading '*' how it starts.
    std::string out = {};
    std::string err = {};
    /// Files afterwards (nullopt: absent); every other file written first is as it was, and no program started.
    std::map<std::string, std::optional<std::string>> after = {};
};
WF_ROW_PRINTER(CommandCase)

class WfbuildCommand : public Wfbuild, public ::testing::WithParamInterface<CommandCase> {};

TEST_P(WfbuildCommand, StatusOutputAndFiles)
{
    const CommandCase& c = GetParam();
    namespace fs = std::filesystem;
    for (const auto& [name, bytes] : c.files)
        writeProject(bytes, name);
    for (const auto& [link, target] : c.links) {
        fs::create_directories(fs::path(dir.file(link)).parent_path());
        fs::create_symlink(expand(target), dir.file(link));
    }
    for (const auto& name : c.readOnly)
        fs::permissions(dir.file(name), fs::perms::owner_write | fs::perms::group_write, fs::perm_options::remove);
    ProgramRequest request;
    request.program = c.installed ? WFBUILD_LAYOUT_PATH : WFBUILD_PATH;
    for (const auto& argument : c.arguments)
        request.arguments.push_back(expand(argument));
    const ProgramRun run = c.bare || c.installed ? wftest::runProgram(request) : wfbuild(request.arguments);

    EXPECT_EQ(run.status, c.status) << run.err;
    if (c.out.rfind('*', 0) == 0) {
        EXPECT_EQ(run.out.rfind(c.out.substr(1), 0), 0u) << run.out;
    } else {
        EXPECT_EQ(run.out, expand(c.out));
    }
    EXPECT_EQ(run.err, expand(c.err));
    std::map<std::string, std::optional<std::string>> files(c.files.begin(), c.files.end());
    for (const auto& [name, bytes] : c.after)
        files[name] = bytes;
    for (const auto& [name, bytes] : files) {
        EXPECT_EQ(fs::exists(dir.file(name)), bytes.has_value()) << name;
        if (bytes) {
            EXPECT_EQ(wftest::readFile(dir.file(name)), expand(*bytes)) << name;
        }
    }
    for (const auto& [link, target] : c.links)
        EXPECT_TRUE(fs::is_symlink(dir.file(link))) << link << " was replaced by a file";
    EXPECT_EQ(programStarts(), 0u);
}

INSTANTIATE_TEST_SUITE_P(
    Commands, WfbuildCommand,
    ::testing::Values(
        CommandCase{.name = "NoCommand", .bare = true, .status = 2, .err = "wfbuild: no command given\nTry 'wfbuild --help'.\n"},
        CommandCase{.name = "UnknownOption", .bare = true, .arguments = {"run", "p.wfp", "--fast"}, .status = 2,
                    .err = "wfbuild: unknown option \"--fast\" for \"run\"\nTry 'wfbuild help run'.\n"},
        CommandCase{.name = "PluginWithAMissingSymbol", .bare = true, .arguments = {"actions", "--plugin", WF_RUNNER_BROKEN_PLUGIN},
                    .status = 2,
                    .err = "wfbuild: cannot load " WF_RUNNER_BROKEN_PLUGIN ": Cannot load library " WF_RUNNER_BROKEN_PLUGIN
                           ": (" WF_RUNNER_BROKEN_PLUGIN ": undefined symbol: _Z25functionNoRuntimeProvidesv)\n"},
        CommandCase{.name = "MissingPlugin", .bare = true, .arguments = {"actions", "--plugin", "@DIR@/none.so"}, .status = 2,
                    .err = "wfbuild: cannot load @DIR@/none.so: no such file\n"},
        CommandCase{.name = "PluginDescriptionWithControlCharacters", .bare = true,
                    .arguments = {"plugins", "--no-default-plugins", "--plugin", WF_FAULTY_PLUGIN_PATH},
                    .out = WF_FAULTY_PLUGIN_PATH "\tFaulty\\tpackage\\nsecond line \\x1b[31mred\\\\\n"},
        CommandCase{.name = "Help", .bare = true, .arguments = {"--help"}, .out = "*Usage: wfbuild COMMAND [OPTIONS]\n"},
        CommandCase{.name = "HelpOfNothing", .bare = true, .arguments = {"help", "fly"}, .status = 2,
                    .err = "wfbuild: no help on \"fly\": it is not a command\nTry 'wfbuild --help'.\n"},
        CommandCase{.name = "Version", .bare = true, .arguments = {"--version"}, .out = "wfbuild " WF_VERSION "\n"},
        CommandCase{.name = "ValidateReportsEveryInvalidEnabledAction",
                    .files = {{"project.wfp", projectXml(testRun("good") + testRun("bad", {{"Mode", "tmFailValidation"}, {"Program", ""}})
                                                         + testRun("off", {{"Mode", "tmFailValidation"}}, false)
                                                         + action("WF_SETVARIABLE", "") + testRun("unprepared", {{"Mode", "tmFailCommandLine"}}))}},
                    .arguments = {"validate", kProject}, .status = 1,
                    .out = "Action 2 (Test Run: bad): Program: No program has been given.\n"
                           "Action 2 (Test Run: bad): Test Options: The action was set to fail validation.\n"
                           "Action 4 (Set Variable): Variable: No variable name has been given.\n"
                           "Action 5 (Test Run: unprepared): Command line: the command line could not be built\n"
                           "Action 5 (Test Run: unprepared): Command line: Error: The action was set to fail its command line.\n"
                           + kProject + ": 3 of 4 enabled actions are not valid.\n"},
        CommandCase{.name = "ValidateOfAValidProject", .files = {{"project.wfp", projectXml(testRun("good"))}},
                    .arguments = {"validate", kProject}, .out = kProject + ": all 1 enabled actions are valid.\n"},
        CommandCase{.name = "RunRefusesUnresolvedEntities", .files = {{"project.wfp", kEntities}}, .arguments = {"run", kProject},
                    .status = 2, .err = kEntitiesRefused},
        CommandCase{.name = "WhatResaveWouldDropIsAWarningForRun", .files = {{"project.wfp", kLossy}},
                    .arguments = {"run", kProject}, .out = "[1/1] Test Run: x\nCommand Line: \nBuild succeeded: 1 action run.\n",
                    .err = kColourWarning},
        CommandCase{.name = "ResaveKeepsAFileItWouldLoseSomethingOf", .files = {{"project.wfp", kLossy}},
                    .arguments = {"resave", kProject}, .status = 2,
                    .err = kColourWarning + kProject + ":6:38: warning: the XML comment <!-- keep the nightly settings --> is "
                           "not kept on saving\nwfbuild: resaving would lose what the warnings above name; nothing was "
                           "written (--drop-unknown accepts the loss).\n"},
        CommandCase{.name = "ResaveDropsWhatItIsToldItMay", .files = {{"project.wfp", kLossy}},
                    .arguments = {"resave", kProject, "--drop-unknown"}, .out = "Wrote " + kProject + "\n",
                    .err = kColourWarning + kProject + ":6:38: warning: the XML comment <!-- keep the nightly settings --> is "
                           "not kept on saving\n",
                    .after = {{"project.wfp", "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<wfproject version=\"1\">\n"
                                              "  <variables/>\n  <actions>\n    <action type=\"TEST_RUN\" description=\"x\" "
                                              "enabled=\"True\">\n      <property name=\"Program\">/bin/true</property>\n"
                                              "      <property name=\"Arguments\"/>\n      <property name=\"Environment\"/>\n"
                                              "      <property name=\"Mode\">tmRun</property>\n    </action>\n  </actions>\n"
                                              "</wfproject>\n"}}},
        CommandCase{.name = "ResaveToOutputWritesTheCanonicalFormAndLeavesTheSource", .files = {{"loose.wfp", kLoose}},
                    .arguments = {"resave", "@DIR@/loose.wfp", "--output", "@DIR@/out.wfp"}, .out = "Wrote @DIR@/out.wfp\n",
                    .after = {{"out.wfp", kCanonical}}},
        CommandCase{.name = "ResaveThatCannotWriteLeavesNoTrace", .files = {{"project.wfp", kCanonical}},
                    .arguments = {"resave", kProject, "--output", "@DIR@/missing/folder/out.wfp"}, .status = 2,
                    .err = "wfbuild: cannot write \"@DIR@/missing/folder/out.wfp\": cannot create a temporary file beside it: No "
                           "such file or directory\n",
                    .after = {{"missing", std::nullopt}}},
        CommandCase{.name = "ResaveWritesThroughALink", .files = {{"real.wfp", kLoose}}, .links = {{"link.wfp", "real.wfp"}},
                    .arguments = {"resave", "@DIR@/link.wfp"}, .out = "Wrote @DIR@/link.wfp\n", .after = {{"real.wfp", kCanonical}}},
        CommandCase{.name = "ResaveRefusesAReadOnlyFile", .files = {{"project.wfp", kLoose}}, .readOnly = {"project.wfp"},
                    .arguments = {"resave", kProject}, .status = 2,
                    .err = "wfbuild: cannot write \"" + kProject + "\": the file is read-only: Permission denied\n"},
        CommandCase{.name = "LogThatLinksToTheProject", .files = {{"project.wfp", projectXml(testRun("a"))}},
                    .links = {{"alias.wfp", kProject}}, .arguments = {"run", kProject, "--log", "@DIR@/alias.wfp"}, .status = 2,
                    .err = "wfbuild: --log @DIR@/alias.wfp names the project itself; nothing was run.\n"},
        CommandCase{.name = "JUnitThatIsTheProject", .files = {{"project.wfp", projectXml(testRun("a"))}},
                    .arguments = {"run", kProject, "--junit", kProject}, .status = 2,
                    .err = "wfbuild: --junit " + kProject + " names the project itself; nothing was run.\n"},
        CommandCase{.name = "OptionsShowReadsTheStoreThroughTheOptions",
                    .files = {{"config/options.ini", "[Testing]\nGreeting=good day = fine\nVerbose=true\nLevel=lvHigh\n"}},
                    .arguments = {"options", "show"},
                    .out = "Testing.Greeting=good day = fine\nTesting.Verbose=True\nTesting.Level=lvHigh\n"},
        CommandCase{.name = "PluginsInTheInstalledFolderAreLoadedWithoutBeingNamed", .installed = true, .arguments = {"actions"},
                    .out = "TEST_RUN\tTest Run\tTesting\n"},
        // A package named twice is loaded and listed once.
        CommandCase{.name = "PluginsListsEachLoadedPackageWithItsFileAndDescription",
                    .arguments = {"plugins", "--plugin", WF_RUNNER_TEST_PLUGIN},
                    .out = WF_RUNNER_TEST_PLUGIN "\tWrenfield 3.x test Support\n" WF_BASICACTIONS_PLUGIN
                           "\tWrenfield basic actions: log a message, set a variable, write a text file, run a program\n"},
        CommandCase{.name = "ConfigDirWinsOverTheEnvironment", .files = {{"config/options.ini", "[Testing]\nLevel=lvHigh\n"}},
                    .arguments = {"options", "--config-dir", "@DIR@/other"}, .out = kDefaults},
        // Written by the options themselves: every key they keep, in their own form.
        CommandCase{.name = "OptionsSetWritesEveryKeyInTheOptionsOwnForm",
                    .files = {{"config/options.ini", "[Testing]\nGreeting=good day = fine\n"}},
                    .arguments = {"options", "set", "Testing.Verbose", "true"},
                    .out = "Set Testing.Verbose in @DIR@/config/options.ini\n",
                    .after = {{"config/options.ini", "[Testing]\nGreeting=good day = fine\nVerbose=True\nLevel=lvLow\n"}}},
        CommandCase{.name = "OptionsSetWritesThroughALinkKeepingWhatElseItHolds",
                    .files = {{"store/options.ini", "; mine\n[Testing]\nLevel=lvLow\n"}},
                    .links = {{"config/options.ini", "@DIR@/store/options.ini"}},
                    .arguments = {"options", "set", "Testing.Level", "lvHigh"},
                    .out = "Set Testing.Level in @DIR@/config/options.ini\n",
                    .after = {{"store/options.ini", "; mine\n[Testing]\nLevel=lvHigh\nGreeting=hello\nVerbose=False\n"}}},
        CommandCase{.name = "OptionsSetRefusesAKeyNoOptionHasEvenWithAnEqualsSign",
                    .arguments = {"options", "set", "Testing.Le=vel", "v"},
                    .status = 2,
                    .err = "wfbuild: there is no option Testing.Le=vel (the options are Testing.Greeting, Testing.Verbose, "
                           "Testing.Level, as `wfbuild options show` prints them); nothing was written.\n",
                    .after = {{"config/options.ini", std::nullopt}}},
        CommandCase{.name = "OptionsSetRefusesASectionNoPluginHas", .arguments = {"options", "set", "Nobody.Colour", "blue"},
                    .status = 2,
                    .err = "wfbuild: there is no option Nobody.Colour: no loaded plug-in has options named Nobody (options of: "
                           "Testing); nothing was written.\n",
                    .after = {{"config/options.ini", std::nullopt}}},
        CommandCase{.name = "OptionsSetRefusesAValueTheOptionDoesNotTake", .arguments = {"options", "set", "Testing.Level", "lvNone"},
                    .status = 2,
                    .err = "wfbuild: Testing.Level: \"lvNone\" is not a member of property \"Level\" (expected one of lvLow, "
                           "lvMedium, lvHigh); nothing was written.\n",
                    .after = {{"config/options.ini", std::nullopt}}}),
    wftest::byName);

struct WriteFaultCase {
    const char* name;
    /// Extra arguments after "run PROJECT"; @DIR@ is the test's folder.
    std::vector<std::string> arguments;
    long long fileSizeLimit;
    const char* stdoutFile;
    const char* reason;
    /// The failed write stops the run before the next action starts.
    bool stopsAtOnce;
};
WF_ROW_PRINTER(WriteFaultCase)

class WfbuildWriteFaults : public Wfbuild, public ::testing::WithParamInterface<WriteFaultCase> {};

TEST_P(WfbuildWriteFaults, AFailedWriteIsReportedAndEndsTheRunWithExit2)
{
    const auto& row = GetParam();
    std::string listing;
    for (int i = 0; i < 400; ++i)
        listing += "output line " + std::to_string(i) + " of a listing that fills the log\n";
    dir.write("out.txt", listing);
    const std::string project = writeProject(projectXml(
        testRun("loud", {{"Environment", "WF_FAKE_OUTPUT=@DIR@/out.txt"}}) + testRun("second") + testRun("third")));
    std::vector<std::string> arguments{"run", project};
    for (const auto& argument : row.arguments)
        arguments.push_back(expand(argument));
    ProgramRequest request;
    request.fileSizeLimit = row.fileSizeLimit;
    request.stdoutFile = row.stdoutFile;
    const ProgramRun run = wfbuild(arguments, request);
    EXPECT_EQ(run.status, 2) << run.err;
    EXPECT_NE(run.err.find(expand(row.reason)), std::string::npos) << run.err;
    EXPECT_EQ(run.out.find("succeeded"), std::string::npos) << "nothing claims success:\n" << run.out;
    if (row.stopsAtOnce) {
        EXPECT_EQ(programStarts(), 1u) << "the write fails during the first action; no further action starts";
    }
}

INSTANTIATE_TEST_SUITE_P(Wfbuild, WfbuildWriteFaults,
    ::testing::Values(
        WriteFaultCase{"LogOnAFullDisk", {"--log", "@DIR@/build.log"}, 4096, "",
                       "wfbuild: cannot write the log file \"@DIR@/build.log\": File too large", true},
        WriteFaultCase{"JUnitOnAFullDisk", {"--junit", "@DIR@/junit.xml"}, 256, "",
                       "wfbuild: cannot write the JUnit report: cannot write", false},
        WriteFaultCase{"ConsoleOnAFullDevice", {}, 0, "/dev/full", "wfbuild: cannot write to standard output", true}),
    wftest::byName);

TEST_F(Wfbuild, WithStandardOutputClosedTheLogIsWrittenOnceAndNoProgramInheritsIt)
{
    dir.write("out.txt", "from the program\n");
    const std::string project = writeProject(projectXml(testRun(
        "a", {{"Environment", "WF_FAKE_OUTPUT=@DIR@/out.txt&#10;WF_FAKE_LIST_FDS=@DIR@/fds.txt"}})));
    // The test runner may itself leak descriptors into wfbuild; only what wfbuild adds counts.
    ASSERT_EQ(wfbuild({"run", project}).status, 0);
    const std::string inheritedWithoutLog = wftest::readFile(dir.file("fds.txt"));
    ProgramRequest request;
    request.closeStdout = true;
    const ProgramRun run = wfbuild({"run", project, "--log", dir.file("build.log")}, request);
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(wftest::readFile(dir.file("build.log")), "Command Line: \nfrom the program\n");
    EXPECT_EQ(wftest::readFile(dir.file("fds.txt")), inheritedWithoutLog) << "descriptors a program inherited";
}
} // namespace
