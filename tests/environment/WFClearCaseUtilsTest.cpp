#include "FakeCleartool.h"
#include "RowName.h"

#include "environment/WFClearCaseUtils.h"
#include "WFProcess.h"
#include "WFServices.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

namespace {

struct Response {
    std::string arguments;
    std::string output;
    int exitCode = 0;
};

/// The query runs cleartool once for each response, in its folder or else in the view, unless
/// `calls` names the runs ("TOOL|" or "VIEW|" and the arguments).
struct QueryCase {
    std::string name;
    std::function<std::string(const std::string& view)> query;
    std::vector<Response> responses;
    std::string expected;
    bool inView = false;
    std::vector<std::string> calls = {};
};

WF_ROW_PRINTER(QueryCase)

class QueryTest : public testing::TestWithParam<QueryCase> {};

TEST_P(QueryTest, RunsCleartoolAndShapesItsOutput)
{
    const QueryCase& row = GetParam();
    wftest::FakeCleartool cleartool;
    const std::string view = cleartool.temp().path() + "/my view";
    std::filesystem::create_directories(view);
    for (const auto& response : row.responses)
        cleartool.respond(response.arguments, response.output, response.exitCode);

    EXPECT_EQ(row.query(view), row.expected);

    std::vector<std::string> expectedCalls;
    std::vector<std::string> calls = row.calls;
    if (calls.empty())
        for (const Response& response : row.responses)
            calls.push_back((row.inView ? "VIEW|" : "TOOL|") + response.arguments);
    for (const std::string& call : calls) {
        const std::string directory = call.rfind("VIEW|", 0) == 0 ? view : cleartool.folder();
        expectedCalls.push_back(directory + call.substr(call.find('|')));
    }
    EXPECT_EQ(cleartool.calls(), expectedCalls);
}

const std::string kStream = "stream \"dev\"\n"
                            "  owner: builder\n"
                            "  contains activities:\n"
                            "    fix_crash@\\pvob\n"
                            "   Add_feature@\\pvob\n"
                            "  baselines:\n"
                            "    late@\\pvob\n";

INSTANTIATE_TEST_SUITE_P(
    Queries, QueryTest,
    testing::Values(
        QueryCase{"LabelTypesUnsortedLockedStripped", [](const std::string&) { return CCGetLabelNames("\\vobs\\src"); },
                  {{"lstype -short -kind lbtype -invob \\vobs\\src", "REL2 (locked)\nREL1\nREL3 (locked)\n"}},
                  "REL2\r\nREL1\r\nREL3\r\n"},
        QueryCase{"KindVobIgnoresTheVob", [](const std::string&) { return CCGetTypeNames("vob", "\\ignored"); },
                  {{"lsvob -short", "\\b\n\\a (locked)\n"}}, "\\a\r\n\\b\r\n"},
        QueryCase{"KindActivity", [](const std::string&) { return CCGetTypeNames("activity", "\\pvob"); },
                  {{"lsactivity -short -invob \\pvob", "z_act\nA_act (locked)\n"}}, "A_act\r\nz_act\r\n"},
        QueryCase{"ComponentsForViewRunInTheView",
                  [](const std::string& view) { return CCGetUCMComponentsForView(view); },
                  {{"lscomp -short", "b\na\n"}}, "a\r\nb\r\n", true},
        QueryCase{"ActivitiesOfTheViewStreamEndAtTheFirstLineWithoutAt",
                  [](const std::string& view) { return CCGetUCMActivities(view); },
                  {{"lsstream -long -cview", kStream}}, "Add_feature@\\pvob\r\nfix_crash@\\pvob\r\n", true},
        QueryCase{"HistoryQuotesTheElementAndKeepsFirstOccurrences",
                  [](const std::string& view) { return CCGetHistory("src/my file.c", view); },
                  {{"lshistory -short src/my file.c", "src/my file.c@@/main/2\n\nsrc/my file.c@@/main/1\nSRC/my file.c@@/main/2\nsrc/my file.c@@/main/0\n"}},
                  "src/my file.c@@/main/2\r\nsrc/my file.c@@/main/1\r\nsrc/my file.c@@/main/0\r\n", true},
        QueryCase{"LsRecursesInTheDirectoryUnsorted", [](const std::string& view) { return CCGetLS(view); },
                  {{"ls -recurse -short", "b.c\na.c\n"}}, "b.c\r\na.c\r\n", true},
        QueryCase{"AllTypeNamesStopAtTheFirstVobWithout",
                  [](const std::string&) { return CCGetAllTypeNames("lbtype"); },
                  {{"lsvob -short", "\\a\n\\b\n\\c\n"},
                   {"lstype -short -kind lbtype -invob \\a", "REL2\nREL1 (locked)\n"},
                   {"lstype -short -kind lbtype -invob \\b", ""},
                   {"lstype -short -kind lbtype -invob \\c", "REL9\n"}},
                  "REL1\r\nREL2\r\n", false,
                  {"TOOL|lsvob -short", "TOOL|lstype -short -kind lbtype -invob \\a", "TOOL|lstype -short -kind lbtype -invob \\b"}},
        QueryCase{"AllTypeNamesMergeIgnoringCase", [](const std::string&) { return CCGetAllTypeNames("lbtype"); },
                  {{"lsvob -short", "\\a\n\\b\n"},
                   {"lstype -short -kind lbtype -invob \\a", "REL1\nrel3\n"},
                   {"lstype -short -kind lbtype -invob \\b", "Rel1\nREL2\n"}},
                  "REL1\r\nREL2\r\nrel3\r\n"},
        QueryCase{"AllComponentsSkipVobsWithoutAndKeepVobOrder",
                  [](const std::string&) { return CCGetAllUCMComponents(); },
                  {{"lsvob -short", "\\b\n\\a\n\\c\n"},
                   {"lscomp -short -invob \\a", "zed\ncore\n"},
                   {"lscomp -short -invob \\b", ""},
                   {"lscomp -short -invob \\c", "core\n"}},
                  "core@\\a\r\nzed@\\a\r\ncore@\\c\r\n"}), wftest::byName);

TEST(QueryResultTest, UnknownKindAndMissingVobsLeaveTheResultAsPassed)
{
    wftest::FakeCleartool cleartool;
    cleartool.respond("lsvob -short", "");

    std::string result = "kept\r\n";
    CCGetTypeNames("branch", "\\v", result);
    EXPECT_EQ(result, "kept\r\n");
    CCGetAllTypeNames("lbtype", result);
    EXPECT_EQ(result, "kept\r\n");
    CCGetAllUCMComponents(result);
    EXPECT_EQ(result, "kept\r\n");
    EXPECT_EQ(cleartool.calls().size(), 2u);
}

/// A query that cannot run cleartool: what it gives (nothing) and what it says why.
struct RefusalCase {
    std::string name;
    std::function<void(wftest::FakeCleartool&)> arrange;
    std::string why;
};

WF_ROW_PRINTER(RefusalCase)

class RefusalTest : public testing::TestWithParam<RefusalCase> {};

TEST_P(RefusalTest, RunsNothingAndSaysWhy)
{
    wftest::FakeCleartool cleartool;
    GetParam().arrange(cleartool);
    // Every query runs through the first; one that runs several checks the chain.
    EXPECT_EQ(CCGetCleartoolOutput("lsvob", "", "", true), "");
    EXPECT_EQ(CCWhyLastQueryGaveNothing(), GetParam().why);
    EXPECT_EQ(CCGetAllTypeNames("lbtype"), "");
    SetWFProcessFactory(nullptr);
    EXPECT_TRUE(cleartool.calls().empty());
}

const std::string kNotFound = "Cleartool.exe cannot be found at the path specified. Please check under Tools -> Options.";

INSTANTIATE_TEST_SUITE_P(
    Refusals, RefusalTest,
    testing::Values(
        RefusalCase{"NoCleartoolAtThePath",
                    [](wftest::FakeCleartool& c) { c.options().SetClearToolPath(c.temp().file("nowhere/cleartool")); }, kNotFound},
        RefusalCase{"NoOptions", [](wftest::FakeCleartool&) { WFOptionsServices().Clear(); },
                    "The ClearCase options are not available."},
        RefusalCase{"NoProcessRunner", [](wftest::FakeCleartool&) { SetWFProcessFactory([] { return nullptr; }); },
                    "cleartool could not be asked: no process runner."}),
    wftest::byName);

TEST(QueryResultTest, ACleartoolThatFallsSilentIsGivenUp)
{
    wftest::FakeCleartool cleartool;
    cleartool.respond("lsvob -short", "\\vobs\\a\n");
    wftest::ScopedEnv hang("WF_FAKE_SLEEP_MS", "9000");
    const auto started = std::chrono::steady_clock::now();
    EXPECT_EQ(CCGetVOBNames(), "");
    EXPECT_LT(std::chrono::steady_clock::now() - started, std::chrono::seconds(8));
}

struct ParseCase {
    std::string name;
    std::function<std::string(const std::string&)> parse;
    std::string text;
    std::string expected;
};

WF_ROW_PRINTER(ParseCase)

class DescriptionParseTest : public testing::TestWithParam<ParseCase> {};

TEST_P(DescriptionParseTest, ReadsTheTextAsCleartoolPrintsIt)
{
    EXPECT_EQ(GetParam().parse(GetParam().text), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Descriptions, DescriptionParseTest,
    testing::Values(
        ParseCase{"ValueTypeLastLineWithoutBreak", valueTypeFromDescription, "attribute type \"S\"\r\n  value type: string", ""},
        ParseCase{"ValueTypeBareMarker", valueTypeFromDescription, "  value type:\r\n", ""},
        ParseCase{"ValueTypeIsCaseSensitive", valueTypeFromDescription, "Value Type: integer\r\n", ""},
        ParseCase{"ActivitiesWithoutHeader", activitiesFromStreamDescription, "stream \"dev\"\r\n  owner: b\r\n", ""},
        ParseCase{"ActivitiesHeaderLast", activitiesFromStreamDescription, "  contains activities:\r\n", ""}),

    wftest::byName);

} // namespace
