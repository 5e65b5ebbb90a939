// The query session against one process per query: the same answers byte for byte, on the
// simulator and on scripted stand-ins that hang, die or lack the interactive mode.
#include "environment/WFClearCaseOptions.h"
#include "RowName.h"
#include "environment/WFClearCaseQuerySession.h"
#include "environment/WFClearCaseUtils.h"
#include "WFBusy.h"
#include "WFInteractiveProcess.h"
#include "WFServices.h"
#include "ClearCaseWorld.h"
#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

void useCleartool(const std::string& path)
{
    WFOptionsServices().Clear();
    RegisterOptions();
    ClearCaseOptions()->SetClearToolPath(path);
}

/// Design time on and a clean session for each test; everything back to run time after.
class SessionTest : public testing::Test {
protected:
    void SetUp() override
    {
        ClearCaseQuerySession().Reset();
        SetClearCaseDesignTime(true);
    }
    void TearDown() override
    {
        SetClearCaseDesignTime(false);
        ClearCaseQuerySession().Reset();
        ClearCaseQuerySession().SetSilenceLimit(5000);
        ClearCaseQuerySession().SetTimeLimit(30000);
        ClearCaseQuerySession().SetReplyLimit(64 * 1024 * 1024);
        WFOptionsServices().Clear();
    }

    /// The query run once in a process of its own and once through the session.
    static std::pair<std::string, std::string> bothWays(const std::function<std::string()>& query)
    {
        SetClearCaseDesignTime(false);
        const std::string alone = query();
        SetClearCaseDesignTime(true);
        return {alone, query()};
    }
};

std::string reportLine(int number)
{
    return "Command " + std::to_string(number) + " returned status 0";
}

/// Every report from 1 to 20 as listed names, each line ended by `end`.
std::string reportNames(const std::string& end)
{
    std::string names;
    for (int number = 1; number <= 20; ++number)
        names += reportLine(number) + end;
    return names;
}

// --- The interactive line ---------------------------------------------------------------

struct LineCase {
    std::string name;
    std::vector<std::string> arguments;
    std::optional<std::string> line;
};

WF_ROW_PRINTER(LineCase)

class InteractiveLineTest : public testing::TestWithParam<LineCase> {};

TEST_P(InteractiveLineTest, QuotesWhatNeedsItAndRefusesWhatCannotPass)
{
    EXPECT_EQ(interactiveCommandLine(GetParam().arguments), GetParam().line);
}

INSTANTIATE_TEST_SUITE_P(
    Words, InteractiveLineTest,
    testing::Values(LineCase{"PlainWords", {"lstype", "-short", "-kind", "lbtype", "-invob", "/vobs/a"},
                             "lstype -short -kind lbtype -invob /vobs/a"},
                    LineCase{"BlankGetsDoubleQuotes", {"lshistory", "-short", "src/my file.c"},
                             "lshistory -short \"src/my file.c\""},
                    LineCase{"EmptyWordKept", {"lshistory", "-short", ""}, "lshistory -short \"\""},
                    LineCase{"DoubleQuoteInsideSingle", {"describe", "a\"b"}, "describe 'a\"b'"},
                    LineCase{"SingleQuoteInsideDouble", {"describe", "it's"}, "describe \"it's\""},
                    LineCase{"BothQuotesRefused", {"describe", "a'b\"c"}, std::nullopt},
                    LineCase{"LineFeedRefused", {"describe", "a\nb"}, std::nullopt},
                    LineCase{"TrailingBackslashRefused", {"cd", "C:\\views\\"}, std::nullopt}), wftest::byName);

// --- The status report ------------------------------------------------------------------

struct ReportCase {
    std::string name;
    std::string output;
    int number;
    /// Set: the report that ends the output, followed by the prompt or not; else the first one.
    std::optional<bool> finalPrompted;
    std::optional<std::size_t> begin;
    int status = 0;
};

WF_ROW_PRINTER(ReportCase)

class StatusReportTest : public testing::TestWithParam<ReportCase> {};

