// The attribute pages: applying an attribute (shared page, path and object options), and a new
// attribute type with its options.
#include "PageHarness.h"

#include "actions/WFClearCaseApplyAttributeObjectsAction.h"
#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "FakeCleartool.h"
#include "pages/WFClearCaseDateButtonEdit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <typeinfo>
#include <utility>

using namespace wfpage;

namespace {

using Properties = std::vector<std::pair<const char*, const char*>>;

void setProperties(TCustomWFAction& action, const Properties& properties)
{
    for (const auto& [name, value] : properties)
        setProperty(action, name, value);
}

void expectProperties(const TCustomWFAction& action, const Properties& properties)
{
    for (const auto& [name, value] : properties)
        EXPECT_EQ(property(action, name), value) << name;
}

/// A cleartool start of a query that runs in cleartool's own folder.
std::string query(const wftest::FakeCleartool& cleartool, const std::string& arguments)
{
    return cleartool.folder() + "|" + arguments;
}

// ---- Page titles and binding ----------------------------------------------------------------

struct TitleCase {
    const char* name;
    const char* pageClass;
    std::function<std::unique_ptr<TCustomWFAction>()> make;
    const char* title;
};

void PrintTo(const TitleCase& c, std::ostream* os)
{
    *os << c.name;
}

class AttributePageTitle : public ::testing::TestWithParam<TitleCase> {
protected:
    wftest::FakeCleartool cleartool;
};

TEST_P(AttributePageTitle, Shown)
{
    auto action = GetParam().make();
    OpenPage page(GetParam().pageClass, *action);
    EXPECT_EQ(page.page().PageName(), GetParam().title);
}

template <typename T>
std::unique_ptr<TCustomWFAction> make()
{
    return std::make_unique<T>();
}

const TitleCase kTitleCases[] = {
    {"SharedOnPaths", "TClearCaseApplyAttributeFrame", make<TClearCaseApplyAttributePathNamesAction>, "Attribute"},
    {"SharedOnObjects", "TClearCaseApplyAttributeFrame", make<TClearCaseApplyAttributeObjectsAction>, "Attribute"},
    {"PathOptions", "TClearCaseApplyAttributePathNamesFrame", make<TClearCaseApplyAttributePathNamesAction>, "Options"},
    {"ObjectOptions", "TClearCaseApplyAttributeObjectsFrame", make<TClearCaseApplyAttributeObjectsAction>, "Options"},
    {"NewType", "TClearCaseMakeAttributeTypeFrame", make<TClearCaseMakeAttributeTypeAction>, "New Type"},
    {"TypeOptions", "TClearCaseMakeAttributeTypeOptionsFrame", make<TClearCaseMakeAttributeTypeAction>, "Options"},
};
INSTANTIATE_TEST_SUITE_P(Cases, AttributePageTitle, ::testing::ValuesIn(kTitleCases),
                         [](const auto& info) { return std::string(info.param.name); });

TEST(AttributePageBinding, PageOnAnotherActionClassIsAFault)
{
    TClearCaseCheckoutAction checkout;
    TClearCaseApplyAttributeObjectsAction objects;
    EXPECT_THROW(OpenPage("TClearCaseApplyAttributeFrame", checkout), std::bad_cast);
    EXPECT_THROW(OpenPage("TClearCaseApplyAttributePathNamesFrame", objects), std::bad_cast);
    EXPECT_THROW(OpenPage("TClearCaseMakeAttributeTypeOptionsFrame", objects), std::bad_cast);
}

// ---- Shared apply-attribute page ------------------------------------------------------------

struct ApplyCase {
    const char* name;
    bool objects; // on the object action, else on the path action
    Properties stored;
    const char* describe; // describe output for attype:BuildNo@/vobs/main (nullptr: none)
    int exitCode;
    std::function<void(OpenPage&)> steps;
    const char* label;
    bool defaultEnabled;
    bool valueEnabled;
    bool lookup; // whether the type was asked for
    Properties expected;
};

void PrintTo(const ApplyCase& c, std::ostream* os)
{
    *os << c.name;
}

class ApplyAttribute : public ::testing::TestWithParam<ApplyCase> {
protected:
    wftest::FakeCleartool cleartool;
};

TEST_P(ApplyAttribute, RoundTrip)
{
    const ApplyCase& c = GetParam();
    if (c.describe)
        cleartool.respond("describe attype:BuildNo@/vobs/main", c.describe, c.exitCode);
    std::unique_ptr<TCustomWFAction> action = c.objects ? make<TClearCaseApplyAttributeObjectsAction>()
                                                        : make<TClearCaseApplyAttributePathNamesAction>();
    setProperties(*action, c.stored);
    OpenPage page("TClearCaseApplyAttributeFrame", *action);
    if (c.steps)
        c.steps(page);
    EXPECT_EQ(page.control<QLabel>("lblType")->text().toStdString(), c.label);
    EXPECT_EQ(page.control<QCheckBox>("boxUseDefault")->isEnabled(), c.defaultEnabled);
    EXPECT_EQ(page.control<QLineEdit>("txtValue")->isEnabled(), c.valueEnabled);
    const std::vector<std::string> lookups =
        c.lookup ? std::vector<std::string>{query(cleartool, "describe attype:BuildNo@/vobs/main")} : std::vector<std::string>{};
    EXPECT_EQ(cleartool.calls(), lookups);
    page.accept();
    expectProperties(*action, c.expected);
}

const char* const kStringType = "attribute type \"BuildNo\"\n  created 2006-11-15 by builder\n  value type: string\n  scope: this VOB\n";
const char* const kIntegerType = "attribute type \"BuildNo\"\n  value type: integer\n";

const ApplyCase kApplyCases[] = {
    {"FoundTypeDisablesDefaultAndKeepsItsMark", false,
     {{"VOBSelector", "/vobs/main"}, {"AttributeName", "BuildNo"}, {"UseDefaultAttributeValue", "True"}}, kStringType, 0, nullptr,
     "(Type: String)", false, false, true, {{"UseDefaultAttributeValue", "True"}, {"AttributeName", "BuildNo"}}},
    {"TypeShownWithCapital", true, {{"VOBSelector", "/vobs/main"}, {"AttributeName", "BuildNo"}, {"AttributeValue", "42"}},
     kIntegerType, 0, nullptr, "(Type: Integer)", false, true, true,
     {{"AttributeValue", "42"}, {"UseDefaultAttributeValue", "False"}, {"VOBSelector", "/vobs/main"}}},
    {"EmptyVOBAsksNothing", false, {{"AttributeName", "BuildNo"}}, kStringType, 0, nullptr, "", true, true, false,
     {{"AttributeName", "BuildNo"}, {"VOBSelector", ""}}},
    {"EmptyNameAsksNothing", true, {{"VOBSelector", "/vobs/main"}}, kStringType, 0, nullptr, "", true, true, false,
     {{"AttributeName", ""}}},
    {"FailedLookupLeavesDefaultEnabled", false, {{"VOBSelector", "/vobs/main"}, {"AttributeName", "BuildNo"}}, kStringType, 1,
     nullptr, "", true, true, true, {{"UseDefaultAttributeValue", "False"}}},
    {"NoValueTypeLineLeavesLabelEmpty", false, {{"VOBSelector", "/vobs/main"}, {"AttributeName", "BuildNo"}},
     "attribute type \"BuildNo\"\n", 0, nullptr, "", true, true, true, {}},
    {"TickingDefaultDisablesValueAndKeepsIt", false, {{"AttributeName", "BuildNo"}, {"AttributeValue", "42"}}, nullptr, 0,
     [](OpenPage& page) { click(page.control<QCheckBox>("boxUseDefault")); }, "", true, false, false,
     {{"UseDefaultAttributeValue", "True"}, {"AttributeValue", "42"}}},
    {"UntickingDefaultTakesTypedValueAsItStands", true, {{"UseDefaultAttributeValue", "True"}}, nullptr, 0,
     [](OpenPage& page) {
         click(page.control<QCheckBox>("boxUseDefault"));
         type(page.control<QLineEdit>("txtValue"), "\"release 2\"");
     },
     "", true, true, false, {{"UseDefaultAttributeValue", "False"}, {"AttributeValue", "\"release 2\""}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, ApplyAttribute, ::testing::ValuesIn(kApplyCases),
                         [](const auto& info) { return std::string(info.param.name); });

class ApplyAttributeLookup : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    TClearCaseApplyAttributePathNamesAction action;
};

TEST_F(ApplyAttributeLookup, OneLookupAfterTheLastKeystroke)
{
    cleartool.respond("describe attype:Bld@/vobs/main", kIntegerType);
    action.SetVOBSelector("/vobs/main");
    OpenPage page("TClearCaseApplyAttributeFrame", action);
    auto* timer = page.widget()->findChild<QTimer*>("Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 400);
    EXPECT_FALSE(timer->isActive());
    type(page.control<QComboBox>("txtAttrName"), "Bld");
    EXPECT_TRUE(timer->isActive());
    EXPECT_TRUE(cleartool.calls().empty());
    QTRY_COMPARE_WITH_TIMEOUT(cleartool.calls().size(), size_t(1), 3000);
    EXPECT_EQ(cleartool.calls()[0], query(cleartool, "describe attype:Bld@/vobs/main"));
    EXPECT_EQ(page.control<QLabel>("lblType")->text(), "(Type: Integer)");
    EXPECT_FALSE(timer->isActive());
    QTest::qWait(500);
    EXPECT_EQ(cleartool.calls().size(), 1u);
}

TEST_F(ApplyAttributeLookup, EveryKeystrokeInEitherBoxRestartsTheWait)
{
    OpenPage page("TClearCaseApplyAttributeFrame", action);
    auto* timer = page.widget()->findChild<QTimer*>("Timer1");
    for (const char* box : {"txtAttrName", "txtVOBSelector"}) {
        QLineEdit* edit = page.control<QComboBox>(box)->lineEdit();
        QTest::keyClicks(edit, "a");
        QTest::qWait(120);
        EXPECT_LE(timer->remainingTime(), 300) << box;
        QTest::keyClicks(edit, "b");
        EXPECT_GT(timer->remainingTime(), 300) << box;
    }
    // One lookup, once the typing in both boxes has paused.
    QTRY_VERIFY_WITH_TIMEOUT(!timer->isActive(), 3000);
    EXPECT_EQ(cleartool.calls(), std::vector<std::string>{query(cleartool, "describe attype:ab@ab")});
}

/// The VOB and attribute-name lists of a page, filled from cleartool when dropped down.
struct ListCase {
    const char* name;
    const char* pageClass;
    std::function<std::unique_ptr<TCustomWFAction>()> make;
};

void PrintTo(const ListCase& c, std::ostream* os)
{
    *os << c.name;
}

class AttributeLists : public ::testing::TestWithParam<ListCase> {
protected:
    wftest::FakeCleartool cleartool;
};

TEST_P(AttributeLists, VOBsOnceNamesOnEveryDropWithAVOB)
{
    cleartool.respond("lsvob -short", "/vobs/main\n/vobs/tools\n");
    cleartool.respond("lstype -short -kind attype -invob /vobs/main", "BuildNo\nQuality (locked)\n");
    auto action = GetParam().make();
    OpenPage page(GetParam().pageClass, *action);
    auto* vob = page.control<QComboBox>("txtVOBSelector");
    auto* name = page.control<QComboBox>("txtAttrName");
    dropDown(name);
    EXPECT_TRUE(items(name).isEmpty());
    EXPECT_TRUE(cleartool.calls().empty());
    type(vob, "/vob");
    dropDown(vob);
    dropDown(vob);
    EXPECT_EQ(items(vob), QStringList({"/vobs/main", "/vobs/tools"}));
    EXPECT_EQ(vob->currentText(), "/vob");
    type(vob, "/vobs/main");
    type(name, "B");
    dropDown(name);
    dropDown(name);
    EXPECT_EQ(items(name), QStringList({"BuildNo", "Quality"}));
    EXPECT_EQ(name->currentText(), "B");
    // With the VOB cleared the names already listed stay.
    type(vob, "");
    dropDown(name);
    EXPECT_EQ(items(name), QStringList({"BuildNo", "Quality"}));
    const std::string names = query(cleartool, "lstype -short -kind attype -invob /vobs/main");
    std::vector<std::string> asked;
    for (const std::string& call : cleartool.calls())
        if (call.find("|describe ") == std::string::npos)
            asked.push_back(call);
    EXPECT_EQ(asked, (std::vector<std::string>{query(cleartool, "lsvob -short"), names, names}));
}

const ListCase kListCases[] = {
    {"ApplyAttribute", "TClearCaseApplyAttributeFrame", make<TClearCaseApplyAttributeObjectsAction>},
    {"NewType", "TClearCaseMakeAttributeTypeFrame", make<TClearCaseMakeAttributeTypeAction>},
};
INSTANTIATE_TEST_SUITE_P(Cases, AttributeLists, ::testing::ValuesIn(kListCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- Path and object options ----------------------------------------------------------------

struct OptionsCase {
    const char* name;
    const char* pageClass;
    std::function<std::unique_ptr<TCustomWFAction>()> make;
    Properties stored;
    std::vector<const char*> clicks;
    const char* version; // typed into txtVersion (nullptr: left alone)
    Properties expected;
};

void PrintTo(const OptionsCase& c, std::ostream* os)
{
    *os << c.name;
}

class ApplyAttributeOptions : public ::testing::TestWithParam<OptionsCase> {
protected:
    wftest::FakeCleartool cleartool;
};

TEST_P(ApplyAttributeOptions, RoundTrip)
{
    const OptionsCase& c = GetParam();
    auto action = c.make();
    setProperties(*action, c.stored);
    OpenPage page(c.pageClass, *action);
    for (const char* box : c.clicks)
        click(page.control<QCheckBox>(box));
    if (c.version)
        type(page.control<QLineEdit>("txtVersion"), c.version);
    page.accept();
    expectProperties(*action, c.expected);
}

const char* const kPaths = "TClearCaseApplyAttributePathNamesFrame";
const char* const kObjects = "TClearCaseApplyAttributeObjectsFrame";
const auto kPathAction = make<TClearCaseApplyAttributePathNamesAction>;
const auto kObjectAction = make<TClearCaseApplyAttributeObjectsAction>;

const OptionsCase kOptionsCases[] = {
    {"PathsKeptAsStored", kPaths, kPathAction,
     {{"Replace", "True"}, {"Recurse", "False"}, {"UseVersionSelector", "True"}, {"VersionSelector", "/main/LATEST"}}, {}, nullptr,
     {{"Replace", "True"}, {"Recurse", "False"}, {"UseVersionSelector", "True"}, {"VersionSelector", "/main/LATEST"}}},
    {"PathsEachBoxItsOwnSwitch", kPaths, kPathAction, {}, {"boxRecurse"}, nullptr,
     {{"Replace", "False"}, {"Recurse", "True"}, {"UseVersionSelector", "False"}}},
    {"PathsAllCleared", kPaths, kPathAction, {{"Replace", "True"}, {"Recurse", "True"}, {"UseVersionSelector", "True"}},
     {"boxReplace", "boxRecurse", "boxUseVersion"}, nullptr,
     {{"Replace", "False"}, {"Recurse", "False"}, {"UseVersionSelector", "False"}}},
    {"VersionEditableWithoutItsBox", kPaths, kPathAction, {}, {}, "/main/rel2/3",
     {{"UseVersionSelector", "False"}, {"VersionSelector", "/main/rel2/3"}}},
    {"ObjectsReplaceTicked", kObjects, kObjectAction, {}, {"boxReplace"}, nullptr, {{"Replace", "True"}}},
    {"ObjectsReplaceKept", kObjects, kObjectAction, {{"Replace", "True"}}, {}, nullptr, {{"Replace", "True"}}},
    {"ObjectsReplaceCleared", kObjects, kObjectAction, {{"Replace", "True"}}, {"boxReplace"}, nullptr, {{"Replace", "False"}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, ApplyAttributeOptions, ::testing::ValuesIn(kOptionsCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- Attribute type options -----------------------------------------------------------------

struct TypeOptionsCase {
    const char* name;
    Properties stored;
    std::vector<const char*> clicks;
    const char* constraintShown; // the constraint button checked on opening
    Properties expected;
};

void PrintTo(const TypeOptionsCase& c, std::ostream* os)
{
    *os << c.name;
}

class AttributeTypeOptions : public ::testing::TestWithParam<TypeOptionsCase> {};

TEST_P(AttributeTypeOptions, RoundTrip)
{
    const TypeOptionsCase& c = GetParam();
    TClearCaseMakeAttributeTypeAction action;
    setProperties(action, c.stored);
    OpenPage page("TClearCaseMakeAttributeTypeOptionsFrame", action);
    for (const char* button : {"btnDefaultUse", "btnVPVersion", "btnVPelement", "btnVPBranch"})
        EXPECT_EQ(page.control<QRadioButton>(button)->isChecked(), std::string(button) == c.constraintShown) << button;
    EXPECT_NE(page.control<QRadioButton>("btnGlobal")->isChecked(), page.control<QRadioButton>("btnOrdinary")->isChecked());
    for (const char* button : c.clicks)
        click(page.control<QAbstractButton>(button));
    EXPECT_TRUE(page.control<QCheckBox>("boxAcquire")->isEnabled());
    page.accept();
    expectProperties(action, c.expected);
}

const TypeOptionsCase kTypeOptionsCases[] = {
    {"NewActionOrdinaryUnconstrained", {}, {}, "btnDefaultUse",
     {{"Constraints", "lcDefault"}, {"Global", "False"}, {"Acquire", "False"}, {"Replace", "False"}, {"Shared", "False"}}},
    {"VersionConstraintKept", {{"Constraints", "lcVPversion"}}, {}, "btnVPVersion", {{"Constraints", "lcVPversion"}}},
    {"ElementConstraintKept", {{"Constraints", "lcVPelement"}}, {}, "btnVPelement", {{"Constraints", "lcVPelement"}}},
    {"BranchConstraintKept", {{"Constraints", "lcVPbranch"}}, {}, "btnVPBranch", {{"Constraints", "lcVPbranch"}}},
    {"BranchChosen", {}, {"btnVPBranch"}, "btnDefaultUse", {{"Constraints", "lcVPbranch"}}},
    {"ConstraintCleared", {{"Constraints", "lcVPelement"}}, {"btnDefaultUse"}, "btnVPelement", {{"Constraints", "lcDefault"}}},
    {"OrdinaryKeepsAcquire", {{"Global", "True"}, {"Acquire", "True"}}, {"btnOrdinary"}, "btnDefaultUse",
     {{"Global", "False"}, {"Acquire", "True"}}},
    {"AcquireTickedOnOrdinary", {}, {"boxAcquire"}, "btnDefaultUse", {{"Global", "False"}, {"Acquire", "True"}}},
    {"GlobalChosen", {}, {"btnGlobal"}, "btnDefaultUse", {{"Global", "True"}, {"Acquire", "False"}}},
    {"ReplaceAndShared", {}, {"boxReplace", "boxShared"}, "btnDefaultUse", {{"Replace", "True"}, {"Shared", "True"}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, AttributeTypeOptions, ::testing::ValuesIn(kTypeOptionsCases),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- New attribute type ---------------------------------------------------------------------

struct NewTypeCase {
    const char* name;
    Properties stored;
    /// What the user does, and what the page shows meanwhile.
    std::function<void(OpenPage&)> steps;
    Properties expected;
};

void PrintTo(const NewTypeCase& c, std::ostream* os)
{
    *os << c.name;
}

class NewAttributeType : public ::testing::TestWithParam<NewTypeCase> {
protected:
    wftest::FakeCleartool cleartool;
};

TEST_P(NewAttributeType, RoundTrip)
{
    const NewTypeCase& c = GetParam();
    TClearCaseMakeAttributeTypeAction action;
    setProperties(action, c.stored);
    OpenPage page("TClearCaseMakeAttributeTypeFrame", action);
    c.steps(page);
    page.accept();
    expectProperties(action, c.expected);
}

TClearCaseDateButtonEdit* dateEdit(OpenPage& page, const char* name)
{
    return page.control<TClearCaseDateButtonEdit>(name);
}

QLineEdit* dateText(OpenPage& page, const char* name)
{
    return dateEdit(page, name)->findChild<QLineEdit*>("txtEdit");
}

/// Shows plain edits for the bounds, or date edits for a time type.
void expectBoundEdits(OpenPage& page, bool date)
{
    EXPECT_EQ(page.control<QLineEdit>("txtMinValue")->isVisible(), !date);
    EXPECT_EQ(page.control<QLineEdit>("txtMaxValue")->isVisible(), !date);
    EXPECT_EQ(dateEdit(page, "minDateFrame")->isVisible(), date);
    EXPECT_EQ(dateEdit(page, "maxDateFrame")->isVisible(), date);
    EXPECT_EQ(dateEdit(page, "txtDefaultValue")->GetShowButton(), date);
}

const NewTypeCase kNewTypeCases[] = {
    {"NewActionIsAStringTypeWithoutRange", {},
     [](OpenPage& page) {
         EXPECT_EQ(page.control<QComboBox>("cmbValueType")->currentText(), "String");
         expectBoundEdits(page, false);
         EXPECT_FALSE(page.control<QCheckBox>("boxUseMin")->isEnabled());
         EXPECT_FALSE(page.control<QCheckBox>("boxUseMax")->isEnabled());
         EXPECT_FALSE(dateText(page, "txtDefaultValue")->isEnabled());
     },
     {{"NewAttributeType", "atString"}, {"UseMin", "False"}, {"UseMax", "False"}, {"UseDefaultValue", "False"}}},
    {"NameAndVOBTyped", {},
     [](OpenPage& page) {
         type(page.control<QComboBox>("txtAttrName"), "BuildNo");
         type(page.control<QComboBox>("txtVOBSelector"), "/vobs/main");
     },
     {{"AttributeName", "BuildNo"}, {"VOBSelector", "/vobs/main"}}},
    {"TimeTypeEditsWithDateEdits", {{"NewAttributeType", "atDate"}, {"MinValue", "01-Jan-06"}, {"UseMin", "True"}},
     [](OpenPage& page) {
         EXPECT_EQ(page.control<QComboBox>("cmbValueType")->currentText(), "Time");
         expectBoundEdits(page, true);
         EXPECT_EQ(dateEdit(page, "minDateFrame")->GetDateString(), "01-Jan-06");
         EXPECT_TRUE(dateText(page, "minDateFrame")->isEnabled());
         EXPECT_FALSE(dateText(page, "maxDateFrame")->isEnabled());
     },
     {{"NewAttributeType", "atDate"}, {"UseMin", "True"}, {"MinValue", "01-Jan-06"}}},
    {"BoundsShownButNotKept",
     {{"NewAttributeType", "atInteger"}, {"MinValue", "5"}, {"MaxValue", "10"}, {"UseMin", "True"}, {"UseMax", "True"}},
     [](OpenPage& page) {
         EXPECT_EQ(page.control<QLineEdit>("txtMinValue")->text(), "5");
         EXPECT_EQ(page.control<QLineEdit>("txtMaxValue")->text(), "10");
         type(page.control<QLineEdit>("txtMinValue"), "7");
         type(page.control<QLineEdit>("txtMaxValue"), "70");
     },
     {{"MinValue", "5"}, {"MaxValue", "10"}, {"UseMin", "True"}, {"UseMax", "True"}}},
    {"RangeFlagsStored", {{"NewAttributeType", "atReal"}},
     [](OpenPage& page) {
         EXPECT_FALSE(page.control<QCheckBox>("boxMinInclusive")->isEnabled());
         for (const char* box : {"boxUseMin", "boxMinInclusive", "boxUseMax", "boxMaxInclusive"})
             click(page.control<QCheckBox>(box));
     },
     {{"UseMin", "True"}, {"MinInclusive", "True"}, {"UseMax", "True"}, {"MaxInclusive", "True"}}},
    {"UntickingABoundDisablesIt", {{"NewAttributeType", "atInteger"}, {"UseMax", "True"}, {"MaxInclusive", "True"}},
     [](OpenPage& page) {
         click(page.control<QCheckBox>("boxUseMax"));
         EXPECT_FALSE(page.control<QLineEdit>("txtMaxValue")->isEnabled());
         EXPECT_FALSE(page.control<QCheckBox>("boxMaxInclusive")->isEnabled());
     },
     {{"UseMax", "False"}, {"MaxInclusive", "True"}}},
    {"StringTypeKeepsStoredRangeFlags", {{"UseMin", "True"}, {"MinInclusive", "True"}},
     [](OpenPage& page) {
         EXPECT_FALSE(page.control<QCheckBox>("boxUseMin")->isEnabled());
         EXPECT_TRUE(page.control<QCheckBox>("boxUseMin")->isChecked());
     },
     {{"UseMin", "True"}, {"MinInclusive", "True"}}},
    {"DefaultValueTypedAsItStands", {},
     [](OpenPage& page) {
         click(page.control<QCheckBox>("boxUseDefaultValue"));
         type(dateText(page, "txtDefaultValue"), "\"n/a\"");
     },
     {{"UseDefaultValue", "True"}, {"DefaultValue", "\"n/a\""}}},
    {"DefaultValueKeptWhenUnticked", {{"UseDefaultValue", "True"}, {"DefaultValue", "1"}},
     [](OpenPage& page) { click(page.control<QCheckBox>("boxUseDefaultValue")); },
     {{"UseDefaultValue", "False"}, {"DefaultValue", "1"}}},
    {"DefaultTimeFromTheMenu", {{"NewAttributeType", "atDate"}, {"UseDefaultValue", "True"}},
     [](OpenPage& page) {
         click(dateEdit(page, "txtDefaultValue")->findChild<QToolButton*>("txtEditButton"));
         dateEdit(page, "txtDefaultValue")->findChild<QAction*>("odayItem")->trigger();
     },
     {{"DefaultValue", "today"}}},
    {"SwitchingToTimeCarriesTheBounds", {{"NewAttributeType", "atInteger"}, {"UseMin", "True"}},
     [](OpenPage& page) {
         type(page.control<QLineEdit>("txtMinValue"), "15-Nov-06");
         // As a user picks from the list.
         page.control<QComboBox>("cmbValueType")->setCurrentIndex(3);
         expectBoundEdits(page, true);
         EXPECT_EQ(dateEdit(page, "minDateFrame")->GetDateString(), "15-Nov-06");
         page.control<QComboBox>("cmbValueType")->setCurrentIndex(4);
         expectBoundEdits(page, false);
         EXPECT_EQ(page.control<QLineEdit>("txtMinValue")->text(), "15-Nov-06");
         EXPECT_FALSE(page.control<QCheckBox>("boxUseMin")->isEnabled());
     },
     {{"NewAttributeType", "atOpaque"}, {"UseMin", "True"}, {"MinValue", ""}}},
};
INSTANTIATE_TEST_SUITE_P(Cases, NewAttributeType, ::testing::ValuesIn(kNewTypeCases),
                         [](const auto& info) { return std::string(info.param.name); });

} // namespace
