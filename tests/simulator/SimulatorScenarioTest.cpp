// Scenarios that drive the built cleartool program as a user would: each step runs one
// command line in a directory and checks its exit status and both output streams.

#include "ScenarioHarness.h"

namespace fs = std::filesystem;
using namespace ccsim::test;

namespace {

TEST_F(Scenario, ElementLifeCycleInSnapshotView)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    play({
        {src, {"ls", "-recurse", "-short"}, 0, "a.c@@/main/1\n"},
        {"base/vobs/main", {"ls", "-recurse", "-short"}, 0, "src@@/main/1\nsrc/a.c@@/main/1\n"},
        {src, {"co", "-res", "-c", "two words", "-nq", "a.c"}, 0, "Checked out \"a.c\" from version \"/main/1\".\n"},
        {src, {"lscheckout", "-short"}, 0, "a.c\n"},
        {src, {"lsco"}, 0, "12-Mar.10:22   builder    checkout version \"a.c\" from /main/1 (reserved)\n  \"two words\"\n"},
        {src, {"ls", "-short", "a.c"}, 0, "a.c@@/main/CHECKEDOUT\n"},
        {src, {"checkin", "-nc", "a.c"}, 1, "",
         "cleartool: Error: By default, won't create version with data identical to predecessor.\n"
         "cleartool: Error: Unable to check in \"a.c\".\n"},
        {src, {"checkin", "-nc", "-ide", "a.c"}, 0, "Checked in \"a.c\" version \"/main/2\".\n"},
        {src, {"lshistory", "-short", "a.c"}, 0, "a.c@@/main/2\na.c@@/main/1\na.c@@/main/0\na.c@@/main\na.c@@\n"},
        {src, {"describe", "a.c"}, 0, "~  predecessor version: /main/1\n"},
        {src, {"checkin", "-nc", "a.c"}, 1, "",
         "cleartool: Error: No branch of element is checked out to view \"base_v\".\n"
         "cleartool: Error: Unable to find checked out version for \"a.c\".\n"},
        {src, {"checkout", "-nc", "a.c"}},
        {src, {"uncheckout", "-keep", "a.c"}, 0,
         "Private version of \"a.c\" saved in \"a.c.keep\".\nCheckout cancelled for \"a.c\".\n"},
        {src, {"uncheckout", "-rm", "a.c"}, 1, "",
         "cleartool: Error: Element \"a.c\" is not checked out.\ncleartool: Error: Unable to uncheckout \"a.c\".\n"},
        {src, {"lscheckout", "-short"}, 0, ""},
        {src, {"ls", "-short"}, 0, "a.c@@/main/2\na.c.keep\n"},
        {src, {"lshistory", "-short", "nothere.c"}, 1, "", "cleartool: Error: Not an object in a vob: \"nothere.c\".\n"},
        {src, {"checkout", "-nc", "nothere.c"}, 1, "",
         "cleartool: Error: Unable to access \"nothere.c\": No such file or directory.\n"
         "cleartool: Error: Unable to check out \"nothere.c\".\n"},
    });
    EXPECT_EQ(fs::status(root / src / "a.c").permissions() & fs::perms::owner_write, fs::perms::none);
}

TEST_F(Scenario, CheckinTakesTheViewFileAndKeepsOtherOperands)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    play({{src, {"checkout", "-nc", "a.c"}}});
    write(src + "/a.c", "int a = 2;\n");
    play({
        {src, {"checkin", "-c", "second", "missing.c", "a.c"}, 1, "Checked in \"a.c\" version \"/main/2\".\n",
         "~Unable to check in \"missing.c\"."},
        {src, {"describe", "a.c@@/main/2"}, 0, "~  \"second\"\n"},
    });
    EXPECT_EQ(run("dev/vobs/main/src", {"update", "-force", "-overwrite"}).status, 0);
    EXPECT_EQ(read("dev/vobs/main/src/a.c"), "int a = 2;\n");
}