TEST_P(StatusReportTest, FindsOnlyTheReportOfItsNumber)
{
    const ReportCase& row = GetParam();
    const auto report = row.finalPrompted ? findFinalReport(row.output, row.number, *row.finalPrompted)
                                          : findStatusReport(row.output, row.number);
    ASSERT_EQ(report.has_value(), row.begin.has_value());
    if (!report)
        return;
    EXPECT_EQ(report->begin, *row.begin);
    EXPECT_EQ(report->status, row.status);
    EXPECT_EQ(row.output[report->end - 1], '\n');
}

INSTANTIATE_TEST_SUITE_P(
    Outputs, StatusReportTest,
    testing::Values(ReportCase{"AfterOutputWithoutBreak", "a\nbCommand 12 returned status 1\ncleartool> ", 12, {}, 3, 1},
                    ReportCase{"CarriageReturnEnding", "Command 1 returned status 0\r\n", 1, {}, 0, 0},
                    ReportCase{"LineNotYetEnded", "Command 3 returned status 0", 3, {}, std::nullopt},
                    ReportCase{"LookAlikeSkipped", "Command 4 returned status x\nCommand 4 returned status 2\n", 4, {}, 28, 2},
                    ReportCase{"NoReport", "Command 4 was fine\n", 4, {}, std::nullopt},
                    ReportCase{"StatusNotYetArrived", "a\nCommand 3 returned status ", 3, {}, std::nullopt},
                    ReportCase{"StatusFollowedByMoreIsNoReport", "Command 2 returned status 0x\n", 2, {}, std::nullopt},
                    ReportCase{"FinalAfterListedLookAlikes", "Command 2 returned status 0\nx\nCommand 2 returned status 0\ncleartool> ", 2, true, 30, 0},
                    ReportCase{"FinalNeedsThePrompt", "x\nCommand 2 returned status 0\n", 2, true, std::nullopt},
                    ReportCase{"FinalWithoutPromptWhenNoneIsPrinted", "x\nCommand 2 returned status 0\n", 2, false, 2, 0},
                    ReportCase{"FinalOfAnotherNumber", "Command 12 returned status 0\ncleartool> ", 2, true, std::nullopt},
                    ReportCase{"FinalNegativeAfterOutputWithoutBreak", "xCommand 2 returned status -1\r\ncleartool> ", 2, true, 1, -1},
                    ReportCase{"FinalOfNothing", "", 2, false, std::nullopt},
                    ReportCase{"FinalOfAnEmptyLine", "\n", 2, false, std::nullopt},
                    ReportCase{"FinalOfDigitsAlone", "12\n", 2, false, std::nullopt},
                    ReportCase{"FinalStatusOfMoreThanTenDigits", "Command 2 returned status 12345678901\n", 2, false, std::nullopt}),
    wftest::byName);

// --- Every query on a populated simulator store -----------------------------------------

/// The shared world (e2e::ClearCaseWorld: VOBs /vobs/main and /vobs/pvob, a plain view
/// views/setup and a UCM view views/release_dev), with labels (one locked), an attribute type, an
/// element with a blank in its name and two more activities.
class SimulatorStore : public SessionTest {
protected:
    static void SetUpTestSuite()
    {
        s_world = std::make_unique<e2e::ClearCaseWorld>();
        s_home = std::make_unique<wftest::ScopedEnv>("CCSIM_HOME", s_world->dir() + "/store");
        s_now = std::make_unique<wftest::ScopedEnv>("CCSIM_NOW", "2013-03-12T10:22:31");
        const e2e::ClearCaseWorld& world = *s_world;
        world.write("setup:vobs/main/src/my file.c", "x\n");
        world.write("setup:vobs/main/it's \"q\"/a.c", "x\n");
        world.mustCleartool({"checkout", "-nc", "."}, "setup:vobs/main/src");
        world.mustCleartool({"mkelem", "-nc", "-ci", "my file.c"}, "setup:vobs/main/src");
        world.mustCleartool({"checkin", "-nc", "."}, "setup:vobs/main/src");
        world.mustCleartool({"mklbtype", "-nc", "REL1@/vobs/main", "REL2@/vobs/main"}, "setup:vobs/main");
        world.mustCleartool({"lock", "-nc", "lbtype:REL2@/vobs/main"}, "setup:vobs/main");
        world.mustCleartool({"mklabel", "-nc", "REL1", "src/main.c"}, "setup:vobs/main");
        world.mustCleartool({"mkattype", "-nc", "-vtype", "integer", "BuildNo@/vobs/main"}, "setup:vobs/main");
        world.mustCleartool({"mkactivity", "-nc", "-headline", "Fix build", "fix_1"}, "vobs/main");
        world.mustCleartool({"mkactivity", "-nc", "-headline", "Other", "add_2"}, "vobs/main");
        // Listed names that are status reports; the one a first query waits for is a folder.
        for (int number = 1; number <= 20; ++number)
            world.write("setup:vobs/main/reports/" + reportLine(number) + (number == 2 ? "/" + reportLine(4) : ""), "");
    }
    static void TearDownTestSuite()
    {
        s_now.reset();
        s_home.reset();
        s_world.reset();
    }
    void SetUp() override
    {
        SessionTest::SetUp();
        useCleartool(e2e::cleartoolPath());
    }

