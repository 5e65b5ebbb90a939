#include "PageCase.h"

#include "environment/WFClearCaseOptions.h"
#include "GoldenCatalogue.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFAction.h"
#include "WFOptions.h"
#include "WFServices.h"
#include "WFTestSupport.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLocale>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>
#include <QTimeEdit>

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <stdexcept>

namespace wfpage {

std::vector<Step> clicks(std::vector<const char*> names)
{
    std::vector<Step> list;
    for (const char* name : names)
        list.push_back(clickOn(name));
    return list;
}

QPoint rowCentre(QListWidget* list, int row)
{
    return list->visualItemRect(list->item(row)).center();
}

std::unique_ptr<TCustomWFAction> catalogueAction(const std::string& typeId)
{
    // The identities outlive every action bound to them.
    static std::deque<TClearCaseActionIdentity> identities;
    for (const wftest::GoldenAction& golden : wftest::goldenCatalogue()) {
        if (golden.typeId != typeId)
            continue;
        const TClearCaseCatalogueRow* row = ClearCaseFindClass(golden.className);
        if (!row)
            throw std::runtime_error("no action class " + golden.className);
        identities.push_back({golden.typeId.c_str(), golden.className.c_str(), golden.displayName.c_str(), golden.helpTopic});
        std::unique_ptr<TClearCaseBaseAction> action = row->make();
        action->SetIdentity(identities.back());
        return action;
    }
    throw std::runtime_error("no action type " + typeId);
}

QString shownText(QWidget* widget)
{
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
    throw std::runtime_error(widget->objectName().toStdString() + " shows no text");
}

namespace {

/// The row's temporary folder, for "$T" in its texts.
std::string g_rowFolder;

std::string expanded(std::string text)
{
    for (size_t at = text.find("$T"); at != std::string::npos; at = text.find("$T", at + g_rowFolder.size()))
        text.replace(at, 2, g_rowFolder);
    return text;
}

void runStep(QWidget* root, const Step& step);
void expectShown(QWidget* root, const Shown& shown);

void answer(const Step& step)
{
    answerModal([step](QWidget* dialog) {
        // Focus, and what the editor remembers of it, follows only in an active window.
        EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        EXPECT_EQ(dialog->objectName().toStdString(), step.control);
        EXPECT_EQ(dialog->windowTitle().toStdString(), step.text);
        for (const Field& field : step.fields) {
            auto* widget = dialog->findChild<QWidget*>(field.control);
            if (!widget) {
                ADD_FAILURE() << step.control << " has no " << field.control;
                continue;
            }
            if (field.shown) {
                EXPECT_EQ(shownText(widget).toStdString(), expanded(field.shown)) << field.control;
            }
            if (field.typed)
                runStep(dialog, {Step::Type, field.control, field.typed});
        }
        for (const Step& inside : step.inside)
            runStep(dialog, inside);
        for (const Shown& shown : step.shown)
            expectShown(dialog, shown);
        pressButton(dialog, step.ok ? "OK" : "Cancel");
    });
}

/// Answers a date edit's calendar or time picker, which open as pop-ups under its text.
void answerPanel(QWidget* root, const Step& step)
{
    QWidget* text = controlIn<QWidget>(root, step.control)->findChild<QLineEdit*>("txtEdit");
    const QPoint under = text->mapToGlobal(QPoint(0, text->height()));
    answerModal([step, under](QWidget* panel) {
        const bool date = step.kind == Step::DatePanel;
        EXPECT_EQ(panel->objectName().toStdString(), date ? "DatePanel" : "TimePanel");
        EXPECT_LE((panel->pos() - under).manhattanLength(), 4) << "opened at " << panel->pos().x() << "," << panel->pos().y();
        if (step.text && date)
            controlIn<QCalendarWidget>(panel, "Calendar")->setSelectedDate(QDate::fromString(step.text, Qt::ISODate));
        if (step.text && !date)
            controlIn<QTimeEdit>(panel, "TimePicker")->setTime(QTime::fromString(step.text, Qt::ISODate));
        pressButton(panel, step.text ? "OK" : "Cancel");
    });
}

void runStep(QWidget* root, const Step& step)
{
    switch (step.kind) {
    case Step::Click: click(controlIn<QAbstractButton>(root, step.control)); break;
    case Step::Type: {
        // A compound edit (the date edit) takes the text in its line; a list without typing
        // takes the entry chosen.
        QWidget* edit = controlIn<QWidget>(root, step.control);
        auto* combo = qobject_cast<QComboBox*>(edit);
        if (combo && !combo->isEditable()) {
            chooseByKeyboard(combo, QString::fromStdString(expanded(step.text)));
            break;
        }
        if (!qobject_cast<QLineEdit*>(edit) && !qobject_cast<QPlainTextEdit*>(edit) && !combo)
            edit = edit->findChild<QLineEdit*>();
        type(edit, QString::fromStdString(expanded(step.text)));
        break;
    }
    case Step::DropDown: dropDown(controlIn<QWidget>(root, step.control)); break;
    case Step::Choose: chooseByKeyboard(controlIn<QComboBox>(root, step.control), QString::fromUtf8(step.text)); break;
    case Step::Pick: {
        auto* list = controlIn<QListWidget>(root, step.control);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        break;
    }
    case Step::DoubleClick: {
        // A double click's first click selects; the test library sends only the second.
        auto* list = controlIn<QListWidget>(root, step.control);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        break;
    }
    case Step::Tick: {
        auto* list = controlIn<QListWidget>(root, step.control);
        QListWidgetItem* item = list->item(step.row);
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        break;
    }
    case Step::ClickBlank: {
        auto* list = controlIn<QListWidget>(root, step.control);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, list->viewport()->height() - 4));
        break;
    }
    case Step::Key: QTest::keyClick(controlIn<QWidget>(root, step.control), static_cast<Qt::Key>(step.key)); break;
    case Step::Editor: answer(step); break;
    case Step::DatePanel:
    case Step::TimePanel: answerPanel(root, step); break;
    case Step::DateMenu: chooseDateItem(controlIn<QWidget>(root, step.control), step.text); break;
    case Step::MenuItem: {
        auto* menu = controlIn<QMenu>(root, step.control);
        ASSERT_TRUE(menu->isVisible()) << step.control << " is not open";
        auto* action = controlIn<QAction>(root, step.text);
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
        break;
    }
    }
}

