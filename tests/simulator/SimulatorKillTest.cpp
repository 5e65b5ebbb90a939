// A simulator killed in the middle of a command (as a build's time-out kills it) must leave the
// view and the store agreeing: a file is writable exactly when it is checked out, and holds the
// data of what the store says is there.

#include "Interactive.h"
#include "RowName.h"
#include "ScenarioHarness.h"

#include <csignal>

using namespace ccsim::test;

namespace {

struct KillRow {
    std::string name;
    std::vector<std::string> before;  ///< commands run to completion first, in the source folder
    std::string edit;                 ///< new data for a.c before the killed command, if any
    std::vector<std::string> command; ///< the command that is killed
    std::string killAt;               ///< the step it does not reach
    bool checkedOut = false;          ///< what the next run finds
    std::string data;                 ///< what a.c then holds
    std::string keep;                 ///< what a.c.keep then holds; empty: it does not exist
};

WF_ROW_PRINTER(KillRow)

class KilledCommand : public World, public ::testing::WithParamInterface<KillRow> {};

TEST_P(KilledCommand, LeavesViewAndStoreAgreeing)
{
    const KillRow& row = GetParam();
    play({{"dev/vobs/main", {"mkactivity", "-nc", "work"}}});
    for (const std::string& line : row.before)
        play({{devSrc, *ccsim::splitInteractiveLine(line)}});
    if (!row.edit.empty())
        write(devSrc + "/a.c", row.edit);

    environment = {{"CCSIM_KILL_AT", row.killAt}};
    const Result killed = run(devSrc, row.command);
    EXPECT_EQ(killed.status, 128 + SIGKILL) << "the command was not killed:\n" << killed.out << killed.err;
    environment.clear();

    // Any command that follows finds the state whole; lscheckout also tells what the store holds.
    const Result listing = run(devSrc, {"lscheckout", "-short", "a.c"});
    EXPECT_EQ(listing.status, 0) << listing.err;
    const bool checkedOut = listing.out == "a.c\n";
    const fs::path file = root / devSrc / "a.c";
    const bool writable = (fs::status(file).permissions() & fs::perms::owner_write) != fs::perms::none;
    EXPECT_EQ(checkedOut, row.checkedOut) << listing.out;
    EXPECT_EQ(writable, checkedOut) << "a.c is " << (writable ? "writable" : "read-only") << " but "
                                    << (checkedOut ? "checked out" : "not checked out");
    EXPECT_EQ(read(devSrc + "/a.c"), row.data);
    EXPECT_EQ(fs::exists(file.string() + ".keep"), !row.keep.empty());
    if (!row.keep.empty()) {
        EXPECT_EQ(read(devSrc + "/a.c.keep"), row.keep);
    }
    EXPECT_FALSE(fs::exists(file.string() + ".ccsim-new"));
    if (!checkedOut) {
        const Result ls = run(devSrc, {"ls", "-short", "a.c"});
        EXPECT_EQ(ls.out, row.data == "int a;\n" ? "a.c@@/main/1\n" : "a.c@@/main/2\n");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Simulator, KilledCommand,
    ::testing::Values(
        // Before the commit nothing of any command has reached the store or the view: one stands for all.
        KillRow{"CheckoutBeforeCommit", {}, "", {"checkout", "-nc", "a.c"}, "commit", false, "int a;\n", ""},
        KillRow{"CheckoutBeforeFiles", {}, "", {"checkout", "-nc", "a.c"}, "files", true, "int a;\n", ""},
        KillRow{"CheckinBeforeFiles", {"checkout -nc a.c"}, "int a = 2;\n", {"checkin", "-nc", "a.c"}, "files", false,
                "int a = 2;\n", ""},
        KillRow{"CheckinKeepBeforeFiles", {"checkout -nc a.c"}, "int a = 2;\n", {"checkin", "-nc", "-keep", "a.c"},
                "files", false, "int a = 2;\n", "int a = 2;\n"},
        KillRow{"UncheckoutBeforeFiles", {"checkout -nc a.c"}, "half done\n", {"uncheckout", "-keep", "a.c"}, "files",
                false, "int a;\n", "half done\n"}), wftest::byName);

} // namespace
