#pragma once

#include <QDialog>
#include <QString>

class QTextBrowser;
class TCustomWFAction;

/// The help file an action names (GetQuickHelpFilename, "Plugins\Name.html"), found beside the
/// loaded packages; empty when there is none.
QString helpFileOf(const TCustomWFAction& action);

/// A window that shows a package's help file at a topic.
class THelpViewer final : public QDialog {
    Q_OBJECT
public:
    explicit THelpViewer(QWidget* parent = nullptr);
    void showTopic(const QString& file, int topic);
    QTextBrowser* browser() const { return m_browser; }

private:
    QTextBrowser* m_browser;
};

/// Opens the action's help at its topic in the one help window, or says why it cannot.
void showActionHelp(const TCustomWFAction& action, QWidget* parent);
