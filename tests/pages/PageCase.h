#pragma once

// A page round trip as a table row: properties given, what the user does, what the page shows,
// what the browsers and cleartool were asked, properties stored on accepting.
#include "environment/WFClearCaseOptions.h"
#include "FakeCleartool.h"
#include "PageHarness.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace wfpage {

using Properties = std::vector<std::pair<std::string, std::string>>;

/// One user input on the named control.
struct Step {
    enum Kind { Click, Type, DropDown, Choose } kind;
    const char* control;
    const char* text = ""; ///< typed (replacing the control's text) or the entry chosen
};
inline Step clickOn(const char* control) { return {Step::Click, control}; }
inline Step typeInto(const char* control, const char* text) { return {Step::Type, control, text}; }
inline Step dropDownOf(const char* control) { return {Step::DropDown, control}; }
/// Selects a combo box's entry by its text.
inline Step chooseIn(const char* control, const char* entry) { return {Step::Choose, control, entry}; }
/// Clicks on the named buttons in order.
std::vector<Step> clicks(std::vector<const char*> names);

/// A control's state after the user's steps; unset fields are not checked.
struct Shown {
    const char* control;
    std::optional<bool> checked = {};
    std::optional<bool> enabled = {};
    const char* text = nullptr;  ///< an edit's, memo's, label's, button's or combo box's current text
    const char* items = nullptr; ///< a combo or list box's entries joined by '|' ("" for none)
};

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
};

struct PageCase {
    const char* name;
    Properties given;
    std::vector<Step> steps;
    std::vector<Shown> shown;
    Properties stored;
    /// The browsers' answers in order (nullopt: cancelled), and what they must have been asked.
    std::vector<std::optional<std::string>> answers = {};
    std::vector<Browsed> browsed = {};
    std::vector<Response> responses = {};
    /// Every cleartool start, by its arguments (the queries here run in cleartool's folder).
    std::vector<std::string> calls = {};
    TClearCaseType edition = ccFull;
    /// The action the page is opened on when not the table's own.
    std::function<std::unique_ptr<TCustomWFAction>()> makeAction = {};
};

inline void PrintTo(const PageCase& c, std::ostream* os)
{
    *os << c.name;
}

/// Names a row's test after the row.
inline std::string pageCaseName(const ::testing::TestParamInfo<PageCase>& info)
{
    return info.param.name;
}

template <typename Action>
std::unique_ptr<TCustomWFAction> newAction()
{
    return std::make_unique<Action>();
}

/// Opens the page on the action with the row's properties, runs the steps, checks what is shown
/// and asked, accepts and checks the stored properties. Runs against a fake cleartool and a
/// fresh configuration folder.
void runPageCase(const char* pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c);

/// Runs the row on a new Action, or on the row's own action where it names one.
template <typename Action>
void runPageCase(const char* pageClass, const std::string& title, const PageCase& c)
{
    const std::unique_ptr<TCustomWFAction> action = c.makeAction ? c.makeAction() : newAction<Action>();
    runPageCase(pageClass, *action, title, c);
}

/// The text a user sees in the named edit, memo, label, button or combo box.
QString shownText(const OpenPage& page, const char* control);

} // namespace wfpage