TEST_F(Scenario, MakeElementRules)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    write(src + "/b.c", "b\n");
    play({
        {src, {"mkelem", "-nc", "b.c"}, 1, "",
         "cleartool: Error: Can't modify directory \".\" because it is not checked out.\n"
         "cleartool: Error: Unable to create element \"b.c\".\n"},
        {src, {"mkelem", "-nc", "-eltype", "nosuch", "-mkp", "b.c"}, 1, "",
         "cleartool: Error: Element type not found: \"nosuch\".\ncleartool: Error: Unable to create element \"b.c\".\n"},
        {src, {"lscheckout", "-short", "-directory", "."}, 0, ""},
        {src, {"mkelem", "-nc", "-ci", "-mkpath", "b.c"}, 0,
         "Checked out \".\" from version \"/main/1\".\nCreated element \"b.c\" (type \"text_file\").\n"
         "Checked out \"b.c\" from version \"/main/0\".\nChecked in \"b.c\" version \"/main/1\".\n"},
        {src, {"mkelem", "-nc", "a.c"}, 1, "",
         "cleartool: Error: Entry named \"a.c\" already exists.\ncleartool: Error: Unable to create element \"a.c\".\n"},
        {src, {"mkelem", "-nc", "-mkpath", "deep/er/c.c"}, 0,
         "Created directory element \"deep\".\nChecked out \"deep\" from version \"/main/0\".\n"
         "Created directory element \"deep/er\".\nChecked out \"deep/er\" from version \"/main/0\".\n"
         "Created element \"deep/er/c.c\" (type \"text_file\").\nChecked out \"deep/er/c.c\" from version \"/main/0\".\n"},
        {src, {"lscheckout", "-short", "-recurse"}, 0, ".\ndeep\ndeep/er\ndeep/er/c.c\n"},
    });
}

