// The object selector page and its editor.
#include "PageCase.h"
#include "RowName.h"

#include "actions/WFClearCaseLockObjectsAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "FakeCleartool.h"
#include "pages/WFClearCaseObjectSelectorEditForm.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <ostream>
#include <string>
#include <vector>

using namespace wfpage;

namespace {

/// A user's step in the editor: a type chosen from the list, or text typed into a field.
struct EditorStep {
    const char* control;
    const char* value;
};

void apply(QWidget* editor, const EditorStep& step)
{
    if (std::string(step.control) == "cmbObjectTypeName")
        chooseByKeyboard(editor->findChild<QComboBox*>(step.control), step.value);
    else
        type(editor->findChild<QWidget*>(step.control), step.value);
}

struct EditorCase {
    const char* name;
    const char* opened; // nullptr: the editor opens empty
    std::vector<EditorStep> steps;
    const char* selector;
    int typeRow;
    const char* objectName;
    const char* vob;
    bool vobEnabled;
    const char* nameLabel;
};

WF_ROW_PRINTER(EditorCase)

/// The editor on its own, shown, with a fake ClearCase for its lists.
class EditorFixture : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    TClearCaseObjectSelectorEditForm editor;

    void SetUp() override { editor.show(); }
    QComboBox* combo(const char* name) { return editor.findChild<QComboBox*>(name); }
    QLineEdit* selector() { return editor.findChild<QLineEdit*>("txtObjectSelector"); }
};

class SelectorEditor : public EditorFixture, public ::testing::WithParamInterface<EditorCase> {};

TEST_P(SelectorEditor, PartsAndStringFollowEachOther)
{
    const EditorCase& c = GetParam();
    if (c.opened)
        editor.SetObjectSelector(c.opened);
    for (const EditorStep& step : c.steps)
        apply(&editor, step);
    EXPECT_EQ(editor.GetObjectSelector(), c.selector);
    EXPECT_EQ(combo("cmbObjectTypeName")->currentIndex(), c.typeRow);
    EXPECT_EQ(combo("cmbObjectTypeTag")->currentIndex(), c.typeRow);
    EXPECT_EQ(combo("txtObjectName")->currentText().toStdString(), c.objectName);
    EXPECT_EQ(combo("txtVOB")->currentText().toStdString(), c.vob);
    EXPECT_EQ(combo("txtVOB")->isEnabled(), c.vobEnabled);
    EXPECT_EQ(editor.findChild<QLabel*>("lblObjName")->text().toStdString(), c.nameLabel);
}

const EditorCase kEditorCases[] = {
    {"OpensOnLabelSelectorUnchanged", R"(lbtype:REL1@\vobs\main)", {}, R"(lbtype:REL1@\vobs\main)", 6, "REL1",
     R"(\vobs\main)", true, "Selector Object Name:"},
    {"VOBTypeTakesTypedVOBAsName", nullptr, {{"txtVOB", R"(\vobs\main)"}, {"cmbObjectTypeName", "VOB"}},
     R"(vob:\vobs\main)", 1, R"(\vobs\main)", "", false, "VOB Name:"},
    {"VOBTypeWithoutVOBLeavesNameEmpty", nullptr, {{"cmbObjectTypeName", "VOB"}}, "vob:", 1, "", "", false, "VOB Name:"},
    {"StringWithoutColonChoosesNoType", nullptr,
     {{"cmbObjectTypeName", "Label"}, {"txtObjectSelector", R"(REL1@\vobs\main)"}}, R"(REL1@\vobs\main)", 0, "REL1",
     R"(\vobs\main)", true, "Label Name:"},
    {"UnknownPrefixLosesItsColon", "foo:bar@/vobs/a", {}, "foobar@/vobs/a", 0, "foobar", "/vobs/a", true,
     "Selector Object Name:"},
    {"TypingPassesThroughNoType", nullptr, {{"cmbObjectTypeName", "Branch"}, {"txtObjectSelector", "xx:main"}},
     "xx:main", 0, "main", "", true, "Branch Name:"},
    {"PartsCompose", nullptr, {{"cmbObjectTypeName", "Label"}, {"txtObjectName", "REL2"}, {"txtVOB", "/vobs/a"}},
     "lbtype:REL2@/vobs/a", 6, "REL2", "/vobs/a", true, "Label Name:"},
    {"ClearingVOBDropsAt", "lbtype:REL2@/vobs/a", {{"txtVOB", ""}}, "lbtype:REL2", 6, "REL2", "", true,
     "Selector Object Name:"},
    {"ChoosingTypeEmptiesName", "lbtype:REL1@/vobs/a", {{"cmbObjectTypeName", "Branch"}}, "brtype:@/vobs/a", 3, "",
     "/vobs/a", true, "Branch Name:"},
    {"ObjectIDLabel", nullptr, {{"cmbObjectTypeName", "Object ID"}, {"txtObjectName", "1234.56"}}, "oid:1234.56", 9,
     "1234.56", "", true, "Object ID:"},
    {"UCMTypeLabel", nullptr, {{"cmbObjectTypeName", "UCM Stream"}, {"txtObjectName", "int"}, {"txtVOB", "/vobs/pvob"}},
     "stream:int@/vobs/pvob", 15, "int", "/vobs/pvob", true, "UCM Stream Name:"},
    {"NoTypeAgainKeepsPrefixWithoutColon", "lbtype:REL1@/vobs/a", {{"cmbObjectTypeName", "(Click to select a type)"}},
     "lbtype@/vobs/a", 0, "lbtype", "/vobs/a", true, "Selector Object Name:"},
    {"VOBSelectorDisablesVOBField", "vob:/vobs/a", {}, "vob:/vobs/a", 1, "/vobs/a", "", false, "Selector Object Name:"},
    {"NameEndsAtFirstAt", "lbtype:A@/vobs/a@x", {}, "lbtype:A@/vobs/a@x", 6, "A", "/vobs/a@x", true,
     "Selector Object Name:"},
    {"ColonAfterAtLeavesNoName", "REL1@C:/vobs", {}, "REL1@C@C:/vobs", 0, "", "C@C:/vobs", true, "Selector Object Name:"},
    {"EmptyStaysEmpty", "", {}, "", 0, "", "", true, "Selector Object Name:"},
};
INSTANTIATE_TEST_SUITE_P(Cases, SelectorEditor, ::testing::ValuesIn(kEditorCases), wftest::byName);

