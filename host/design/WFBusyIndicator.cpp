#include "WFBusyIndicator.h"

#include "WFBusy.h"

#include <QApplication>
#include <QEventLoop>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include <atomic>
#include <memory>
#include <thread>

TWFBusyIndicator::TWFBusyIndicator(const QString& message, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint)
    , m_message(new QLabel(message, this))
    , m_cancel(new QPushButton(tr("Cancel"), this))
{
    setObjectName("WFBusyIndicator");
    setWindowTitle(message);
    setWindowModality(Qt::ApplicationModal);
    m_message->setObjectName("message");
    m_cancel->setObjectName("cancelButton");
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_message);
    layout->addLayout(buttons);
    setMinimumWidth(titleWidth());
    connect(m_cancel, &QPushButton::clicked, this, [this] {
        m_cancel->setEnabled(false);
        m_message->setText(tr("Cancelling..."));
        emit cancelRequested();
    });
}

int TWFBusyIndicator::titleWidth() const
{
    // The window system shows the title in a bold font after the application's name and before
    // its buttons; a dialog only as wide as its message would clip it.
    QFont bold = font();
    bold.setBold(true);
    QString shown = windowTitle();
    if (!QGuiApplication::applicationDisplayName().isEmpty())
        shown += QStringLiteral(" \u2014 ") + QGuiApplication::applicationDisplayName();
    constexpr int kTitleButtonsWidth = 120;
    return QFontMetrics(bold).horizontalAdvance(shown) + kTitleButtonsWidth;
}

void WFRunBusyWithIndicator(const std::string& message, const std::function<void()>& work,
                            const std::function<void()>& cancel, int delayMs)
{
    if (!QApplication::instance()) {
        work();
        return;
    }
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    QEventLoop loop;
    auto done = std::make_shared<std::atomic<bool>>(false);
    // The loop outlives the thread: it is joined below before the loop goes.
    std::thread worker([&work, &loop, done] {
        work();
        *done = true;
        QMetaObject::invokeMethod(&loop, "quit", Qt::QueuedConnection);
    });

    // First only repaint: a click meant for the page must not start another query meanwhile.
    QTimer delay;
    delay.setSingleShot(true);
    QObject::connect(&delay, &QTimer::timeout, &loop, [&loop] { loop.exit(1); });
    delay.start(delayMs);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
    if (!*done) {
        // Over the dialog that asked, even before the window manager made it the active window.
        QWidget* over = QApplication::activeModalWidget() ? QApplication::activeModalWidget() : QApplication::activeWindow();
        TWFBusyIndicator indicator(QString::fromStdString(message), over);
        QObject::connect(&indicator, &TWFBusyIndicator::cancelRequested, [&cancel] {
            if (cancel)
                cancel();
        });
        indicator.show();
        QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
        if (!*done)
            loop.exec();
        QGuiApplication::restoreOverrideCursor();
    }
    worker.join();
    QGuiApplication::restoreOverrideCursor();
}

void WFInstallBusyIndicator(int delayMs)
{
    SetWFBusyHook([delayMs](const std::string& message, const std::function<void()>& work, const std::function<void()>& cancel) {
        WFRunBusyWithIndicator(message, work, cancel, delayMs);
    });
}
