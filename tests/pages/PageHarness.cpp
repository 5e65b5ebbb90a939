#include "PageHarness.h"

#include "pages/WFClearCasePageTable.h"
#include "WFAction.h"
#include "WFFrame.h"
#include "WFPageFactory.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace wfpage {

TWFPageClass packagePage(const char* className)
{
    return {className, [name = std::string(className)](QWidget* parent) { return ClearCaseCreatePage(name.c_str(), parent); }};
}

namespace {

QPoint indicatorCentre(QAbstractButton* button)
{
    QStyleOptionButton option;
    option.initFrom(button);
    const bool radio = qobject_cast<QRadioButton*>(button) != nullptr;
    const bool check = qobject_cast<QCheckBox*>(button) != nullptr;
    if (!radio && !check)
        return button->rect().center();
    const QRect indicator =
        button->style()->subElementRect(radio ? QStyle::SE_RadioButtonIndicator : QStyle::SE_CheckBoxIndicator, &option, button);
    return indicator.center();
}

std::unique_ptr<QWidget> createdPage(const TWFPageClass& pageClass)
{
    std::string error;
    std::unique_ptr<QWidget> page = WFCreatePage(pageClass, nullptr, error);
    if (!page)
        throw std::runtime_error(error);
    return page;
}

} // namespace

OpenPage::OpenPage(const TWFPageClass& pageClass, TCustomWFAction& action) : m_widget(createdPage(pageClass)), m_action(&action)
{
    m_page = WFActionPageOf(m_widget.get());
    if (!m_page)
        throw std::runtime_error(pageClass.className + " is no action page");
    m_widget->show();
    m_page->InitFrame(m_widget.get());
    m_page->InitPage(action);
    m_page->ReadActionData(action);
}

OpenPage::OpenPage(const char* className, TCustomWFAction& action) : OpenPage(packagePage(className), action) {}

OpenPage::OpenPage(const TWFPageClass& pageClass, TWFOptionsObject& options)
    : m_widget(createdPage(pageClass)), m_options(&options)
{
    m_optionsPage = WFOptionsPageOf(m_widget.get());
    if (!m_optionsPage || WFActionPageOf(m_widget.get()))
        throw std::runtime_error(pageClass.className + " is no options page");
    m_widget->show();
    m_optionsPage->InitPage(nullptr);
    m_optionsPage->OnPageActivate();
    m_optionsPage->ReadOptions(options);
}

OpenPage::~OpenPage() = default;

std::string OpenPage::title() const
{
    return m_page ? m_page->PageName() : m_optionsPage->GetPageName();
}

void OpenPage::accept()
{
    if (m_page)
        m_page->WriteActionData(*m_action);
    else
        m_optionsPage->WriteOptions(*m_options);
}

void click(QAbstractButton* button)
{
    if (!button->isVisible() || !button->isEnabled())
        throw std::runtime_error(button->objectName().toStdString() + " cannot be clicked: hidden or disabled");
    QTest::mouseClick(button, Qt::LeftButton, Qt::NoModifier, indicatorCentre(button));
}

void type(QWidget* edit, const QString& text)
{
    if (!edit->isEnabled())
        throw std::runtime_error(edit->objectName().toStdString() + " cannot take typing: disabled");
    edit->setFocus();
    if (auto* line = qobject_cast<QLineEdit*>(edit))
        line->selectAll();
    else if (auto* memo = qobject_cast<QPlainTextEdit*>(edit))
        memo->selectAll();
    else if (auto* combo = qobject_cast<QComboBox*>(edit); combo && combo->lineEdit())
        combo->lineEdit()->selectAll();
    QWidget* target = edit;
    if (auto* combo = qobject_cast<QComboBox*>(edit); combo && combo->lineEdit())
        target = combo->lineEdit();
    if (text.isEmpty())
        QTest::keyClick(target, Qt::Key_Delete);
    for (const QChar c : text) {
        if (c == '\n')
            QTest::keyClick(target, Qt::Key_Return);
        else
            QTest::keyClicks(target, QString(c));
    }
}

void dropDown(QWidget* combo)
{
    auto* box = qobject_cast<QComboBox*>(combo);
    if (!box)
        throw std::runtime_error(combo->objectName().toStdString() + " is no combo box");
    box->showPopup();
    box->hidePopup();
}

