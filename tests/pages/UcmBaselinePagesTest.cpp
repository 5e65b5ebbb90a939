// The pages of the two baseline actions: check lists filled from ClearCase, the labelling
// choice and the import from a label.
#include "PageCase.h"

#include "actions/WFClearCaseMakeBaselineAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"

using namespace wfpage;

namespace {

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
    baselineRow({.name = "StoredComponentsCheckedIgnoringCaseUnknownDropped",
                 .given = baseline("slComponents", "CORE@/vobs/a\r\nghost@/vobs/z\r\n", "", "True", ""),
                 .shown = baselineShown(true, false, true),
                 .stored = baseline("slComponents", "core@/vobs/a\r\n", "", "True", "")}),
    baselineRow({.name = "CheckedComponentsStoredInListOrder", .given = baseline("slAll", "", "", "True", ""),
                 .steps = {clickOn("btnComponents"), tickRow(kComponents, 2), tickRow(kComponents, 1)},
                 .shown = baselineShown(true, false, true),
                 .stored = baseline("slComponents", "ui@/vobs/a\r\ntools@/vobs/b\r\n", "", "True", "")}),
    // A selected activity the view lacks is dropped.
    baselineRow({.name = "CheckedActivitiesStoredInListOrder",
                 .given = baseline("slAll", "", "gone@/vobs/pvob\r\nfix2@/vobs/pvob\r\n", "True", ""),
                 .steps = {clickOn("btnActivities"), tickRow(kActivities, 0)}, .shown = baselineShown(false, true, true),
                 .stored = baseline("slActivities", "", "fix1@/vobs/pvob\r\nfix2@/vobs/pvob\r\n", "True", "")}),
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
    baselineRow({.name = "TemplateChosenKeepsRootName", .given = baseline("slAll", "", "", "False", "REL2"),
                 .steps = {clickOn("btnUseBaselineNameTemplate")},
                 .shown = {{"btnUseBaselineNameTemplate", true}, {"txtBaselineRootName", {}, false}},
                 .stored = baseline("slAll", "", "", "True", "REL2")}),
    // Opening asks the view the page shows, although the stored path is another; then only a
    // change of the view's folder asks again.
    {.name = "ActivitiesAskedOnlyWhenTheViewFolderChanges",
     .given = {{"UseDefaultViewContext", "True"}, {"ViewContextPath", "$T/one"}},
     .steps = {clickOn("btnDefaultView"), clickOn("btnCustomView"), clickOn("btnCustomView"), clickOn("txtViewPathButton"),
               clickOn("txtViewPathButton"), clickOn("btnDefaultView"), clickOn("txtViewPathButton"), clickOn("btnCustomView")},
     .answers = {"$T/two", "$T/two", "$T/one"},
     .browsed = {{"$T/one", "Select View"}, {"$T/two", "Select View"}, {"$T/two", "Select View"}},
     .responses = kBaselineWorld,
     .calls = {"lsvob -short", "lscomp -short -invob /vobs/a", "lscomp -short -invob /vobs/b", "$T/default|lsstream -long -cview",
               "$T/one|lsstream -long -cview", "$T/two|lsstream -long -cview", "$T/default|lsstream -long -cview",
               "$T/one|lsstream -long -cview"},
     .setUp = [](wftest::FakeCleartool& cleartool) {
         for (const char* view : {"default/.keep", "one/.keep", "two/.keep"})
             cleartool.temp().write(view, "");
         cleartool.options().SetDefaultViewPath(cleartool.temp().path() + "/default");
     }},
};
WF_PAGE_TABLE(NewBaselinePage, TClearCaseMakeBaselineAction, "TClearCaseMakeBaselineFrame", "New Baseline", kBaselineCases);

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
    {.name = "Incremental", .kept = {{"Labelling", "lbIncremental"}}, .shown = labelling("btnIncremental")},
    {.name = "Full", .kept = {{"Labelling", "lbAll"}}, .shown = labelling("btnFulllabel")},
    {.name = "Unlabelled", .kept = {{"Labelling", "lbNone"}}, .shown = labelling("btnNlabel")},
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
     .kept = withLabel({{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc2@/vobs/a\r\n"}}),
     .shown = {{"txtComponent", {}, {}, "c1@/vobs/a\nc2@/vobs/a\n"}, {"btnSpecifyComponents", true},
               {"txtVOB", {}, {}, "/vobs/a"}, {"txtLabel", {}, {}, "REL1"}, {"btnCustomView", true}}},
    {.name = "TypedListOneALine",
     .steps = {clickOn("btnSpecifyComponents"), typeInto("txtComponent", "c1@/vobs/a\nc 2@/vobs/a"), typeInto("txtVOB", "/vobs/a"), typeInto("txtLabel", "REL 2")},
     .stored = {{"SpecifyComponents", "True"}, {"ComponentSelectorStorageString", "c1@/vobs/a\r\nc 2@/vobs/a\r\n"},
                {"VOBSelector", "/vobs/a"}, {"LabelTypeName", "REL 2"}}},
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