    static inline std::unique_ptr<e2e::ClearCaseWorld> s_world;
    static inline std::unique_ptr<wftest::ScopedEnv> s_home;
    static inline std::unique_ptr<wftest::ScopedEnv> s_now;
};

struct StoreQuery {
    std::string name;
    /// Given the store's folder.
    std::function<std::string(const std::string& root)> query;
    bool empty = false;
};

WF_ROW_PRINTER(StoreQuery)

const std::vector<StoreQuery>& storeQueries()
{
    static const std::vector<StoreQuery> rows = {
        {"LabelTypesLockedOneStripped", [](const std::string&) { return CCGetTypeNames("lbtype", "/vobs/main"); }},
        {"KindVob", [](const std::string&) { return CCGetTypeNames("vob", ""); }},
        {"KindActivity", [](const std::string&) { return CCGetTypeNames("activity", "/vobs/pvob"); }},
        {"KindComponent", [](const std::string&) { return CCGetTypeNames("component", "/vobs/pvob"); }},
        {"KindFolder", [](const std::string&) { return CCGetTypeNames("folder", "/vobs/pvob"); }},
        {"KindStream", [](const std::string&) { return CCGetTypeNames("stream", "/vobs/pvob"); }},
        {"UnknownKind", [](const std::string&) { return CCGetTypeNames("bogus", "/vobs/pvob"); }, true},
        {"AllLabelTypes", [](const std::string&) { return CCGetAllTypeNames("lbtype"); }},
        {"ActivitiesOfTheView", [](const std::string& root) { return CCGetUCMActivities(root + "/views/release_dev/vobs/main"); }},
        {"ActivitiesOfAViewWithoutStream", [](const std::string& root) { return CCGetUCMActivities(root + "/views/setup"); }, true},
        {"ComponentsForView", [](const std::string& root) { return CCGetUCMComponentsForView(root + "/views/release_dev"); }},
        {"AllComponents", [](const std::string&) { return CCGetAllUCMComponents(); }},
        {"StoragePools", [](const std::string&) { return CCGetStoragePoolsForVOB("/vobs/main"); }},
        {"History", [](const std::string& root) { return CCGetHistory("src/main.c", root + "/views/setup/vobs/main"); }},
        {"HistoryOfANameWithABlank",
         [](const std::string& root) { return CCGetHistory("src/my file.c", root + "/views/setup/vobs/main"); }},
        {"HistoryOfNoElement", [](const std::string& root) { return CCGetHistory("nothing.c", root + "/views/setup"); }, true},
        {"LsOfTheView", [](const std::string& root) { return CCGetLS(root + "/views/setup/vobs/main"); }},
        {"LsOfNamesThatAreReports", [](const std::string& root) { return CCGetLS(root + "/views/setup/vobs/main/reports"); }},
        {"LsOfAMissingFolder", [](const std::string& root) { return CCGetLS(root + "/no such folder"); }, true},
        {"Describe", [](const std::string&) { return CCDescribeObject("lbtype:REL1@/vobs/main"); }},
        {"DescribeFails", [](const std::string&) { return CCDescribeObject("lbtype:NOPE@/vobs/main"); }, true},
        {"DescribeWithALineBreakRunsAlone",
         [](const std::string&) { return CCDescribeObject("\"lbtype:REL1\n@/vobs/main\""); }, true},
        {"AttributeValueType", [](const std::string&) { return CCGetAttributeType("BuildNo@/vobs/main"); }},
        {"TypesOfAMissingVOB", [](const std::string&) { return CCGetTypeNames("lbtype", "/vobs/none"); }, true},
        {"UnknownSubCommand", [](const std::string&) { return CCGetCleartoolOutput("frobnicate", "", "", false); }, true},
        {"ConfigSpecInTheView", [](const std::string& root) { return CCGetCleartoolOutput("catcs", "", root + "/views/setup", false); }},
        {"RelativeFolder", [](const std::string&) { return CCGetCleartoolOutput("pwv", "-short", "views/setup", false); }},
        {"NoSubCommandRunsAlone", [](const std::string&) { return CCGetCleartoolOutput("", "", "", false); }},
        {"LsOfAFolderNoLineCanNameRunsAlone",
         [](const std::string& root) { return CCGetLS(root + "/views/setup/vobs/main/it's \"q\""); }},
    };
    return rows;
}

