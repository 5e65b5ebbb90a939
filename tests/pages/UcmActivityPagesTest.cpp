// The pages that choose or make a UCM activity, and the VOB lists of the UCM pages.
#include "PageHarness.h"

#include "actions/WFClearCaseCheckInActivityAction.h"
#include "actions/WFClearCaseMakeActivityAction.h"
#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "actions/WFClearCaseSetActivityAction.h"
#include "FakeCleartool.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

#include <filesystem>
#include <memory>

using namespace wfpage;

namespace {

std::string text(QComboBox* combo)
{
    return combo->currentText().toStdString();
}

// ---- Activity selector ----

enum class Radio { None, Current, Custom };

struct SelectorCase {
    const char* name;
    bool setActivityAction; // else a check-in-for-activity action
    bool useCurrent;
    bool setToNone;
    const char* activity;
    const char* vob;
    Radio click;
    const char* typedName; // nullptr: left alone
    const char* expectFirstCaption;
    bool expectCombosEnabled;
    const char* storedUseCurrent;
    const char* storedSetToNone; // only on the set-activity action
    const char* storedActivity;
};

void PrintTo(const SelectorCase& c, std::ostream* os)
{
    *os << c.name;
}

class ActivitySelectorPage : public ::testing::TestWithParam<SelectorCase> {};

TEST_P(ActivitySelectorPage, RoundTrip)
{
    const SelectorCase& c = GetParam();
    std::unique_ptr<TClearCaseUCMAction> action;
    if (c.setActivityAction) {
        auto setActivity = std::make_unique<TClearCaseSetActivityAction>();
        setActivity->SetSetActivityToNone(c.setToNone);
        action = std::move(setActivity);
    } else {
        action = std::make_unique<TClearCaseCheckInActivityAction>();
    }
    action->SetUseCurrentActivity(c.useCurrent);
    action->SetActivityName(c.activity);
    action->SetVOBSelector(c.vob);
    OpenPage page("TClearCaseActivitySelectorFrame", *action);
    EXPECT_EQ(page.page().PageName(), "Activity");
    auto* current = page.control<QRadioButton>("btnCurrentActivity");
    auto* custom = page.control<QRadioButton>("btnCustomActivity");
    auto* name = page.control<QComboBox>("txtActivityName");
    auto* vob = page.control<QComboBox>("txtVOBSelector");
    EXPECT_EQ(current->text().toStdString(), c.expectFirstCaption);
    EXPECT_EQ(text(name), c.activity);
    EXPECT_EQ(text(vob), c.vob);
    if (c.click == Radio::Current)
        click(current);
    if (c.click == Radio::Custom)
        click(custom);
    EXPECT_EQ(name->isEnabled(), c.expectCombosEnabled);
    EXPECT_EQ(vob->isEnabled(), c.expectCombosEnabled);
    EXPECT_NE(current->isChecked(), custom->isChecked());
    if (c.typedName)
        type(name, c.typedName);
    page.accept();
    EXPECT_EQ(property(*action, "UseCurrentActivity"), c.storedUseCurrent);
    if (c.setActivityAction) {
        EXPECT_EQ(property(*action, "SetActivityToNone"), c.storedSetToNone);
    }
    EXPECT_EQ(property(*action, "ActivityName"), c.storedActivity);
    EXPECT_EQ(property(*action, "VOBSelector"), c.vob);
}

const char* const kUseCurrent = "Use the Current Activity for the view";
const char* const kSetNone = "Set Current Activity to None (-none)";

const SelectorCase kSelectorCases[] = {
    {"CurrentActivityDisablesCombosButKeepsNameAndVob", false, true, false, "fix1", "/vobs/pvob", Radio::None, nullptr,
     kUseCurrent, false, "True", "", "fix1"},
    {"NamedActivityOpensEnabled", false, false, false, "fix1", "/vobs/pvob", Radio::None, "fix 2", kUseCurrent, true,
     "False", "", "fix 2"},
    {"ClickingCurrentDisablesCombos", false, false, false, "fix1", "", Radio::Current, nullptr, kUseCurrent, false, "True",
     "", "fix1"},
    {"ClickingCustomEnablesCombos", false, true, false, "", "/vobs/pvob", Radio::Custom, "fix3", kUseCurrent, true,
     "False", "", "fix3"},
    {"SetActivityNoneLeavesUseCurrentAlone", true, false, false, "fix1", "/vobs/pvob", Radio::Current, nullptr, kSetNone,
     false, "False", "True", "fix1"},
    {"SetActivityOpensFromNoneFlagNotUseCurrent", true, true, false, "fix1", "", Radio::None, nullptr, kSetNone, true,
     "True", "False", "fix1"},
    {"SetActivityNoneOpensDisabled", true, false, true, "fix1", "", Radio::None, nullptr, kSetNone, false, "False", "True",
     "fix1"},
    {"SetActivityChoosingNamedClearsNone", true, true, true, "fix1", "", Radio::Custom, nullptr, kSetNone, true, "True",
     "False", "fix1"},
};
INSTANTIATE_TEST_SUITE_P(Cases, ActivitySelectorPage, ::testing::ValuesIn(kSelectorCases),
                         [](const auto& info) { return std::string(info.param.name); });

/// The activity list asks the view the page shows, and only a view that is there.
class ActivitySelectorQueries : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    wftest::ScopedEnv config{"WF_CONFIG_DIR", cleartool.temp().path()};
    std::string view = cleartool.temp().path() + "/views/dev";
    TClearCaseCheckInActivityAction action;

