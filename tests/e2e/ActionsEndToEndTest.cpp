// Every ClearCase action run by the real wfbuild against the simulator, judged by the
// simulator's own listings afterwards, by the build log and by wfbuild's exit status.
#include "ClearCaseWorld.h"
#include "RowName.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace {

using Properties = std::vector<std::pair<std::string, std::string>>;

/// Something done to the world before the run: a simulator command in a folder (see
/// ClearCaseWorld::where), or, when `bytes` is set, a file written there.
struct Before {
    std::string place;
    std::vector<std::string> command;
    std::string bytes = {};
};

Before write(const std::string& place, const std::string& bytes)
{
    return {place, {}, bytes};
}

struct ActionCase {
    std::string name;
    std::string type;
    Properties properties;
    std::vector<Before> before;
    std::vector<e2e::Look> after;
    /// wfbuild's exit status, and lines the build log must hold (cleartool's own words on failure).
    int status = 0;
    std::vector<std::string> logLines = {};
    std::vector<e2e::SameAs> same = {};
    /// Where the project file lives (see ClearCaseWorld::where): actions that take no view
    /// context run in the project's folder.
    std::string projectPlace = "dir:";
    /// Set when a known fault elsewhere keeps the case from passing: the reason, naming it.
    std::string skip = {};
};

WF_ROW_PRINTER(ActionCase)

std::string xmlEscape(std::string text)
{
    // "&" first, so that no escape made here is escaped again.
    for (const auto& [from, to] : {std::pair{"&", "&amp;"}, {"<", "&lt;"}, {">", "&gt;"}, {"\r", "&#13;"}, {"\n", "&#10;"}})
        text = wftest::replaceAll(text, from, to);
    return text;
}

std::string projectXml(const std::string& type, const Properties& properties)
{
    std::string xml = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<wfproject version=\"1\">\n  <variables>\n"
                      "    <variable name=\"CHECKOUTS\" type=\"string\" value=\"stale\"/>\n  </variables>\n  <actions>\n"
                      "    <action type=\"" + type + "\" description=\"e2e\" enabled=\"True\">\n";
    for (const auto& [name, value] : properties)
        xml += "      <property name=\"" + name + "\">" + xmlEscape(value) + "</property>\n";
    return xml + "    </action>\n  </actions>\n</wfproject>\n";
}

class ActionRun : public ::testing::TestWithParam<ActionCase> {};

TEST_P(ActionRun, LeavesTheSimulatorInTheExpectedState)
{
    const ActionCase& c = GetParam();
    if (!c.skip.empty())
        GTEST_SKIP() << c.skip;
    e2e::ClearCaseWorld world;
    for (const Before& step : c.before) {
        if (step.command.empty())
            world.write(step.place, step.bytes);
        else
            world.mustCleartool(step.command, step.place);
    }
    const std::string project = world.where(c.projectPlace) + "/e2e.wfp";
    std::filesystem::create_directories(std::filesystem::path(project).parent_path());
    {
        std::ofstream(project) << projectXml(c.type, c.properties);
    }

    const wftest::ProgramRun run = world.wfbuild(project, {"--print-variables"});
    const std::string log = wftest::readFile(world.logFile());
    EXPECT_EQ(run.status, c.status) << log << run.err;
    for (const std::string& pattern : c.logLines) {
        const std::string line = wftest::replaceAll(pattern, "%DIR%", world.dir());
        EXPECT_NE(("\n" + log).find("\n" + line + "\n"), std::string::npos) << "log lacks: " << line << "\n" << log;
    }
    if (c.status != 0) {
        EXPECT_NE(run.err.find("Action 1 ("), std::string::npos) << run.err;
    }

    e2e::expectLooks(world, c.after);
    e2e::expectSame(world, c.same, run.out);
}

const std::string kMain = "vobs/main";
const std::string kSrc = "vobs/main/src";

// ---- Elements and views; the labels, locks, baselines and activities are the examples' own ----

INSTANTIATE_TEST_SUITE_P(Actions, ActionRun, ::testing::Values(
    ActionCase{"MakeElementCheckedIn", "CC_MKELEM",
        {{"PathNameStorageString", "util.c\r\n"}, {"Checkout", "ccCheckedIn"}, {"UseElementType", "True"},
         {"ElementType", "text_file"}, {"Comment", "Helpers"}, {"NoComment", "False"}},
        {{kMain, {"checkout", "-nc", "src"}}, write(kSrc + "/util.c", "int util;\n")},
        {{kSrc, {"lshistory", "util.c"}, {"create version \"util.c@@/main/1\"", "create file element \"util.c@@\""}},
         {kSrc, {"describe", "util.c"}, {"element type: text_file"}},
         {kSrc, {"lscheckout", "-short", "util.c"}, {}, {"util.c"}}},
        0, {}, {}, kSrc},
    ActionCase{"SetConfigSpecFromAFile", "CC_SETCONFIGSPEC",
        {{"ViewContextPath", "%SETUP%"}, {"CSpecChoice", "csFile"}, {"CSFilePath", "%DIR%/rel0.cs"}},
        {{"setup:" + kMain, {"mklbtype", "-nc", "REL_0"}}, {"setup:" + kSrc, {"mklabel", "-nc", "-version", "/main/0", "REL_0", "main.c"}},
         write("dir:rel0.cs", "element * CHECKEDOUT\nelement * REL_0\nelement * /main/LATEST\nload /vobs/main\n")},
        {{"setup:" + kSrc, {"ls", "-short", "main.c", "greet.c"}, {"main.c@@/main/0", "greet.c@@/main/1"}},
         {"setup:" + kSrc + "/main.c", {}, {}, {"int main"}}},
        0, {},
        {{"", "rel0.cs", "setup:", {"catcs"}}}},

    // ---- Attribute types and values ----

    ActionCase{"MakeStringAttributeTypeWithQuotedDefault", "CC_MKATTRTYPE",
        {{"AttributeName", "Status"}, {"NewAttributeType", "atString"}, {"UseDefaultValue", "True"}, {"DefaultValue", "\\\"untested\\\""},
         {"Constraints", "lcVPelement"}},
        {},
        {{kSrc, {"mkattr", "-nc", "-default", "Status", "main.c@@"}, {}},
         {kSrc, {"mkattr", "-nc", "-default", "Status", "greet.c"}, {"can only be applied to elements"}, {}, 1},
         {kSrc, {"describe", "main.c@@"}, {"Status = \"untested\""}}},
        0, {}, {}, kMain},

    // ---- What a user meets when things go wrong: cleartool's own words in the log, exit status 1.
    // Every refusal takes the same way through the action; the simulator's tables hold its words. ----

    ActionCase{"CheckOutAViewPrivateFile", "CC_CHECKOUT",
        {{"ViewContextPath", "%VIEW%/vobs/main"}, {"PathNameStorageString", "notes.txt\r\n"}},
        {write(kMain + "/notes.txt", "mine\n")},
        {{kMain, {"lscheckout", "-short"}, {}, {"notes.txt"}}},
        1, {"cleartool: Error: Not a vob object: \"notes.txt\".", "cleartool: Error: Unable to check out \"notes.txt\"."}}
), wftest::byName);

} // namespace
