#pragma once

#include "WFAction.h"
#include "WFFrame.h"
#include "WFOptions.h"

#include <QLineEdit>

#include <functional>
#include <string>

class QWidget;

namespace designertest {

/// Runs `answer` on the next modal window once it is open (a dialog the code under test
/// shows with exec()); fails the test when none opens within a few seconds.
void whenModal(std::function<void(QWidget*)> answer);
/// Waits for a condition while the event loop runs; false when it timed out.
bool waitFor(const std::function<bool()>& condition, int timeoutMs = 20000);
/// Loads the two packages built with the tests, with their pages, once per process.
void loadPackages();

/// An action and a page of the tests' own: a text that must not be empty, on a page captioned
/// "Text Options", so validation errors can name a page that exists on this branch.
class TTestAction final : public TCustomWFAction {
public:
    TTestAction();
    bool Execute() override { return true; }
    bool Validate(IWFActionValidationError& errors) override;
    std::string GetActionName() const override { return "Test Action"; }
    std::string text;
};

class TTestFrame final : public TFrame {
public:
    explicit TTestFrame(QWidget* parent);
    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override { return "Text Options"; }
    QLineEdit* txtText;
    /// Whether the dialog was on screen when the page read the action.
    bool readWhileShown = false;
};

/// Options of the tests' own, section [TestOptions] with key Greeting, and their page.
class TTestOptions final : public TWFOptionsObject {
public:
    TTestOptions();
    void SaveOptions(IWFOptionsWriter& writer) override { writer.WriteString("Greeting", greeting); }
    void LoadOptions(IWFOptionsReader& reader) override { greeting = reader.ReadString("Greeting", "hello"); }
    std::string GetName() const override { return "Test"; }
    std::string GetCategory() const override { return "Test"; }
    std::string GetOptionKey() const override { return "TestOptions"; }
    std::string greeting = "hello";
};

class TTestOptionsFrame final : public QFrame, public IWFOptionsPage {
public:
    explicit TTestOptionsFrame(QWidget* parent);
    std::string GetPageName() const override { return "Test Options"; }
    void InitPage(IWFOptionPageOwner*) override {}
    void OnPageActivate() override {}
    void ReadOptions(TWFOptionsObject& options) override;
    void WriteOptions(TWFOptionsObject& options) override;
    QLineEdit* txtGreeting;
};

} // namespace designertest
