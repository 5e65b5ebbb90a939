#include "DesignerTestSupport.h"

#include "DesignerApp.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

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
        return true;
    }();
    (void)loaded;
}

void take(QWidget* dialog, const Step& step)
{
    auto* tabs = dialog->findChild<QTabWidget*>();
    QWidget* target = dialog->findChild<QWidget*>(step.target);
    auto* combo = qobject_cast<QComboBox*>(target);
    QLineEdit* line = combo ? combo->lineEdit() : qobject_cast<QLineEdit*>(target);
    auto* box = qobject_cast<QPlainTextEdit*>(target);
    switch (step.kind) {
    case Step::Tab:
        ASSERT_TRUE(tabTexts(dialog).contains(step.target)) << step.target;
        tabs->setCurrentIndex(static_cast<int>(tabTexts(dialog).indexOf(step.target)));
        break;
    case Step::Click: {
        ASSERT_NE(target, nullptr) << step.target;
        const bool indicator = qobject_cast<QCheckBox*>(target) || qobject_cast<QRadioButton*>(target);
        QTest::mouseClick(target, Qt::LeftButton, {}, indicator ? QPoint(8, target->height() / 2) : target->rect().center());
        break;
    }
    case Step::Type:
        ASSERT_TRUE(line || box) << step.target;
        line ? line->clear() : box->clear();
        QTest::keyClicks(line ? static_cast<QWidget*>(line) : box, step.text);
        break;
    case Step::Box:
        answerNextBox(step.target, step.kept);
        break;
    case Step::Ok:
    case Step::Cancel:
        QTest::mouseClick(dialog->findChild<QDialogButtonBox*>()->button(step.kind == Step::Ok ? QDialogButtonBox::Ok
                                                                                               : QDialogButtonBox::Cancel),
                          Qt::LeftButton);
        break;
    case Step::SeeTab:
        EXPECT_EQ(tabs->tabText(tabs->currentIndex()), step.target);
        break;
    case Step::SeeText:
        ASSERT_TRUE(line || box) << step.target;
        EXPECT_EQ(line ? line->text() : box->toPlainText(), step.text) << step.target;
        break;
    case Step::Look:
        step.look(dialog);
        break;
    }
}

void answerDialog(std::vector<Step> steps)
{
    whenModal([steps = std::move(steps)](QWidget* dialog) {
        for (const Step& step : steps)
            take(dialog, step);
    });
}

void answerNextBox(const char* button, QString* kept)
{
    whenModal([button, kept](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        ASSERT_NE(box, nullptr) << modal->objectName().toStdString();
        if (kept)
            *kept = box->objectName() + ": " + box->text();
        const std::string name = button;
        QAbstractButton* chosen = name == "OK" ? box->button(QMessageBox::Ok)
            : name == "Cancel"                  ? box->button(QMessageBox::Cancel)
            : name == "Discard"                 ? box->button(QMessageBox::Discard)
                                                : box->findChild<QAbstractButton*>(button);
        ASSERT_NE(chosen, nullptr) << button;
        chosen->click();
    });
}

QStringList tabTexts(QWidget* dialog)
{
    QStringList texts;
    if (auto* tabs = dialog->findChild<QTabWidget*>())
        for (int i = 0; i < tabs->count(); ++i)
            texts << tabs->tabText(i);
    return texts;
}

} // namespace designertest
