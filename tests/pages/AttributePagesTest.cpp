// The attribute pages: applying an attribute (shared page, path and object options), and a new
// attribute type with its options.
#include "PageCase.h"

#include "actions/WFClearCaseApplyAttributeObjectsAction.h"
#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "actions/WFClearCaseCheckOutAction.h"
#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "pages/WFClearCaseDateButtonEdit.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QTimer>

#include <typeinfo>

using namespace wfpage;

namespace {

/// A cleartool start of a query that runs in cleartool's own folder.
std::string query(const wftest::FakeCleartool& cleartool, const std::string& arguments)
{
    return cleartool.folder() + "|" + arguments;
}

TEST(AttributePageBinding, PageOnAnotherActionClassIsAFault)
{
    TClearCaseCheckoutAction checkout;
    TClearCaseApplyAttributeObjectsAction objects;
    EXPECT_THROW(OpenPage("TClearCaseApplyAttributeFrame", checkout), std::bad_cast);
    EXPECT_THROW(OpenPage("TClearCaseApplyAttributePathNamesFrame", objects), std::bad_cast);
    EXPECT_THROW(OpenPage("TClearCaseMakeAttributeTypeOptionsFrame", objects), std::bad_cast);
}

// ---- Shared apply-attribute page ------------------------------------------------------------

const char* const kStringType = "attribute type \"BuildNo\"\n  created 2006-11-15 by builder\n  value type: string\n  scope: this VOB\n";
const char* const kIntegerType = "attribute type \"BuildNo\"\n  value type: integer\n";
const char* const kDescribe = "describe attype:BuildNo@/vobs/main";

/// The type label and whether the default box and the value are enabled.
std::vector<Shown> typeShown(const char* label, bool defaultEnabled, bool valueEnabled)
{
    return {{"lblType", {}, {}, label}, {"boxUseDefault", {}, defaultEnabled}, {"txtValue", {}, valueEnabled}};
}

/// The VOB list asked for once, the attribute names of the typed VOB on every drop-down and never
/// without a VOB; the names listed stay when the VOB is cleared.
PageCase listRow(std::function<std::unique_ptr<TCustomWFAction>()> makeAction = {})
{
    const char* const names = "lstype -short -kind attype -invob /vobs/main";
    return {.name = "VOBsOnceNamesOnEveryDropWithAVOB",
            .steps = {dropDownOf("txtAttrName"), typeInto("txtVOBSelector", "/vob"), dropDownOf("txtVOBSelector"),
                      dropDownOf("txtVOBSelector"), typeInto("txtVOBSelector", "/vobs/main"), dropDownOf("txtAttrName"),
                      dropDownOf("txtAttrName"), typeInto("txtVOBSelector", ""), dropDownOf("txtAttrName")},
            .shown = {{.control = "txtVOBSelector", .items = "/vobs/main|/vobs/tools"},
                      {.control = "txtAttrName", .items = "BuildNo|Quality"}},
            .responses = {{"lsvob -short", "/vobs/main\n/vobs/tools\n"}, {names, "BuildNo\nQuality (locked)\n"}},
            .calls = {"lsvob -short", names, names},
            .makeAction = std::move(makeAction)};
}

const PageCase kApplyCases[] = {
    {.name = "FoundTypeDisablesDefaultAndKeepsItsMark",
     .given = {{"VOBSelector", "/vobs/main"}, {"AttributeName", "BuildNo"}, {"UseDefaultAttributeValue", "True"}},
     .shown = typeShown("(Type: String)", false, false),
     .stored = {{"UseDefaultAttributeValue", "True"}, {"AttributeName", "BuildNo"}},
     .responses = {{kDescribe, kStringType}}, .calls = {kDescribe}},
    {.name = "EmptyVOBAsksNothing", .given = {{"AttributeName", "BuildNo"}}, .shown = typeShown("", true, true),
     .stored = {{"AttributeName", "BuildNo"}, {"VOBSelector", ""}}, .responses = {{kDescribe, kStringType}}},
    {.name = "EmptyNameAsksNothing", .given = {{"VOBSelector", "/vobs/main"}}, .shown = typeShown("", true, true),
     .stored = {{"AttributeName", ""}}, .responses = {{kDescribe, kStringType}},
     .makeAction = newAction<TClearCaseApplyAttributeObjectsAction>},
    {.name = "FailedLookupLeavesDefaultEnabled", .given = {{"VOBSelector", "/vobs/main"}, {"AttributeName", "BuildNo"}},
     .shown = typeShown("", true, true), .stored = {{"UseDefaultAttributeValue", "False"}},
     .responses = {{kDescribe, kStringType, 1}}, .calls = {kDescribe}},
    {.name = "UntickingDefaultTakesTypedValueAsItStands", .given = {{"UseDefaultAttributeValue", "True"}},
     .steps = {clickOn("boxUseDefault"), typeInto("txtValue", "\"release 2\"")}, .shown = typeShown("", true, true),
     .stored = {{"UseDefaultAttributeValue", "False"}, {"AttributeValue", "\"release 2\""}},
     .makeAction = newAction<TClearCaseApplyAttributeObjectsAction>},
    listRow(newAction<TClearCaseApplyAttributeObjectsAction>),
};
WF_PAGE_TABLE(ApplyAttribute, TClearCaseApplyAttributePathNamesAction,
              "TClearCaseApplyAttributeFrame", "Attribute", kApplyCases);

class ApplyAttributeLookup : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    TClearCaseApplyAttributePathNamesAction action;
};

