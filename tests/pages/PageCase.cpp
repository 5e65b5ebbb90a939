#include "PageCase.h"

#include "WFAction.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace wfpage {

std::function<void(OpenPage&)> steps(std::vector<Step> list)
{
    return [list = std::move(list)](OpenPage& page) {
        for (const Step& step : list) {
            if (step.typed)
                type(page.control<QWidget>(step.control), QString::fromUtf8(step.typed));
            else
                click(page.control<QAbstractButton>(step.control));
        }
    };
}

std::function<void(OpenPage&)> clicks(std::vector<const char*> names)
{
    std::vector<Step> list;
    for (const char* name : names)
        list.push_back({name});
    return steps(std::move(list));
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

void runPageCase(const char* pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c)
{
    wftest::FakeCleartool cleartool;
    wftest::ScopedEnv config{"WF_CONFIG_DIR", cleartool.temp().path()};
    BrowseAnswers browse;
    cleartool.options().SetClearCaseType(c.edition);
    for (const auto& [name, text] : c.given)
        setProperty(action, name, text);

    OpenPage page(pageClass, action);
    EXPECT_EQ(page.page().PageName(), title);
    for (const auto& answer : c.answers)
        browse.next(answer);
    if (c.steps)
        c.steps(page);

    for (const Shown& shown : c.shown) {
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
    }

    ASSERT_EQ(browse.requests().size(), c.browsed.size()) << "browsers opened";
    for (size_t i = 0; i < c.browsed.size(); ++i) {
        const auto& asked = browse.requests()[i];
        const Browsed& expected = c.browsed[i];
        EXPECT_EQ(asked.initialDir, expected.initialDir) << "browse " << i;
        EXPECT_EQ(asked.caption, expected.caption) << "browse " << i;
        EXPECT_EQ(asked.file.fileName, expected.fileName) << "browse " << i;
        EXPECT_EQ(asked.file.filter, expected.filter) << "browse " << i;
        EXPECT_EQ(asked.file.save, expected.save) << "browse " << i;
    }

    page.accept();
    for (const auto& [name, text] : c.stored)
        EXPECT_EQ(property(action, name), text) << name;
}

} // namespace wfpage
