#include "PropertiesAction.h"
#include "RowName.h"
#include "WFProject.h"
#include "WFServices.h"

#include "WFTestSupport.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>

#include <csignal>
#include <sys/resource.h>
#include <unistd.h>

namespace {

using wftest::clBlue;
using wftest::clGreen;
using wftest::clRed;
using wftest::TPropertiesAction;

class Project : public ::testing::Test {
protected:
    void SetUp() override
    {
        WFActionServices().Clear();
        wftest::registerPropertiesAction();
    }
    void TearDown() override { WFActionServices().Clear(); }

    bool read(const std::string& text, TWFProject& project)
    {
        diagnostics.clear();
        return ReadProjectText(text, "p.wfp", project, diagnostics);
    }
    std::string firstDiagnostic() const { return diagnostics.empty() ? "" : diagnostics.front().ToString(); }

    std::vector<TWFProjectDiagnostic> diagnostics;
};

const char* kProject = R"(<?xml version="1.0" encoding="UTF-8"?>
<wfproject version="1">
  <variables>
    <variable name="CHECKOUTS" type="string" value=""/>
    <variable name="BUILD" type="integer" value="7"/>
  </variables>
  <actions>
    <action type="T_PROPS" description="Grüße &amp; more" enabled="True">
      <property name="Text">line 1&#13;&#10;zweite Zeile ✓&#13;lone CR&#10;lone LF&#13;&#10;</property>
      <property name="Flag">True</property>
      <property name="Count">-12</property>
      <property name="Colour">clBlue</property>
    </action>
    <action type="T_PROPS" description="" enabled="False">
      <property name="Text"> &lt;kept&gt; &quot;as is&quot; </property>
      <property name="Flag">False</property>
      <property name="Count">0</property>
      <property name="Colour">clRed</property>
    </action>
  </actions>
</wfproject>
)";

TEST_F(Project, RoundTripsByteForByte)
{
    TWFProject project;
    ASSERT_TRUE(read(kProject, project)) << firstDiagnostic();
    ASSERT_EQ(project.actions.size(), 2u);
    auto& first = static_cast<TPropertiesAction&>(*project.actions[0]);
    EXPECT_EQ(first.m_text, "line 1\r\nzweite Zeile ✓\rlone CR\nlone LF\r\n");
    EXPECT_EQ(first.m_colour, clBlue);
    EXPECT_EQ(first.m_count, -12);
    EXPECT_EQ(first.GetDescription(), "Grüße & more");
    EXPECT_FALSE(project.actions[1]->GetEnabled());

    const std::string written = WriteProjectText(project);
    TWFProject again;
    ASSERT_TRUE(read(written, again)) << firstDiagnostic();
    EXPECT_EQ(WriteProjectText(again), written);
    EXPECT_EQ(static_cast<TPropertiesAction&>(*again.actions[0]).m_text, first.m_text);
    EXPECT_EQ(static_cast<TPropertiesAction&>(*again.actions[1]).m_text, " <kept> \"as is\" ");
}

// What only version 2 holds raises the written version; a project without it stays readable
// by hosts that know version 1 alone.
TEST_F(Project, CleanupActionsAndContinueOnFailureRoundTripAsVersion2)
{
    const std::string v2 = R"(<?xml version="1.0" encoding="UTF-8"?>
<wfproject version="2" cleanupTimeout="90">
  <variables/>
  <actions>
    <action type="T_PROPS" description="lint" enabled="True" continueOnFailure="True">
      <property name="Text"/>
      <property name="Flag">False</property>
      <property name="Count">0</property>
      <property name="Colour">clRed</property>
    </action>
  </actions>
  <cleanup>
    <action type="T_PROPS" description="undo" enabled="False">
      <property name="Text">give back</property>
      <property name="Flag">True</property>
      <property name="Count">2</property>
      <property name="Colour">clGreen</property>
    </action>
  </cleanup>
</wfproject>
)";
    TWFProject project;
    ASSERT_TRUE(read(v2, project)) << firstDiagnostic();
    ASSERT_EQ(project.actions.size(), 1u);
    ASSERT_EQ(project.cleanupActions.size(), 1u);
    EXPECT_TRUE(project.actions[0]->GetContinueOnFailure());
    EXPECT_EQ(static_cast<TPropertiesAction&>(*project.cleanupActions[0]).m_text, "give back");
    EXPECT_EQ(project.cleanupTimeoutSeconds.value_or(0), 90);
    EXPECT_EQ(WriteProjectText(project), v2);

    const auto dropCleanup = [](TWFProject& p) { p.cleanupActions.clear(); };
    const auto dropFlag = [](TWFProject& p) { p.actions[0]->SetContinueOnFailure(false); };
    const auto dropTimeout = [](TWFProject& p) { p.cleanupTimeoutSeconds.reset(); };
    const struct {
        const char* kept;
        std::vector<std::function<void(TWFProject&)>> drops;
        const char* version;
    } rows[] = {
        {"the clean-up list", {dropFlag, dropTimeout}, "version=\"2\""},
        {"the flag", {dropCleanup, dropTimeout}, "version=\"2\""},
        {"the clean-up time limit", {dropCleanup, dropFlag}, "version=\"2\""},
        {"nothing of version 2", {dropCleanup, dropFlag, dropTimeout}, "version=\"1\""},
    };
    for (const auto& row : rows) {
        TWFProject changed;
        ASSERT_TRUE(read(v2, changed));
        for (const auto& drop : row.drops)
            drop(changed);
        EXPECT_NE(WriteProjectText(changed).find(row.version), std::string::npos) << "keeping " << row.kept;
    }
}

