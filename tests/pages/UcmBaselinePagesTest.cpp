// The pages of the two baseline actions: check lists filled from ClearCase, the labelling
// choice and the import from a label.
#include "PageCase.h"
#include "PageHarness.h"

#include "actions/WFClearCaseMakeBaselineAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "FakeCleartool.h"

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTest>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace wfpage;

namespace {

QListWidgetItem* itemOf(QListWidget* list, const QString& text)
{
    const auto found = list->findItems(text, Qt::MatchExactly);
    if (found.size() != 1)
        throw std::runtime_error("no single item " + text.toStdString() + " in " + list->objectName().toStdString());
    return found.front();
}

/// The texts of the checked items, in list order.
QStringList checkedItems(QListWidget* list)
{
    QStringList result;
    for (int i = 0; i < list->count(); ++i)
        if (list->item(i)->checkState() == Qt::Checked)
            result << list->item(i)->text();
    return result;
}

/// A double click on the item's text, as a user gives it.
void doubleClick(QListWidget* list, const QString& text)
{
    QListWidgetItem* item = itemOf(list, text);
    list->setCurrentItem(item);
    const QPoint where = list->visualItemRect(item).center();
    // The press of a double click comes first, as a click.
    QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, where);
    QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, where);
}

/// ClearCase with two VOBs of components, and views whose stream activities a test sets.
class BaselineWorld {
public:
    BaselineWorld()
    {
        cleartool.respond("lsvob -short", "/vobs/a\n/vobs/b\n");
        cleartool.respond("lscomp -short -invob /vobs/a", "ui\ncore\n");
        cleartool.respond("lscomp -short -invob /vobs/b", "tools\n");
        for (const std::string* view : {&defaultView, &view1, &view2})
            std::filesystem::create_directories(*view);
        cleartool.options().SetDefaultViewPath(defaultView);
        streamActivities({"fix1@/vobs/pvob", "fix2@/vobs/pvob"});
    }

    /// What the next stream query answers, in any view.
    void streamActivities(const std::vector<std::string>& activities)
    {
        std::ofstream out(streamFile, std::ios::trunc);
        out << "stream \"dev\"\n  title: dev\n  contains activities:\n";
        for (const auto& activity : activities)
            out << "    " << activity << "\n";
        out << "  views:\n    dev_view\n";
    }
    std::vector<std::string> streamQueries() const
    {
        std::vector<std::string> result;
        for (const auto& call : cleartool.calls())
            if (call.ends_with("|lsstream -long -cview"))
                result.push_back(call.substr(0, call.find('|')));
        return result;
    }

    wftest::FakeCleartool cleartool;
    wftest::ScopedEnv config{"WF_CONFIG_DIR", cleartool.temp().path()};
    // The stream query is the one the responses leave unanswered: it reads this file.
    std::string streamFile = cleartool.temp().file("stream.txt");
    wftest::ScopedEnv streamOutput{"WF_FAKE_OUTPUT", streamFile};
    std::string defaultView = cleartool.temp().path() + "/views/default";
    std::string view1 = cleartool.temp().path() + "/views/one";
    std::string view2 = cleartool.temp().path() + "/views/two";
    BrowseAnswers browse;
};

// ---- New Baseline ----

struct BaselineCase {
    const char* name;
    const char* selection;
    const char* components;
    const char* activities;
    bool useTemplate;
    const char* rootName;
    const char* clickRadio;    // nullptr: none
    const char* typedRootName; // nullptr: left alone
    std::vector<const char*> toggle; // items toggled by their check marks, components or activities
    bool expectComponentsEnabled;
    bool expectActivitiesEnabled;
    bool expectTemplateChecked; // after the clicks and typing
    const char* storedSelection;
    const char* storedComponents;
    const char* storedActivities;
    const char* storedTemplate;
    const char* storedRootName;
};

void PrintTo(const BaselineCase& c, std::ostream* os)
{
    *os << c.name;
}

class NewBaselinePage : public ::testing::TestWithParam<BaselineCase> {};

