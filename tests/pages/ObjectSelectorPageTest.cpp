// The object selector page and its editor.
#include "PageCase.h"

#include "actions/WFClearCaseLockObjectsAction.h"

#include <QLineEdit>
#include <QPushButton>

using namespace wfpage;

namespace {

constexpr const char* kList = "listObjects";

Properties objects(const char* storage)
{
    return {{"ObjectsStorageString", storage}};
}

/// The editor showing `shown`, filled from `fields`, then `inside`, showing `shownAfter`, and
/// closed with OK or Cancel.
Step selectorEditor(const char* shown, std::vector<Field> fields, bool ok = true, std::vector<Step> inside = {},
                    std::vector<Shown> shownAfter = {})
{
    fields.insert(fields.begin(), Field{"txtObjectSelector", shown});
    return answerEditor("TClearCaseObjectSelectorEditForm", "Edit Object Selector", std::move(fields), ok, std::move(inside),
                        std::move(shownAfter));
}

const PageCase kPageCases[] = {
    {.name = "AddAppendsComposed", .given = objects("brtype:rel2\r\n"),
     .steps = {selectorEditor("", {{"cmbObjectTypeName", nullptr, "Label"}, {"txtObjectName", nullptr, "REL3"}}), clickOn("btnAdd")},
     .stored = objects("brtype:rel2\r\nlbtype:REL3\r\n")},
    {.name = "AddCancelledChangesNothing", .kept = objects("brtype:rel2\r\n"),
     .steps = {selectorEditor("", {{"txtObjectSelector", nullptr, "lbtype:X"}}, false), clickOn("btnAdd")}},
    {.name = "EditReplacesSelectedLine", .given = objects("lbtype:REL1@/vobs/a\r\nbrtype:rel2@/vobs/a\r\n"),
     .steps = {pickRow(kList, 1), selectorEditor("brtype:rel2@/vobs/a", {{"txtObjectName", nullptr, "rel3"}}), clickOn("btnEdit")},
     .shown = {{"btnEdit", {}, true}, {"btnRemove", {}, true}},
     .stored = objects("lbtype:REL1@/vobs/a\r\nbrtype:rel3@/vobs/a\r\n")},
    {.name = "EditCancelledChangesNothing", .kept = objects("lbtype:REL1\r\nbrtype:rel2\r\n"),
     .steps = {pickRow(kList, 0), selectorEditor("lbtype:REL1", {{"txtObjectSelector", nullptr, "vob:/vobs/x"}}, false),
               clickOn("btnEdit")}},
    {.name = "DoubleClickEdits", .given = objects("lbtype:REL1\r\nbrtype:rel2\r\n"),
     .steps = {selectorEditor("lbtype:REL1", {{"txtObjectSelector", nullptr, "attype:Status@/vobs/a"}}), doubleClickRow(kList, 0)},
     .stored = objects("attype:Status@/vobs/a\r\nbrtype:rel2\r\n")},
    {.name = "DeleteAndBackspaceKeysRemove", .given = objects("a:1\r\nb:2\r\nc:3\r\n"),
     .steps = {pickRow(kList, 0), pressKey(kList, Qt::Key_Delete), pickRow(kList, 1), pressKey(kList, Qt::Key_Backspace)},
     .stored = objects("b:2\r\n")},
    {.name = "DeleteKeyWithoutSelectionKeepsAll", .kept = objects("a:1\r\nb:2\r\n"),
     .steps = {pressKey(kList, Qt::Key_Delete)}, .shown = {{"btnEdit", {}, false}, {"btnRemove", {}, false}}},
    // Removing leaves no line selected, yet the buttons stay; with nothing selected they do nothing.
    {.name = "ButtonsFollowTheChosenLineOnly", .given = objects("a:1\r\nb:2\r\n"),
     .steps = {pickRow(kList, 0), clickOn("btnRemove"), clickOn("btnEdit"), clickOn("btnRemove")},
     .shown = {{"btnEdit", {}, true}, {"btnRemove", {}, true}}, .stored = objects("b:2\r\n")},
};
WF_PAGE_TABLE(SelectorPage, TClearCaseLockObjectsAction, "TClearCaseObjectSelectorFrame", "Objects", kPageCases);

/// The editor, opened on `opened` by Edit (nullptr: empty, by Add), after `steps` shows the
/// selector, the type, the name, the VOB (enabled or not) and the name's label; OK stores it.
PageCase editorRow(const char* name, const char* opened, std::vector<Step> steps, const char* selector, const char* type,
                   const char* objectName, const char* vob, bool vobEnabled, const char* nameLabel)
{
    const std::vector<Shown> shown = {{.control = "txtObjectSelector", .text = selector},
                                      {.control = "cmbObjectTypeName", .text = type},
                                      {.control = "txtObjectName", .text = objectName},
                                      {.control = "txtVOB", .enabled = vobEnabled, .text = vob},
                                      {.control = "lblObjName", .text = nameLabel}};
    const Step editor = answerEditor("TClearCaseObjectSelectorEditForm", "Edit Object Selector", {}, true, std::move(steps), shown);
    PageCase row = {.name = name, .stored = objects((std::string(selector) + "\r\n").c_str())};
    if (opened) {
        row.given = objects((std::string(opened) + "\r\n").c_str());
        row.steps = {pickRow(kList, 0), editor, clickOn("btnEdit")};
    } else {
        row.steps = {editor, clickOn("btnAdd")};
    }
    return row;
}

const char* const kNoType = "(Click to select a type)";
const char* const kSelectorName = "Selector Object Name:";

const PageCase kEditorCases[] = {
    editorRow("VOBTypeTakesTypedVOBAsName", nullptr, {typeInto("txtVOB", R"(\vobs\main)"), typeInto("cmbObjectTypeName", "VOB")},
              R"(vob:\vobs\main)", "VOB", R"(\vobs\main)", "", false, "VOB Name:"),
    editorRow("StringWithoutColonChoosesNoType", nullptr,
              {typeInto("cmbObjectTypeName", "Label"), typeInto("txtObjectSelector", R"(REL1@\vobs\main)")},
              R"(REL1@\vobs\main)", kNoType, "REL1", R"(\vobs\main)", true, "Label Name:"),
    editorRow("UnknownPrefixLosesItsColon", "foo:bar@/vobs/a", {}, "foobar@/vobs/a", kNoType, "foobar", "/vobs/a", true,
              kSelectorName),
    editorRow("ClearingVOBDropsAt", "lbtype:REL2@/vobs/a", {typeInto("txtVOB", "")}, "lbtype:REL2", "Label", "REL2", "", true,
              kSelectorName),
    editorRow("ChoosingTypeEmptiesName", "lbtype:REL1@/vobs/a", {typeInto("cmbObjectTypeName", "Branch")}, "brtype:@/vobs/a",
              "Branch", "", "/vobs/a", true, "Branch Name:"),
    editorRow("ObjectIDLabel", nullptr, {typeInto("cmbObjectTypeName", "Object ID"), typeInto("txtObjectName", "1234.56")},
              "oid:1234.56", "Object ID", "1234.56", "", true, "Object ID:"),
    editorRow("NoTypeAgainKeepsPrefixWithoutColon", "lbtype:REL1@/vobs/a", {typeInto("cmbObjectTypeName", kNoType)},
              "lbtype@/vobs/a", kNoType, "lbtype", "/vobs/a", true, kSelectorName),
    editorRow("ColonAfterAtLeavesNoName", "REL1@C:/vobs", {}, "REL1@C@C:/vobs", kNoType, "", "C@C:/vobs", true, kSelectorName),
};
WF_PAGE_TABLE(SelectorEditor, TClearCaseLockObjectsAction, "TClearCaseObjectSelectorFrame", "Objects", kEditorCases);

/// Cleartool's names of `type` in `vob`, asked on both drop-downs of an editor (then cancelled).
PageCase nameListRow(const char* name, const char* vob, const char* type, const char* query, const char* output,
                     const char* names)
{
    PageCase row = {.name = name,
                    .steps = {answerEditor("TClearCaseObjectSelectorEditForm", "Edit Object Selector", {}, false,
                                           {typeInto("txtVOB", vob), typeInto("cmbObjectTypeName", type),
                                            dropDownOf("txtObjectName"), dropDownOf("txtObjectName")},
                                           {{.control = "txtObjectName", .items = names}}),
                              clickOn("btnAdd")}};
    if (query) {
        row.responses = {{query, output}};
        row.calls = {query, query};
    }
    return row;
}

const PageCase kNameListCases[] = {
    nameListRow("LabelTypes", "/vobs/a", "Label", "lstype -short -kind lbtype -invob /vobs/a", "REL1\nREL2\n", "REL1|REL2"),
    nameListRow("NoTypeAsksNothing", "/vobs/a", kNoType, nullptr, "", ""),
    {.name = "PickedNameComposesTheString", .given = objects("lbtype:@/vobs/a\r\n"),
     .steps = {pickRow(kList, 0), selectorEditor("lbtype:@/vobs/a", {}, true, {chooseIn("txtObjectName", "REL2")}),
               clickOn("btnEdit")},
     .stored = objects("lbtype:REL2@/vobs/a\r\n"),
     .responses = {{"lstype -short -kind lbtype -invob /vobs/a", "REL1\nREL2\n"}},
     .calls = {"lstype -short -kind lbtype -invob /vobs/a"}},
    // The VOB list is asked for once per editor, and keeps the typed VOB until one is picked.
    {.name = "VOBListIsAskedForOncePerEditor",
     .steps = {selectorEditor("", {}, true,
                              {typeInto("txtVOB", "/vobs/typed"), dropDownOf("txtVOB"), dropDownOf("txtVOB"),
                               chooseIn("txtVOB", "/vobs/b")},
                              {{.control = "txtVOB", .items = "/vobs/a|/vobs/b"}, {.control = "txtObjectSelector", .text = "@/vobs/b"}}),
               clickOn("btnAdd"), selectorEditor("", {}, false, {dropDownOf("txtVOB")}), clickOn("btnAdd")},
     .stored = objects("@/vobs/b\r\n"), .responses = {{"lsvob -short", "/vobs/b\n/vobs/a\n"}},
     .calls = {"lsvob -short", "lsvob -short"}},
    // Working in the string, then cancelling, is still remembered.
    {.name = "EditorReopensOnTheFieldUsedLast",
     .steps = {selectorEditor("", {{"txtObjectSelector", nullptr, "lbtype:X"}}, false), clickOn("btnAdd"),
               selectorEditor("", {}, false, {}, {{.control = "txtObjectSelector", .focused = true}}), clickOn("btnAdd"),
               selectorEditor("", {{"txtObjectName", nullptr, "REL1"}}), clickOn("btnAdd"),
               selectorEditor("", {}, false, {}, {{.control = "txtObjectSelector", .focused = false}}), clickOn("btnAdd")},
     .stored = objects("REL1\r\n")},
};
WF_PAGE_TABLE(SelectorNameList, TClearCaseLockObjectsAction, "TClearCaseObjectSelectorFrame", "Objects", kNameListCases);

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

} // namespace