struct BadCase {
    const char* name;
    std::string text;
    const char* place;   // "line:column"
    const char* message; // a piece of it
};
WF_ROW_PRINTER(BadCase)

class ProjectErrors : public Project, public ::testing::WithParamInterface<BadCase> {};

TEST_P(ProjectErrors, NameFileLineAndColumn)
{
    TWFProject project;
    EXPECT_FALSE(read(GetParam().text, project));
    const std::string diagnostic = firstDiagnostic();
    EXPECT_EQ(diagnostic.rfind(std::string("p.wfp:") + GetParam().place, 0), 0u) << diagnostic;
    EXPECT_NE(diagnostic.find(": error: "), std::string::npos) << diagnostic;
    EXPECT_NE(diagnostic.find(GetParam().message), std::string::npos) << diagnostic;
}

const std::string kHead = "<wfproject>\n<actions>\n<action type=\"T_PROPS\">\n";

INSTANTIATE_TEST_SUITE_P(
    Refused, ProjectErrors,
    ::testing::Values(
        BadCase{"unknownType", "<wfproject>\n<actions>\n<action type=\"NOPE\"/>\n</actions></wfproject>", "3:",
                "unknown action type \"NOPE\""},
        BadCase{"badBoolean", "<wfproject><actions>\n<action type=\"T_PROPS\">\n  <property name=\"Flag\">yes</property>\n</action></actions></wfproject>",
                "3:", "\"yes\" is not a Boolean"},
        BadCase{"badEnumeration", "<wfproject><actions><action type=\"T_PROPS\">\n\n<property name=\"Colour\">clPink</property></action></actions></wfproject>",
                "3:", "clRed, clGreen, clBlue"},
        BadCase{"badInteger", "<wfproject><actions><action type=\"T_PROPS\"><property name=\"Count\">12x</property></action></actions></wfproject>",
                "1:", "not an integer"},
        BadCase{"truncated", "<wfproject><actions><action type=\"T_PR", "1:", "malformed XML"},
        BadCase{"notAProject", "<html/>", "1:", "not <wfproject>"},
        BadCase{"empty", "", "1:1", "the file is empty"},
        BadCase{"duplicateProperty", "<wfproject><actions><action type=\"T_PROPS\">\n<property name=\"Count\">1</property>\n"
                "<property name=\"Count\">2</property></action></actions></wfproject>", "3:", "property \"Count\" is given twice"},
        BadCase{"duplicateVariable", "<wfproject><variables>\n<variable name=\"A\" value=\"1\"/>\n  <variable name=\"A\" value=\"2\"/>"
                "</variables></wfproject>", "3:", "variable \"A\" is defined twice"},
        BadCase{"misspelledAttribute", "<wfproject><actions>\n\n<action type=\"T_PROPS\" enabeld=\"False\"/></actions></wfproject>",
                "3:", "unknown attribute \"enabeld\" on <action>"},
        BadCase{"newerFormat", "<wfproject version=\"3\">\n</wfproject>", "1:",
                "project format version 3 is not supported (this wfbuild reads 1 to 2)"},
        BadCase{"badContinueOnFailure", "<wfproject><actions>\n<action type=\"T_PROPS\" continueOnFailure=\"often\"/>"
                "</actions></wfproject>", "2:", "continueOnFailure=\"often\" is not True or False"},
        BadCase{"badCleanupTimeout", "<wfproject cleanupTimeout=\"soon\"/>", "1:", "cleanupTimeout=\"soon\" is not a whole number"},
        BadCase{"strangerInCleanup", "<wfproject><cleanup>\n<step/></cleanup></wfproject>", "2:", "unexpected element <step> in <cleanup>"},
        BadCase{"timeoutTooLong", "<wfproject timeout=\"4294968\"/>", "1:",
                "timeout=\"4294968\" is longer than the longest time limit, 2592000 seconds (30 days)"},
        BadCase{"badEnabled", "<wfproject><actions>\n<action type=\"T_PROPS\" enabled=\"maybe\"/></actions></wfproject>", "2:",
                "action T_PROPS: enabled=\"maybe\" is not True or False"},
        BadCase{"processingInstruction", "<wfproject><actions>\n  <?build fast?></actions></wfproject>", "2:",
                "the processing instruction <?build?> cannot be kept in a project (saving would drop it); remove it"},
        BadCase{"variableNameWithABlank", "<wfproject><variables>\n<variable name=\"A B\" value=\"1\"/></variables></wfproject>",
                "2:", "\"A B\" cannot name a variable: %NAME% expressions cannot reach a name holding a blank"},
        BadCase{"latin1OnLine4", kHead + "  <property name=\"Name\">caf\xE9</property>\n</action></actions></wfproject>",
                "4:28", "the byte 0xE9 is not UTF-8 (projects are UTF-8 text)"},
        BadCase{"afterWideCharacters", kHead + "\xC3\xA9\xE2\x82\xAC\x80</action></actions></wfproject>", "4:3",
                "the byte 0x80 is not UTF-8"},
        BadCase{"truncatedSequence", "<wfproject>\xE2\x82</wfproject>", "1:12", "the byte 0xE2 is not UTF-8"},
        BadCase{"nul", kHead + std::string("  <property name=\"N\0ame\"/>", 26) + "</action></actions></wfproject>",
                "4:20", "a NUL byte (0x00), which a project cannot hold"}), wftest::byName);