void expectShown(QWidget* root, const Shown& shown)
{
    QWidget* widget = controlIn<QWidget>(root, shown.control);
    if (shown.checked) {
        auto* button = qobject_cast<QAbstractButton*>(widget);
        ASSERT_TRUE(button) << shown.control << " cannot be checked";
        EXPECT_EQ(button->isChecked(), *shown.checked) << shown.control << " checked";
    }
    if (shown.enabled) {
        EXPECT_EQ(widget->isEnabled(), *shown.enabled) << shown.control << " enabled";
    }
    if (shown.visible) {
        EXPECT_EQ(widget->isVisible(), *shown.visible) << shown.control << " visible";
    }
    if (shown.focused) {
        EXPECT_EQ(QApplication::focusWidget() == widget, *shown.focused) << shown.control << " focused";
    }
    if (shown.text) {
        EXPECT_EQ(shownText(widget).toStdString(), expanded(shown.text)) << shown.control << " text";
    }
    if (shown.items) {
        EXPECT_EQ(items(widget).join('|').toStdString(), expanded(shown.items)) << shown.control << " items";
    }
}

void expectBrowsed(const BrowseAnswers& browse, const std::vector<Browsed>& browsed)
{
    ASSERT_EQ(browse.requests().size(), browsed.size()) << "browsers opened";
    for (size_t i = 0; i < browsed.size(); ++i) {
        const auto& asked = browse.requests()[i];
        const Browsed& expected = browsed[i];
        EXPECT_EQ(asked.initialDir, expanded(expected.initialDir)) << "browse " << i;
        EXPECT_EQ(asked.caption, expected.caption) << "browse " << i;
        EXPECT_EQ(asked.file.fileName, expanded(expected.fileName)) << "browse " << i;
        EXPECT_EQ(asked.file.filter, expected.filter) << "browse " << i;
        EXPECT_EQ(asked.file.save, expected.save) << "browse " << i;
    }
}

/// The host's options store: read from a row's properties, written into a map.
class OptionsStore : public IWFOptionsReader, public IWFOptionsWriter {
public:
    explicit OptionsStore(const Properties& values = {})
    {
        for (const auto& [name, value] : values)
            m_values[name] = expanded(value);
    }
    std::string ReadString(const std::string& name, const std::string& defaultValue) override
    {
        const auto found = m_values.find(name);
        return found == m_values.end() ? defaultValue : found->second;
    }
    void WriteString(const std::string& name, const std::string& value) override { m_values[name] = value; }

private:
    std::map<std::string, std::string> m_values;
};

