// Commands that change the store or the view: what each switch does, what success prints,
// and the rules that refuse a change. Many switches are spelled in the shortest form the
// reference allows, so that each step also proves the abbreviation.

#include "ScenarioHarness.h"

using namespace ccsim::test;

namespace {

bool writable(const fs::path& p)
{
    return (fs::status(p).permissions() & fs::perms::owner_write) != fs::perms::none;
}

TEST_F(World, CheckoutSwitches)
{
    play({
        {src, {"checkout", "-nc", "-out", "../copy.c", "a.c"}, 0, "Checked out \"a.c\" from version \"/main/1\".\n"},
    });
    EXPECT_EQ(read("base/vobs/main/copy.c"), "int a;\n");
    EXPECT_FALSE(writable(root / src / "a.c"));
    play({
        {src, {"uncheckout", "-rm", "a.c"}},
        {src, {"checkout", "-nc", "-ptime", "a.c"}},
    });
    EXPECT_TRUE(writable(root / src / "a.c"));
    write(src + "/a.c", "two\n");
    play({
        {src, {"checkin", "-nc", "a.c"}, 0, "Checked in \"a.c\" version \"/main/2\".\n"},
        {src, {"checkout", "-nc", "a.c@@/main/1"}, 1, "",
         "cleartool: Error: Version \"/main/1\" is not the latest on its branch; use -version to check it out.\n"
         "cleartool: Error: Unable to check out \"a.c@@/main/1\".\n"},
        {src, {"checkout", "-nc", "-ver", "a.c@@/main/1"}, 0,
         "Checked out \"a.c@@/main/1\" from version \"/main/1\".\n"},
        {src, {"checkin", "-nc", "a.c"}, 1, "", "~Unable to check in \"a.c\".\n"},
        {src, {"uncheckout", "-rm", "a.c"}},
        {src, {"checkout", "-nc", "-bra", "/main", "a.c"}, 0, "Checked out \"a.c\" from version \"/main/2\".\n"},
        {src, {"uncheckout", "-rm", "a.c"}},
        {src, {"checkout", "-nc", "-branch", "/main/dev", "a.c"}, 1, "",
         "cleartool: Error: Branch \"/main/dev\" not found on element \"a.c\".\n"
         "cleartool: Error: Unable to check out \"a.c\".\n"},
        {src, {"checkout", "-nc", "-nda", "a.c"}, 0, "Checked out \"a.c\" from version \"/main/2\".\n"},
        {src, {"checkout", "-nc", "a.c"}, 1, "", "~Element \"a.c\" is already checked out to view \"base_v\".\n"},
    });
}

TEST_F(World, CheckinAndUncheckoutSwitches)
{
    play({
        {devSrc, {"mkactivity", "-nc", "-headline", "first", "act_a"}},
        {devSrc, {"checkout", "-nc", "a.c"}},
        {devSrc, {"checkout", "-nc", "."}},
        {devSrc, {"mkelem", "-nc", "b.c"}},
        {devSrc, {"mkactivity", "-nc", "act_b"}},
    });
    write(devSrc + "/a.c", "a2\n");
    write(devSrc + "/b.c", "b1\n");
    play({
        {devSrc, {"checkin", "-nc", "-cact"}, 0, "", ""},
        {devSrc, {"checkin", "-nc", "-keep", "activity:act_a@/vobs/pvob"}, 0,
         "Private version of \"a.c\" saved in \"a.c.keep\".\nChecked in \"a.c\" version \"/main/2\".\n"
         "Checked in \".\" version \"/main/2\".\n"
         "Private version of \"b.c\" saved in \"b.c.keep\".\nChecked in \"b.c\" version \"/main/1\".\n"},
        {devSrc, {"describe", "activity:act_a@/vobs/pvob"}, 0,
         "~  change set versions:\n    /vobs/main/src/a.c@@/main/2\n    /vobs/main/src@@/main/2\n"
         "    /vobs/main/src/b.c@@/main/1\n"},
        {devSrc, {"checkout", "-nc", "a.c"}},
    });
    EXPECT_EQ(read(devSrc + "/b.c.keep"), "b1\n");
    write(devSrc + "/a.c", "a3\n");
    play({
        {devSrc, {"uncheckout", "-keep", "-cact"}, 0,
         "Private version of \"a.c\" saved in \"a.c.keep.1\".\nCheckout cancelled for \"a.c\".\n"},
        {devSrc, {"checkout", "-nc", "a.c"}},
        {devSrc, {"uncheckout", "-rm", "activity:act_b@/vobs/pvob"}, 0, "Checkout cancelled for \"a.c\".\n"},
        {devSrc, {"lscheckout", "-short"}, 0, ""},
    });
    EXPECT_EQ(read(devSrc + "/a.c.keep"), "a2\n");
    EXPECT_EQ(read(devSrc + "/a.c.keep.1"), "a3\n");
    EXPECT_EQ(read(devSrc + "/a.c"), "a2\n");
    play({
        {devSrc, {"checkout", "-nc", "a.c"}},
        {devSrc, {"checkin", "-nc", "-ide", "-nwa", "-pti", "a.c"}, 0, "Checked in \"a.c\" version \"/main/3\".\n"},
    });
}

TEST_F(World, MakeElementSwitches)
{
    write(src + "/kept.c", "old data\n");
    write(src + "/img.bin", std::string("bin\0ary", 7));
    play({
        {src, {"checkout", "-nc", "."}},
        {src, {"mkelem", "-nc", "-nco", "n.c"}, 0, "Created element \"n.c\" (type \"text_file\").\n"},
        {src, {"mkelem", "-nc", "-elt", "binary_delta_file", "-ci", "-pti", "-nwa", "img.bin"}, 0,
         "Created element \"img.bin\" (type \"binary_delta_file\").\nChecked out \"img.bin\" from version \"/main/0\".\n"
         "Checked in \"img.bin\" version \"/main/1\".\n"},
        {src, {"mkelem", "-nc", "-master", "kept.c"}, 0,
         "Created element \"kept.c\" (type \"text_file\").\nChecked out \"kept.c\" from version \"/main/0\".\n"},
        {src, {"mkdir", "-nc", "-nco", "empty"}, 0, "Created directory element \"empty\".\n"},
        {src, {"mkelem", "-nc", "-eltype", "directory", "sub"}, 0,
         "Created directory element \"sub\".\nChecked out \"sub\" from version \"/main/0\".\n"},
        {src, {"ls", "-short", "-directory", "n.c", "img.bin", "empty"}, 0,
         "n.c@@/main/0\nimg.bin@@/main/1\nempty@@/main/0\n"},
        {src, {"mkelem", "-nc", "a.c", "fresh.c"}, 1,
         "Created element \"fresh.c\" (type \"text_file\").\nChecked out \"fresh.c\" from version \"/main/0\".\n",
         "cleartool: Error: Entry named \"a.c\" already exists.\ncleartool: Error: Unable to create element \"a.c\".\n"},
        {src, {"mkelem", "-nc", "/tmp/outside.c"}, 1, "", "~Unable to create element \"/tmp/outside.c\"."},
    });
    EXPECT_EQ(read(src + "/kept.c"), "old data\n");
    EXPECT_TRUE(fs::is_directory(root / src / "empty"));
}

TEST_F(World, UpdateHandlesHijacksAndWritesItsLog)
{
    write(src + "/b.c", "b\n");
    write(src + "/c.c", "c\n");
    play({
        {src, {"checkout", "-nc", "."}},
        {src, {"mkelem", "-nc", "-ci", "b.c", "c.c"}},
        {"dev", {"update"}, 0, "~Loading \"vobs/main/src/c.c\" (2 bytes).\n"},
        {"dev/vobs/main/src", {"mkactivity", "-nc", "w"}},
        {"dev/vobs/main/src", {"checkout", "-nc", "-unreserved", "c.c"}},
        {src, {"checkout", "-nc", "a.c"}},
    });
    write(src + "/a.c", "a2\n");
    write(src + "/d.c", "d\n");
    play({
        {src, {"checkin", "-nc", "a.c"}},
        {src, {"mkelem", "-nc", "-ci", "d.c"}},
    });
    now = "2013-03-12T11:00:00";
    play({{"dev", {"update", "-print"}, 0,
           "Processing dir \"vobs/main\".\nProcessing dir \"vobs/main/src\".\n"
           "Done loading \"/vobs/main\" (6 objects, copied 0 KB).\n"
           "Log has been written to \"" + (root / "dev/update.12-Mar-13.11:00:00.updt").string() + "\".\n"}});
    EXPECT_EQ(read("dev/update.12-Mar-13.11:00:00.updt"),
              "Update of view \"dev_v\" at 12-Mar-13.11:00:00\n"
              "Updated:                vobs/main/src/a.c /main/1 /main/2\n"
              "CheckedOut:             vobs/main/src/c.c\n"
              "New:                    vobs/main/src/d.c /main/1\n");
    EXPECT_FALSE(fs::exists(root / "dev/vobs/main/src/d.c"));
    fs::permissions(root / "dev/vobs/main/src/a.c", fs::perms::owner_write, fs::perm_options::add);
    write("dev/vobs/main/src/a.c", "mine\n");
    play({
        {"dev", {"update", "-nov", "-log", "../noov.log"}, 0,
         "~Loading \"vobs/main/src/d.c\" (2 bytes).\nDone loading \"/vobs/main\" (6 objects, copied 1 KB).\n"
         "Log has been written to \"../noov.log\".\n"},
        {"dev", {"ls", "-l", "vobs/main/src/a.c"}, 0, "~[hijacked]"},
        {"", {"update", "-f"}, 1, "", "~Unable to find a valid snapshot view path in"},
    });
    EXPECT_EQ(read("dev/vobs/main/src/a.c"), "mine\n");
    EXPECT_NE(read("noov.log").find("Hijacked:               vobs/main/src/a.c\n"), std::string::npos) << read("noov.log");
    play({{"dev", {"update", "-ren", "-cti"}, 0, "~Loading \"vobs/main/src/a.c\" (3 bytes).\n"}});
    EXPECT_EQ(read("dev/vobs/main/src/a.c.keep"), "mine\n");
    EXPECT_EQ(read("dev/vobs/main/src/a.c"), "a2\n");
    fs::permissions(root / "dev/vobs/main/src/b.c", fs::perms::owner_write, fs::perm_options::add);
    write("dev/vobs/main/src/b.c", "again\n");
    play({{"dev", {"update", "-f", "-ove", "-pti"}, 0, "~Loading \"vobs/main/src/b.c\" (2 bytes).\n"}});
    EXPECT_EQ(read("dev/vobs/main/src/b.c"), "b\n");
    EXPECT_FALSE(writable(root / "dev/vobs/main/src/b.c"));
    play({{"dev", {"setcs", "-default"}}});
    EXPECT_FALSE(fs::exists(root / "dev/vobs/main/src/b.c"));
    EXPECT_NE(read("dev/update.12-Mar-13.11:00:00.updt").find("UnloadDeleted:          vobs/main/src/b.c\n"),
              std::string::npos);
    play({
        {"dev", {"setcs", "-stream"}, 0, "~Loading \"vobs/main/src/b.c\" (2 bytes).\n"},
        {"dev", {"setcs", "-current"}, 0, "~Log has been written to"},
        {"dev", {"setcs", "-current", "-default"}, 1, "", "~Usage: setcs"},
        {"dev", {"setcs"}, 1, "", "~Usage: setcs"},
    });
}

TEST_F(World, LabelTypesAndLabels)
{
    const std::string main = "base/vobs/main";
    play({
        {main, {"mklbtype", "-glo", "-acq", "-nc", "GLOB"}, 0, "Created label type \"GLOB\".\n"},
        {main, {"mklbtype", "-sha", "-pbr", "-nc", "PB"}, 0, "Created label type \"PB\".\n"},
        // A value may share the switch's word; a switch without a value may not.
        {main, {"mklbtype", "-c First release", "lbtype:REL_7@/vobs/main"}, 0, "Created label type \"REL_7\".\n"},
        {main, {"describe", "lbtype:REL_7@/vobs/main"}, 0, "~\"First release\""},
        {main, {"mklbtype", "-nc x", "REL_8"}, 1, "", "~Unrecognized option \"-nc x\""},
        {main, {"mklbtype", "-nc", "brtype:REL_9"}, 1, "", "~Not a vob object: \"brtype:REL_9\"."},
        {main, {"mkbrtype", "-nc", "maint"}, 0, "Created branch type \"maint\".\n"},
        {main, {"describe", "lbtype:GLOB"}, 0, "~  scope: this VOB (global type)\n  constraint: one version per element\n"},
        {main, {"mklbtype", "-rep", "-ord", "-nc", "GLOB"}, 0, "Replaced definition of label type \"GLOB\".\n"},
        {main, {"mklabel", "-r", "-nc", "GLOB", "src"}, 0,
         "Created label \"GLOB\" on \"src\" version \"/main/1\".\nCreated label \"GLOB\" on \"src/a.c\" version \"/main/1\".\n"},
        {main, {"mklabel", "-nc", "GLOB", "src/a.c"}, 1, "",
         "cleartool: Error: Version label of type \"GLOB\" already on version.\n"
         "cleartool: Error: Unable to create label \"GLOB\" on \"src/a.c\".\n"},
        {main, {"mklabel", "-fol", "-nc", "PB", "src/a.c", "src/none.c", "src"}, 1,
         "Created label \"PB\" on \"src/a.c\" version \"/main/1\".\nCreated label \"PB\" on \"src\" version \"/main/1\".\n",
         "~Unable to create label \"PB\" on \"src/none.c\".\n"},
        {main, {"mklabel", "-nc", "-ver", "/main/0", "-rep", "PB", "src/a.c"}, 0,
         "Moved label \"PB\" on \"src/a.c\" from version \"/main/1\" to \"/main/0\".\n"},
        {main, {"mklabel", "-nc", "lbtype:PB@/vobs/main", "src/a.c"}, 1, "", "~Version label of type \"PB\" already on element."},
        {main, {"mklabel", "-nc", "lbtype:PB@/vobs/pvob", "src/a.c"}, 1, "", "~Label type not found: \"PB\"."},
        {main, {"lock", "-nc", "lbtype:PB"}},
        {main, {"mklabel", "-nc", "-rep", "PB", "src/a.c"}, 1, "", "~Lock on label type \"PB\" prevents operation \"make label\"."},
        {main, {"describe", "src/a.c@@/main/PB"}, 0, "~version \"src/a.c@@/main/PB\""},
        {main, {"describe", "-version", "/main/0", "src/a.c"}, 0, "~  Labels:\n    PB\n"},
        {main, {"mklabel", "-nc", "brtype:main", "src/a.c"}, 1, "", "~Label type not found: \"brtype:main\"."},
    });
}

TEST_F(World, LocksOnPathsAndSelectors)
{
    play({
        {src, {"lock", "-nc", "brtype:main"}, 0, "Locked branch type \"main\".\n"},
        {src, {"lock", "-nc", "brtype:main"}, 1, "", "~Object is already locked."},
        {src, {"checkout", "-nc", "a.c"}, 1, "",
         "cleartool: Error: Lock on branch type \"main\" prevents operation \"checkout\".\n"
         "cleartool: Error: Unable to check out \"a.c\".\n"},
        {src, {"unlock", "-nc", "brtype:main"}, 0, "Unlocked branch type \"main\".\n"},
        {src, {"lock", "-nc", "a.c@@/main"}, 0, "Locked branch \"a.c@@/main\".\n"},
        {src, {"checkout", "-nc", "a.c"}, 1, "", "~Lock on branch \"a.c@@/main\" prevents operation \"checkout\".\n"},
        {src, {"unlock", "-nc", "a.c@@/main"}},
        {src, {"checkout", "-nc", "a.c"}},
        {src, {"lock", "-nc", "-nus", "alice,bob", "a.c"}, 0, "Locked element \"a.c\".\n"},
        {src, {"checkin", "-nc", "-identical", "a.c"}, 1, "",
         "cleartool: Error: Lock on element \"a.c\" prevents operation \"checkin\".\n"
         "cleartool: Error: Unable to check in \"a.c\".\n"},
        {src, {"checkin", "-nc", "-identical", "a.c"}, 0, "Checked in \"a.c\" version \"/main/2\".\n", "", "bob"},
        {src, {"lock", "-nc", "-rep", "-obs", "a.c"}, 0, "Locked element \"a.c\".\n"},
        {src, {"checkout", "-nc", "a.c"}, 1, "", "~Lock on element \"a.c\" prevents operation \"checkout\".\n", "bob"},
        {src, {"lock", "-nc", "-pna", "a.c@@/main/1"}, 0, "Locked version \"a.c@@/main/1\".\n"},
        {src, {"unlock", "-nc", "-pna", "a.c@@/main/1", "a.c@@/main/1"}, 1, "Unlocked version \"a.c@@/main/1\".\n",
         "cleartool: Error: Object is not locked.\ncleartool: Error: Unable to unlock version \"a.c@@/main/1\".\n"},
        {"", {"lock", "-nc", "stream:dev@/vobs/pvob", "activity:none@/vobs/pvob", "component:comp@/vobs/pvob"}, 1,
         "Locked stream \"dev\".\nLocked component \"comp\".\n",
         "cleartool: Error: activity not found: \"none@/vobs/pvob\".\n"},
        {"dev/vobs/main", {"mkactivity", "-nc", "blocked"}, 1, "",
         "cleartool: Error: Lock on stream \"dev\" prevents operation \"make activity\".\n"
         "cleartool: Error: Unable to create activity \"blocked\".\n"},
        {src, {"mklbtype", "-nc", "REL_42"}},
        {src, {"mkattype", "-nc", "-vtype", "integer", "BuildNumber"}},
        {src, {"lock", "-nc", "lbtype:REL_42@/vobs/main"}},
        {"", {"mkattr", "-nc", "BuildNumber", "42", "lbtype:REL_42@/vobs/main"}, 1, "",
         "cleartool: Error: Lock on label type \"REL_42\" prevents operation \"make attribute\".\n"
         "cleartool: Error: Unable to create attribute \"BuildNumber\" on \"lbtype:REL_42@/vobs/main\".\n"},
        {"dev", {"setactivity", "activity:nosuch@/vobs/pvob"}, 1, "",
         "cleartool: Error: activity not found: \"nosuch@/vobs/pvob\".\n"},
        {"dev", {"checkin", "-nc", "activity:nosuch"}, 1, "", "cleartool: Error: activity not found: \"nosuch\".\n"},
        {"", {"lock", "-nc", "vob:/vobs/main"}},
        {src, {"mklbtype", "-nc", "REL9"}, 1, "",
         "cleartool: Error: Lock on versioned object base \"/vobs/main\" prevents operation \"make type\".\n"
         "cleartool: Error: Unable to create label type \"REL9\".\n"},
    });
}

TEST_F(World, AttributeValuesPerType)
{
    play({
        {src, {"mkattype", "-nc", "-vtype", "real", "-ge", "1.5", "-lt", "2.5", "Ratio"}},
        {src, {"mkattype", "-nc", "-vty", "opaque", "Blob"}},
        {src, {"mkattype", "-nc", "-vtype", "time", "-gt", "1-Mar-13", "Due"}},
        {src, {"mkattype", "-nc", "-enum", "\"red\",\"green\"", "-def", "\"green\"", "Color"}},
        {src, {"mkattype", "-nc", "-vtype", "integer", "-enum", "1,2,x", "Level"}, 1, "",
         "~Bad -enum value \"x\" for value type integer."},
        {src, {"mkattype", "-nc", "-vtype", "integer", "-le", "100", "-default", "200", "Big"}, 1, "",
         "cleartool: Error: Value \"200\" is out of range for attribute type \"Big\".\n"
         "cleartool: Error: Unable to create attribute type \"Big\".\n"},
        {src, {"mkattype", "-nc", "-vtype", "words", "Odd"}, 1, "", "~Usage: mkattype"},
        {src, {"mkattype", "-nc", "-vtype", "integer", "-gt", "zero", "Odd"}, 1, "", "~Bad -gt value \"zero\""},
        {src, {"mkattype", "-nc", "Note"}},
        {src, {"describe", "attype:Due"}, 0, "~ (exclusive)\n"},
        {src, {"mkattype", "-nc", "Ratio"}, 1, "",
         "cleartool: Error: Name \"Ratio\" already exists.\ncleartool: Error: Unable to create attribute type \"Ratio\".\n"},
        {src, {"mkattype", "-replace", "-nc", "-vtype", "real", "-ge", "1.5", "-le", "2.5", "Ratio"}, 0,
         "Replaced definition of attribute type \"Ratio\".\n"},
        {src, {"mkattr", "-nc", "Ratio", "2.5", "a.c"}, 0, "Created attribute \"Ratio\" on \"a.c@@/main/1\".\n"},
        {src, {"mkattr", "-nc", "-replace", "Ratio", "1.4", "a.c"}, 1, "", "~out of range"},
        {src, {"mkattr", "-nc", "-replace", "Ratio", "two", "a.c"}, 1, "", "~not a valid real value"},
        {src, {"mkattr", "-nc", "Blob", "anything", "a.c"}},
        {src, {"mkattr", "-nc", "Note", "abc", "a.c"}, 1, "", "~not a valid string value"},
        {src, {"mkattr", "-nc", "Nope", "1", "a.c"}, 1, "", "~Attribute type not found: \"Nope\"."},
        {src, {"mkattr", "-nc", "Due", "2-Mar-13.10:00", "a.c"}},
        {src, {"mkattr", "-nc", "Color", "\"blue\"", "a.c"}, 1, "", "~out of range"},
        {src, {"mkattr", "-nc", "-default", "Color", "a.c@@/main"}, 0, "Created attribute \"Color\" on \"a.c@@/main\".\n"},
        {src, {"mkattr", "-nc", "Color", "\"red\"", "a.c@@"}, 0, "Created attribute \"Color\" on \"a.c@@\".\n"},
        {src, {"mkattr", "-nc", "-version", "/main/0", "Color", "\"red\"", "a.c"}, 0,
         "Created attribute \"Color\" on \"a.c@@/main/0\".\n"},
        {src, {"mkattr", "-nc", "-recurse", "Blob", "x", ".."}, 1,
         "Created attribute \"Blob\" on \"..@@/main/1\".\nCreated attribute \"Blob\" on \"../src@@/main/1\".\n",
         "cleartool: Error: Attribute of type \"Blob\" already exists on \"../src/a.c@@/main/1\".\n"
         "cleartool: Error: Unable to create attribute \"Blob\" on \"../src/a.c@@/main/1\".\n"},
        {src, {"mkattr", "-nc", "-pname", "-replace", "Blob", "y", "."}, 0, "Replaced attribute \"Blob\" on \".@@/main/1\".\n"},
        {src, {"describe", "a.c"}, 0,
         "~  Attributes:\n    Blob = anything\n    Due = 02-Mar-13.10:00:00\n    Ratio = 2.5\n"},
        {src, {"describe", "a.c@@/main", "a.c@@"}, 0, "~  Attributes:\n    Color = \"green\"\n"},
    });
}

TEST_F(World, ActivitiesAndBaselines)
{
    play({
        {"", {"mkactivity", "-nc", "-in", "dev@/vobs/pvob", "-hea", "Outside", "ext@/vobs/pvob"}, 0,
         "Created activity \"ext\".\n"},
        {"", {"mkactivity", "-nc", "-in", "dev@/vobs/pvob"}, 0, "Created activity \"activity130312.102231\".\n"},
        {devSrc, {"mkactivity", "-nc", "-nse"}, 0, "Created activity \"activity130312.102231.1\".\n"},
        {"base", {"mkactivity", "-nc", "x"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
        {"", {"setactivity", "-view", "dev_v", "ext@/vobs/pvob"}, 0, "Set activity \"ext\" in view \"dev_v\".\n"},
        {"", {"setactivity", "-view", "base_v", "ext@/vobs/pvob"}, 1, "",
         "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
        {"", {"setactivity", "-view", "dev_v", "-none"}, 0, "Cleared current activity from view \"dev_v\".\n"},
        {devSrc, {"setactivity", "-none", "ext"}, 1, "", "~Usage: setactivity"},
        {devSrc, {"setactivity"}, 1, "", "~Usage: setactivity"},
        {devSrc, {"setactivity", "ext"}},
        {devSrc, {"checkout", "-nc", "a.c"}},
    });
    write(devSrc + "/a.c", "changed\n");
    play({
        {devSrc, {"checkin", "-nc", "a.c"}},
        {"", {"mkbl", "-nc", "-view", "dev_v", "-act", "ext@/vobs/pvob", "-fu", "ACT"}, 0,
         "Created baseline \"ACT\" in component \"comp\".\nBegin fully labeling baseline \"ACT\".\n"
         "Done fully labeling baseline \"ACT\".\n"},
        {devSrc, {"mkbl", "-nc", "-all", "-ide", "-nla", "NL"}, 0, "Created baseline \"NL\" in component \"comp\".\n"},
        {devSrc, {"mkbl", "-nc", "-component", "comp@/vobs/pvob", "-ide", "-fu", "NL"}, 0,
         "Created baseline \"NL.1\" in component \"comp\".\nBegin fully labeling baseline \"NL.1\".\n"
         "Done fully labeling baseline \"NL.1\".\n"},
        {devSrc, {"mkbl", "-nc", "-act", "-cact", "-nla", "BL3"}, 0, "~no baseline created"},
        {devSrc, {"mkbl", "-nc", "-all", "-identical"}, 0,
         "Created baseline \"dev_130312.102231\" in component \"comp\".\n"
         "Begin incrementally labeling baseline \"dev_130312.102231\".\n"
         "Done incrementally labeling baseline \"dev_130312.102231\".\n"},
        {devSrc, {"mkbl", "-nc", "A", "B"}, 1, "", "~Usage: mkbl"},
        {"", {"mkbl", "-nc", "-view", "base_v", "-all", "X"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
        {"", {"mklbtype", "-nc", "lbtype:IMP@/vobs/main"}},
        {"", {"mkbl", "-nc", "-view", "dev_v", "-import", "lbtype:IMP@/vobs/main"}, 0,
         "Created baseline \"IMP\" in component \"comp\".\n"},
        {"", {"mklbtype", "-nc", "lbtype:IMP2@/vobs/main"}},
        {devSrc, {"mkbl", "-nc", "-import", "comp@/vobs/pvob", "lbtype:IMP2@/vobs/main"}, 0,
         "Created baseline \"IMP2\" in component \"comp\".\n"},
        {"", {"lsbl", "-short", "-stream", "dev@/vobs/pvob"}, 0, "ACT\nNL\nNL.1\ndev_130312.102231\nIMP\nIMP2\n"},
        {"", {"describe", "baseline:NL@/vobs/pvob"}, 0, "~  label status: Not Labeled\n"},
        {devSrc, {"describe", "a.c"}, 0,
         "version \"a.c@@/main/2\"\n  created 12-Mar-13.10:22:31 by " + creator() +
             "\n  element type: text_file\n  predecessor version: /main/1\n  Labels:\n    ACT\n    NL.1\n"},
    });
}

} // namespace