class SimulatorQueryTest : public SimulatorStore, public testing::WithParamInterface<StoreQuery> {};

TEST_P(SimulatorQueryTest, SessionAnswersAsOneProcessPerQuery)
{
    const StoreQuery& row = GetParam();
    const std::string root = s_world->dir();
    // The relative-folder row resolves against the designer's own folder, as a process would.
    const fs::path previous = fs::current_path();
    fs::current_path(root);
    const auto [alone, session] = bothWays([&] { return row.query(root); });
    fs::current_path(previous);
    EXPECT_EQ(session, alone);
    EXPECT_EQ(alone.empty(), row.empty) << alone;
}

INSTANTIATE_TEST_SUITE_P(EveryQuery, SimulatorQueryTest, testing::ValuesIn(storeQueries()), wftest::byName);

TEST_F(SimulatorStore, OneSessionServesEveryQuery)
{
    const std::string root = s_world->dir();
    std::vector<std::string> alone;
    SetClearCaseDesignTime(false);
    for (const auto& row : storeQueries())
        alone.push_back(row.query(root));
    SetClearCaseDesignTime(true);
    for (std::size_t i = 0; i < storeQueries().size(); ++i) {
        EXPECT_EQ(storeQueries()[i].query(root), alone[i]) << storeQueries()[i].name;
        EXPECT_EQ(ClearCaseQuerySession().GetStarts(), 1) << storeQueries()[i].name;
    }
}

// --- Stand-ins that misbehave -----------------------------------------------------------

/// A cleartool stand-in script (scripted_cleartool.sh). One process: prints FAKE_OUT's text (a printf format; each "|"
/// a pause, so that the reader gets it in pieces) and exits with FAKE_STATUS. With -status it
/// answers every line as the interactive mode does, unless the file "mode" beside it says:
/// "hang" (stops answering sub-commands), "mute" (never answers), "die" (exits in the middle
/// of a sub-command), "plain" (has no interactive mode), "trickle" (a line every 0.1 s, no end),
/// "flood" (megabytes without a line break).
class ScriptedCleartool : public SessionTest {
protected:
    void SetUp() override
    {
        SessionTest::SetUp();
        m_program = m_temp.file("bin/cleartool");
        fs::create_directories(m_temp.file("bin"));
        fs::copy_file(SCRIPTED_CLEARTOOL, m_program);
        fs::permissions(m_program, fs::perms::owner_all);
        useCleartool(m_program);
    }

    void setMode(const std::string& mode) { m_temp.write("bin/mode", mode); }
    int count(const char* file) const
    {
        std::ifstream in(m_temp.file(std::string("bin/") + file));
        int lines = 0;
        for (std::string line; std::getline(in, line);)
            ++lines;
        return lines;
    }

    wftest::TempDir m_temp;
    std::string m_program;
};

struct OutputCase {
    std::string name;
    std::string format;
    int status = 0;
    std::string expected;
};

WF_ROW_PRINTER(OutputCase)

class ScriptedOutputTest : public ScriptedCleartool, public testing::WithParamInterface<OutputCase> {};

