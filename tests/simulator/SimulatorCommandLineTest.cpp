// The command line as a whole: abbreviations, unknown switches, missing operands, "--",
// several operands with one failing, the LT edition, failures that must leave the store
// as it was, and invocations running at the same time.

#include "RowName.h"
#include "ScenarioHarness.h"

#include <algorithm>
#include <thread>

using namespace ccsim::test;

namespace {

/// A line refused before the command looks at its operands or the view: one cause line, then the
/// command's usage, exit 1, nothing on stdout. An empty cause: any one line.
struct Refusal {
    std::vector<std::string> args;
    std::string cause = "";
};

WF_ROW_PRINTER_AS(Refusal, wftest::rowName(row.args))

class Refused : public Scenario, public ::testing::WithParamInterface<Refusal> {};

TEST_P(Refused, NamesOneCauseThenTheUsage)
{
    const Refusal& row = GetParam();
    const Result r = run("", row.args);
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "");
    const size_t usage = r.err.find("\nUsage: " + row.args[0]);
    ASSERT_NE(usage, std::string::npos) << r.err;
    const std::string cause = r.err.substr(0, usage);
    EXPECT_EQ(cause.rfind("cleartool: Error: ", 0), 0u) << r.err;
    EXPECT_EQ(cause.find('\n'), std::string::npos) << r.err;
    if (!row.cause.empty()) {
        EXPECT_EQ(cause, "cleartool: Error: " + row.cause);
    }
}

// Shorter than the reference allows is not an abbreviation; the shortest allowed forms are spelled
// in the write, listing and scenario steps.
Refusal tooShort(const std::string& command, const std::string& word)
{
    return {{command, word, "x"}, "Unrecognized option \"" + word + "\""};
}

// Two switches of one exclusive group are named in the order the command's table lists them.
Refusal exclusive(std::vector<std::string> args, const std::string& first, const std::string& second)
{
    return {std::move(args), "Options \"" + first + "\" and \"" + second + "\" are mutually exclusive."};
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Refused,
    ::testing::Values(
        // Below the shortest form, a value joined to a switch that takes none, a word past the name.
        tooShort("checkout", "-re"), tooShort("checkout", "-ver x"), tooShort("checkout", "-reservedx"),
        // The order of the table, not of the line; a later group of a command; a group of three.
        exclusive({"checkout", "-unreserved", "-reserved", "a.c"}, "-reserved", "-unreserved"),
        exclusive({"mkattype", "-ge", "1", "-gt", "0", "A"}, "-gt", "-ge"),
        exclusive({"mkbl", "-all", "-component", "c", "BL"}, "-component", "-all"),
        // Without the operands the command needs: the shared check once, then the commands that check their own,
        // and a switch without its value.
        Refusal{{"checkin", "-nc"}}, Refusal{{"mklabel", "-nc", "REL1"}}, Refusal{{"mkattr", "-nc", "Build", "1"}},
        Refusal{{"mklbtype", "-c"}}),
    [](const auto& info) { return wftest::rowName(info.param.args); });

// An unknown switch names itself and prints the usage on stderr; -h prints it on stdout. The
// parser and the usage printing are shared, so a few commands stand for all.
class AnyCommand : public Scenario, public ::testing::WithParamInterface<const char*> {};

TEST_P(AnyCommand, RefusesUnknownSwitchAndHelpsOnRequest)
{
    const std::string usage = "Usage: " + std::string(GetParam());
    Result bad = run("", {GetParam(), "-bogus", "x"});
    EXPECT_EQ(bad.status, 1);
    EXPECT_EQ(bad.out, "");
    EXPECT_EQ(bad.err.rfind("cleartool: Error: Unrecognized option \"-bogus\"\n" + usage, 0), 0u) << bad.err;
    EXPECT_EQ(bad.err.back(), '\n');
    Result help = run("", {GetParam(), "-help"});
    EXPECT_EQ(help.status, 0);
    EXPECT_EQ(help.err, "");
    EXPECT_EQ(help.out.rfind(usage, 0), 0u) << help.out;
    EXPECT_EQ(bad.err.substr(bad.err.find("Usage: ")), help.out);
    Result viaHelp = run("", {"help", GetParam()});
    EXPECT_EQ(viaHelp.out, help.out);
}

