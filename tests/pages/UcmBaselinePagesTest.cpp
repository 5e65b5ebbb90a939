// The pages of the two baseline actions: check lists filled from ClearCase, the labelling
// choice and the import from a label.
#include "PageCase.h"
#include "PageHarness.h"

#include "actions/WFClearCaseMakeBaselineAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "FakeCleartool.h"

#include <QListWidget>
#include <QRadioButton>

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
    // The stream query is the one the responses leave unanswered: it reads this file.
    std::string streamFile = cleartool.temp().file("stream.txt");
    wftest::ScopedEnv streamOutput{"WF_FAKE_OUTPUT", streamFile};
    std::string defaultView = cleartool.temp().path() + "/views/default";
    std::string view1 = cleartool.temp().path() + "/views/one";
    std::string view2 = cleartool.temp().path() + "/views/two";
    BrowseAnswers browse;
};

// ---- New Baseline ----

constexpr const char* kView = "/tmp"; // any folder that is there: the activities are asked in it
constexpr const char* kComponents = "boxComponents"; // core@/vobs/a, ui@/vobs/a, tools@/vobs/b
constexpr const char* kActivities = "boxActivities"; // fix1@/vobs/pvob, fix2@/vobs/pvob

/// The choices a new-baseline row is given or stores, in a custom view.
Properties baseline(const char* selection, const char* components, const char* activities, const char* useTemplate,
                    const char* rootName)
{
    return {{"SelectionType", selection},      {"ComponentSelectorStorageString", components},
            {"ActivitySelectorStorageString", activities}, {"UseBaselineNameTemplate", useTemplate},
            {"BaselineRootName", rootName},   {"UseDefaultViewContext", "False"},
            {"ViewContextPath", kView}};
}

/// Every component of every VOB in VOB order (component order within a VOB), the view's
/// activities, which list is enabled, and the name choice.
std::vector<Shown> baselineShown(bool components, bool activities, bool useTemplate)
{
    return {{kComponents, {}, components, nullptr, "core@/vobs/a|ui@/vobs/a|tools@/vobs/b"},
            {kActivities, {}, activities, nullptr, "fix1@/vobs/pvob|fix2@/vobs/pvob"},
            {"btnUseBaselineNameTemplate", useTemplate},
            {"btnUseRootName", !useTemplate}};
}

const std::vector<Response> kBaselineWorld = {
    {"lsvob -short", "/vobs/a\n/vobs/b\n"},
    {"lscomp -short -invob /vobs/a", "ui\ncore\n"},
    {"lscomp -short -invob /vobs/b", "tools\n"},
    {"lsstream -long -cview",
     "stream \"dev\"\n  title: dev\n  contains activities:\n    fix1@/vobs/pvob\n    fix2@/vobs/pvob\n  views:\n    dev_view\n"}};

/// Components are asked once per VOB, activities in the view, when the page reads.
const std::vector<std::string> kBaselineQueries = {"lsvob -short", "lscomp -short -invob /vobs/a",
                                                   "lscomp -short -invob /vobs/b",
                                                   std::string(kView) + "|lsstream -long -cview"};

PageCase baselineRow(PageCase row)
{
    row.responses = kBaselineWorld;
    row.calls = kBaselineQueries;
    return row;
}

