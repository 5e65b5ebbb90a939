// Listings as a user reads them: the -short forms tools parse, the long and default forms,
// and the descriptions of objects with their labels, attributes and locks.

#include "ScenarioHarness.h"

using namespace ccsim::test;

namespace {

TEST_F(World, VobsPoolsFoldersAndTypes)
{
    play({
        {"", {"lsvob", "-s", "/vobs/pvob"}, 0, "/vobs/pvob\n"},
        {"", {"lstype", "-short", "-kind", "lbtype"}, 1, "",
         "cleartool: Error: Unable to determine VOB for pathname \".\".\n"},
        {"", {"mklbtype", "-c", "first release", "lbtype:REL1@/vobs/main", "lbtype:OLD@/vobs/main"}},
        {"", {"lock", "-nc", "lbtype:REL1@/vobs/main"}},
        {"", {"lock", "-nc", "-obsolete", "lbtype:OLD@/vobs/main"}},
        {"base/vobs/main/src", {"lstype", "-short", "-kind", "lbtype"}, 0,
         "BACKSTOP\nCHECKEDOUT\nLATEST\nREL1 (locked)\ncomp_INITIAL\n"},
        {"base/vobs/main/src", {"lstype", "-short", "-obsolete", "-kind", "lbtype"}, 0, "~OLD"},
        {"", {"lstype", "-kind", "lbtype", "-invob", "/vobs/main"}, 0,
         "12-Mar.10:22   builder    label type \"BACKSTOP\"\n12-Mar.10:22   builder    label type \"CHECKEDOUT\"\n"
         "12-Mar.10:22   builder    label type \"LATEST\"\n"
         "12-Mar.10:22   builder    label type \"REL1\" (locked)\n  \"first release\"\n"
         "12-Mar.10:22   builder    label type \"comp_INITIAL\"\n"},
        {"", {"lspool", "-short", "-invob", "/vobs/pvob"}, 0, "cdft\nddft\nsdft\n"},
        {"", {"lspool", "-short", "-invob", "/vobs/none"}, 1, "",
         "cleartool: Error: Unable to determine VOB for pathname \"/vobs/none\".\n"},
        {"", {"mkfolder", "-nc", "-in", "RootFolder@/vobs/pvob", "folder:tools@/vobs/pvob"}},
        {"", {"lsfolder", "-s", "-inv", "/vobs/pvob"}, 0, "RootFolder\ntools\n"},
        {"", {"lsproject", "-short", "-invob", "/vobs/pvob"}, 0, "proj\n"},
    });
}

TEST_F(World, UcmListingsFollowTheView)
{
    play({
        {"", {"mkvob", "-tag", "/vobs/other", "-nc", (root / "other.vbs").string()}},
        {"", {"mkcomp", "-nc", "-root", "/vobs/other", "tools@/vobs/pvob"}},
        {"dev/vobs/main", {"lscomp", "-short"}, 0, "comp\n"},
        {"base/vobs/main", {"lscomp", "-short"}, 1, "", "~\"/vobs/main\" is not a project VOB"},
        {"dev/vobs/main", {"mkactivity", "-nc", "-headline", "Fix build", "fix_1"}},
        {"", {"mkactivity", "-nc", "-in", "proj_int@/vobs/pvob", "int_work@/vobs/pvob"}},
        {"", {"lsactivity", "-short", "-in", "proj_int@/vobs/pvob"}, 0, "int_work\n"},
        {"dev", {"lsactivity"}, 0, "12-Mar.10:22   builder    activity \"fix_1\"\n  \"Fix build\"\n"},
        {"base", {"lsactivity", "-cview"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
        {"", {"lsstream", "-short", "-in", "proj@/vobs/pvob"}, 0, "dev\nproj_int\n"},
    });
    now = "2013-04-02T08:05:00";
    play({
        {"", {"mkstream", "-nc", "-in", "proj@/vobs/pvob", "-baseline", "comp_INITIAL@/vobs/pvob", "late@/vobs/pvob"}},
        {"", {"lsstream", "-invob", "/vobs/pvob"}, 0,
         "12-Mar.10:22   builder    stream \"dev\"\n02-Apr.08:05   builder    stream \"late\"\n"
         "12-Mar.10:22   builder    stream \"proj_int\"\n"},
        {"dev", {"lsstream", "-long", "-cview"}, 0,
         "stream \"dev\"\n  created 12-Mar-13.10:22:31 by " + creator() + "\n  owner: builder\n  group: " + groupName() +
             "\n  project: proj@/vobs/pvob\n  title: dev\n  default deliver stream: proj_int@/vobs/pvob\n"
             "  contains activities:\n    fix_1@/vobs/pvob\n  foundation baselines:\n"
             "    comp_INITIAL@/vobs/pvob (comp@/vobs/pvob)\n  recommended baselines:\n  views:\n    dev_v\n"},
        {"", {"lsstream", "-long", "late@/vobs/pvob"}, 0,
         "~  contains activities:\n  foundation baselines:\n    comp_INITIAL@/vobs/pvob (comp@/vobs/pvob)\n"
         "  recommended baselines:\n  views:\n"},
        {"", {"lsstream", "-long", "-cview"}, 1, "",
         "cleartool: Error: Cannot get view info for current view: not a ClearCase object.\n"},
        {"base", {"lsstream", "-long", "-cview"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
    });
}

TEST_F(World, HistoryIsNewestFirstWithLabelAndBranchEvents)
{
    now = "2013-03-14T09:00:00";
    play({{src, {"checkout", "-nc", "a.c"}}});
    write(src + "/a.c", "int a = 2;\n");
    play({
        {src, {"checkin", "-c", "second cut", "a.c"}},
        {src, {"mklbtype", "-nc", "REL1"}},
        {src, {"mklabel", "-nc", "-version", "/main/1", "REL1", "a.c"}},
        {src, {"lshistory", "-short", "-since", "13-Mar-13", "a.c"}, 0, "a.c@@/main/1\na.c@@/main/2\n"},
        {src, {"lshistory", "a.c"}, 0,
         "~14-Mar.09:00   builder    create version \"a.c@@/main/2\"\n  \"second cut\"\n"
         "12-Mar.10:22   builder    create version \"a.c@@/main/1\"\n"},
        {src, {"lshistory", "a.c"}, 0, "~14-Mar.09:00   builder    make label \"REL1\" on version \"a.c@@/main/1\"\n"},
        {src, {"lshistory", "-short", "a.c", "gone.c"}, 1,
         "a.c@@/main/1\na.c@@/main/2\na.c@@/main/1\na.c@@/main/0\na.c@@/main\na.c@@\n",
         "cleartool: Error: Not an object in a vob: \"gone.c\".\n"},
        {src, {"lshistory", "-short", "-since", "someday", "a.c"}, 1, "", "~Usage: lshistory"},
    });
}

TEST_F(World, RecursiveListingShowsCheckoutsAndPrivateFiles)
{
    const std::string main = "base/vobs/main";
    fs::create_directories(root / main / "priv");
    write(main + "/priv/x.txt", "x\n");
    write(main + "/src/notes.txt", "n\n");
    play({
        {main + "/src", {"checkout", "-nc", "a.c"}},
        {main, {"ls", "-recurse", "-short"}, 0,
         "priv\nsrc@@/main/1\npriv/x.txt\nsrc/a.c@@/main/CHECKEDOUT\nsrc/notes.txt\n"},
        {main, {"ls", "-r", "-s", "src"}, 0, "src/a.c@@/main/CHECKEDOUT\nsrc/notes.txt\n"},
        {main, {"ls", "-l", "src/notes.txt", "src"}, 0,
         "view private object    src/notes.txt\nversion                src/a.c@@/main/CHECKEDOUT\n"
         "view private object    src/notes.txt\n"},
        {main, {"ls", "-short", "missing", "src/a.c"}, 1, "src/a.c@@/main/CHECKEDOUT\n",
         "cleartool: Error: Unable to access \"missing\": No such file or directory.\n"},
    });
}

TEST_F(World, DescribeShowsTypesVersionsAndLocks)
{
    const std::string made = "  created 12-Mar-13.10:22:31 by " + creator() + "\n";
    const std::string owner = "  owner: builder\n  group: " + groupName() + "\n";
    const std::string except = "  Locked except for users: alice bob\n";
    play({
        {src, {"mkattype", "-nc", "-vtype", "integer", "-ge", "1", "-lt", "10", "-default", "2", "Build"}},
        {src, {"mkattype", "-c", "what it is", "Note"}},
        {src, {"mklbtype", "-nc", "-pbranch", "REL1"}},
        {src, {"mklabel", "-nc", "REL1", "a.c"}},
        {src, {"mkattr", "-nc", "Build", "3", "a.c"}},
        {src, {"mkattr", "-nc", "Note", "\"ok\"", "a.c"}},
        {src, {"lock", "-nc", "attype:Build", "a.c"}},
        {src, {"lock", "-nc", "-nusers", "alice,bob", "lbtype:REL1", "a.c@@/main", "a.c@@/main/1"}},
        {src, {"describe", "attype:Build"}, 0,
         "attribute type \"Build\" (locked)\n" + made + owner +
             "  scope: this VOB (ordinary type)\n  value type: integer\n  lower bound: 1 (inclusive)\n"
             "  upper bound: 10 (exclusive)\n  default value: 2\n"},
        {src, {"describe", "lbtype:REL1"}, 0,
         "label type \"REL1\" (locked)\n" + made + except + owner + "  scope: this VOB (ordinary type)\n"
             "  constraint: one version per branch\n"},
        {src, {"describe", "a.c"}, 0,
         "version \"a.c@@/main/1\" (locked)\n" + made + except + "  element type: text_file\n"
             "  predecessor version: /main/0\n  Labels:\n    REL1\n  Attributes:\n    Build = 3\n    Note = \"ok\"\n"},
        {src, {"describe", "a.c@@"}, 0, "file element \"a.c@@\" (locked)\n" + made + "  element type: text_file\n"},
        {src, {"describe", "..@@"}, 0, "~directory element \"..@@\"\n"},
        {src, {"describe", "a.c@@/main/7"}, 1, "", "cleartool: Error: Not a vob object: \"a.c@@/main/7\".\n"},
        {"", {"lock", "-nc", "-nusers", "alice,bob", "stream:dev@/vobs/pvob"}},
        {"", {"describe", "stream:dev@/vobs/pvob"}, 0, "~stream \"dev\" (locked)\n" + made + except + owner},
        {"", {"describe", "component:comp@/vobs/pvob"}, 0, "~  root directory: /vobs/main\n"},
        {"", {"describe", "baseline:comp_INITIAL@/vobs/pvob"}, 0, "~  label status: Fully Labeled\n"},
        {"", {"describe", "project:proj@/vobs/pvob"}, 0,
         "~  integration stream: proj_int@/vobs/pvob\n  modifiable components:\n    comp@/vobs/pvob\n"},
    });
}

TEST_F(World, CheckoutListingsAndConfigSpecs)
{
    play({
        {src, {"checkout", "-unreserved", "-c", "dir work", "."}},
        {"dev/vobs/main/src", {"mkactivity", "-nc", "fix_1"}},
        {"dev/vobs/main/src", {"checkout", "-nc", "a.c"}, 0, "~", "", "alice"},
        {src, {"lscheckout"}, 0, "12-Mar.10:22   alice      checkout version \"a.c\" from /main/1 (reserved)\n"},
        {src, {"lscheckout", "-directory", "."}, 0,
         "12-Mar.10:22   builder    checkout directory version \".\" from /main/1 (unreserved)\n  \"dir work\"\n"},
        {src, {"lsco", "-s", "-cvi"}, 0, ""},
        {src, {"lscheckout", "-short", "-me"}, 0, ""},
        {src, {"lscheckout", "-short", "-me"}, 0, "a.c\n", "", "alice"},
        {"base/vobs/main", {"lscheckout", "-short", "-recurse"}, 0, "src\nsrc/a.c\n"},
        {"base/vobs/main", {"lscheckout", "-short", "-cview", "-recurse"}, 0, "src\n"},
        {"dev", {"catcs"}, 0,
         "ucm\nidentity UCM.Stream oid:dev@/vobs/pvob 1\n\n# ONLY EDIT THIS CONFIG SPEC IN THE INDICATED \"CUSTOM\" AREAS\n"
         "#\nelement * CHECKEDOUT\nelement * /main/LATEST\n\nload /vobs/main\n\nend ucm\n"},
        {"", {"catcs", "-tag", "base_v"}, 0, "element * CHECKEDOUT\nelement * /main/LATEST\nload /vobs/main\n"},
        {"", {"catcs", "-tag", "nope_v"}, 1, "", "~\"nope_v\""},
    });
    write("rel.cs", "element * CHECKEDOUT\nelement * REL1\nload /vobs/main\n");
    play({
        {"base", {"setcs", "-stream"}, 1, "", "cleartool: Error: View \"base_v\" is not a UCM view.\n"},
        {"base/vobs/main/src", {"mklbtype", "-nc", "REL1"}},
        {"base/vobs/main/src", {"mklabel", "-nc", "REL1", "a.c"}},
        {"base", {"setcs", "../rel.cs"}, 0, "~Done loading"},
        {"base", {"catcs"}, 0, "element * CHECKEDOUT\nelement * REL1\nload /vobs/main\n"},
    });
}

} // namespace