TEST_F(Scenario, MakePathTurnsPrivateFoldersIntoElements)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    fs::create_directories(root / src / "nd2/deep");
    fs::create_directories(root / src / "nd3");
    write(src + "/nd2/deep/y.c", "hi\n");
    write(src + "/nd2/z.c", "private\n");
    write(src + "/f.txt", "a file\n");
    play({
        {src, {"mkelem", "-mkpath", "-nc", "nd2/deep/y.c"}, 0,
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

TEST_F(Scenario, PathnamesFindTheirViewFromAnyWorkingDirectory)
{
    fixture();
    const std::string src = (root / "base/vobs/main/src").string();
    const std::string a = src + "/a.c", b = src + "/b.c", d = src + "/d";
    write("base/vobs/main/src/b.c", "b\n");
    const auto checkedOut = [](const std::string& p, const std::string& from) {
        return "Checked out \"" + p + "\" from version \"" + from + "\".\n";
    };
    // Run from the scenario root, which lies in no view, and from inside another view.
    play({
        {"", {"checkout", "-nc", "-nquery", a}, 0, checkedOut(a, "/main/1")},
        {"", {"checkout", "-nc", src}, 0, checkedOut(src, "/main/1")},
        {"", {"mkelem", "-nc", "-ci", b}, 0,
         "Created element \"" + b + "\" (type \"text_file\").\n" + checkedOut(b, "/main/0") + "Checked in \"" + b +
             "\" version \"/main/1\".\n"},
        {"", {"mkdir", "-nc", d}, 0, "Created directory element \"" + d + "\".\n" + checkedOut(d, "/main/0")},
        {"", {"uncheckout", "-rm", d}, 0, "Checkout cancelled for \"" + d + "\".\n"},
        {"", {"checkin", "-nc", "-identical", a, src}, 0,
         "Checked in \"" + a + "\" version \"/main/2\".\nChecked in \"" + src + "\" version \"/main/2\".\n"},
        {"", {"mklbtype", "-nc", "REL_42@/vobs/main"}},
        {"", {"mklabel", "-nc", "REL_42", a}, 0, "Created label \"REL_42\" on \"" + a + "\" version \"/main/2\".\n"},
        {"", {"mkattype", "-nc", "-vtype", "integer", "BuildNumber@/vobs/main"}},
        {"", {"mkattr", "-pname", "-nc", "BuildNumber@/vobs/main", "42", a}, 0,
         "Created attribute \"BuildNumber\" on \"" + a + "@@/main/2\".\n"},
        {"", {"lock", "-nc", "-pname", a}, 0, "Locked element \"" + a + "\".\n"},
        {"", {"unlock", "-nc", "-pname", a}, 0, "Unlocked element \"" + a + "\".\n"},
        {"", {"lshistory", "-short", a}, 0,
         a + "@@/main/2\n" + a + "@@/main/2\n" + a + "@@/main/1\n" + a + "@@/main/0\n" + a + "@@/main\n" + a + "@@\n"},
        {"", {"describe", a}, 0, "~version \"" + a + "@@/main/2\"\n"},
        {"", {"describe", a}, 0, "~  Labels:\n    REL_42\n  Attributes:\n    BuildNumber = 42\n"},
        {"", {"ls", "-short", src}, 0, a + "@@/main/2\n" + b + "@@/main/1\n" + d + "@@/main/0\n"},
        {"", {"ls", "-short", "base/vobs/main/src/a.c"}, 0, "base/vobs/main/src/a.c@@/main/2\n"},
        {"dev/vobs/main", {"checkout", "-nc", a}, 0, checkedOut(a, "/main/2")},
        {"", {"lscheckout", "-short", a}, 0, "base/vobs/main/src/a.c\n"},
        {"base", {"lscheckout", "-short", "-recurse"}, 0, "vobs/main/src/a.c\n"},
        {"dev/vobs/main", {"uncheckout", "-rm", a}, 0, "Checkout cancelled for \"" + a + "\".\n"},
        {"", {"checkout", "-nc", (root / "cs.txt").string()}, 1, "",
         "cleartool: Error: Not a vob object: \"" + (root / "cs.txt").string() + "\".\n"
         "cleartool: Error: Unable to check out \"" + (root / "cs.txt").string() + "\".\n"},
    });
}

TEST_F(Scenario, ReservedCheckoutBlocksAnotherView)
{
    fixture();
    play({
        {"dev/vobs/main/src", {"mkactivity", "-nc", "-headline", "Fix build", "-force", "fix_1"}, 0,
         "Created activity \"fix_1\".\nSet activity \"fix_1\" in view \"dev_v\".\n"},
        {"dev/vobs/main/src", {"checkout", "-nc", "a.c"}, 0,
         "Checked out \"a.c\" from version \"/main/1\".\n  Attached activities:\n"
         "    activity:fix_1@/vobs/pvob  \"Fix build\"\n"},
        {"base/vobs/main/src", {"checkout", "-nc", "a.c"}, 1, "",
         "cleartool: Error: Element \"a.c\" is already checked out to view \"dev_v\".\n"
         "cleartool: Error: Unable to check out \"a.c\".\n"},
        {"base/vobs/main/src", {"checkout", "-unr", "-nc", "a.c"}, 0, "Checked out \"a.c\" from version \"/main/1\".\n"},
        {"base/vobs/main/src", {"lscheckout", "-short"}, 0, "a.c\na.c\n"},
        {"base/vobs/main/src", {"lscheckout", "-short", "-cview"}, 0, "a.c\n"},
    });
}

TEST_F(Scenario, UcmActivityBaselineAndStreamListing)
{
    fixture();
    const std::string src = "dev/vobs/main/src";
    play({
        {src, {"checkout", "-nc", "a.c"}, 1, "",
         "cleartool: Error: No current activity set for view \"dev_v\".\ncleartool: Error: Unable to check out \"a.c\".\n"},
        {src, {"mkactivity", "-nc", "-nset", "-force"}, 0, "Created activity \"activity130312.102231\".\n"},
        {src, {"mkactivity", "-nc", "-nset", "-force"}, 0, "Created activity \"activity130312.102231.1\".\n"},
        {src, {"setactivity", "-nc", "activity:nope@/vobs/pvob"}, 1, "",
         "cleartool: Error: activity not found: \"nope@/vobs/pvob\".\n"},
        {src, {"setactivity", "-nc", "activity:activity130312.102231@/vobs/pvob"}, 0,
         "Set activity \"activity130312.102231\" in view \"dev_v\".\n"},
        {src, {"checkout", "-nc", "a.c"}},
    });
    write(src + "/a.c", "changed\n");
    play({
        {src, {"checkin", "-nc", "-cact"}, 0, "Checked in \"a.c\" version \"/main/2\".\n"},
        {src, {"lsstream", "-long", "-cview"}, 0,
         "~stream \"dev\"\n  created 12-Mar-13.10:22:31 by builder (builder."},
        {src, {"lsstream", "-l", "-cvi"}, 0,
         "~  contains activities:\n    activity130312.102231@/vobs/pvob\n    activity130312.102231.1@/vobs/pvob\n"
         "  foundation baselines:\n    comp_INITIAL@/vobs/pvob (comp@/vobs/pvob)\n  recommended baselines:\n"
         "  views:\n    dev_v\n"},
        {src, {"lsstream", "-short", "-invob", "/vobs/pvob"}, 0, "dev\nproj_int\n"},
        {src, {"lscomp", "-short"}, 0, "comp\n"},
        {"", {"lscomp", "-short", "-invob", "/vobs/pvob"}, 0, "comp\n"},
        {"", {"lsfolder", "-short", "-invob", "/vobs/pvob"}, 0, "RootFolder\n"},
        {"", {"lspool", "-short", "-invob", "/vobs/main"}, 0, "cdft\nddft\nsdft\n"},
        {"", {"lsactivity", "-short", "-invob", "/vobs/pvob"}, 0, "activity130312.102231\nactivity130312.102231.1\n"},
        {src, {"mkbl", "-nc", "-all", "-incremental", "BL1"}, 0,
         "Created baseline \"BL1\" in component \"comp\".\nBegin incrementally labeling baseline \"BL1\".\n"
         "Done incrementally labeling baseline \"BL1\".\n"},
        {src, {"mkbl", "-nc", "-all", "BL2"}, 0, "~no baseline created"},
        {src, {"mkbl", "-nc", "-component", "comp@/vobs/pvob", "-identical", "-full", "BL1"}, 0,
         "Created baseline \"BL1.1\" in component \"comp\".\nBegin fully labeling baseline \"BL1.1\".\n"
         "Done fully labeling baseline \"BL1.1\".\n"},
        {src, {"mkbl", "-nc", "-activities", "-cact", "-nlabel", "BL3"}, 0, "~no baseline created"},
        {src, {"describe", "a.c"}, 0, "~  Labels:\n    BL1\n    BL1.1\n"},
        {src, {"lshistory", "-short", "a.c"}, 0, "a.c@@/main/2\na.c@@/main/2\na.c@@/main/2\na.c@@/main/1\na.c@@/main/0\na.c@@/main\na.c@@\n"},
        {"", {"mkbl", "-nc", "-import", "lbtype:BL1@/vobs/main"}, 1, "", "~Cannot get view info"},
        {src, {"mklbtype", "-nc", "lbtype:REL1@/vobs/main"}},
        {src, {"mkbl", "-nc", "-import", "comp@/vobs/pvob", "lbtype:REL1@/vobs/main"}, 0,
         "Created baseline \"REL1\" in component \"comp\".\n"},
        {src, {"setactivity", "-none"}, 0, "Cleared current activity from view \"dev_v\".\n"},
        {src, {"setactivity", "-cact"}, 1, "", "~Unrecognized option \"-cact\"\nUsage: setactivity"},
        {"base", {"lsstream", "-long", "-cview"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
    });
}

TEST_F(Scenario, LabelsTypesAndLocks)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    play({
        {"", {"mklbtype", "-ordinary", "-nc", "lbtype:REL1@/vobs/main", "lbtype:REL2@/vobs/main"}, 0,
         "Created label type \"REL1\".\nCreated label type \"REL2\".\n"},
        {"", {"mklbtype", "-nc", "lbtype:REL3@/vobs/main", "lbtype:REL1@/vobs/main"}, 1,
         "Created label type \"REL3\".\n",
         "cleartool: Error: Name \"REL1\" already exists.\ncleartool: Error: Unable to create label type \"REL1\".\n"},
        {"", {"mklbtype", "-rep", "-nc", "lbtype:REL1@/vobs/main"}, 0, "Replaced definition of label type \"REL1\".\n"},
        {src, {"mklabel", "-nc", "lbtype:REL1@/vobs/main", "a.c"}, 0, "Created label \"REL1\" on \"a.c\" version \"/main/1\".\n"},
        {src, {"mklabel", "-nc", "REL9", "a.c"}, 1, "", "~Label type not found: \"REL9\"."},
        {src, {"checkout", "-nc", "a.c"}},
    });
    write(src + "/a.c", "v2\n");
    play({
        {src, {"checkin", "-nc", "a.c"}},
        {src, {"mklabel", "-nc", "lbtype:REL1@/vobs/main", "a.c"}, 1, "", "~Version label of type \"REL1\" already on element."},
        {src, {"mklabel", "-replace", "-nc", "lbtype:REL1@/vobs/main", "a.c"}, 0,
         "Moved label \"REL1\" on \"a.c\" from version \"/main/1\" to \"/main/2\".\n"},
        {src, {"mklabel", "-nc", "-version", "/main/1", "lbtype:REL2@/vobs/main", "a.c"}, 0,
         "Created label \"REL2\" on \"a.c\" version \"/main/1\".\n"},
        {src, {"describe", "a.c@@/main/REL2"}, 0, "~version \"a.c@@/main/REL2\""},
        {"", {"lock", "-nusers", "alice", "-nc", "lbtype:REL2@/vobs/main"}, 0, "Locked label type \"REL2\".\n"},
        {"", {"lock", "-nc", "lbtype:REL2@/vobs/main"}, 1, "",
         "cleartool: Error: Object is already locked.\ncleartool: Error: Unable to lock label type \"REL2\".\n"},
        {"", {"lstype", "-short", "-kind", "lbtype", "-invob", "/vobs/main"}, 0,
         "BACKSTOP\nCHECKEDOUT\nLATEST\nREL1\nREL2 (locked)\nREL3\ncomp_INITIAL\n"},
        {src, {"mklabel", "-replace", "-nc", "lbtype:REL2@/vobs/main", "a.c"}, 1, "",
         "cleartool: Error: Lock on label type \"REL2\" prevents operation \"make label\".\n"
         "cleartool: Error: Unable to create label \"REL2\" on \"a.c\".\n"},
        {src, {"mklabel", "-replace", "-nc", "lbtype:REL2@/vobs/main", "a.c"}, 0, "~Moved label", "", "alice"},
        {"", {"lock", "-replace", "-obsolete", "-nc", "lbtype:REL3@/vobs/main"}},
        {"", {"lstype", "-s", "-kind", "lbtype", "-inv", "/vobs/main"}, 0,
         "BACKSTOP\nCHECKEDOUT\nLATEST\nREL1\nREL2 (locked)\ncomp_INITIAL\n"},
        {"", {"unlock", "-nc", "lbtype:REL2@/vobs/main"}, 0, "Unlocked label type \"REL2\".\n"},
        {"", {"unlock", "-nc", "lbtype:REL2@/vobs/main"}, 1, "", "~Object is not locked."},
        {src, {"lock", "-nc", "-pname", "a.c"}, 0, "Locked element \"a.c\".\n"},
        {src, {"checkout", "-nc", "a.c"}, 1, "",
         "cleartool: Error: Lock on element \"a.c\" prevents operation \"checkout\".\n"
         "cleartool: Error: Unable to check out \"a.c\".\n"},
        {src, {"unlock", "-nc", "-pname", "a.c"}, 0, "Unlocked element \"a.c\".\n"},
        {"", {"lock", "-nc", "vob:/vobs/main"}, 0, "Locked versioned object base \"/vobs/main\".\n"},
        {src, {"checkout", "-nc", "a.c"}, 1, "", "~Lock on versioned object base \"/vobs/main\" prevents operation"},
        {"", {"lstype", "-short", "-kind", "lbtype", "-invob", "/vobs/nope"}, 1, "",
         "cleartool: Error: Unable to determine VOB for pathname \"/vobs/nope\".\n"},
    });
}

TEST_F(Scenario, AttributeTypesAndValues)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    play({
        {"", {"mkattype", "-ordinary", "-vtype", "integer", "-gt", "0", "-le", "100", "-default", "1", "-nc",
              "Build@/vobs/main"},
         0, "Created attribute type \"Build\".\n"},
        {"", {"mkattype", "-vty", "integer", "-def 7", "-nc", "Other@/vobs/main"}, 0, "Created attribute type \"Other\".\n"},
        {"", {"describe", "attype:Build@/vobs/main"}, 0, "~  scope: this VOB (ordinary type)\n  value type: integer\n"},
        {"", {"mkattype", "-nc", "Note@/vobs/main"}},
        {"", {"mkattype", "-vtype", "time", "-nc", "When@/vobs/main"}},
        {"", {"mkattype", "-vtype", "integer", "-gt", "zero", "-nc", "Bad@/vobs/main"}, 1, "", "~Bad -gt value \"zero\""},
        {src, {"mkattr", "-pname", "-nc", "Build@/vobs/main", "5", "a.c"}, 0,
         "Created attribute \"Build\" on \"a.c@@/main/1\".\n"},
        {src, {"mkattr", "-nc", "Build", "6", "a.c"}, 1, "", "~Attribute of type \"Build\" already exists on \"a.c@@/main/1\"."},
        {src, {"mkattr", "-replace", "-nc", "Build", "100", "a.c"}, 0, "Replaced attribute \"Build\" on \"a.c@@/main/1\".\n"},
        {src, {"mkattr", "-replace", "-nc", "Build", "0", "a.c"}, 1, "", "~out of range"},
        {src, {"mkattr", "-replace", "-nc", "Build", "x1", "a.c"}, 1, "", "~not a valid integer value"},
        {src, {"mkattr", "-nc", "Note", "abc", "a.c"}, 1, "", "~not a valid string value"},
        {src, {"mkattr", "-nc", "Note", "\"a b\"", "a.c"}, 0, "Created attribute \"Note\" on \"a.c@@/main/1\".\n"},
        {src, {"mkattr", "-nc", "When", "yesterday.12:00", "a.c"}},
        {src, {"mkattr", "-nc", "-default", "Other", "vob:/vobs/main"}, 0, "Created attribute \"Other\" on \"vob:/vobs/main\".\n"},
        {src, {"mkattr", "-nc", "Nope", "1", "a.c"}, 1, "", "~Attribute type not found: \"Nope\"."},
        {src, {"describe", "a.c"}, 0,
         "~  Attributes:\n    Build = 100\n    Note = \"a b\"\n    When = 11-Mar-13.12:00:00\n"},
        {src, {"describe", "vob:/vobs/main"}, 0, "~    Other = 7\n"},
    });
}

TEST_F(Scenario, ConfigSpecAndUpdate)
{
    fixture();
    write("rel.txt", "element * REL1\nload /vobs/main\n");
    play({
        {"base", {"catcs"}, 0, "element * CHECKEDOUT\nelement * /main/LATEST\nload /vobs/main\n"},
        {"", {"catcs"}, 1, "", "cleartool: Error: Cannot get view info for current view: not a ClearCase object.\n"},
        {"base/vobs/main/src", {"mklbtype", "-nc", "REL1"}},
        {"base/vobs/main", {"mklabel", "-recurse", "-nc", "REL1", "."}, 0, "~Created label \"REL1\" on \"./src/a.c\""},
        {"base/vobs/main/src", {"checkout", "-nc", "a.c"}},
    });
    write("base/vobs/main/src/a.c", "new\n");
    play({
        {"base/vobs/main/src", {"checkin", "-nc", "a.c"}},
        {"dev", {"update", "-print"}, 0, "~Log has been written to"},
    });
    write("dev/vobs/main/src/a.c", "hijacked\n");
    play({
        {"dev", {"update", "-force", "-noverwrite"}, 0, "~Done loading"},
        {"dev", {"ls", "-long", "vobs/main/src/a.c"}, 0, "~[hijacked]"},
        {"dev", {"update", "-force", "-rename", "-ptime"}, 0, "~Loading \"vobs/main/src/a.c\" (4 bytes)."},
        {"dev/vobs/main/src", {"ls", "-short"}, 0, "a.c@@/main/2\na.c.keep\n"},
        {"base", {"setcs", "../rel.txt"}, 0, "~Loading \"vobs/main/src/a.c\" (7 bytes).\n"},
        {"base", {"setcs", "-default"}, 0, "~Log has been written to"},
        {"base", {"setcs", "-stream"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
        {"base", {"setcs", "missing.cs"}, 1, "", "~Unable to open file \"missing.cs\""},
        {"", {"update", "-force"}, 1, "", "~Unable to find a valid snapshot view path in"},
    });
    bool found = false;
    for (auto& e : fs::directory_iterator(root / "dev"))
        found |= e.path().filename().string().starts_with("update.12-Mar-13.10:22:31");
    EXPECT_TRUE(found);
}

// Switches and operands of each command are in the command-line tables.
TEST_F(Scenario, UnknownCommandsVersionAndMissingObjects)
{
    fixture();
    play({
        {"", {"frobnicate"}, 1, "", "cleartool: Error: Unrecognized command: \"frobnicate\"\n"},
        {"", {"-h"}, 0, "~Usage: uncheckout"},
        {"", {"-version"}, 0, "~Rational ClearCase version"},
        {"", {"mkview", "-snapshot", "-tag", "x_v", "-stream", "nope@/vobs/pvob", "x"}, 1, "", "~stream not found"},
        {"", {"lsview", "-short"}, 0, "base_v\ndev_v\n"},
        {"", {"describe", "lbtype:NOPE@/vobs/main"}, 1, "", "cleartool: Error: Label type not found: \"NOPE\".\n"},
    });
    EXPECT_FALSE(fs::exists(root / "x"));
}

TEST_F(Scenario, UncheckoutWithoutChoiceAsks)
{
    fixture();
    const std::string src = "base/vobs/main/src";
    play({{src, {"checkout", "-nc", "a.c"}}});
    Result r = run(src, {"uncheckout", "a.c"}, "", "no\n");
    EXPECT_EQ(r.status, 0);
    EXPECT_NE(r.out.find("Checkout cancelled for \"a.c\"."), std::string::npos);
    EXPECT_EQ(r.out.find("saved in"), std::string::npos);
    EXPECT_FALSE(fs::exists(root / src / "a.c.keep"));
}

} // namespace
