#include "WFPageStatus.h"

#include "WFFrame.h"

#include <QBoxLayout>
#include <QDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>

namespace {

/// The page or dialog a control belongs to: the nearest one above it.
QWidget* pageOf(QWidget* control)
{
    for (QWidget* widget = control; widget; widget = widget->parentWidget())
        if (WFActionPageOf(widget) || WFOptionsPageOf(widget) || qobject_cast<QDialog*>(widget))
            return widget;
    return control->window();
}

QLabel* addStatusLabel(QWidget* page)
{
    auto* label = new QLabel(page);
    label->setObjectName("lblPageStatus");
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setStyleSheet("color: #a03020;");
    QLayout* layout = page->layout();
    if (auto* box = qobject_cast<QBoxLayout*>(layout))
        box->addWidget(label);
    else if (auto* grid = qobject_cast<QGridLayout*>(layout))
        grid->addWidget(label, grid->rowCount(), 0, 1, grid->columnCount());
    else if (auto* form = qobject_cast<QFormLayout*>(layout))
        form->addRow(label);
    return label;
}

} // namespace

void WFSetPageStatus(QWidget* control, const QString& text)
{
    QWidget* page = pageOf(control);
    auto* label = page->findChild<QLabel*>("lblPageStatus", Qt::FindDirectChildrenOnly);
    if (!label && text.isEmpty())
        return;
    if (!label)
        label = addStatusLabel(page);
    label->setText(text);
    label->setVisible(!text.isEmpty());
}