TEST_F(SelectorEditor, UnknownPrefixTypedKeepsTheChosenType)
{
    editor.SetObjectSelector("lbtype:REL1");
    QLineEdit* string = selector();
    string->setFocus();
    string->setCursorPosition(6);
    QTest::keyClicks(string, "x");
    EXPECT_EQ(editor.GetObjectSelector(), "lbtypex:REL1");
    EXPECT_EQ(combo("cmbObjectTypeName")->currentIndex(), 6);
    EXPECT_EQ(combo("txtObjectName")->currentText(), "REL1");
    // Composing again puts the chosen type's prefix in place of the unknown one.
    type(combo("txtObjectName"), "REL2");
    EXPECT_EQ(editor.GetObjectSelector(), "lbtype:REL2");
}

struct NameListCase {
    const char* name;
    const char* vob; // typed before the type is chosen
    const char* type;
    const char* query; // nullptr: nothing is asked
    const char* output;
    QStringList names;
};

WF_ROW_PRINTER(NameListCase)

class SelectorNameList : public EditorFixture, public ::testing::WithParamInterface<NameListCase> {};

TEST_P(SelectorNameList, AskedForOnEveryDropDown)
{
    const NameListCase& c = GetParam();
    if (c.query)
        cleartool.respond(c.query, c.output);
    type(combo("txtVOB"), c.vob);
    chooseByKeyboard(combo("cmbObjectTypeName"), c.type);
    QComboBox* names = combo("txtObjectName");
    dropDown(names);
    dropDown(names);
    EXPECT_EQ(items(names), c.names);
    std::vector<std::string> expected;
    if (c.query)
        expected.assign(2, cleartool.folder() + "|" + c.query);
    EXPECT_EQ(cleartool.calls(), expected);
}

const NameListCase kNameListCases[] = {
    {"LabelTypes", "/vobs/a", "Label", "lstype -short -kind lbtype -invob /vobs/a", "REL1\nREL2\n", {"REL1", "REL2"}},
    {"BranchTypes", "/vobs/b", "Branch", "lstype -short -kind brtype -invob /vobs/b", "main\nrel2\n", {"main", "rel2"}},
    {"VOBs", "/vobs/b", "VOB", "lsvob -short", "/vobs/b\n/vobs/a\n", {"/vobs/a", "/vobs/b"}},
    {"Streams", "/vobs/pvob", "UCM Stream", "lsstream -short -invob /vobs/pvob", "int\ndev\n", {"dev", "int"}},
    {"NoTypeAsksNothing", "/vobs/a", "(Click to select a type)", nullptr, "", {}},
    {"ObjectIDAsksNothing", "/vobs/a", "Object ID", nullptr, "", {}},
};
INSTANTIATE_TEST_SUITE_P(Cases, SelectorNameList, ::testing::ValuesIn(kNameListCases), wftest::byName);