/// What a row changes beyond its own objects, put back when it ends.
class RowScope {
public:
    explicit RowScope(const PageCase& c, const std::string& folder)
    {
        g_rowFolder = folder;
        for (const auto& [name, value] : c.environment)
            m_environment.push_back(std::make_unique<wftest::ScopedEnv>(name, expanded(value)));
        if (c.variables.empty())
            return;
        WFDesignApplicationServices().variableNamesProvider = [&c] {
            std::vector<std::string> names;
            for (const auto& [name, value] : c.variables)
                names.push_back(name);
            return names;
        };
        WFDesignApplicationServices().variablesProvider = [&c] {
            TWFBuildVariables variables;
            for (const auto& [name, value] : c.variables)
                variables.Set(name, TWFVariant(value));
            return variables;
        };
    }
    ~RowScope()
    {
        QLocale::setDefault(m_locale);
        WFDesignApplicationServices().variablesProvider = nullptr;
        WFDesignApplicationServices().variableNamesProvider = nullptr;
    }

private:
    QLocale m_locale;
    std::vector<std::unique_ptr<wftest::ScopedEnv>> m_environment;
};

} // namespace

namespace {

/// Runs the row on the page `open` makes, once the row's world is set up; `stored` reads back what
/// the page wrote.
void runRow(const PageCase& c, const std::string& title, const std::function<std::unique_ptr<OpenPage>(wftest::FakeCleartool&)>& open,
            const std::function<std::string(const std::string&)>& stored)
{
    wftest::FakeCleartool cleartool;
    const RowScope scope(c, cleartool.temp().path());
    BrowseAnswers browse;
    // The row's edition holds: no detection run adds to the calls.
    cleartool.options().SetTestForClearCaseType(false);
    cleartool.options().SetClearCaseType(c.edition);
    for (const Response& response : c.responses)
        cleartool.respond(response.arguments, response.output, response.exitCode);
    if (c.setUp)
        c.setUp(cleartool);

    const std::unique_ptr<OpenPage> page = open(cleartool);
    EXPECT_EQ(page->title(), title);
    for (const auto& answer : c.answers)
        browse.next(answer ? std::optional(expanded(*answer)) : std::nullopt);
    for (const Step& step : c.steps)
        runStep(page->widget(), step);
    for (const Shown& shown : c.shown)
        expectShown(page->widget(), shown);
    expectBrowsed(browse, c.browsed);
    if (c.check)
        c.check(*page);

    page->accept();
    for (const Properties* properties : {&c.stored, &c.kept})
        for (const auto& [name, text] : *properties)
            EXPECT_EQ(stored(name), expanded(text)) << name;

    std::vector<std::string> expectedCalls;
    for (const std::string& call : c.calls)
        expectedCalls.push_back(expanded(call.find('|') == std::string::npos ? cleartool.folder() + "|" + call : call));
    EXPECT_EQ(cleartool.calls(), expectedCalls);
}

} // namespace

void runPageCase(const TWFPageClass& pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c)
{
    const auto open = [&](wftest::FakeCleartool&) {
        for (const Properties* properties : {&c.given, &c.kept})
            for (const auto& [name, text] : *properties)
                setProperty(action, name, expanded(text));
        return std::make_unique<OpenPage>(pageClass, action);
    };
    runRow(c, title, open, [&](const std::string& name) { return property(action, name); });
}

void runOptionsCase(const PageCase& c)
{
    OptionsStore saved;
    TWFClearCaseOptions* options = nullptr;
    const auto open = [&](wftest::FakeCleartool& cleartool) {
        options = cleartool.options().GetImplementation();
        if (!c.given.empty() || !c.kept.empty()) {
            Properties values = c.given;
            values.insert(values.end(), c.kept.begin(), c.kept.end());
            OptionsStore given(values);
            options->LoadOptions(given);
        }
        return std::make_unique<OpenPage>(packagePage("TClearCaseOptionsFrame"), *options);
    };
    const auto stored = [&](const std::string& name) {
        options->SaveOptions(saved);
        return saved.ReadString(name, "(not written)");
    };
    runRow(c, "ClearCase Options", open, stored);
}

void runPageCase(const char* pageClass, TCustomWFAction& action, const std::string& title, const PageCase& c)
{
    runPageCase(packagePage(pageClass), action, title, c);
}

} // namespace wfpage