/// n attributes a0="v" a1="v" ... separated by sep.
std::string attributes(std::size_t n, const std::string& sep = " ")
{
    std::string text;
    for (std::size_t i = 0; i < n; ++i)
        text += sep + "a" + std::to_string(i) + "=\"v\"";
    return text;
}

struct CrowdedCase {
    const char* name;
    std::string text;
    /// The first diagnostic; empty: the attribute bound must not refuse the text.
    std::string diagnostic;
};
WF_ROW_PRINTER(CrowdedCase)

class ProjectAttributeBound : public Project, public ::testing::WithParamInterface<CrowdedCase> {};

TEST_P(ProjectAttributeBound, RefusesAnElementWithMoreAttributesThanAnyNeeds)
{
    TWFProject project;
    const bool ok = read(GetParam().text, project);
    if (!GetParam().diagnostic.empty()) {
        EXPECT_FALSE(ok);
        EXPECT_EQ(firstDiagnostic(), GetParam().diagnostic);
        EXPECT_EQ(diagnostics.size(), 1u) << "refused before the XML reader sees it";
        return;
    }
    for (const auto& diagnostic : diagnostics)
        EXPECT_EQ(diagnostic.message.find("attributes;"), std::string::npos) << diagnostic.ToString();
}

const std::string kOneAction = "<wfproject>\n<actions>\n  <action type=\"T_PROPS\"";
const std::string kClose = "/></actions></wfproject>";

INSTANTIATE_TEST_SUITE_P(
    Bound, ProjectAttributeBound,
    ::testing::Values(
        // Before the bound, the XML reader took about 12 s here (the square of the count).
        CrowdedCase{"hundredThousand", kOneAction + attributes(100000) + kClose,
                    "p.wfp:3:3: error: <action> has 100001 attributes; an element of a project has at most 64"},
        CrowdedCase{"oneAboveOnTheRoot", "<wfproject\n" + attributes(65, "\n") + "/>",
                    "p.wfp:1:1: error: <wfproject> has 65 attributes; an element of a project has at most 64"},
        CrowdedCase{"afterWideCharactersAndNamespaces",
                    "<wfproject><!-- ✓✓ --><x:v xmlns:x=\"u\"" + attributes(64) + "/></wfproject>",
                    "p.wfp:1:23: error: <x:v> has 65 attributes; an element of a project has at most 64"},
        CrowdedCase{"singleQuotedValuesHoldingMarkup",
                    "<wfproject>\n\n <variables a='<b c=\"d\">' " + attributes(70) + "/></wfproject>",
                    "p.wfp:3:2: error: <variables> has 71 attributes; an element of a project has at most 64"},
        CrowdedCase{"atTheBound", "<wfproject" + attributes(64) + "/>", ""},
        CrowdedCase{"inAComment", "<wfproject><!-- <a" + attributes(100) + "> --></wfproject>", ""},
        CrowdedCase{"inCData", kOneAction + "><property name=\"Text\"><![CDATA[<a" + attributes(100)
                                   + ">]]></property></action></actions></wfproject>", ""},
        CrowdedCase{"inAProcessingInstruction", "<?pi <a" + attributes(100) + "> ?><wfproject/>", ""},
        CrowdedCase{"inAnAttributeValue", kOneAction + " description=\"" + std::string(100, '=') + "\"" + kClose, ""},
        CrowdedCase{"inText", kOneAction + "><property name=\"Text\">" + std::string(100, '=')
                                   + "</property></action></actions></wfproject>", ""}), wftest::byName);

