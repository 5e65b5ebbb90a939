#include "DesignerTestSupport.h"

#include "DesignerApp.h"

#include "WFPageFactory.h"
#include "WFServices.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <memory>

namespace designertest {

void whenModal(std::function<void(QWidget*)> answer)
{
    auto tries = std::make_shared<int>(0);
    auto poll = std::make_shared<std::function<void()>>();
    *poll = [answer = std::move(answer), tries, poll] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            // What the window does as it opens (a dialog reads its pages) comes before the user.
            QCoreApplication::processEvents();
            answer(modal);
            *poll = nullptr;
            return;
        }
        if (++*tries > 250) {
            ADD_FAILURE() << "no modal window opened";
            *poll = nullptr;
            return;
        }
        QTimer::singleShot(20, [poll] {
            if (*poll)
                (*poll)();
        });
    };
    QTimer::singleShot(0, [poll] { (*poll)(); });
}

bool waitFor(const std::function<bool()>& condition, int timeoutMs)
{
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > timeoutMs)
            return false;
        QTest::qWait(10);
    }
    return true;
}

void loadPackages()
{
    static const bool loaded = [] {
        TDesignerArguments args;
        args.noDefaultPlugins = true;
        args.plugins = {WF_CLEARCASE_PLUGIN, WF_BASICACTIONS_PLUGIN};
        QString error;
        if (!prepareDesigner(args, error))
            ADD_FAILURE() << error.toStdString();
        const auto action = WFActionClassOf<TTestAction>("TTestAction");
        WFActionServices().RegisterAction("Test Action", "Testing", action, "TEST_ACTION");
        WFActionServices().RegisterActionPages(action, {TWFPageClass{"TTestFrame", WFMakePage<TTestFrame>}});
        const TWFOptionsClass options{"TTestOptions", [] { return std::unique_ptr<TWFOptionsObject>(std::make_unique<TTestOptions>()); }};
        WFOptionsServices().RegisterOptionsClass(options, "CC_LOGO");
        WFOptionsServices().RegisterOptionsPages(options, {TWFPageClass{"TTestOptionsFrame", WFMakePage<TTestOptionsFrame>}});
        return true;
    }();
    (void)loaded;
}

TTestAction::TTestAction()
{
    PublishString("Text", &text);
}

bool TTestAction::Validate(IWFActionValidationError& errors)
{
    const bool ok = TCustomWFAction::Validate(errors);
    if (text.empty()) {
        errors.AddError("Text Options", "No text given.");
        return false;
    }
    return ok;
}

TTestFrame::TTestFrame(QWidget* parent) : TFrame(parent), txtText(new QLineEdit(this))
{
    setObjectName("TTestFrame");
    txtText->setObjectName("txtText");
    (new QVBoxLayout(this))->addWidget(txtText);
}

void TTestFrame::ReadActionData(TCustomWFAction& action)
{
    readWhileShown = window()->isVisible();
    txtText->setText(QString::fromStdString(narrow<TTestAction>(action).text));
}

void TTestFrame::WriteActionData(TCustomWFAction& action)
{
    narrow<TTestAction>(action).text = txtText->text().toStdString();
}

TTestOptions::TTestOptions()
{
    PublishString("Greeting", &greeting);
}

TTestOptionsFrame::TTestOptionsFrame(QWidget* parent) : QFrame(parent), txtGreeting(new QLineEdit(this))
{
    setObjectName("TTestOptionsFrame");
    txtGreeting->setObjectName("txtGreeting");
    (new QVBoxLayout(this))->addWidget(txtGreeting);
}

void TTestOptionsFrame::ReadOptions(TWFOptionsObject& options)
{
    txtGreeting->setText(QString::fromStdString(dynamic_cast<TTestOptions&>(options).greeting));
}

void TTestOptionsFrame::WriteOptions(TWFOptionsObject& options)
{
    auto& test = dynamic_cast<TTestOptions&>(options);
    test.greeting = txtGreeting->text().toStdString();
    test.SetModified(true);
}

} // namespace designertest