TEST_F(ApplyAttributeLookup, OneLookupAfterTheLastKeystrokeInEitherBox)
{
    cleartool.respond("describe attype:Bld@/vobs/main", kIntegerType);
    action.SetVOBSelector("/vobs/mai");
    OpenPage page("TClearCaseApplyAttributeFrame", action);
    auto* timer = page.widget()->findChild<QTimer*>("Timer1");
    ASSERT_NE(timer, nullptr);
    EXPECT_EQ(timer->interval(), 400);
    EXPECT_FALSE(timer->isActive());
    type(page.control<QComboBox>("txtAttrName"), "Bld");
    QTest::qWait(120);
    EXPECT_LE(timer->remainingTime(), 300);
    // A keystroke in the other box waits anew.
    QTest::keyClicks(page.control<QComboBox>("txtVOBSelector")->lineEdit(), "n");
    EXPECT_GT(timer->remainingTime(), 300);
    EXPECT_TRUE(cleartool.calls().empty());
    QTRY_COMPARE_WITH_TIMEOUT(cleartool.calls().size(), size_t(1), 3000);
    EXPECT_EQ(cleartool.calls()[0], query(cleartool, "describe attype:Bld@/vobs/main"));
    EXPECT_EQ(page.control<QLabel>("lblType")->text(), "(Type: Integer)");
    QTest::qWait(500);
    EXPECT_EQ(cleartool.calls().size(), 1u);
}

// ---- Path and object options ----------------------------------------------------------------

const PageCase kPathOptionsCases[] = {
    {.name = "AllCleared", .given = {{"Replace", "True"}, {"Recurse", "True"}, {"UseVersionSelector", "True"}},
     .steps = clicks({"boxReplace", "boxRecurse", "boxUseVersion"}),
     .stored = {{"Replace", "False"}, {"Recurse", "False"}, {"UseVersionSelector", "False"}}},
    {.name = "VersionEditableWithoutItsBox", .steps = {typeInto("txtVersion", "/main/rel2/3")},
     .stored = {{"UseVersionSelector", "False"}, {"VersionSelector", "/main/rel2/3"}}},
};
WF_PAGE_TABLE(ApplyAttributeOptions, TClearCaseApplyAttributePathNamesAction,
              "TClearCaseApplyAttributePathNamesFrame", "Options", kPathOptionsCases);