TEST_P(ScriptedOutputTest, SameLinesAsOneProcess)
{
    const OutputCase& row = GetParam();
    wftest::ScopedEnv out("FAKE_OUT", row.format);
    wftest::ScopedEnv status("FAKE_STATUS", std::to_string(row.status));
    const auto query = [] { return CCGetCleartoolOutput("lsvob", "-short", "", false); };
    const auto [alone, session] = bothWays(query);
    EXPECT_EQ(alone, row.expected);
    EXPECT_EQ(session, alone);
    EXPECT_EQ(query(), alone) << "the next query of the same session";
    EXPECT_EQ(count("starts"), 1);
    // A failure reported by the session is asked again alone, for cleartool's reason.
    EXPECT_EQ(count("alone"), row.status == 0 ? 1 : 3);
}

INSTANTIATE_TEST_SUITE_P(
    Outputs, ScriptedOutputTest,
    testing::Values(OutputCase{"FinalLineBreak", "b\\na\\n", 0, "b\r\na\r\n"},
                    OutputCase{"NoFinalLineBreak", "b\\na", 0, "b\r\na\r\n"},
                    OutputCase{"NoOutput", "", 0, ""},
                    OutputCase{"PromptLookAlikeInsideKept", "x cleartool> y\\n", 0, "x cleartool> y\r\n"},
                    OutputCase{"FailingSubCommand", "b\\na\\n", 1, ""},
                    OutputCase{"ReportsListedFirst", reportNames("\\n") + "a\\n", 0, reportNames("\r\n") + "a\r\n"},
                    OutputCase{"ReportsListedInTheMiddle", "a\\n" + reportNames("\\n") + "b\\n", 0, "a\r\n" + reportNames("\r\n") + "b\r\n"},
                    OutputCase{"ReportsListedLast", "a\\n" + reportNames("\\n"), 0, "a\r\n" + reportNames("\r\n")},
                    OutputCase{"ReportListedLastWithoutFinalBreak", "a\\n" + reportNames("\\n") + reportLine(2), 0, "a\r\n" + reportNames("\r\n") + reportLine(2) + "\r\n"},
                    OutputCase{"ReportsListedInPieces", reportNames("\\n|"), 0, reportNames("\r\n")},
                    OutputCase{"ReportInsideALine", "/v/Command 2 returned status 0\\n", 0, "/v/Command 2 returned status 0\r\n"}),
    wftest::byName);

/// The process the session gets instead of the stand-in's: it may fail to start or to take
/// input, or cancel the session as it starts or as its reply arrives; it gives `reads` in turn
/// ("" a read that times out), then ends.
struct SessionScript {
    bool starts = true;
    bool takesInput = true;
    bool cancelOnStart = false;
    bool cancelOnRead = false;
    std::vector<std::string> reads = {};
};

class ScriptedSession final : public IWFInteractiveProcess {
public:
    explicit ScriptedSession(SessionScript script) : m_script(std::move(script)) {}
    bool Start(const std::string&, const std::vector<std::string>&, const std::string&) override
    {
        if (m_script.cancelOnStart)
            ClearCaseQuerySession().Cancel();
        return m_script.starts;
    }
    bool Write(const std::string&) override { return m_script.takesInput; }
    ReadResult Read(std::string& output, int) override
    {
        if (m_next == m_script.reads.size())
            return ReadResult::Closed;
        if (m_script.cancelOnRead)
            ClearCaseQuerySession().Cancel();
        output += m_script.reads[m_next];
        return m_script.reads[m_next++].empty() ? ReadResult::Timeout : ReadResult::Data;
    }
    std::string GetErrorOutput() const override { return {}; }
    std::string GetErrorText() const override { return {}; }
    void Terminate() override {}

private:
    SessionScript m_script;
    std::size_t m_next = 0;
};

TWFInteractiveProcessFactory scripted(const SessionScript& script)
{
    return [script] { return std::make_shared<ScriptedSession>(script); };
}

const std::string kAnswered = "cleartool> Command 1 returned status 0\ncleartool> ";
const std::string kReply = "x\nCommand 2 returned status 0\ncleartool> ";

