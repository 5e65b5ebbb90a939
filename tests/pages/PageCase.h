#pragma once

// A page round trip as a table row: properties given, what the user does, what the page shows,
// what the browsers and cleartool were asked, properties stored on accepting.
#include "environment/WFClearCaseOptions.h"
#include "RowName.h"
#include "FakeCleartool.h"
#include "PageHarness.h"

#include <gtest/gtest.h>

#include <QListWidget>

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace wfpage {

using Properties = std::vector<std::pair<std::string, std::string>>;

/// A field of a modal editor: the text it must show on opening (nullptr: unchecked) and the text
/// typed into it, or chosen in a list that takes no typing (nullptr: left alone).
struct Field {
    const char* control;
    const char* shown = nullptr;
    const char* typed = nullptr;
};

/// A control's state after the user's steps; unset fields are not checked.
struct Shown {
    const char* control;
    std::optional<bool> checked = {};
    std::optional<bool> enabled = {};
    const char* text = nullptr;  ///< an edit's, memo's, label's, button's or combo box's current text
    const char* items = nullptr; ///< a combo or list box's entries joined by '|' ("" for none)
    std::optional<bool> visible = {};
    std::optional<bool> focused = {};
};

/// One user input on the named control, of the page or of the editor a step answers.
struct Step {
    enum Kind { Click, Type, DropDown, Choose, Pick, DoubleClick, Tick, Key, Editor, MenuItem, ClickBlank, DateMenu, DatePanel, TimePanel } kind;
    const char* control;
    const char* text = ""; ///< typed (replacing the control's text), the entry or item chosen, or the editor's title
    int row = -1;          ///< the list row picked, double-clicked or ticked
    int key = 0;
    std::vector<Field> fields = {}; ///< an editor's fields
    bool ok = true;                 ///< an editor closed with OK, else Cancel
    std::vector<Step> inside = {};  ///< an editor's further steps, after its fields
    std::vector<Shown> shown = {};  ///< what an editor shows before it is closed
};
inline Step clickOn(const char* control) { return {Step::Click, control}; }
inline Step typeInto(const char* control, const char* text) { return {Step::Type, control, text}; }
inline Step dropDownOf(const char* control) { return {Step::DropDown, control}; }
/// Picks a combo box's entry by its text, as a user does with the keyboard.
inline Step chooseIn(const char* control, const char* entry) { return {Step::Choose, control, entry}; }
/// Clicks on the named buttons in order.
std::vector<Step> clicks(std::vector<const char*> names);
/// Clicks a list's row, or double-clicks it.
inline Step pickRow(const char* list, int row) { return {Step::Pick, list, "", row}; }
inline Step doubleClickRow(const char* list, int row) { return {Step::DoubleClick, list, "", row}; }
/// Clicks the check box of a check list's row.
inline Step tickRow(const char* list, int row) { return {Step::Tick, list, "", row}; }
/// Clicks on a list below its last row.
inline Step clickBlankOf(const char* list) { return {Step::ClickBlank, list}; }
inline Step pressKey(const char* control, int key) { return {Step::Key, control, "", -1, key}; }
/// Opens a date edit's menu with its button and chooses the item (by object name).
inline Step chooseDate(const char* dateEdit, const char* item) { return {Step::DateMenu, dateEdit, item}; }
/// Clicks the named item of the open pop-up menu.
inline Step chooseMenuItem(const char* menu, const char* item) { return {Step::MenuItem, menu, item}; }
/// Answers the next modal editor (titled `title`, named `dialogClass`): checks and fills its
/// fields, takes the further steps in it, checks what it shows and presses OK, or Cancel. Comes
/// before the step that opens the editor.
inline Step answerEditor(const char* dialogClass, const char* title, std::vector<Field> fields, bool ok = true,
                         std::vector<Step> inside = {}, std::vector<Shown> shown = {})
{
    return {Step::Editor, dialogClass, title, -1, 0, std::move(fields), ok, std::move(inside), std::move(shown)};
}
/// Answers the calendar of the date edit `dateEdit` with a day ("2006-11-15"), or its time
/// picker with a time ("14:30:00"), and OK; nullptr cancels. The panel must open under the
/// edit's text. Comes before the step that opens it.
inline Step answerDate(const char* dateEdit, const char* day) { return {Step::DatePanel, dateEdit, day}; }
inline Step answerTime(const char* dateEdit, const char* time) { return {Step::TimePanel, dateEdit, time}; }

/// What a browser was asked; caption is the folder browser's caption or the file browser's title.
struct Browsed {
    std::string initialDir;
    std::string caption;
    std::string fileName = {};
    std::string filter = {};
    bool save = false;
};

/// The fake cleartool's output for one argument list (blank-joined).
struct Response {
    const char* arguments;
    const char* output;
    int exitCode = 0;
};

/// In the texts of a row (properties, answers, what is shown, asked and called), "$T" stands for
/// the row's temporary folder.
struct PageCase {
    const char* name;
    Properties given = {};
    /// Given, and stored back unchanged.
    Properties kept = {};
    std::vector<Step> steps = {};
    std::vector<Shown> shown = {};
    Properties stored = {};
    /// The browsers' answers in order (nullopt: cancelled), and what they must have been asked.
    std::vector<std::optional<std::string>> answers = {};
    std::vector<Browsed> browsed = {};
    std::vector<Response> responses = {};
    /// Every cleartool start, by its arguments: in cleartool's folder, or "folder|arguments".
    std::vector<std::string> calls = {};
    TClearCaseType edition = ccFull;
    /// The action the page is opened on when not the table's own.
    std::function<std::unique_ptr<TCustomWFAction>()> makeAction = {};
    /// Runs before the page opens, in the row's configuration folder. The default locale and
    /// the designer's variable providers are put back after the row.
    std::function<void(wftest::FakeCleartool&)> setUp = {};
    /// Checks after the steps what the fields above cannot say.
    std::function<void(const OpenPage&)> check = {};
    /// Environment variables set while the row runs.
    Properties environment = {};
    /// The open project's variables and their values, as the designer reports them.
    Properties variables = {};
};

WF_ROW_PRINTER(PageCase)

template <typename Action>
std::unique_ptr<TCustomWFAction> newAction()
{
    return std::make_unique<Action>();
}

/// Opens the page on the action with the row's properties, runs the steps, checks what is shown
/// and asked, accepts and checks the stored properties. Runs against a fake cleartool and a
/// fresh configuration folder.
void runPageCase(const TWFPageClass& pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c);
/// The package's page of that class.
void runPageCase(const char* pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c);

/// Runs the row on the package's options page as the host's options dialog shows it: the given
/// options are loaded as the host's store holds them, the edition set first; what the page
/// writes back is saved and compared with `stored` ("(not written)" for a key left out).
void runOptionsCase(const PageCase& c);

/// Runs the row on a new Action, or on the row's own action where it names one.
template <typename Action, typename PageClass>
void runPageCase(const PageClass& pageClass, const std::string& title, const PageCase& c)
{
    const std::unique_ptr<TCustomWFAction> action = c.makeAction ? c.makeAction() : newAction<Action>();
    runPageCase(pageClass, *action, title, c);
}

/// A table of rows, `Suite`: each opens `pageClass` (titled `title`) on a new `Action`; the tests
/// are named after the rows. Comes after the rows.
#define WF_PAGE_TABLE(Suite, Action, pageClass, title, rows)                                                   \
    class Suite : public ::testing::TestWithParam<::wfpage::PageCase> {};                                       \
    TEST_P(Suite, RoundTrip)                                                                                   \
    {                                                                                                          \
        ::wfpage::runPageCase<Action>(pageClass, title, GetParam());                                           \
    }                                                                                                          \
    INSTANTIATE_TEST_SUITE_P(Cases, Suite, ::testing::ValuesIn(rows), ::wftest::byName)

/// The middle of a list's row, where a user clicks it.
QPoint rowCentre(QListWidget* list, int row);

/// The text a user sees in the named edit, memo, label, button or combo box.
QString shownText(QWidget* widget);

/// Makes the catalogue's action with the identity its users know it by (its type id).
std::unique_ptr<TCustomWFAction> catalogueAction(const std::string& typeId);

} // namespace wfpage