TEST_P(NewBaselinePage, RoundTrip)
{
    const BaselineCase& c = GetParam();
    BaselineWorld world;
    TClearCaseMakeBaselineAction action;
    setProperty(action, "SelectionType", c.selection);
    setProperty(action, "ComponentSelectorStorageString", c.components);
    setProperty(action, "ActivitySelectorStorageString", c.activities);
    action.SetUseBaselineNameTemplate(c.useTemplate);
    action.SetBaselineRootName(c.rootName);
    action.SetUseDefaultViewContext(false);
    action.SetViewContextPath(world.view1);
    OpenPage page("TClearCaseMakeBaselineFrame", action);
    EXPECT_EQ(page.page().PageName(), "New Baseline");
    auto* components = page.control<QListWidget>("boxComponents");
    auto* activities = page.control<QListWidget>("boxActivities");
    // Every component of every VOB, in VOB order, component order within a VOB.
    EXPECT_EQ(items(components), QStringList({"core@/vobs/a", "ui@/vobs/a", "tools@/vobs/b"}));
    EXPECT_EQ(items(activities), QStringList({"fix1@/vobs/pvob", "fix2@/vobs/pvob"}));
    if (c.clickRadio)
        click(page.control<QRadioButton>(c.clickRadio));
    if (c.typedRootName)
        type(page.control<QLineEdit>("txtBaselineRootName"), c.typedRootName);
    for (const char* name : c.toggle) {
        QListWidget* list = QString(name).startsWith("fix") ? activities : components;
        QListWidgetItem* item = itemOf(list, name);
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
    }
    EXPECT_EQ(components->isEnabled(), c.expectComponentsEnabled);
    EXPECT_EQ(activities->isEnabled(), c.expectActivitiesEnabled);
    EXPECT_EQ(page.control<QRadioButton>("btnUseBaselineNameTemplate")->isChecked(), c.expectTemplateChecked);
    EXPECT_NE(page.control<QRadioButton>("btnUseRootName")->isChecked(), c.expectTemplateChecked);
    page.accept();
    EXPECT_EQ(property(action, "SelectionType"), c.storedSelection);
    EXPECT_EQ(property(action, "ComponentSelectorStorageString"), c.storedComponents);
    EXPECT_EQ(property(action, "ActivitySelectorStorageString"), c.storedActivities);
    EXPECT_EQ(property(action, "UseBaselineNameTemplate"), c.storedTemplate);
    EXPECT_EQ(property(action, "BaselineRootName"), c.storedRootName);
    EXPECT_EQ(property(action, "ViewContextPath"), world.view1);
}