TEST_F(SelectorNameList, PickedNameComposesTheString)
{
    cleartool.respond("lstype -short -kind lbtype -invob /vobs/a", "REL1\nREL2\n");
    editor.SetObjectSelector("lbtype:@/vobs/a");
    chooseByKeyboard(combo("txtObjectName"), "REL2");
    EXPECT_EQ(editor.GetObjectSelector(), "lbtype:REL2@/vobs/a");
}

TEST_F(SelectorNameList, VOBListIsAskedForOncePerEditor)
{
    cleartool.respond("lsvob -short", "/vobs/b\n/vobs/a\n");
    QComboBox* vobs = combo("txtVOB");
    type(vobs, "/vobs/typed");
    dropDown(vobs);
    dropDown(vobs);
    EXPECT_EQ(items(vobs), QStringList({"/vobs/a", "/vobs/b"}));
    EXPECT_EQ(vobs->currentText(), "/vobs/typed");
    EXPECT_EQ(cleartool.calls().size(), 1u);
    chooseByKeyboard(vobs, "/vobs/b");
    EXPECT_EQ(editor.GetObjectSelector(), "@/vobs/b");
    EXPECT_EQ(cleartool.calls().size(), 1u);

    TClearCaseObjectSelectorEditForm next;
    next.show();
    dropDown(next.findChild<QComboBox*>("txtVOB"));
    EXPECT_EQ(cleartool.calls().size(), 2u);
}

// --- The page ---------------------------------------------------------------------------

constexpr const char* kList = "listObjects";

Properties objects(const char* storage)
{
    return {{"ObjectsStorageString", storage}};
}

/// The editor showing `shown`, filled from `fields` and closed with OK or Cancel.
Step selectorEditor(const char* shown, std::vector<Field> fields, bool ok = true)
{
    fields.insert(fields.begin(), Field{"txtObjectSelector", shown});
    return answerEditor("TClearCaseObjectSelectorEditForm", "Edit Object Selector", std::move(fields), ok);
}

const PageCase kPageCases[] = {
    {.name = "Unchanged", .given = objects("lbtype:REL1@/vobs/a\r\nbrtype:rel2\r\n"),
     .shown = {{kList, {}, {}, nullptr, "lbtype:REL1@/vobs/a|brtype:rel2"}},
     .stored = objects("lbtype:REL1@/vobs/a\r\nbrtype:rel2\r\n")},
    {.name = "AddAppendsComposed", .given = objects("brtype:rel2\r\n"),
     .steps = {selectorEditor("", {{"cmbObjectTypeName", nullptr, "Label"}, {"txtObjectName", nullptr, "REL3"}}), clickOn("btnAdd")},
     .stored = objects("brtype:rel2\r\nlbtype:REL3\r\n")},
    {.name = "AddEmptyAppendsEmptyLine", .given = objects("brtype:rel2\r\n"),
     .steps = {selectorEditor("", {}), clickOn("btnAdd")}, .stored = objects("brtype:rel2\r\n\r\n")},
    {.name = "AddCancelledChangesNothing", .given = objects("brtype:rel2\r\n"),
     .steps = {selectorEditor("", {{"txtObjectSelector", nullptr, "lbtype:X"}}, false), clickOn("btnAdd")},
     .stored = objects("brtype:rel2\r\n")},
    {.name = "EditReplacesSelectedLine", .given = objects("lbtype:REL1@/vobs/a\r\nbrtype:rel2@/vobs/a\r\n"),
     .steps = {pickRow(kList, 1), selectorEditor("brtype:rel2@/vobs/a", {{"txtObjectName", nullptr, "rel3"}}), clickOn("btnEdit")},
     .shown = {{"btnEdit", {}, true}, {"btnRemove", {}, true}},
     .stored = objects("lbtype:REL1@/vobs/a\r\nbrtype:rel3@/vobs/a\r\n")},
    {.name = "EditCancelledChangesNothing", .given = objects("lbtype:REL1\r\nbrtype:rel2\r\n"),
     .steps = {pickRow(kList, 0), selectorEditor("lbtype:REL1", {{"txtObjectSelector", nullptr, "vob:/vobs/x"}}, false),
               clickOn("btnEdit")}, .stored = objects("lbtype:REL1\r\nbrtype:rel2\r\n")},
    {.name = "EditStoresComposedStringOfUnknownPrefix", .given = objects("foo:bar\r\n"),
     .steps = {pickRow(kList, 0), selectorEditor("foobar", {}), clickOn("btnEdit")}, .stored = objects("foobar\r\n")},
    {.name = "DoubleClickEdits", .given = objects("lbtype:REL1\r\nbrtype:rel2\r\n"),
     .steps = {selectorEditor("lbtype:REL1", {{"txtObjectSelector", nullptr, "attype:Status@/vobs/a"}}), doubleClickRow(kList, 0)},
     .stored = objects("attype:Status@/vobs/a\r\nbrtype:rel2\r\n")},
    {.name = "RemoveDeletesSelectedLine", .given = objects("a:1\r\nb:2\r\nc:3\r\n"),
     .steps = {pickRow(kList, 1), clickOn("btnRemove")}, .stored = objects("a:1\r\nc:3\r\n")},
    {.name = "DeleteKeyRemoves", .given = objects("a:1\r\nb:2\r\n"),
     .steps = {pickRow(kList, 0), pressKey(kList, Qt::Key_Delete)}, .stored = objects("b:2\r\n")},
    {.name = "BackspaceRemoves", .given = objects("a:1\r\nb:2\r\n"),
     .steps = {pickRow(kList, 1), pressKey(kList, Qt::Key_Backspace)}, .stored = objects("a:1\r\n")},
    {.name = "DeleteKeyWithoutSelectionKeepsAll", .given = objects("a:1\r\nb:2\r\n"),
     .steps = {pressKey(kList, Qt::Key_Delete)}, .shown = {{"btnEdit", {}, false}, {"btnRemove", {}, false}},
     .stored = objects("a:1\r\nb:2\r\n")},
    // Removing leaves no line selected, yet the buttons stay; with nothing selected they do nothing.
    {.name = "ButtonsFollowTheChosenLineOnly", .given = objects("a:1\r\nb:2\r\n"),
     .steps = {pickRow(kList, 0), clickOn("btnRemove"), clickOn("btnEdit"), clickOn("btnRemove")},
     .shown = {{"btnEdit", {}, true}, {"btnRemove", {}, true}}, .stored = objects("b:2\r\n")},
};
WF_PAGE_TABLE(SelectorPage, TClearCaseLockObjectsAction, "TClearCaseObjectSelectorFrame", "Objects", kPageCases);