struct LostOnSaveCase {
    const char* name;
    std::string text;
    /// The warnings, one per line; empty: saving loses nothing of the kind.
    std::string lost;
};

WF_ROW_PRINTER(LostOnSaveCase)

class ProjectLostOnSave : public Project, public ::testing::WithParamInterface<LostOnSaveCase> {};

TEST_P(ProjectLostOnSave, NamesWhatSavingDropsAtItsPlace)
{
    std::string lost;
    for (const auto& diagnostic : ProjectMarkupLostOnSave(GetParam().text, "p.wfp"))
        lost += diagnostic.ToString() + "\n";
    EXPECT_EQ(lost, GetParam().lost);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, ProjectLostOnSave,
    ::testing::Values(
        LostOnSaveCase{"nothing", kProject, ""},
        LostOnSaveCase{"commentsAndADocumentType",
                       "<!DOCTYPE wfproject>\n<wfproject><!-- keep\n  me --><!---->\n</wfproject>",
                       "p.wfp:1:20: warning: the document type declaration is not kept on saving\n"
                       "p.wfp:3:8: warning: the XML comment <!-- keep me --> is not kept on saving\n"
                       "p.wfp:3:15: warning: the XML comment <!----> is not kept on saving\n"},
        LostOnSaveCase{"commentMarkupInsideCData",
                       "<wfproject><actions><action type=\"T_PROPS\"><property name=\"Text\"><![CDATA[<!-- text -->]]>"
                       "</property></action></actions></wfproject>",
                       ""}), wftest::byName);

TEST_F(Project, FilesAboveTheSizeLimitAreRefusedUnread)
{
    wftest::TempDir dir;
    const std::string path = dir.file("huge.wfp");
    ASSERT_EQ(::truncate(dir.write("huge.wfp", "<wfproject>").c_str(), kWFProjectSizeLimit + 1), 0);
    TWFProject project;
    std::vector<TWFProjectDiagnostic> found;
    EXPECT_FALSE(ReadProjectFile(path, project, found));
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].ToString(), path + ": error: cannot read \"" + path + "\": it holds more than "
                                       + std::to_string(kWFProjectSizeLimit) + " bytes, the limit for such a file");
}

TEST_F(Project, UnknownPropertyIsReportedAndIgnored)
{
    TWFProject project;
    ASSERT_TRUE(read("<wfproject><actions><action type=\"T_PROPS\"><property name=\"Colour\">clBlue</property>"
                     "<property name=\"Size\">3</property></action></actions></wfproject>",
                     project));
    ASSERT_EQ(diagnostics.size(), 1u);
    EXPECT_FALSE(diagnostics[0].isError);
    EXPECT_NE(diagnostics[0].message.find("\"Size\""), std::string::npos);
    EXPECT_EQ(static_cast<TPropertiesAction&>(*project.actions[0]).m_colour, clBlue);
}

TEST_F(Project, FailedWriteLeavesTheOldFile)
{
    wftest::TempDir dir;
    const std::string path = dir.write("p.wfp", "old contents");
    TWFProject project;
    ASSERT_TRUE(read(kProject, project));
    // A file-size limit makes the write fail part way, whatever the user's privileges.
    rlimit previous{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &previous), 0);
    const auto oldHandler = ::signal(SIGXFSZ, SIG_IGN);
    rlimit small{64, previous.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &small), 0);
    std::string error;
    const bool written = WriteProjectFile(path, project, error);
    ::setrlimit(RLIMIT_FSIZE, &previous);
    ::signal(SIGXFSZ, oldHandler);
    EXPECT_FALSE(written);
    EXPECT_NE(error.find(path), std::string::npos) << error;
    EXPECT_EQ(wftest::readFile(path), "old contents");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), std::filesystem::directory_iterator()), 1)
        << "no temporary file is left behind";
}

} // namespace
