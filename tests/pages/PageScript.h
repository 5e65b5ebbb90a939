#pragma once

// A page test as a table row: what the action holds, what the user does, what the page shows
// and what the action holds after accepting.
#include "FakeCleartool.h"
#include "PageHarness.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace wfpage::script {

struct PropertyValue {
    const char* name;
    const char* value;
};

/// One user input: click a button, type into an edit (replacing its text), drop a list down.
struct Step {
    enum Kind { Click, Type, DropDown } kind;
    const char* control;
    const char* text = "";
};
inline Step clickOn(const char* control) { return {Step::Click, control}; }
inline Step typeInto(const char* control, const char* text) { return {Step::Type, control, text}; }
inline Step dropDownOf(const char* control) { return {Step::DropDown, control}; }

/// What a control shows: "on"/"off" (checked), "enabled"/"disabled", "text:..." (edit, memo or
/// combo box text) or "items:a|b" (the list of a combo box).
struct Shown {
    const char* control;
    const char* state;
};

inline void runSteps(const OpenPage& page, const std::vector<Step>& steps)
{
    for (const Step& step : steps) {
        switch (step.kind) {
        case Step::Click: click(page.control<QAbstractButton>(step.control)); break;
        case Step::Type: type(page.control<QWidget>(step.control), QString::fromUtf8(step.text)); break;
        case Step::DropDown: dropDown(page.control<QWidget>(step.control)); break;
        }
    }
}

inline QString shownText(QWidget* control)
{
    if (auto* line = qobject_cast<QLineEdit*>(control))
        return line->text();
    if (auto* memo = qobject_cast<QPlainTextEdit*>(control))
        return memo->toPlainText();
    if (auto* combo = qobject_cast<QComboBox*>(control))
        return combo->currentText();
    throw std::runtime_error(control->objectName().toStdString() + " shows no text");
}

inline void expectShown(const OpenPage& page, const std::vector<Shown>& shown)
{
    for (const Shown& row : shown) {
        const std::string state = row.state;
        QWidget* control = page.control<QWidget>(row.control);
        SCOPED_TRACE(std::string(row.control) + " " + state);
        if (state == "on" || state == "off")
            EXPECT_EQ(page.control<QAbstractButton>(row.control)->isChecked(), state == "on");
        else if (state == "enabled" || state == "disabled")
            EXPECT_EQ(control->isEnabled(), state == "enabled");
        else if (state.rfind("text:", 0) == 0)
            EXPECT_EQ(shownText(control).toStdString(), state.substr(5));
        else if (state.rfind("items:", 0) == 0)
            EXPECT_EQ(items(control).join('|').toStdString(), state.substr(6));
        else
            ADD_FAILURE() << "unknown state " << state;
    }
}

inline void setProperties(TCustomWFAction& action, const std::vector<PropertyValue>& values)
{
    for (const auto& value : values)
        setProperty(action, value.name, value.value);
}

inline void expectProperties(const TCustomWFAction& action, const std::vector<PropertyValue>& values)
{
    for (const auto& value : values)
        EXPECT_EQ(property(action, value.name), value.value) << value.name;
}

struct Response {
    const char* arguments;
    const char* output;
};

/// One row of a page's table.
struct PageCase {
    const char* name;
    std::vector<PropertyValue> stored;
    std::vector<Step> steps;
    std::vector<Shown> shown;
    std::vector<PropertyValue> written;
    std::vector<Response> responses = {};
    /// Every cleartool start, by its arguments (the queries here run in cleartool's folder).
    std::vector<std::string> calls = {};
    TClearCaseType edition = ccFull;
    /// The action the page is opened on when not the table's own.
    std::function<std::unique_ptr<TCustomWFAction>()> makeAction = {};
};

inline void PrintTo(const PageCase& row, std::ostream* out)
{
    *out << row.name;
}

/// Opens the page on the row's action, plays the row and checks it.
inline void playPageCase(const char* pageClass, const std::string& title, TCustomWFAction& action, const PageCase& row)
{
    wftest::FakeCleartool cleartool;
    cleartool.options().SetTestForClearCaseType(false);
    cleartool.options().SetClearCaseType(row.edition);
    for (const Response& response : row.responses)
        cleartool.respond(response.arguments, response.output);
    setProperties(action, row.stored);

    OpenPage page(pageClass, action);
    EXPECT_EQ(page.page().PageName(), title);
    runSteps(page, row.steps);
    expectShown(page, row.shown);
    page.accept();
    expectProperties(action, row.written);

    std::vector<std::string> expectedCalls;
    for (const std::string& arguments : row.calls)
        expectedCalls.push_back(cleartool.folder() + "|" + arguments);
    EXPECT_EQ(cleartool.calls(), expectedCalls);
}

} // namespace wfpage::script