TEST(SelectorPageEditor, PastedLineBreakMakesTwoLines)
{
    wftest::FakeCleartool cleartool;
    TClearCaseLockObjectsAction action;
    OpenPage page("TClearCaseObjectSelectorFrame", action);
    answerModal([](QWidget* dialog) {
        // What a paste of two lines puts into the field.
        dialog->findChild<QLineEdit*>("txtObjectSelector")->setText("lbtype:A\nbrtype:b");
        pressButton(dialog, "OK");
    });
    click(page.control<QPushButton>("btnAdd"));
    page.accept();
    EXPECT_EQ(property(action, "ObjectsStorageString"), "lbtype:A\r\nbrtype:b\r\n");
}

class SelectorPageButtons : public ::testing::Test {
protected:
    wftest::FakeCleartool cleartool;
    TClearCaseLockObjectsAction action;
};

TEST_F(SelectorPageButtons, EditorReopensOnTheFieldUsedLast)
{
    OpenPage page("TClearCaseObjectSelectorFrame", action);
    // Working in the string, then cancelling, is still remembered.
    answerModal([](QWidget* dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        type(dialog->findChild<QWidget*>("txtObjectSelector"), "lbtype:X");
        pressButton(dialog, "Cancel");
    });
    click(page.control<QPushButton>("btnAdd"));
    EXPECT_TRUE(CCGetUsingCustomObjectSelector());
    answerModal([](QWidget* dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        EXPECT_EQ(QApplication::focusWidget(), dialog->findChild<QWidget*>("txtObjectSelector"));
        type(dialog->findChild<QWidget*>("txtObjectName"), "REL1");
        pressButton(dialog, "OK");
    });
    click(page.control<QPushButton>("btnAdd"));
    EXPECT_FALSE(CCGetUsingCustomObjectSelector());
    answerModal([](QWidget* dialog) {
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        EXPECT_NE(QApplication::focusWidget(), dialog->findChild<QWidget*>("txtObjectSelector"));
        pressButton(dialog, "Cancel");
    });
    click(page.control<QPushButton>("btnAdd"));
    EXPECT_FALSE(CCGetUsingCustomObjectSelector());
    page.accept();
    EXPECT_EQ(property(action, "ObjectsStorageString"), "REL1\r\n");
}

} // namespace
