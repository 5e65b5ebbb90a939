// The basic actions' pages: each control bound to its property, the project's variables offered
// for a variable's name, browse buttons answered by the host's browsers.
#include "PageHarness.h"
#include "WFBasicActionPages.h"
#include "WFBasicActions.h"
#include "WFServices.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include <gtest/gtest.h>

using namespace wfpage;

namespace {

using Properties = std::vector<std::pair<std::string, std::string>>;

struct BasicPageCase {
    const char* name;
    const char* pageClass;
    std::function<std::unique_ptr<TCustomWFAction>()> make;
    Properties given;
    std::function<void(OpenPage&)> edit;
    Properties stored;
    std::optional<std::string> browseAnswer = {};
};

void PrintTo(const BasicPageCase& c, std::ostream* os)
{
    *os << c.name;
}

TWFPageClass pageClass(const char* name)
{
    for (const auto& row : WFBasicActionPages())
        if (row.page.className == name)
            return row.page;
    throw std::runtime_error(std::string("no basic page ") + name);
}

template <typename Action>
std::unique_ptr<TCustomWFAction> make()
{
    return std::make_unique<Action>();
}

class BasicActionPage : public ::testing::TestWithParam<BasicPageCase> {
protected:
    void SetUp() override
    {
        WFDesignApplicationServices().variableNamesProvider = [] { return std::vector<std::string>{"BUILD", "VOB"}; };
    }
    void TearDown() override { WFDesignApplicationServices().variableNamesProvider = nullptr; }
};

TEST_P(BasicActionPage, ShowsAndStoresTheProperties)
{
    const BasicPageCase& c = GetParam();
    auto action = c.make();
    for (const auto& [name, value] : c.given)
        setProperty(*action, name, value);
    BrowseAnswers browsers;
    browsers.next(c.browseAnswer);
    OpenPage page(pageClass(c.pageClass), *action);
    EXPECT_EQ(page.widget()->objectName().toStdString(), c.pageClass);
    c.edit(page);
    page.accept();
    for (const auto& [name, value] : c.stored)
        EXPECT_EQ(property(*action, name), value) << name;
}

const BasicPageCase kCases[] = {
    {"MessageMemoKeepsStoredLinesAndTakesTypedOnes", "TWFLogMessageFrame", make<TWFLogMessageAction>,
     {{"Text", "first\r\nsecond"}},
     [](OpenPage& page) {
         EXPECT_EQ(page.control<QPlainTextEdit>("txtText")->toPlainText(), "first\nsecond");
         type(page.control<QPlainTextEdit>("txtText"), "Built %BUILD%\ndone");
     },
     {{"Text", "Built %BUILD%\ndone"}}},
    {"VariableOfferedFromTheProjectAndNewNameTyped", "TWFSetVariableFrame", make<TWFSetVariableAction>,
     {{"VariableName", "VOB"}, {"Value", "x"}},
     [](OpenPage& page) {
         EXPECT_EQ(items(page.control<QComboBox>("cmbVariableName")), QStringList({"BUILD", "VOB"}));
         EXPECT_EQ(page.control<QComboBox>("cmbVariableName")->currentText(), "VOB");
         type(page.control<QComboBox>("cmbVariableName"), "NEW_ONE");
         type(page.control<QLineEdit>("txtValue"), "%BUILD%-1");
     },
     {{"VariableName", "NEW_ONE"}, {"Value", "%BUILD%-1"}}},
    {"FileChosenWithTheBrowserAndAppendTicked", "TWFWriteTextFileFrame", make<TWFWriteTextFileAction>,
     {{"FileName", "out.txt"}},
     [](OpenPage& page) {
         click(page.control<QToolButton>("txtFileNameButton"));
         click(page.control<QCheckBox>("boxAppend"));
     },
     {{"FileName", "/tmp/report.txt"}, {"Append", "True"}}, "/tmp/report.txt"},
    {"BrowserCancelledKeepsTheFile", "TWFWriteTextFileFrame", make<TWFWriteTextFileAction>,
     {{"FileName", "out.txt"}, {"Text", "a\nb"}},
     [](OpenPage& page) { click(page.control<QToolButton>("txtFileNameButton")); },
     {{"FileName", "out.txt"}, {"Append", "False"}, {"Text", "a\nb"}}},
    {"ProgramArgumentsAndFolderChosen", "TWFRunProgramFrame", make<TWFRunProgramAction>,
     {{"Program", "make"}},
     [](OpenPage& page) {
         type(page.control<QLineEdit>("txtArguments"), "-j2 all");
         click(page.control<QToolButton>("txtWorkingDirectoryButton"));
     },
     {{"Program", "make"}, {"Arguments", "-j2 all"}, {"WorkingDirectory", "/src/build"}}, "/src/build"},
};
INSTANTIATE_TEST_SUITE_P(Cases, BasicActionPage, ::testing::ValuesIn(kCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
