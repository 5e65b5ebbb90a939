// The interactive mode: sub-commands read from standard input, each answered as the
// single-command mode answers it, with the status report after each under -status.
#include "RowName.h"
#include "Interactive.h"
#include "ScenarioHarness.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace ccsim::test {

namespace {

struct SessionCase {
    std::string name;
    std::vector<std::string> args;
    std::string input;
    int status;
    /// "{ROOT}" stands for the scenario's folder.
    std::string out;
    std::string err = "";
};

WF_ROW_PRINTER(SessionCase)

std::string expand(std::string text, const std::string& root)
{
    for (std::size_t at; (at = text.find("{ROOT}")) != std::string::npos;)
        text.replace(at, 6, root);
    return text;
}

class InteractiveSession : public World, public ::testing::WithParamInterface<SessionCase> {};

TEST_P(InteractiveSession, AnswersEverySubCommand)
{
    const SessionCase& c = GetParam();
    const Result r = run("", c.args, "", c.input);
    EXPECT_EQ(r.status, c.status) << r.out << r.err;
    EXPECT_EQ(r.out, expand(c.out, root.string()));
    EXPECT_EQ(r.err, expand(c.err, root.string()));
}

const std::string kP = "cleartool> ";

INSTANTIATE_TEST_SUITE_P(
    Sessions, InteractiveSession,
    ::testing::Values(
        SessionCase{"StatusAfterEachCommand", {"-status"}, "lsvob -short\nlsvob -bogus\nquit\n", 0,
                    kP + "/vobs/main\n/vobs/pvob\nCommand 1 returned status 0\n" + kP + "Command 2 returned status 1\n" + kP,
                    "cleartool: Error: Unrecognized option \"-bogus\"\nUsage: lsvob [-short | -long] [vob-tag ...]\n"},
        SessionCase{"NoStatusWithoutTheSwitch", {}, "lsvob -short\n", 0, kP + "/vobs/main\n/vobs/pvob\n" + kP},
        SessionCase{"CdIsRelativeToTheLastCd", {"-status"}, "cd base\ncd vobs/main\npwd\nls -short src\nexit\npwd\n", 0,
                    kP + "Command 1 returned status 0\n" + kP + "Command 2 returned status 0\n" + kP
                        + "{ROOT}/base/vobs/main\nCommand 3 returned status 0\n" + kP
                        + "src/a.c@@/main/1\nCommand 4 returned status 0\n" + kP},
        SessionCase{"CdToAMissingFolderStaysPut", {"-status"}, "cd nowhere\npwd\n", 0,
                    kP + "Command 1 returned status 1\n" + kP + "{ROOT}\nCommand 2 returned status 0\n" + kP,
                    "cleartool: Error: Unable to change directory to \"nowhere\": No such file or directory.\n"},
        SessionCase{"EmptyLinesAreNoCommands", {"-status"}, "\n  \npwd\n", 0,
                    kP + kP + kP + "{ROOT}\nCommand 1 returned status 0\n" + kP},
        SessionCase{"BackslashContinuesTheLine", {"-status"}, "lsvob \\\n-short\n", 0,
                    kP + "/vobs/main\n/vobs/pvob\nCommand 1 returned status 0\n" + kP},
        SessionCase{"UnmatchedQuoteFailsThatLineOnly", {"-status"}, "lsvob \"-short\npwd\n", 0,
                    kP + "Command 1 returned status 1\n" + kP + "{ROOT}\nCommand 2 returned status 0\n" + kP,
                    "cleartool: Error: Unmatched quote in command line.\n"},
        SessionCase{"ExitOnErrorWithE", {"-e", "-status"}, "pwd\nfrobnicate\npwd\n", 1,
                    kP + "{ROOT}\nCommand 1 returned status 0\n" + kP + "Command 2 returned status 1\n",
                    "cleartool: Error: Unrecognized command: \"frobnicate\"\n"},
        SessionCase{"ChangesPersistWithinTheSession", {"-status"},
                    "mklbtype -nc NEW@/vobs/main\nlstype -short -kind lbtype -invob /vobs/main\n", 0,
                    kP + "Created label type \"NEW\".\nCommand 1 returned status 0\n" + kP
                        + "BACKSTOP\nCHECKEDOUT\nLATEST\nNEW\ncomp_INITIAL\nCommand 2 returned status 0\n" + kP}),
    wftest::byName);

struct SplitCase {
    std::string line;
    std::optional<std::vector<std::string>> words;
};

WF_ROW_PRINTER_AS(SplitCase, row.line)

class InteractiveSplit : public ::testing::TestWithParam<SplitCase> {};

TEST_P(InteractiveSplit, SplitsAsTheInteractiveModeDoes)
{
    EXPECT_EQ(splitInteractiveLine(GetParam().line), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, InteractiveSplit,
    ::testing::Values(SplitCase{"  a \t b  ", std::vector<std::string>{"a", "b"}},
                      SplitCase{"a \"b c\" d", std::vector<std::string>{"a", "b c", "d"}},
                      SplitCase{"'say \"hi\"'", std::vector<std::string>{"say \"hi\""}},
                      SplitCase{"\"it's\"", std::vector<std::string>{"it's"}},
                      SplitCase{"x\"y z\"'w'", std::vector<std::string>{"xy zw"}},
                      SplitCase{"a \"\" b", std::vector<std::string>{"a", "", "b"}},
                      SplitCase{"\\vobs\\a b\\", std::vector<std::string>{"\\vobs\\a", "b\\"}},
                      SplitCase{"", std::vector<std::string>{}},
                      SplitCase{"a \"b", std::nullopt},
                      SplitCase{"a 'b\"", std::nullopt}),
    // Rows differ in quotes alone, so the row's number keeps the names apart.
    [](const auto& info) { return "Row" + std::to_string(info.index) + "_" + wftest::rowName(info.param.line); });

} // namespace

} // namespace ccsim::test
