#include "WFComboBox.h"

TWFComboBox::TWFComboBox(QWidget* parent) : QComboBox(parent) {}

void TWFComboBox::showPopup()
{
    emit dropDown();
    QComboBox::showPopup();
}

void TWFComboBox::setItemsKeepingText(const QStringList& items)
{
    const QString text = currentText();
    const QSignalBlocker quiet(this);
    clear();
    addItems(items);
    if (isEditable())
        setEditText(text);
    else
        setCurrentIndex(findText(text));
}
