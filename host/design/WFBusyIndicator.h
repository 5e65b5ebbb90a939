#pragma once

#include <QDialog>

#include <functional>
#include <string>

class QLabel;
class QPushButton;

/// The small window that offers Cancel while busy work keeps a user waiting.
class TWFBusyIndicator : public QDialog {
    Q_OBJECT
public:
    TWFBusyIndicator(const QString& message, QWidget* parent);
    /// Wide enough for the window system to show the whole title.
    int titleWidth() const;

signals:
    void cancelRequested();

private:
    QLabel* m_message;
    QPushButton* m_cancel;
};

/// Runs `work` on a worker thread while this thread keeps the windows painted, with the wait
/// cursor; after `delayMs` the indicator offers Cancel, which runs `cancel` and goes on waiting
/// for `work` to return. User input reaches no other window meanwhile.
void WFRunBusyWithIndicator(const std::string& message, const std::function<void()>& work,
                            const std::function<void()>& cancel, int delayMs);

/// Installs WFRunBusyWithIndicator as the host's busy hook.
void WFInstallBusyIndicator(int delayMs = 1000);