QStringList items(QWidget* list)
{
    QStringList result;
    if (auto* box = qobject_cast<QComboBox*>(list))
        for (int i = 0; i < box->count(); ++i)
            result << box->itemText(i);
    else if (auto* widget = qobject_cast<QListWidget*>(list))
        for (int i = 0; i < widget->count(); ++i)
            result << widget->item(i)->text();
    else
        throw std::runtime_error(list->objectName().toStdString() + " holds no items");
    return result;
}

void answerModal(std::function<void(QWidget* dialog)> answer)
{
    auto started = std::make_shared<QElapsedTimer>();
    started->start();
    auto poll = std::make_shared<std::function<void()>>();
    *poll = [answer = std::move(answer), started, poll]() {
        // A pop-up dialog (the date edit's panels) waits in exec() as a modal one does.
        QWidget* dialog = QApplication::activeModalWidget();
        if (!dialog)
            dialog = qobject_cast<QDialog*>(QApplication::activePopupWidget());
        if (dialog) {
            answer(dialog);
            *poll = nullptr;
            return;
        }
        if (started->elapsed() > 2000) {
            ADD_FAILURE() << "no modal dialog opened";
            *poll = nullptr;
            return;
        }
        QTimer::singleShot(10, [poll] {
            if (*poll)
                (*poll)();
        });
    };
    QTimer::singleShot(0, [poll] { (*poll)(); });
}

void pressButton(QWidget* dialog, const QString& text)
{
    for (QPushButton* button : dialog->findChildren<QPushButton*>())
        if (button->text().remove('&') == text) {
            QTest::mouseClick(button, Qt::LeftButton);
            return;
        }
    ADD_FAILURE() << "dialog " << dialog->objectName().toStdString() << " has no button " << text.toStdString();
    if (auto* modal = qobject_cast<QDialog*>(dialog))
        modal->reject();
}

BrowseAnswers::BrowseAnswers()
{
    SetWFBrowseForDirectoryHook([this](const std::string& initialDir, std::string& dir, const std::string& caption) {
        m_requests.push_back({initialDir, caption, {}});
        return answer(dir);
    });
    SetWFBrowseForFileHook([this](const TWFBrowseFileRequest& request, std::string& file) {
        m_requests.push_back({request.initialDir, request.title, request});
        return answer(file);
    });
}

BrowseAnswers::~BrowseAnswers()
{
    SetWFBrowseForDirectoryHook(nullptr);
    SetWFBrowseForFileHook(nullptr);
}

bool BrowseAnswers::answer(std::string& result)
{
    if (m_answers.empty()) {
        ADD_FAILURE() << "a browser opened that the test gave no answer for";
        return false;
    }
    const std::optional<std::string> next = m_answers.front();
    m_answers.erase(m_answers.begin());
    if (!next)
        return false;
    result = *next;
    return true;
}

std::string property(const TCustomWFAction& action, const std::string& name)
{
    if (!action.FindProperty(name))
        throw std::runtime_error("the action has no property " + name);
    return action.GetPropertyText(name);
}

void setProperty(TCustomWFAction& action, const std::string& name, const std::string& text)
{
    std::string error;
    if (!action.SetPropertyText(name, text, &error))
        throw std::runtime_error("property " + name + " = \"" + text + "\": " + error);
}

void chooseByKeyboard(QWidget* widget, const QString& text)
{
    auto* combo = qobject_cast<QComboBox*>(widget);
    ASSERT_NE(combo, nullptr) << widget->objectName().toStdString() << " is no combo box";
    combo->showPopup();
    const int row = combo->findText(text);
    if (row < 0) {
        combo->hidePopup();
        ADD_FAILURE() << combo->objectName().toStdString() << " has no item " << text.toStdString();
        return;
    }
    combo->view()->setCurrentIndex(combo->model()->index(row, 0));
    QTest::keyClick(combo->view(), Qt::Key_Return);
}

void chooseDateItem(QWidget* edit, const char* item)
{
    click(edit->findChild<QAbstractButton*>("txtEditButton"));
    auto* menu = edit->findChild<QMenu*>("PopupMenu1");
    auto* action = edit->findChild<QAction*>(item);
    ASSERT_TRUE(menu && menu->isVisible() && action) << edit->objectName().toStdString() << " offers no " << item;
    if (menu->actions().contains(action))
        QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
    else
        action->trigger();
}

} // namespace wfpage