struct FaultCase {
    std::string name;
    std::string mode;
    /// The first query's answer, the runs it made alone, and sessions started after two queries.
    std::string first;
    int alone;
    int sessions;
    /// Set: the session's process for the first query, with a user who can cancel or not.
    TWFInteractiveProcessFactory process = {};
    bool userCanCancel = false;
    /// What the first query says it gave nothing for, where it matters.
    std::string why = {};
};

WF_ROW_PRINTER(FaultCase)

class SessionFaultTest : public ScriptedCleartool, public testing::WithParamInterface<FaultCase> {};

TEST_P(SessionFaultTest, NeverBlocksAndRecovers)
{
    const FaultCase& row = GetParam();
    wftest::ScopedEnv out("FAKE_OUT", "x\\n");
    ClearCaseQuerySession().SetSilenceLimit(400);
    ClearCaseQuerySession().SetTimeLimit(1500);
    ClearCaseQuerySession().SetReplyLimit(1024 * 1024);
    setMode(row.mode);
    if (row.process)
        SetWFInteractiveProcessFactory(row.process);
    if (row.userCanCancel)
        SetWFBusyHook([](const std::string&, const std::function<void()>& work, const std::function<void()>&) { work(); });
    const auto started = Clock::now();
    EXPECT_EQ(CCGetVOBNames(), row.first);
    EXPECT_LT(Clock::now() - started, std::chrono::seconds(3));
    EXPECT_EQ(count("alone"), row.alone);
    if (!row.why.empty()) {
        EXPECT_EQ(CCWhyLastQueryGaveNothing(), row.why);
    }
    SetWFBusyHook(nullptr);
    if (row.process) {
        SetWFInteractiveProcessFactory(nullptr);
        ClearCaseQuerySession().Cancel();
    }

    // Behaving again: the next query gets its answer, from a fresh session where one is possible.
    setMode("");
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(count("starts"), row.sessions);
}

INSTANTIATE_TEST_SUITE_P(
    Faults, SessionFaultTest,
    testing::Values(FaultCase{"HangsAfterAnswering", "hang", "", 0, 2},
                    FaultCase{"NeverAnswersSoRunsAlone", "mute", "x\r\n", 1, 1},
                    FaultCase{"DiesMidQuerySoRunsAlone", "die", "x\r\n", 1, 2},
                    FaultCase{"NoInteractiveModeSoRunsAlone", "plain", "x\r\n", 1, 0},
                    FaultCase{"TricklesPastTheTimeLimit", "trickle", "", 0, 2},
                    FaultCase{"FloodsPastTheReplyLimit", "flood", "", 0, 2},
                    FaultCase{"NoProcessSoRunsAloneFromThenOn", "", "x\r\n", 1, 0, [] { return nullptr; }},
                    FaultCase{"CannotStartSoRunsAloneFromThenOn", "", "x\r\n", 1, 0, scripted({.starts = false})},
                    FaultCase{"RefusesInputSoRunsAloneFromThenOn", "", "x\r\n", 1, 0, scripted({.takesInput = false})},
                    FaultCase{"CancelledAsItStarts", "", "", 0, 1, scripted({.cancelOnStart = true})},
                    FaultCase{"CancelledAsTheReplyArrives", "", "", 0, 1,
                              scripted({.cancelOnRead = true, .reads = {kAnswered + kReply}})},
                    FaultCase{"SilenceAfterAnsweringIsWaitedOutWhenTheUserCanCancel", "", "x\r\n", 0, 1,
                              scripted({.reads = {kAnswered, "", kReply}}), true},
                    // Without a prompt, a report is the end only when nothing follows it at once.
                    FaultCase{"AReportFollowedByMoreIsAListedName", "", "Command 2 returned status 0\r\nx\r\n", 0, 1,
                              scripted({.reads = {"Command 1 returned status 0\nCommand 2 returned status 0\n",
                                                  "x\nCommand 2 returned status 0\n"}})},
                    FaultCase{"ARunnerThatThrowsGivesNothing", "", "", 0, 1,
                              []() -> std::shared_ptr<IWFInteractiveProcess> { throw std::runtime_error("no pipes"); },
                              false, "cleartool could not be asked: no pipes"},
                    FaultCase{"ARunnerThatThrowsAnythingGivesNothing", "", "", 0, 1,
                              []() -> std::shared_ptr<IWFInteractiveProcess> { throw 1; }, false,
                              "cleartool could not be asked."}),
    wftest::byName);

