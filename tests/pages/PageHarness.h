#pragma once

#include "WFActionPage.h"
#include "WFBrowse.h"

#include <QAbstractButton>
#include <QString>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

class TCustomWFAction;
class TWFOptionsObject;

namespace wfpage {

/// The package's page of that class, made by its page table.
TWFPageClass packagePage(const char* className);

/// The named control below `root`; throws (failing the test) when there is none of that type.
template <typename T>
T* controlIn(QWidget* root, const char* name)
{
    T* found = root->findChild<T*>(name);
    if (!found)
        throw std::runtime_error(std::string("no control ") + name + " of the expected type in " +
                                 root->objectName().toStdString());
    return found;
}

/// A page made as a host makes it: by its class's factory, then InitFrame, InitPage and
/// ReadActionData with the action; or, for options, InitPage, OnPageActivate and ReadOptions.
/// The page is shown (offscreen) so that clicks reach it.
class OpenPage {
public:
    OpenPage(const TWFPageClass& pageClass, TCustomWFAction& action);
    /// By class name, through the package's page table.
    OpenPage(const char* className, TCustomWFAction& action);
    OpenPage(const TWFPageClass& pageClass, TWFOptionsObject& options);
    ~OpenPage();

    QWidget* widget() const { return m_widget.get(); }
    std::string title() const;
    /// The host accepting the page: WriteActionData with the action it was opened on, or
    /// WriteOptions with the options.
    void accept();

    /// The named control; throws (failing the test) when there is none of that type.
    template <typename T>
    T* control(const char* name) const
    {
        return controlIn<T>(m_widget.get(), name);
    }

private:
    std::unique_ptr<QWidget> m_widget;
    IWFActionPage* m_page = nullptr;
    TCustomWFAction* m_action = nullptr;
    IWFOptionsPage* m_optionsPage = nullptr;
    TWFOptionsObject* m_options = nullptr;
};

// Input as a user gives it.
/// A click where a user clicks: on a radio button's or check box's indicator, else the middle.
void click(QAbstractButton* button);
/// Replaces the text of an edit, memo or editable combo box by typing, key by key ("\n" is
/// the Enter key).
void type(QWidget* edit, const QString& text);
/// Opens a combo box's list (which runs its drop-down handler) and closes it again.
void dropDown(QWidget* combo);
/// The items of a combo box or list widget.
QStringList items(QWidget* list);
/// Opens a combo box's list and picks the item with that text, as a user does with the keyboard.
void chooseByKeyboard(QWidget* combo, const QString& text);
/// Opens a date edit's menu with its button and chooses the item (by object name): a click on
/// an item of the menu itself, a trigger for a day on the sub-menu.
void chooseDateItem(QWidget* dateEdit, const char* item);

/// Runs `answer` on the next modal or pop-up dialog once it is open (e.g. to fill it and press OK), while
/// the code under test waits in exec(). Fails the test when no dialog opens within two seconds.
void answerModal(std::function<void(QWidget* dialog)> answer);
/// Presses the dialog's button with that text ("OK", "Cancel").
void pressButton(QWidget* dialog, const QString& text);

/// Answers the host's folder and file browsers from a queue and records what they were asked.
class BrowseAnswers {
public:
    struct Request {
        std::string initialDir;
        std::string caption;
        TWFBrowseFileRequest file;
    };
    BrowseAnswers();
    ~BrowseAnswers();
    /// The next browse returns this (nullopt: the user cancels).
    void next(std::optional<std::string> answer) { m_answers.push_back(std::move(answer)); }
    const std::vector<Request>& requests() const { return m_requests; }

private:
    bool answer(std::string& result);
    std::vector<std::optional<std::string>> m_answers;
    std::vector<Request> m_requests;
};

/// The persisted property as text, as a project file would hold it.
std::string property(const TCustomWFAction& action, const std::string& name);
/// Sets a persisted property from text; throws for a name or text the action rejects.
void setProperty(TCustomWFAction& action, const std::string& name, const std::string& text);

} // namespace wfpage
