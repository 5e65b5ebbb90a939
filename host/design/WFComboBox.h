#pragma once

#include <QComboBox>

/// A combo box that announces its drop-down before the list opens, so that a page can fill the
/// list from a query at that moment.
class TWFComboBox : public QComboBox {
    Q_OBJECT
public:
    explicit TWFComboBox(QWidget* parent = nullptr);

    void showPopup() override;
    /// Replaces the list, keeping the text the user typed.
    void setItemsKeepingText(const QStringList& items);

signals:
    void dropDown();
};