    void SetUp() override
    {
        std::filesystem::create_directories(view);
        cleartool.respond("lsstream -long -cview",
                          "stream \"dev\"\n  contains activities:\n    fix2@/vobs/pvob\n    fix1@/vobs/pvob\n  views:\n");
        action.SetUseDefaultViewContext(false);
        action.SetViewContextPath(view);
    }
};

TEST_F(ActivitySelectorQueries, ActivityListAsksTheViewOnEveryDropDown)
{
    OpenPage page("TClearCaseActivitySelectorFrame", action);
    auto* name = page.control<QComboBox>("txtActivityName");
    type(name, "typed");
    dropDown(name);
    dropDown(name);
    EXPECT_EQ(items(name), QStringList({"fix1@/vobs/pvob", "fix2@/vobs/pvob"}));
    EXPECT_EQ(text(name), "typed");
    const std::string query = view + "|lsstream -long -cview";
    EXPECT_EQ(cleartool.calls(), std::vector<std::string>({query, query}));
}

TEST_F(ActivitySelectorQueries, MissingDefaultViewKeepsTheListAndAsksNothing)
{
    cleartool.options().SetDefaultViewPath(cleartool.temp().path() + "/views/gone");
    OpenPage page("TClearCaseActivitySelectorFrame", action);
    auto* name = page.control<QComboBox>("txtActivityName");
    click(page.control<QRadioButton>("btnDefaultView"));
    dropDown(name);
    EXPECT_TRUE(items(name).isEmpty());
    EXPECT_TRUE(cleartool.calls().empty());
    click(page.control<QRadioButton>("btnCustomView"));
    dropDown(name);
    click(page.control<QRadioButton>("btnDefaultView"));
    dropDown(name);
    EXPECT_EQ(items(name), QStringList({"fix1@/vobs/pvob", "fix2@/vobs/pvob"}));
    EXPECT_EQ(cleartool.calls().size(), 1u);
}

// ---- Make activity ----

struct MakeActivityCase {
    const char* name;
    bool autoGenerate;
    const char* activity;
    const char* headline;
    bool nset;
    Radio click; // Current: the generated name, Custom: the given name
    const char* typedName;
    const char* typedHeadline;
    bool clickNSet;
    bool expectGenerateChecked;
    const char* storedAutoGenerate;
    const char* storedActivity;
    const char* storedHeadline;
    const char* storedNSet;
};

void PrintTo(const MakeActivityCase& c, std::ostream* os)
{
    *os << c.name;
}

class MakeActivityPage : public ::testing::TestWithParam<MakeActivityCase> {};

TEST_P(MakeActivityPage, RoundTrip)
{
    const MakeActivityCase& c = GetParam();
    TClearCaseMakeActivityAction action;
    action.SetAutoGenerateName(c.autoGenerate);
    action.SetActivityName(c.activity);
    action.SetVOBSelector("/vobs/pvob");
    action.SetHeadline(c.headline);
    action.SetDontSetAsCurrent(c.nset);
    action.SetUseDefaultViewContext(false);
    action.SetViewContextPath("/views/dev");
    OpenPage page("TClearCaseMakeActivityFrame", action);
    EXPECT_EQ(page.page().PageName(), "Activity");
    auto* generate = page.control<QRadioButton>("btnGenerateName");
    auto* custom = page.control<QRadioButton>("btnCustomName");
    auto* name = page.control<QComboBox>("txtActivityName");
    EXPECT_EQ(text(name), c.activity);
    EXPECT_EQ(page.control<QLineEdit>("txtHeadline")->text().toStdString(), c.headline);
    EXPECT_EQ(page.control<QCheckBox>("boxNSet")->isChecked(), c.nset);
    if (c.click == Radio::Current)
        click(generate);
    if (c.click == Radio::Custom)
        click(custom);
    // Choosing the generated name leaves the name and VOB to edit.
    EXPECT_TRUE(name->isEnabled());
    EXPECT_TRUE(page.control<QComboBox>("txtVOBSelector")->isEnabled());
    EXPECT_EQ(generate->isChecked(), c.expectGenerateChecked);
    EXPECT_NE(custom->isChecked(), c.expectGenerateChecked);
    if (c.typedName)
        type(name, c.typedName);
    if (c.typedHeadline)
        type(page.control<QLineEdit>("txtHeadline"), c.typedHeadline);
    if (c.clickNSet)
        click(page.control<QCheckBox>("boxNSet"));
    page.accept();
    EXPECT_EQ(property(action, "AutoGenerateName"), c.storedAutoGenerate);
    EXPECT_EQ(property(action, "ActivityName"), c.storedActivity);
    EXPECT_EQ(property(action, "Headline"), c.storedHeadline);
    EXPECT_EQ(property(action, "DontSetAsCurrent"), c.storedNSet);
    EXPECT_EQ(property(action, "VOBSelector"), "/vobs/pvob");
    EXPECT_EQ(property(action, "ViewContextPath"), "/views/dev");
    EXPECT_EQ(property(action, "UseDefaultViewContext"), "False");
}

