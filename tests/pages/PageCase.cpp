#include "PageCase.h"

#include "WFAction.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

#include <stdexcept>

namespace wfpage {

std::vector<Step> clicks(std::vector<const char*> names)
{
    std::vector<Step> list;
    for (const char* name : names)
        list.push_back(clickOn(name));
    return list;
}

QString shownText(const OpenPage& page, const char* control)
{
    QWidget* widget = page.control<QWidget>(control);
    if (auto* line = qobject_cast<QLineEdit*>(widget))
        return line->text();
    if (auto* memo = qobject_cast<QPlainTextEdit*>(widget))
        return memo->toPlainText();
    if (auto* combo = qobject_cast<QComboBox*>(widget))
        return combo->currentText();
    if (auto* label = qobject_cast<QLabel*>(widget))
        return label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return button->text();
    throw std::runtime_error(std::string(control) + " shows no text");
}

namespace {

void runStep(const OpenPage& page, const Step& step)
{
    switch (step.kind) {
    case Step::Click: click(page.control<QAbstractButton>(step.control)); break;
    case Step::Type: type(page.control<QWidget>(step.control), QString::fromUtf8(step.text)); break;
    case Step::DropDown: dropDown(page.control<QWidget>(step.control)); break;
    case Step::Choose: {
        auto* combo = page.control<QComboBox>(step.control);
        const int index = combo->findText(QString::fromUtf8(step.text));
        EXPECT_GE(index, 0) << step.control << " offers no " << step.text;
        combo->setCurrentIndex(index);
        break;
    }
    }
}

void expectShown(const OpenPage& page, const Shown& shown)
{
    QWidget* widget = page.control<QWidget>(shown.control);
    if (shown.checked) {
        auto* button = qobject_cast<QAbstractButton*>(widget);
        ASSERT_TRUE(button) << shown.control << " cannot be checked";
        EXPECT_EQ(button->isChecked(), *shown.checked) << shown.control << " checked";
    }
    if (shown.enabled) {
        EXPECT_EQ(widget->isEnabled(), *shown.enabled) << shown.control << " enabled";
    }
    if (shown.text) {
        EXPECT_EQ(shownText(page, shown.control).toStdString(), shown.text) << shown.control << " text";
    }
    if (shown.items) {
        EXPECT_EQ(items(widget).join('|').toStdString(), shown.items) << shown.control << " items";
    }
}

void expectBrowsed(const BrowseAnswers& browse, const std::vector<Browsed>& browsed)
{
    ASSERT_EQ(browse.requests().size(), browsed.size()) << "browsers opened";
    for (size_t i = 0; i < browsed.size(); ++i) {
        const auto& asked = browse.requests()[i];
        const Browsed& expected = browsed[i];
        EXPECT_EQ(asked.initialDir, expected.initialDir) << "browse " << i;
        EXPECT_EQ(asked.caption, expected.caption) << "browse " << i;
        EXPECT_EQ(asked.file.fileName, expected.fileName) << "browse " << i;
        EXPECT_EQ(asked.file.filter, expected.filter) << "browse " << i;
        EXPECT_EQ(asked.file.save, expected.save) << "browse " << i;
    }
}

} // namespace

void runPageCase(const char* pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c)
{
    wftest::FakeCleartool cleartool;
    wftest::ScopedEnv config{"WF_CONFIG_DIR", cleartool.temp().path()};
    BrowseAnswers browse;
    // The row's edition holds: no detection run adds to the calls.
    cleartool.options().SetTestForClearCaseType(false);
    cleartool.options().SetClearCaseType(c.edition);
    for (const Response& response : c.responses)
        cleartool.respond(response.arguments, response.output);
    for (const auto& [name, text] : c.given)
        setProperty(action, name, text);

    OpenPage page(pageClass, action);
    EXPECT_EQ(page.page().PageName(), title);
    for (const auto& answer : c.answers)
        browse.next(answer);
    for (const Step& step : c.steps)
        runStep(page, step);
    for (const Shown& shown : c.shown)
        expectShown(page, shown);
    expectBrowsed(browse, c.browsed);

    page.accept();
    for (const auto& [name, text] : c.stored)
        EXPECT_EQ(property(action, name), text) << name;

    std::vector<std::string> expectedCalls;
    for (const std::string& arguments : c.calls)
        expectedCalls.push_back(cleartool.folder() + "|" + arguments);
    EXPECT_EQ(cleartool.calls(), expectedCalls);
}

} // namespace wfpage
