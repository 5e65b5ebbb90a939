#pragma once

#include <QScrollArea>
#include <QString>

class QDialog;
class QSettings;

/// A page in a dialog's tab: the page takes all the room the tab gives it and scrolls only
/// where the tab is smaller than the page's minimum size. It asks for the room the page asks for.
class TPageArea final : public QScrollArea {
    Q_OBJECT
public:
    explicit TPageArea(QWidget* page, QWidget* parent = nullptr);
    QSize sizeHint() const override;
};

/// Gives a dialog the size it had when the user last closed it (at most the screen) and stores
/// its size under `key` when it goes.
class TDialogSize {
public:
    TDialogSize(QDialog& dialog, QSettings& settings, QString key);
    ~TDialogSize();
    TDialogSize(const TDialogSize&) = delete;
    TDialogSize& operator=(const TDialogSize&) = delete;

    /// At least the dialog's size hint, at most the available screen.
    static QSize fitted(const QDialog& dialog, QSize wanted);

private:
    QDialog& m_dialog;
    QSettings& m_settings;
    QString m_key;
};