const PageCase kObjectOptionsCases[] = {
    {.name = "ReplaceCleared", .given = {{"Replace", "True"}}, .steps = clicks({"boxReplace"}),
     .stored = {{"Replace", "False"}}},
};
WF_PAGE_TABLE(ApplyAttributeObjectOptions, TClearCaseApplyAttributeObjectsAction,
              "TClearCaseApplyAttributeObjectsFrame", "Options", kObjectOptionsCases);

/// The constraint button checked on opening, the others not; acquiring always offered.
std::vector<Shown> constraintShown(const char* checked)
{
    std::vector<Shown> shown = {{"boxAcquire", {}, true}};
    for (const char* button : {"btnDefaultUse", "btnVPVersion", "btnVPelement", "btnVPBranch"})
        shown.push_back({button, std::string(button) == checked});
    return shown;
}

const PageCase kTypeOptionsCases[] = {
    {.name = "VersionConstraintKept", .kept = {{"Constraints", "lcVPversion"}},
     .shown = constraintShown("btnVPVersion")},
    {.name = "ElementConstraintKept", .kept = {{"Constraints", "lcVPelement"}},
     .shown = constraintShown("btnVPelement")},
    {.name = "BranchConstraintKept", .kept = {{"Constraints", "lcVPbranch"}}, .shown = constraintShown("btnVPBranch")},
    {.name = "OrdinaryKeepsAcquire", .given = {{"Global", "True"}, {"Acquire", "True"}},
     .steps = clicks({"btnOrdinary"}), .shown = {{"btnGlobal", false}, {"boxAcquire", true, true}},
     .stored = {{"Global", "False"}, {"Acquire", "True"}}},
    {.name = "GlobalReplaceAndSharedChosen", .steps = clicks({"btnGlobal", "boxReplace", "boxShared"}),
     .shown = {{"btnOrdinary", false}},
     .stored = {{"Global", "True"}, {"Acquire", "False"}, {"Replace", "True"}, {"Shared", "True"}}},
};
WF_PAGE_TABLE(AttributeTypeOptions, TClearCaseMakeAttributeTypeAction,
              "TClearCaseMakeAttributeTypeOptionsFrame", "Options", kTypeOptionsCases);

// ---- New attribute type ---------------------------------------------------------------------

TClearCaseDateButtonEdit* dateEdit(const OpenPage& page, const char* name)
{
    return page.control<TClearCaseDateButtonEdit>(name);
}

QLineEdit* dateText(const OpenPage& page, const char* name)
{
    return dateEdit(page, name)->findChild<QLineEdit*>("txtEdit");
}

/// Shows plain edits for the bounds, or date edits for a time type.
void expectBoundEdits(const OpenPage& page, bool date)
{
    EXPECT_EQ(page.control<QLineEdit>("txtMinValue")->isVisible(), !date);
    EXPECT_EQ(page.control<QLineEdit>("txtMaxValue")->isVisible(), !date);
    EXPECT_EQ(dateEdit(page, "minDateFrame")->isVisible(), date);
    EXPECT_EQ(dateEdit(page, "maxDateFrame")->isVisible(), date);
    EXPECT_EQ(dateEdit(page, "txtDefaultValue")->GetShowButton(), date);
}