TEST_F(ScriptedCleartool, CancelKillsAHungQueryOrAnIdleSessionAndTheNextStartsAFreshOne)
{
    wftest::ScopedEnv out("FAKE_OUT", "x\\n");
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    ClearCaseQuerySession().SetSilenceLimit(60000);
    setMode("hang");
    std::thread canceller([] {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
        ClearCaseQuerySession().Cancel();
    });
    const auto started = Clock::now();
    EXPECT_EQ(CCGetVOBNames(), "");
    EXPECT_LT(Clock::now() - started, std::chrono::seconds(5));
    canceller.join();
    EXPECT_EQ(count("alone"), 0);

    setMode("");
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(count("starts"), 2);

    // A cancel while idle likewise makes the next query start afresh.
    ClearCaseQuerySession().Cancel();
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(count("starts"), 3);
    EXPECT_EQ(count("alone"), 0);
}

struct SwitchCase {
    std::string name;
    bool designTime;
    std::optional<std::string> variable;
    bool session;
};

WF_ROW_PRINTER(SwitchCase)

class SessionSwitchTest : public ScriptedCleartool, public testing::WithParamInterface<SwitchCase> {};

TEST_P(SessionSwitchTest, OnlyDesignTimeQueriesUseTheSession)
{
    const SwitchCase& row = GetParam();
    std::optional<wftest::ScopedEnv> variable;
    if (row.variable)
        variable.emplace(kClearCaseQuerySessionVariable, *row.variable);
    wftest::ScopedEnv out("FAKE_OUT", "x\\n");
    SetClearCaseDesignTime(row.designTime);
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(count("starts"), row.session ? 1 : 0);
    EXPECT_EQ(count("alone"), row.session ? 0 : 2);
}

INSTANTIATE_TEST_SUITE_P(Switch, SessionSwitchTest,
                         testing::Values(SwitchCase{"DesignTime", true, std::nullopt, true},
                                         SwitchCase{"RunTime", false, std::nullopt, false},
                                         SwitchCase{"TurnedOff", true, "off", false},
                                         SwitchCase{"TurnedOffWithZero", true, "0", false},
                                         SwitchCase{"TurnedOffIgnoringCase", true, "FALSE", false},
                                         SwitchCase{"TurnedOffWithNo", true, "no", false},
                                         SwitchCase{"OtherValuesKeepItOn", true, "1", true}), wftest::byName);

TEST_F(ScriptedCleartool, AHostThatUsedTheSessionExitsCleanly)
{
    // A fresh process, so that the session is made before anything was started, as in a host.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    wftest::ScopedEnv out("FAKE_OUT", "x\\n");
    EXPECT_EXIT(
        {
            CCGetVOBNames();
            std::exit(ClearCaseQuerySession().GetStarts() == 1 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST_F(ScriptedCleartool, EditionDetectionKeepsItsOwnProcess)
{
    wftest::ScopedEnv out("FAKE_OUT", "Rational ClearCase LT Client\\n");
    EXPECT_EQ(CCGetClearCaseInstalledType(), ccLT);
    EXPECT_EQ(count("starts"), 0);
    EXPECT_EQ(count("alone"), 1);
}

TEST_F(ScriptedCleartool, ANewPathOrEnvironmentStartsANewSession)
{
    wftest::ScopedEnv out("FAKE_OUT", "x\\n");
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(count("starts"), 1);
    {
        wftest::ScopedEnv changed("FAKE_OUT", "y\\n");
        EXPECT_EQ(CCGetVOBNames(), "y\r\n");
        EXPECT_EQ(count("starts"), 2);
    }
    const std::string copy = m_temp.path() + "/bin/cleartool2";
    fs::copy_file(m_program, copy);
    ClearCaseOptions()->SetClearToolPath(copy);
    EXPECT_EQ(CCGetVOBNames(), "x\r\n");
    EXPECT_EQ(count("starts"), 3);
}

} // namespace
