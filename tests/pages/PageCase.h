#pragma once

// One row of a page round trip: properties in, what the user does, what the page shows, what
// the browsers were asked, properties out.
#include "environment/WFClearCaseOptions.h"
#include "FakeCleartool.h"
#include "PageHarness.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace wfpage {

using Properties = std::vector<std::pair<std::string, std::string>>;

/// A control's state after the user's steps; unset fields are not checked.
struct Shown {
    const char* control;
    std::optional<bool> checked = {};
    std::optional<bool> enabled = {};
    const char* text = nullptr; ///< an edit's, memo's, label's text or a combo box's current text
};

/// What a browser was asked; caption is the folder browser's caption or the file browser's title.
struct Browsed {
    std::string initialDir;
    std::string caption;
    std::string fileName = {};
    std::string filter = {};
    bool save = false;
};

struct PageCase {
    const char* name;
    Properties given;
    std::function<void(OpenPage&)> steps;
    std::vector<Shown> shown;
    Properties stored;
    /// The browsers' answers in order (nullopt: cancelled), and what they must have been asked.
    std::vector<std::optional<std::string>> answers = {};
    std::vector<Browsed> browsed = {};
    TClearCaseType edition = ccFull;
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

/// A user's step: a click on the named button, or typing the text into the named control.
struct Step {
    const char* control;
    const char* typed = nullptr;
};
std::function<void(OpenPage&)> steps(std::vector<Step> list);
/// Clicks the named buttons in order.
std::function<void(OpenPage&)> clicks(std::vector<const char*> names);

/// Opens the page on a fresh action with the row's properties, runs the steps, checks what is
/// shown and asked, accepts and checks the stored properties. Runs against a fake cleartool and
/// a fresh configuration folder.
void runPageCase(const char* pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c);

template <typename Action>
void runPageCase(const char* pageClass, const std::string& title, const PageCase& c)
{
    Action action;
    runPageCase(pageClass, action, title, c);
}

/// The text a user sees in the named edit, memo, label or combo box.
QString shownText(const OpenPage& page, const char* control);

} // namespace wfpage
