// The page every action without pages of its own gets.
#include "PageHarness.h"
#include "WFAction.h"
#include "WFGenericPage.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace {

enum TMode { mdFast, mdSlow };

class TPagelessAction final : public TCustomWFAction {
public:
    TPagelessAction()
    {
        PublishString("Target", &m_target);
        PublishText("Notes", &m_notes);
        PublishBoolean("Verbose", &m_verbose);
        PublishEnum("Mode", {"mdFast", "mdSlow"}, &m_mode);
        PublishInteger("Retries", &m_retries);
    }
    bool Execute() override { return true; }

private:
    std::string m_target;
    std::string m_notes;
    bool m_verbose = false;
    TMode m_mode = mdFast;
    int m_retries = 0;
};

// An action without pages of its own gets the generic page, and only that.
TEST(GenericPage, EditsEveryPublishedPropertyWithTheControlOfItsKind)
{
    TPagelessAction action;
    wfpage::setProperty(action, "Notes", "one\r\ntwo");
    wfpage::setProperty(action, "Mode", "mdSlow");
    const auto pages = WFPagesFor("TNoSuchActionClass");
    ASSERT_EQ(pages.size(), 1u);
    wfpage::OpenPage page(pages.front(), action);
    EXPECT_EQ(page.title(), "Properties");
    EXPECT_EQ(page.control<QPlainTextEdit>("txtNotes")->toPlainText(), "one\ntwo");
    EXPECT_EQ(wfpage::items(page.control<QComboBox>("cmbMode")), QStringList({"mdFast", "mdSlow"}));
    EXPECT_EQ(page.control<QComboBox>("cmbMode")->currentText(), "mdSlow");

    wfpage::type(page.control<QLineEdit>("txtTarget"), "all");
    wfpage::click(page.control<QCheckBox>("boxVerbose"));
    page.control<QComboBox>("cmbMode")->setCurrentIndex(0);
    wfpage::type(page.control<QLineEdit>("txtRetries"), "3");
    page.accept();
    for (const auto& [name, value] : std::vector<std::pair<std::string, std::string>>{
             {"Target", "all"}, {"Notes", "one\r\ntwo"}, {"Verbose", "True"}, {"Mode", "mdFast"}, {"Retries", "3"}})
        EXPECT_EQ(wfpage::property(action, name), value) << name;
}

} // namespace
