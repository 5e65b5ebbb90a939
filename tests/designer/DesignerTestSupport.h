#pragma once

#include <QStringList>

#include <functional>
#include <string>
#include <vector>

class QWidget;

namespace designertest {

/// Runs `answer` on the next modal window once it is open (a dialog the code under test
/// shows with exec()); fails the test when none opens within a few seconds.
void whenModal(std::function<void(QWidget*)> answer);
/// Waits for a condition while the event loop runs; false when it timed out.
bool waitFor(const std::function<bool()>& condition, int timeoutMs = 20000);
/// Loads the two packages built with the tests, with their pages, once per process.
void loadPackages();

/// A user's step in the modal window open at the time, or a look at what it shows.
struct Step {
    enum Kind { Tab, Click, Type, Box, Ok, Cancel, SeeTab, SeeText, Look } kind;
    const char* target = ""; ///< a tab's caption, a control's object name or a message box's button
    QString text = {};
    QString* kept = nullptr; ///< a message box's name and text, kept
    std::function<void(QWidget*)> look = {};
};
inline Step onTab(const char* caption) { return {Step::Tab, caption}; }
/// Clicks a button, or a check box or radio button on its indicator, where a user aims.
inline Step clickOn(const char* name) { return {Step::Click, name}; }
/// Replaces the text of a line edit, an editable combo box or a text box with the text typed.
inline Step typeInto(const char* name, const QString& text) { return {Step::Type, name, text}; }
/// Answers the message box the next step opens with the named button ("OK", "Cancel", "Discard" or
/// an object name). Comes before the step that opens it.
inline Step answerBox(const char* button, QString* kept = nullptr) { return {Step::Box, button, {}, kept}; }
inline Step seeTab(const char* caption) { return {Step::SeeTab, caption}; }
/// The text of a line edit or a text box.
inline Step seeText(const char* name, const QString& text) { return {Step::SeeText, name, text}; }
inline Step look(std::function<void(QWidget*)> look) { return {Step::Look, "", {}, nullptr, std::move(look)}; }
inline const Step pressOk{Step::Ok};
inline const Step pressCancel{Step::Cancel};
void take(QWidget* dialog, const Step& step);
/// Takes the steps in the next modal window once it is open.
void answerDialog(std::vector<Step> steps);
/// Answers the next message box as a Box step does.
void answerNextBox(const char* button, QString* kept = nullptr);
QStringList tabTexts(QWidget* dialog);

} // namespace designertest