INSTANTIATE_TEST_SUITE_P(Commands, AnyCommand,
                         ::testing::Values("checkout", "describe", "lsvob", "mkattype", "setcs", "update"),
                         [](const auto& info) { return std::string(info.param); });

TEST_F(World, DoubleDashEndsSwitchesAndOperandsFailAlone)
{
    write(src + "/-odd.c", "odd\n");
    write(src + "/b.c", "b\n");
    play({
        {src, {"checkout", "-nc", "."}},
        {src, {"mkelem", "-nc", "-ci", "--", "-odd.c", "b.c"}, 0, "~Checked in \"-odd.c\" version \"/main/1\".\n"},
        {src, {"checkin", "-nc", "."}},
        {src, {"checkout", "-nc", "-odd.c"}, 1, "", "~Unrecognized option \"-odd.c\"\n"},
        {src, {"checkout", "-nc", "--", "-odd.c"}, 0, "Checked out \"-odd.c\" from version \"/main/1\".\n"},
        {src, {"checkout", "-nc", "a.c", "--"}, 1, "Checked out \"a.c\" from version \"/main/1\".\n",
         "~Unable to check out \"--\".\n"},
    });
}

TEST_F(World, SeveralOperandsOneFailing)
{
    write(src + "/b.c", "b\n");
    play({
        {src, {"checkout", "-nc", "."}},
        {src, {"mkelem", "-nc", "-ci", "b.c"}},
        {src, {"checkout", "-nc", "a.c", "gone.c", "b.c"}, 1,
         "Checked out \"a.c\" from version \"/main/1\".\nChecked out \"b.c\" from version \"/main/1\".\n",
         "cleartool: Error: Unable to access \"gone.c\": No such file or directory.\n"
         "cleartool: Error: Unable to check out \"gone.c\".\n"},
        {src, {"lscheckout", "-short"}, 0, "a.c\nb.c\n"},
        {src, {"checkin", "-nc", "a.c", "b.c"}, 1, "",
         "cleartool: Error: By default, won't create version with data identical to predecessor.\n"
         "cleartool: Error: Unable to check in \"a.c\".\n"
         "cleartool: Error: By default, won't create version with data identical to predecessor.\n"
         "cleartool: Error: Unable to check in \"b.c\".\n"},
        {src, {"uncheckout", "-rm", "b.c", "a.c", "b.c"}, 1,
         "Checkout cancelled for \"b.c\".\nCheckout cancelled for \"a.c\".\n",
         "cleartool: Error: Element \"b.c\" is not checked out.\ncleartool: Error: Unable to uncheckout \"b.c\".\n"},
        {"", {"mklbtype", "-nc", "lbtype:A@/vobs/main", "lbtype:B@/vobs/none", "lbtype:C@/vobs/main"}, 1,
         "Created label type \"A\".\nCreated label type \"C\".\n",
         "cleartool: Error: Unable to determine VOB for pathname \"/vobs/none\".\n"},
    });
}

TEST_F(World, LtEditionReportsItselfAndRefusesFullFeatures)
{
    edition = "lt";
    play({
        {"", {"-version"}, 0, "~Rational ClearCase LT"},
        {"", {"-ver"}, 0, "~Rational ClearCase LT"},
        {src, {"checkout", "-nc", "a.c@@/main/1"}, 1, "",
         "cleartool: Error: Version-extended pathname \"a.c@@/main/1\" is not supported by ClearCase LT.\n"},
        {src, {"checkout", "-nc", "."}},
        {src, {"mkelem", "-nc", "-master", "b.c"}, 1, "",
         "cleartool: Error: Mastership (-master) is not supported by ClearCase LT.\n"},
        {src, {"mkelem", "-nc", "b.c"}, 0, "~Created element \"b.c\""},
    });
}

TEST_F(Scenario, BadClockIsRefused)
{
    now = "yesterday-ish";
    Result r = run("", {"lsvob", "-short"});
    EXPECT_EQ(r.status, 1);
    EXPECT_NE(r.err.find("CCSIM_NOW"), std::string::npos) << r.err;
}

/// A command that fails as a whole, and where it runs.
struct FailingCommand {
    std::string dir;
    std::vector<std::string> args;
};