const PageCase kNewTypeCases[] = {
    {.name = "TimeTypeEditsWithDateEdits",
     .given = {{"NewAttributeType", "atDate"}, {"MinValue", "01-Jan-06"}, {"UseMin", "True"}},
     .shown = {{"cmbValueType", {}, {}, "Time"}},
     .stored = {{"NewAttributeType", "atDate"}, {"UseMin", "True"}, {"MinValue", "01-Jan-06"}},
     .check = [](const OpenPage& page) {
         expectBoundEdits(page, true);
         EXPECT_EQ(dateEdit(page, "minDateFrame")->GetDateString(), "01-Jan-06");
         EXPECT_TRUE(dateText(page, "minDateFrame")->isEnabled());
         EXPECT_FALSE(dateText(page, "maxDateFrame")->isEnabled());
     }},
    {.name = "StoredBoundsShown",
     .given = {{"NewAttributeType", "atInteger"}, {"MinValue", "5"}, {"MaxValue", "10"}, {"UseMin", "True"}, {"UseMax", "True"}},
     .shown = {{"txtMinValue", {}, {}, "5"}, {"txtMaxValue", {}, {}, "10"}},
     .stored = {{"MinValue", "5"}, {"MaxValue", "10"}, {"UseMin", "True"}, {"UseMax", "True"}}},
    {.name = "TypedBoundsNotKept",
     .given = {{"NewAttributeType", "atInteger"}, {"MinValue", "5"}, {"MaxValue", "10"}, {"UseMin", "True"}, {"UseMax", "True"}},
     .steps = {typeInto("txtMinValue", "7"), typeInto("txtMaxValue", "70")},
     .stored = {{"MinValue", "5"}, {"MaxValue", "10"}, {"UseMin", "True"}, {"UseMax", "True"}}},
    {.name = "UntickingABoundDisablesIt",
     .given = {{"NewAttributeType", "atReal"}, {"UseMax", "True"}, {"MaxInclusive", "True"}},
     .steps = clicks({"boxUseMax"}), .shown = {{"txtMaxValue", {}, false}, {"boxMaxInclusive", {}, false}},
     .stored = {{"UseMax", "False"}, {"MaxInclusive", "True"}}},
    {.name = "StringTypeKeepsStoredRangeFlags", .kept = {{"UseMin", "True"}, {"MinInclusive", "True"}},
     .shown = {{"boxUseMin", true, false}}},
    {.name = "NameVOBAndDefaultValueTypedAsTheyStand",
     .steps = {typeInto("txtAttrName", "BuildNo"), typeInto("txtVOBSelector", "/vobs/main"), clickOn("boxUseDefaultValue"),
               typeInto("txtDefaultValue", "\"n/a\"")},
     .stored = {{"AttributeName", "BuildNo"}, {"VOBSelector", "/vobs/main"}, {"UseDefaultValue", "True"}, {"DefaultValue", "\"n/a\""}}},
    // As a user picks from the list: the bounds go along to the date edits and back.
    {.name = "SwitchingToTimeCarriesTheBounds", .given = {{"NewAttributeType", "atInteger"}, {"UseMin", "True"}},
     .steps = {typeInto("txtMinValue", "15-Nov-06"), chooseIn("cmbValueType", "Time")},
     .stored = {{"NewAttributeType", "atDate"}, {"UseMin", "True"}},
     .check = [](const OpenPage& page) {
         expectBoundEdits(page, true);
         EXPECT_EQ(dateEdit(page, "minDateFrame")->GetDateString(), "15-Nov-06");
     }},
    {.name = "SwitchingBackFromTimeCarriesTheBounds", .given = {{"NewAttributeType", "atInteger"}, {"UseMin", "True"}},
     .steps = {typeInto("txtMinValue", "15-Nov-06"), chooseIn("cmbValueType", "Time"), chooseIn("cmbValueType", "Opaque")},
     .shown = {{"txtMinValue", {}, {}, "15-Nov-06"}, {"boxUseMin", {}, false}},
     .stored = {{"NewAttributeType", "atOpaque"}, {"UseMin", "True"}, {"MinValue", ""}},
     .check = [](const OpenPage& page) { expectBoundEdits(page, false); }},
    listRow(),
};
WF_PAGE_TABLE(NewAttributeType, TClearCaseMakeAttributeTypeAction, "TClearCaseMakeAttributeTypeFrame", "New Type",
              kNewTypeCases);

} // namespace
