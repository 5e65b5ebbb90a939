#include "PageCase.h"

#include "GoldenCatalogue.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFAction.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTest>

#include <gtest/gtest.h>

#include <deque>
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
    return shownText(page.control<QWidget>(control));
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

QPoint rowCentre(QListWidget* list, int row)
{
    return list->visualItemRect(list->item(row)).center();
}

void answer(const Step& step)
{
    answerModal([step](QWidget* dialog) {
        EXPECT_EQ(dialog->objectName().toStdString(), step.control);
        EXPECT_EQ(dialog->windowTitle().toStdString(), step.text);
        for (const Field& field : step.fields) {
            auto* widget = dialog->findChild<QWidget*>(field.control);
            if (!widget) {
                ADD_FAILURE() << step.control << " has no " << field.control;
                continue;
            }
            if (field.shown) {
                EXPECT_EQ(shownText(widget).toStdString(), field.shown) << field.control;
            }
            if (!field.typed)
                continue;
            auto* list = qobject_cast<QComboBox*>(widget);
            if (list && !list->isEditable())
                chooseByKeyboard(list, QString::fromUtf8(field.typed));
            else
                type(widget, QString::fromUtf8(field.typed));
        }
        pressButton(dialog, step.ok ? "OK" : "Cancel");
    });
}

void runStep(const OpenPage& page, const Step& step)
{
    switch (step.kind) {
    case Step::Click: click(page.control<QAbstractButton>(step.control)); break;
    case Step::Type: {
        // A compound edit (the date edit) takes the text in its line.
        QWidget* edit = page.control<QWidget>(step.control);
        if (!qobject_cast<QLineEdit*>(edit) && !qobject_cast<QPlainTextEdit*>(edit) && !qobject_cast<QComboBox*>(edit))
            edit = edit->findChild<QLineEdit*>();
        type(edit, QString::fromUtf8(step.text));
        break;
    }
    case Step::DropDown: dropDown(page.control<QWidget>(step.control)); break;
    case Step::Choose: {
        auto* combo = page.control<QComboBox>(step.control);
        const int index = combo->findText(QString::fromUtf8(step.text));
        EXPECT_GE(index, 0) << step.control << " offers no " << step.text;
        combo->setCurrentIndex(index);
        break;
    }
    case Step::Pick: {
        auto* list = page.control<QListWidget>(step.control);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        break;
    }
    case Step::DoubleClick: {
        // A double click's first click selects; the test library sends only the second.
        auto* list = page.control<QListWidget>(step.control);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, rowCentre(list, step.row));
        break;
    }
    case Step::Tick: {
        auto* list = page.control<QListWidget>(step.control);
        QListWidgetItem* item = list->item(step.row);
        item->setCheckState(item->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
        break;
    }
    case Step::ClickBlank: {
        auto* list = page.control<QListWidget>(step.control);
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, list->viewport()->height() - 4));
        break;
    }
    case Step::Key: QTest::keyClick(page.control<QWidget>(step.control), static_cast<Qt::Key>(step.key)); break;
    case Step::Editor: answer(step); break;
    case Step::DateMenu: chooseDateItem(page.control<QWidget>(step.control), step.text); break;
    case Step::MenuItem: {
        auto* menu = page.control<QMenu>(step.control);
        ASSERT_TRUE(menu->isVisible()) << step.control << " is not open";
        auto* action = page.control<QAction>(step.text);
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
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
    BrowseAnswers browse;
    // The row's edition holds: no detection run adds to the calls.
    cleartool.options().SetTestForClearCaseType(false);
    cleartool.options().SetClearCaseType(c.edition);
    for (const Response& response : c.responses)
        cleartool.respond(response.arguments, response.output, response.exitCode);
    if (c.setUp)
        c.setUp(cleartool);
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
    if (c.check)
        c.check(page);

    page.accept();
    for (const auto& [name, text] : c.stored)
        EXPECT_EQ(property(action, name), text) << name;

    std::vector<std::string> expectedCalls;
    for (const std::string& call : c.calls)
        expectedCalls.push_back(call.find('|') == std::string::npos ? cleartool.folder() + "|" + call : call);
    EXPECT_EQ(cleartool.calls(), expectedCalls);
}

} // namespace wfpage
