// Scenarios that drive the built cleartool program as a user would: each step runs one
// command line in a directory and checks its exit status and both output streams.

#include "ScenarioHarness.h"

namespace fs = std::filesystem;
using namespace ccsim::test;

namespace {

TEST_F(World, MakePathTurnsPrivateFoldersIntoElements)
{
    fs::create_directories(root / src / "nd2/deep");
    fs::create_directories(root / src / "nd3");
    write(src + "/nd2/deep/y.c", "hi\n");
    write(src + "/nd2/z.c", "private\n");
    write(src + "/f.txt", "a file\n");
    play({
        {src, {"mkelem", "-mkp", "-nc", "nd2/deep/y.c"}, 0,
         "Checked out \".\" from version \"/main/1\".\nCreated directory element \"nd2\".\n"
         "Checked out \"nd2\" from version \"/main/0\".\nCreated directory element \"nd2/deep\".\n"
         "Checked out \"nd2/deep\" from version \"/main/0\".\n"
         "Created element \"nd2/deep/y.c\" (type \"text_file\").\nChecked out \"nd2/deep/y.c\" from version \"/main/0\".\n"},
        {src, {"ls", "-recurse", "-short", "nd2"}, 0,
         "nd2/deep@@/main/CHECKEDOUT\nnd2/z.c\nnd2/deep/y.c@@/main/CHECKEDOUT\n"},
        {src, {"lscheckout", "-short", "-recurse"}, 0, ".\nnd2\nnd2/deep\nnd2/deep/y.c\n"},
        {src, {"mkdir", "-nc", "nd3"}, 1, "",
         "cleartool: Error: Entry named \"nd3\" already exists.\ncleartool: Error: Unable to create directory \"nd3\".\n"},
        {src, {"mkelem", "-mkpath", "-nc", "f.txt/x.c"}, 1, "",
         "cleartool: Error: Entry named \"f.txt\" already exists.\n"
         "cleartool: Error: Unable to create directory \"f.txt\".\n"},
        {src, {"ls", "-short", "nd3", "f.txt"}, 0, "f.txt\n"},
    });
    EXPECT_EQ(read(src + "/nd2/deep/y.c"), "hi\n");
    EXPECT_EQ(read(src + "/nd2/z.c"), "private\n");
}

TEST_F(World, PathnamesFindTheirViewFromAnyWorkingDirectory)
{
    const std::string dir = (root / "base/vobs/main/src").string();
    const std::string a = dir + "/a.c", b = dir + "/b.c", d = dir + "/d";
    write("base/vobs/main/src/b.c", "b\n");
    const auto checkedOut = [](const std::string& p, const std::string& from) {
        return "Checked out \"" + p + "\" from version \"" + from + "\".\n";
    };
    // Run from the scenario root, which lies in no view, and from inside another view.
    play({
        {"", {"checkout", "-nc", "-nquery", a}, 0, checkedOut(a, "/main/1")},
        {"", {"checkout", "-nc", dir}, 0, checkedOut(dir, "/main/1")},
        {"", {"mkelem", "-nc", "-ci", b}, 0,
         "Created element \"" + b + "\" (type \"text_file\").\n" + checkedOut(b, "/main/0") + "Checked in \"" + b +
             "\" version \"/main/1\".\n"},
        {"", {"mkdir", "-nc", d}, 0, "Created directory element \"" + d + "\".\n" + checkedOut(d, "/main/0")},
        {"", {"uncheckout", "-rm", d}, 0, "Checkout cancelled for \"" + d + "\".\n"},
        {"", {"checkin", "-nc", "-identical", a, dir}, 0,
         "Checked in \"" + a + "\" version \"/main/2\".\nChecked in \"" + dir + "\" version \"/main/2\".\n"},
        {"", {"mklbtype", "-nc", "REL_42@/vobs/main"}},
        {"", {"mklabel", "-nc", "REL_42", a}, 0, "Created label \"REL_42\" on \"" + a + "\" version \"/main/2\".\n"},
        {"", {"mkattype", "-nc", "-vtype", "integer", "BuildNumber@/vobs/main"}},
        {"", {"mkattr", "-pname", "-nc", "BuildNumber@/vobs/main", "42", a}, 0,
         "Created attribute \"BuildNumber\" on \"" + a + "@@/main/2\".\n"},
        {"", {"lock", "-nc", "-pname", a}, 0, "Locked element \"" + a + "\".\n"},
        {"", {"unlock", "-nc", "-pname", a}, 0, "Unlocked element \"" + a + "\".\n"},
        {"", {"describe", a}, 0, "~  Labels:\n    REL_42\n  Attributes:\n    BuildNumber = 42\n"},
        {"dev/vobs/main", {"checkout", "-nc", a}, 0, checkedOut(a, "/main/2")},
        {"base", {"lscheckout", "-short", "-recurse"}, 0, "vobs/main/src/a.c\n"},
        {"dev/vobs/main", {"uncheckout", "-rm", a}, 0, "Checkout cancelled for \"" + a + "\".\n"},
        {"", {"checkout", "-nc", (root / "cs.txt").string()}, 1, "",
         "cleartool: Error: Not a vob object: \"" + (root / "cs.txt").string() + "\".\n"
         "cleartool: Error: Unable to check out \"" + (root / "cs.txt").string() + "\".\n"},
    });
}

TEST_F(World, ReservedCheckoutBlocksAnotherView)
{
    play({
        {"dev/vobs/main/src", {"mkactivity", "-nc", "-headline", "Fix build", "-f", "fix_1"}, 0,
         "Created activity \"fix_1\".\nSet activity \"fix_1\" in view \"dev_v\".\n"},
        {"dev/vobs/main/src", {"checkout", "-nc", "a.c"}, 0,
         "Checked out \"a.c\" from version \"/main/1\".\n  Attached activities:\n"
         "    activity:fix_1@/vobs/pvob  \"Fix build\"\n"},
        {"base/vobs/main/src", {"checkout", "-nc", "a.c"}, 1, "",
         "cleartool: Error: Element \"a.c\" is already checked out to view \"dev_v\".\n"
         "cleartool: Error: Unable to check out \"a.c\".\n"},
        {"base/vobs/main/src", {"checkout", "-unr", "-nc", "a.c"}, 0, "Checked out \"a.c\" from version \"/main/1\".\n"},
        {"base/vobs/main/src", {"lscheckout", "-short"}, 0, "a.c\na.c\n"},
    });
}

// Switches and operands of each command are in the command-line tables.
TEST_F(World, HelpVersionAndMissingObjects)
{
    play({
        {"", {"-h"}, 0, "~Usage: uncheckout"},
        {"", {"-version"}, 0, "~Rational ClearCase version"},
        {"", {"mkview", "-snapshot", "-tag", "x_v", "-stream", "nope@/vobs/pvob", "x"}, 1, "", "~stream not found"},
        {"", {"lsview", "-short"}, 0, "base_v\ndev_v\n"},
        {"", {"describe", "lbtype:NOPE@/vobs/main"}, 1, "", "cleartool: Error: Label type not found: \"NOPE\".\n"},
    });
    EXPECT_FALSE(fs::exists(root / "x"));
}

TEST_F(World, UncheckoutWithoutChoiceAsksAndKeepsUnlessToldNo)
{
    play({{src, {"checkout", "-nc", "a.c"}}});
    EXPECT_NE(run(src, {"uncheckout", "a.c"}).out.find("saved in \"a.c.keep\""), std::string::npos);
    play({{src, {"checkout", "-nc", "a.c"}}});
    Result r = run(src, {"uncheckout", "a.c"}, "", "no\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_NE(r.out.find("Checkout cancelled for \"a.c\"."), std::string::npos);
    EXPECT_EQ(r.out.find("saved in"), std::string::npos);
    EXPECT_FALSE(fs::exists(root / src / "a.c.keep.1"));
}

} // namespace