const PageCase kBaselineCases[] = {
    baselineRow({.name = "AllDisablesBothLists", .given = baseline("slAll", "", "", "True", ""),
                 .shown = baselineShown(false, false, true), .stored = baseline("slAll", "", "", "True", "")}),
    baselineRow({.name = "StoredComponentsCheckedIgnoringCaseUnknownDropped",
                 .given = baseline("slComponents", "CORE@/vobs/a\r\nghost@/vobs/z\r\n", "", "True", ""),
                 .shown = baselineShown(true, false, true),
                 .stored = baseline("slComponents", "core@/vobs/a\r\n", "", "True", "")}),
    baselineRow({.name = "CheckedComponentsStoredInListOrder", .given = baseline("slAll", "", "", "True", ""),
                 .steps = {clickOn("btnComponents"), tickRow(kComponents, 2), tickRow(kComponents, 1)},
                 .shown = baselineShown(true, false, true),
                 .stored = baseline("slComponents", "ui@/vobs/a\r\ntools@/vobs/b\r\n", "", "True", "")}),
    baselineRow({.name = "UncheckingTheOnlyComponent", .given = baseline("slComponents", "ui@/vobs/a\r\n", "", "True", ""),
                 .steps = {tickRow(kComponents, 1)}, .shown = baselineShown(true, false, true),
                 .stored = baseline("slComponents", "", "", "True", "")}),
    baselineRow({.name = "CheckedActivitiesStoredInListOrder", .given = baseline("slAll", "", "fix2@/vobs/pvob\r\n", "True", ""),
                 .steps = {clickOn("btnActivities"), tickRow(kActivities, 0)}, .shown = baselineShown(false, true, true),
                 .stored = baseline("slActivities", "", "fix1@/vobs/pvob\r\nfix2@/vobs/pvob\r\n", "True", "")}),
    baselineRow({.name = "SelectedActivityTheViewLacksIsDropped",
                 .given = baseline("slActivities", "", "gone@/vobs/pvob\r\nfix1@/vobs/pvob\r\n", "True", ""),
                 .steps = {tickRow(kActivities, 1), tickRow(kActivities, 1)}, .shown = baselineShown(false, true, true),
                 .stored = baseline("slActivities", "", "fix1@/vobs/pvob\r\n", "True", "")}),
    baselineRow({.name = "ListsKeepChecksWhenAllChosen",
                 .given = baseline("slActivities", "core@/vobs/a\r\n", "fix1@/vobs/pvob\r\n", "True", ""),
                 .steps = {clickOn("btnAll")}, .shown = baselineShown(false, false, true),
                 .stored = baseline("slAll", "core@/vobs/a\r\n", "fix1@/vobs/pvob\r\n", "True", "")}),
    // A double click toggles the row it lands on.
    baselineRow({.name = "DoubleClickToggles", .given = baseline("slComponents", "", "", "True", ""),
                 .steps = {doubleClickRow(kComponents, 1), clickOn("btnActivities"), doubleClickRow(kActivities, 1),
                           doubleClickRow(kActivities, 0), doubleClickRow(kActivities, 0)}, .stored = baseline("slActivities", "ui@/vobs/a\r\n", "fix2@/vobs/pvob\r\n", "True", "")}),
    baselineRow({.name = "TypingRootNameSelectsRootName", .given = baseline("slAll", "", "", "True", ""),
                 .steps = {typeInto("txtBaselineRootName", "BL_%N%")}, .shown = baselineShown(false, false, false),
                 .stored = baseline("slAll", "", "", "False", "BL_%N%")}),
    baselineRow({.name = "NoRootNameReopensOnTemplate", .given = baseline("slAll", "", "", "False", ""),
                 .shown = baselineShown(false, false, true), .stored = baseline("slAll", "", "", "True", "")}),
    baselineRow({.name = "StoredRootNameOpensOnRootName", .given = baseline("slAll", "", "", "False", "REL2"),
                 .shown = {{"btnUseRootName", true}, {"txtBaselineRootName", {}, true}},
                 .stored = baseline("slAll", "", "", "False", "REL2")}),
    baselineRow({.name = "TemplateChosenKeepsRootName", .given = baseline("slAll", "", "", "False", "REL2"),
                 .steps = {clickOn("btnUseBaselineNameTemplate")},
                 .shown = {{"btnUseBaselineNameTemplate", true}, {"txtBaselineRootName", {}, false}},
                 .stored = baseline("slAll", "", "", "True", "REL2")}),
};
WF_PAGE_TABLE(NewBaselinePage, TClearCaseMakeBaselineAction, "TClearCaseMakeBaselineFrame", "New Baseline", kBaselineCases);

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

/// The labelling radio buttons, only `checked` on.
std::vector<Shown> labelling(const char* checked)
{
    std::vector<Shown> shown;
    for (const char* button : {"btnIncremental", "btnFulllabel", "btnNlabel"})
        shown.push_back({button, std::string(button) == checked});
    return shown;
}