const MakeActivityCase kMakeActivityCases[] = {
    {"GeneratedNameKeepsStoredName", true, "fix1", "", false, Radio::None, nullptr, nullptr, false, true, "True", "fix1",
     "", "False"},
    {"GivenNameTyped", false, "", "", false, Radio::None, "fix 2", "Fix build", true, false, "False", "fix 2", "Fix build",
     "True"},
    {"ChoosingGeneratedStoresTypedNameToo", false, "fix1", "", false, Radio::Current, "other", nullptr, false, true,
     "True", "other", "", "False"},
    {"ChoosingGivenName", true, "fix1", "Fix build", true, Radio::Custom, nullptr, nullptr, false, false, "False", "fix1",
     "Fix build", "True"},
    {"ClearingHeadlineAndNSet", false, "fix1", "Fix build", true, Radio::None, nullptr, "", true, false, "False", "fix1",
     "", "False"},
};
INSTANTIATE_TEST_SUITE_P(Cases, MakeActivityPage, ::testing::ValuesIn(kMakeActivityCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- VOB lists ----

struct VobListCase {
    const char* name;
    const char* pageClass;
    std::unique_ptr<TClearCaseBaseAction> (*make)();
    const char* control;
    const char* lsvobOutput;
    size_t expectQueries; // after two drop-downs
};

void PrintTo(const VobListCase& c, std::ostream* os)
{
    *os << c.name;
}

template <typename T>
std::unique_ptr<TClearCaseBaseAction> makeAction()
{
    return std::make_unique<T>();
}

class VobList : public ::testing::TestWithParam<VobListCase> {};

TEST_P(VobList, QueriesAsOftenAsThePageWants)
{
    const VobListCase& c = GetParam();
    wftest::FakeCleartool cleartool;
    cleartool.respond("lsvob -short", c.lsvobOutput);
    auto action = c.make();
    action->SetVOBSelector("/vobs/typed");
    OpenPage page(c.pageClass, *action);
    auto* list = page.control<QComboBox>(c.control);
    dropDown(list);
    dropDown(list);
    QStringList expected = QString(c.lsvobOutput).split('\n');
    expected.removeLast();
    EXPECT_EQ(items(list), expected);
    EXPECT_EQ(text(list), "/vobs/typed");
    EXPECT_EQ(cleartool.calls(), std::vector<std::string>(c.expectQueries, cleartool.folder() + "|lsvob -short"));
}

const VobListCase kVobListCases[] = {
    {"SelectorAsksOnce", "TClearCaseActivitySelectorFrame", makeAction<TClearCaseSetActivityAction>, "txtVOBSelector",
     "/vobs/a\n/vobs/pvob\n", 1},
    {"SelectorAsksAgainAfterNoVobs", "TClearCaseActivitySelectorFrame", makeAction<TClearCaseSetActivityAction>,
     "txtVOBSelector", "", 2},
    {"SelectorAsksAgainAfterBlankFirstVob", "TClearCaseActivitySelectorFrame", makeAction<TClearCaseSetActivityAction>,
     "txtVOBSelector", "\n/vobs/pvob\n", 2},
    {"MakeActivityAsksOnce", "TClearCaseMakeActivityFrame", makeAction<TClearCaseMakeActivityAction>, "txtVOBSelector",
     "/vobs/pvob\n", 1},
    {"FromLabelAsksEveryTime", "TClearCaseMakeBaselineFromLabelFrame", makeAction<TClearCaseMakeBaselineFromLabelAction>,
     "txtVOB", "/vobs/a\n/vobs/b\n", 2},
};
INSTANTIATE_TEST_SUITE_P(Cases, VobList, ::testing::ValuesIn(kVobListCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