WF_ROW_PRINTER_AS(FailingCommand, wftest::rowName(row.args))

class FailureChangesNothing : public World, public ::testing::WithParamInterface<FailingCommand> {};

TEST_P(FailureChangesNothing, StoreListsTheSameBeforeAndAfter)
{
    play({
        {"", {"mklbtype", "-nc", "lbtype:REL1@/vobs/main"}},
        {"", {"mkattype", "-nc", "-vtype", "integer", "-le", "10", "attype:Build@/vobs/main"}},
        {"dev/vobs/main", {"mkactivity", "-nc", "-nset", "fix_1"}},
    });
    const std::string before = storeState();
    Result r = run(GetParam().dir, GetParam().args);
    EXPECT_EQ(r.status, 1) << r.out << r.err;
    EXPECT_NE(r.err, "");
    EXPECT_EQ(storeState(), before) << r.out << r.err;
}

INSTANTIATE_TEST_SUITE_P(
    Commands, FailureChangesNothing,
    ::testing::Values(
        FailingCommand{"base/vobs/main/src", {"checkin", "-nc", "a.c"}},
        FailingCommand{"base/vobs/main/src", {"mkelem", "-nc", "new.c"}},
        FailingCommand{"base/vobs/main/src", {"mkelem", "-nc", "-mkpath", "-eltype", "nosuch", "deep/x.c"}},
        FailingCommand{"base/vobs/main/src", {"mklabel", "-nc", "NOPE", "a.c"}},
        FailingCommand{"base/vobs/main/src", {"mkattr", "-nc", "Build", "11", "a.c"}},
        FailingCommand{"base/vobs/main/src", {"mklbtype", "-nc", "REL1"}},
        FailingCommand{"dev/vobs/main/src", {"checkout", "-nc", "a.c"}},
        FailingCommand{"base", {"setcs", "missing.cs"}},
        FailingCommand{"", {"mkview", "-snapshot", "-tag", "base_v", "other"}},
        FailingCommand{"", {"mkstream", "-nc", "-in", "proj@/vobs/pvob", "dev@/vobs/pvob"}}),
    [](const auto& info) { return wftest::rowName(info.param.args); });

TEST_F(World, ParallelCheckoutsAllSucceed)
{
    constexpr int kFiles = 8;
    std::vector<std::string> mkelem{"mkelem", "-nc", "-ci"};
    for (int i = 0; i < kFiles; ++i) {
        write(src + "/f" + std::to_string(i) + ".c", std::to_string(i) + "\n");
        mkelem.push_back("f" + std::to_string(i) + ".c");
    }
    play({{src, {"checkout", "-nc", "."}}, {src, mkelem}, {src, {"checkin", "-nc", "."}}});

    auto together = [&](const std::string& command) {
        std::vector<Result> results(kFiles);
        std::vector<std::thread> threads;
        for (int i = 0; i < kFiles; ++i)
            threads.emplace_back([&, i] { results[i] = run(src, {command, "-nc", "f" + std::to_string(i) + ".c"}); });
        for (std::thread& t : threads)
            t.join();
        for (int i = 0; i < kFiles; ++i)
            EXPECT_EQ(results[i].status, 0) << command << " f" << i << ".c: " << results[i].err;
    };
    together("checkout");
    Result listed = run(src, {"lscheckout", "-short"});
    std::vector<std::string> names;
    for (size_t start = 0, end; (end = listed.out.find('\n', start)) != std::string::npos; start = end + 1)
        names.push_back(listed.out.substr(start, end - start));
    std::sort(names.begin(), names.end());
    ASSERT_EQ(names.size(), static_cast<size_t>(kFiles)) << listed.out;
    for (int i = 0; i < kFiles; ++i) {
        EXPECT_EQ(names[i], "f" + std::to_string(i) + ".c");
        write(src + "/f" + std::to_string(i) + ".c", "changed " + std::to_string(i) + "\n");
    }
    together("checkin");
    for (int i = 0; i < kFiles; ++i)
        EXPECT_EQ(run(src, {"ls", "-short", "f" + std::to_string(i) + ".c"}).out, "f" + std::to_string(i) + ".c@@/main/2\n");
}

} // namespace