const PageCase kLabellingRows[] = {
    {.name = "Incremental", .given = {{"Labelling", "lbIncremental"}}, .shown = labelling("btnIncremental"),
     .stored = {{"Labelling", "lbIncremental"}}},
    {.name = "Full", .given = {{"Labelling", "lbAll"}}, .shown = labelling("btnFulllabel"),
     .stored = {{"Labelling", "lbAll"}}},
    {.name = "Unlabelled", .given = {{"Labelling", "lbNone"}}, .shown = labelling("btnNlabel"),
     .stored = {{"Labelling", "lbNone"}}},
    {.name = "ChoosingFull", .given = {{"Labelling", "lbIncremental"}}, .steps = {clickOn("btnFulllabel")},
     .stored = {{"Labelling", "lbAll"}}},
    {.name = "ChoosingIncremental", .given = {{"Labelling", "lbNone"}}, .steps = {clickOn("btnIncremental")},
     .stored = {{"Labelling", "lbIncremental"}}},
    {.name = "ChoosingUnlabelled", .given = {{"Labelling", "lbAll"}}, .steps = {clickOn("btnNlabel")},
     .stored = {{"Labelling", "lbNone"}}},
};
WF_PAGE_TABLE(LabellingPage, TClearCaseMakeBaselineAction,
              "TClearCaseMakeBaseLineLabelFrame", "Labelling", kLabellingRows);

// ---- Baseline from label ----

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
     .shown = {{"txtComponent", {}, {}, "c1@/vobs/a\nc2@/vobs/a\n"}, {"btnSpecifyComponents", true},
               {"txtVOB", {}, {}, "/vobs/a"}, {"txtLabel", {}, {}, "REL1"}, {"btnCustomView", true}},
     .stored = withLabel({{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc2@/vobs/a\r\n"}})},
    {.name = "TypedListOneALine",
     .steps = {clickOn("btnSpecifyComponents"), typeInto("txtComponent", "c1@/vobs/a\nc 2@/vobs/a"), typeInto("txtVOB", "/vobs/a"), typeInto("txtLabel", "REL 2")},
     .stored = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc 2@/vobs/a\r\n"},
                {"VOBSelector", "/vobs/a"}, {"LabelTypeName", "REL 2"}}},
    {.name = "UncheckedKeepsTheList",
     .given = withLabel({{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\n"}}),
     .steps = {clickOn("btnSpecifyComponents")}, .shown = {{"txtComponent", {}, true}},
     .stored = withLabel({{"SpecifyComponents", "False"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\n"}})},
    {.name = "ClearedListStoresNone",
     .given = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\n"}},
     .steps = {typeInto("txtComponent", "")},
     .stored = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", ""}}},
    {.name = "VobsAskedOnEveryDropDown", .given = {{"VOBSelector", "/vobs/typed"}},
     .steps = {dropDownOf("txtVOB"), dropDownOf("txtVOB")},
     .shown = {{"txtVOB", {}, {}, "/vobs/typed", "/vobs/a|/vobs/b"}},
     .responses = {{"lsvob -short", "/vobs/a\n/vobs/b\n"}}, .calls = {"lsvob -short", "lsvob -short"}},
    {.name = "LabelsAskedForTheVobOnEveryDropDownButNotWithoutOne",
     .steps = {dropDownOf("txtLabel"), typeInto("txtVOB", "/vobs/a"), dropDownOf("txtLabel"), dropDownOf("txtLabel")},
     .shown = {{"txtLabel", {}, {}, nullptr, "REL1|REL2"}}, .stored = {{"VOBSelector", "/vobs/a"}},
     .responses = {{"lstype -short -kind lbtype -invob /vobs/a", "REL1\nREL2 (locked)\n"}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/a", "lstype -short -kind lbtype -invob /vobs/a"}},
};
WF_PAGE_TABLE(FromLabelPage, TClearCaseMakeBaselineFromLabelAction,
              "TClearCaseMakeBaselineFromLabelFrame", "Components", kFromLabelRows);

} // namespace