const BaselineCase kBaselineCases[] = {
    {"AllDisablesBothLists", "slAll", "", "", true, "", nullptr, nullptr, {}, false, false, true, "slAll", "", "", "True",
     ""},
    {"StoredComponentsCheckedIgnoringCaseUnknownDropped", "slComponents", "CORE@/vobs/a\r\nghost@/vobs/z\r\n", "", true,
     "", nullptr, nullptr, {}, true, false, true, "slComponents", "core@/vobs/a\r\n", "", "True", ""},
    {"CheckedComponentsStoredInListOrder", "slAll", "", "", true, "", "btnComponents", nullptr,
     {"tools@/vobs/b", "ui@/vobs/a"}, true, false, true, "slComponents", "ui@/vobs/a\r\ntools@/vobs/b\r\n", "", "True",
     ""},
    {"UncheckingTheOnlyComponent", "slComponents", "ui@/vobs/a\r\n", "", true, "", nullptr, nullptr, {"ui@/vobs/a"}, true,
     false, true, "slComponents", "", "", "True", ""},
    {"CheckedActivitiesStoredInListOrder", "slAll", "", "fix2@/vobs/pvob\r\n", true, "", "btnActivities", nullptr,
     {"fix1@/vobs/pvob"}, false, true, true, "slActivities", "", "fix1@/vobs/pvob\r\nfix2@/vobs/pvob\r\n", "True", ""},
    {"SelectedActivityTheViewLacksIsDropped", "slActivities", "", "gone@/vobs/pvob\r\nfix1@/vobs/pvob\r\n", true, "",
     nullptr, nullptr, {"fix2@/vobs/pvob", "fix2@/vobs/pvob"}, false, true, true, "slActivities", "",
     "fix1@/vobs/pvob\r\n", "True", ""},
    {"ListsKeepChecksWhenAllChosen", "slActivities", "core@/vobs/a\r\n", "fix1@/vobs/pvob\r\n", true, "", "btnAll",
     nullptr, {}, false, false, true, "slAll", "core@/vobs/a\r\n", "fix1@/vobs/pvob\r\n", "True", ""},
    {"TypingRootNameSelectsRootName", "slAll", "", "", true, "", nullptr, "BL_%N%", {}, false, false, false, "slAll", "",
     "", "False", "BL_%N%"},
    {"NoRootNameReopensOnTemplate", "slAll", "", "", false, "", nullptr, nullptr, {}, false, false, true, "slAll", "", "",
     "True", ""},
    {"StoredRootNameOpensOnRootName", "slAll", "", "", false, "REL2", nullptr, nullptr, {}, false, false, false, "slAll",
     "", "", "False", "REL2"},
    {"TemplateChosenKeepsRootName", "slAll", "", "", false, "REL2", "btnUseBaselineNameTemplate", nullptr, {}, false,
     false, true, "slAll", "", "", "True", "REL2"},
};
INSTANTIATE_TEST_SUITE_P(Cases, NewBaselinePage, ::testing::ValuesIn(kBaselineCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(NewBaselinePageLook, RootNameEditFollowsTheNameChoice)
{
    BaselineWorld world;
    TClearCaseMakeBaselineAction action;
    action.SetBaselineRootName("REL2");
    OpenPage page("TClearCaseMakeBaselineFrame", action);
    auto* rootName = page.control<QLineEdit>("txtBaselineRootName");
    click(page.control<QRadioButton>("btnUseBaselineNameTemplate"));
    EXPECT_FALSE(rootName->isEnabled());
    click(page.control<QRadioButton>("btnUseRootName"));
    EXPECT_TRUE(rootName->isEnabled());
}

TEST(NewBaselinePageLook, ComponentsAreAskedOncePerVobWhenThePageReads)
{
    BaselineWorld world;
    TClearCaseMakeBaselineAction action;
    action.SetUseDefaultViewContext(true);
    OpenPage page("TClearCaseMakeBaselineFrame", action);
    const std::string bin = world.cleartool.folder() + "|";
    EXPECT_EQ(world.cleartool.calls(),
              std::vector<std::string>({bin + "lsvob -short", bin + "lscomp -short -invob /vobs/a",
                                        bin + "lscomp -short -invob /vobs/b",
                                        world.defaultView + "|lsstream -long -cview"}));
}

TEST(NewBaselinePageLook, DoubleClickTogglesAndSelects)
{
    BaselineWorld world;
    TClearCaseMakeBaselineAction action;
    setProperty(action, "SelectionType", "slComponents");
    OpenPage page("TClearCaseMakeBaselineFrame", action);
    auto* components = page.control<QListWidget>("boxComponents");
    doubleClick(components, "ui@/vobs/a");
    EXPECT_EQ(checkedItems(components), QStringList({"ui@/vobs/a"}));
    click(page.control<QRadioButton>("btnActivities"));
    auto* activities = page.control<QListWidget>("boxActivities");
    doubleClick(activities, "fix2@/vobs/pvob");
    doubleClick(activities, "fix1@/vobs/pvob");
    doubleClick(activities, "fix1@/vobs/pvob");
    page.accept();
    EXPECT_EQ(property(action, "ComponentSelectorStorageString"), "ui@/vobs/a\r\n");
    EXPECT_EQ(property(action, "ActivitySelectorStorageString"), "fix2@/vobs/pvob\r\n");
}

/// Views the user switches to, one step at a time, and the folder each step asks (empty: no query).
struct ViewStep {
    enum Kind { ClickDefault, ClickCustom, Browse } kind;
    const char* folder; // for Browse: which view is picked ("one", "two")
    const char* expectQueryIn; // "default", "one", "two", or nullptr for no query
};

TEST(NewBaselinePageLook, ActivitiesAskedOnlyWhenTheViewFolderChanges)
{
    BaselineWorld world;
    const auto folder = [&](const std::string& which) {
        return which == "default" ? world.defaultView : which == "one" ? world.view1 : world.view2;
    };
    TClearCaseMakeBaselineAction action;
    action.SetUseDefaultViewContext(true);
    action.SetViewContextPath(world.view1);
    OpenPage page("TClearCaseMakeBaselineFrame", action);
    // Opening asks the view the page shows, once, although the stored path is another.
    ASSERT_EQ(world.streamQueries(), std::vector<std::string>({world.defaultView}));
    const ViewStep steps[] = {
        {ViewStep::ClickDefault, nullptr, nullptr}, {ViewStep::ClickCustom, nullptr, "one"},
        {ViewStep::ClickCustom, nullptr, nullptr},  {ViewStep::Browse, "two", "two"},
        {ViewStep::Browse, "two", nullptr},         {ViewStep::ClickDefault, nullptr, "default"},
        {ViewStep::Browse, "one", "one"},           {ViewStep::ClickCustom, nullptr, nullptr},
    };
    std::vector<std::string> expected = {world.defaultView};
    int index = 0;
    for (const ViewStep& step : steps) {
        SCOPED_TRACE("step " + std::to_string(index++));
        switch (step.kind) {
        case ViewStep::ClickDefault:
            click(page.control<QRadioButton>("btnDefaultView"));
            break;
        case ViewStep::ClickCustom:
            click(page.control<QRadioButton>("btnCustomView"));
            break;
        case ViewStep::Browse:
            world.browse.next(folder(step.folder));
            click(page.control<QAbstractButton>("txtViewPathButton"));
            break;
        }
        if (step.expectQueryIn)
            expected.push_back(folder(step.expectQueryIn));
        EXPECT_EQ(world.streamQueries(), expected);
    }
}

TEST(NewBaselinePageLook, SelectedActivityOutsideTheListStaysSelectedWhileOpen)
{
    BaselineWorld world;
    TClearCaseMakeBaselineAction action;
    setProperty(action, "SelectionType", "slActivities");
    setProperty(action, "ActivitySelectorStorageString", "gone@/vobs/pvob\r\nfix1@/vobs/pvob\r\n");
    action.SetUseDefaultViewContext(false);
    action.SetViewContextPath(world.view1);
    OpenPage page("TClearCaseMakeBaselineFrame", action);
    auto* activities = page.control<QListWidget>("boxActivities");
    EXPECT_EQ(checkedItems(activities), QStringList({"fix1@/vobs/pvob"}));
    itemOf(activities, "fix2@/vobs/pvob")->setCheckState(Qt::Checked);
    itemOf(activities, "fix2@/vobs/pvob")->setCheckState(Qt::Unchecked);
    itemOf(activities, "fix1@/vobs/pvob")->setCheckState(Qt::Unchecked);
    // Another view whose stream shows the activity again: it is still chosen, fix1 is not.
    world.streamActivities({"fix1@/vobs/pvob", "gone@/vobs/pvob"});
    world.browse.next(world.view2);
    click(page.control<QAbstractButton>("txtViewPathButton"));
    EXPECT_EQ(checkedItems(activities), QStringList({"gone@/vobs/pvob"}));
    page.accept();
    EXPECT_EQ(property(action, "ActivitySelectorStorageString"), "gone@/vobs/pvob\r\n");
}

// ---- Labelling ----

using wfpage::PageCase;

class LabellingPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(LabellingPage, RoundTrip)
{
    runPageCase<TClearCaseMakeBaselineAction>("TClearCaseMakeBaseLineLabelFrame", "Labelling", GetParam());
}

const PageCase kLabellingRows[] = {
    {.name = "Incremental",
     .given = {{"Labelling", "lbIncremental"}},
     .steps = {},
     .shown = {{"btnIncremental", true}, {"btnFulllabel", false}, {"btnNlabel", false}},
     .stored = {{"Labelling", "lbIncremental"}}},
    {.name = "Full",
     .given = {{"Labelling", "lbAll"}},
     .steps = {},
     .shown = {{"btnIncremental", false}, {"btnFulllabel", true}, {"btnNlabel", false}},
     .stored = {{"Labelling", "lbAll"}}},
    {.name = "Unlabelled",
     .given = {{"Labelling", "lbNone"}},
     .steps = {},
     .shown = {{"btnIncremental", false}, {"btnFulllabel", false}, {"btnNlabel", true}},
     .stored = {{"Labelling", "lbNone"}}},
    {.name = "ChoosingFull", .given = {{"Labelling", "lbIncremental"}}, .steps = {clickOn("btnFulllabel")}, .shown = {},
     .stored = {{"Labelling", "lbAll"}}},
    {.name = "ChoosingIncremental", .given = {{"Labelling", "lbNone"}}, .steps = {clickOn("btnIncremental")}, .shown = {},
     .stored = {{"Labelling", "lbIncremental"}}},
    {.name = "ChoosingUnlabelled", .given = {{"Labelling", "lbAll"}}, .steps = {clickOn("btnNlabel")}, .shown = {},
     .stored = {{"Labelling", "lbNone"}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, LabellingPage, ::testing::ValuesIn(kLabellingRows), wfpage::pageCaseName);

// ---- Baseline from label ----

class FromLabelPage : public ::testing::TestWithParam<PageCase> {};

TEST_P(FromLabelPage, RoundTrip)
{
    runPageCase<TClearCaseMakeBaselineFromLabelAction>("TClearCaseMakeBaselineFromLabelFrame", "Components", GetParam());
}

const wfpage::Properties kLabel = {{"VOBSelector", "/vobs/a"}, {"LabelTypeName", "REL1"},
                                   {"UseDefaultViewContext", "False"}, {"ViewContextPath", "/views/dev"}};

wfpage::Properties withLabel(wfpage::Properties more)
{
    more.insert(more.begin(), kLabel.begin(), kLabel.end());
    return more;
}

const PageCase kFromLabelRows[] = {
    {.name = "StoredListOneALine",
     .given = withLabel({{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc2@/vobs/a\r\n"}}),
     .steps = {},
     .shown = {{"txtComponent", {}, {}, "c1@/vobs/a\nc2@/vobs/a\n"}, {"btnSpecifyComponents", true},
               {"txtVOB", {}, {}, "/vobs/a"}, {"txtLabel", {}, {}, "REL1"}, {"btnCustomView", true}},
     .stored = withLabel({{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc2@/vobs/a\r\n"}})},
    {.name = "TypedListOneALine",
     .given = {},
     .steps = {clickOn("btnSpecifyComponents"), typeInto("txtComponent", "c1@/vobs/a\nc 2@/vobs/a"), typeInto("txtVOB", "/vobs/a"), typeInto("txtLabel", "REL 2")},
     .shown = {},
     .stored = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc 2@/vobs/a\r\n"},
                {"VOBSelector", "/vobs/a"}, {"LabelTypeName", "REL 2"}}},
    {.name = "UncheckedKeepsTheList",
     .given = withLabel({{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\n"}}),
     .steps = {clickOn("btnSpecifyComponents")},
     .shown = {{"txtComponent", {}, true}},
     .stored = withLabel({{"SpecifyComponents", "False"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\n"}})},
    {.name = "ClearedListStoresNone",
     .given = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\n"}},
     .steps = {typeInto("txtComponent", "")},
     .shown = {},
     .stored = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", ""}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, FromLabelPage, ::testing::ValuesIn(kFromLabelRows), wfpage::pageCaseName);

TEST(FromLabelPageQueries, LabelsAskedForTheVobOnEveryDropDownButNotWithoutOne)
{
    wftest::FakeCleartool cleartool;
    cleartool.respond("lstype -short -kind lbtype -invob /vobs/a", "REL1\nREL2 (locked)\n");
    TClearCaseMakeBaselineFromLabelAction action;
    OpenPage page("TClearCaseMakeBaselineFromLabelFrame", action);
    auto* label = page.control<QComboBox>("txtLabel");
    dropDown(label);
    EXPECT_TRUE(cleartool.calls().empty());
    type(page.control<QComboBox>("txtVOB"), "/vobs/a");
    dropDown(label);
    dropDown(label);
    EXPECT_EQ(items(label), QStringList({"REL1", "REL2"}));
    const std::string query = cleartool.folder() + "|lstype -short -kind lbtype -invob /vobs/a";
    EXPECT_EQ(cleartool.calls(), std::vector<std::string>({query, query}));
}

} // namespace
