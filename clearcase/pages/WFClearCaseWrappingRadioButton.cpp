#include "pages/WFClearCaseWrappingRadioButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

TClearCaseWrappingRadioButton::TClearCaseWrappingRadioButton(QWidget* parent) : QRadioButton(parent) {}

void TClearCaseWrappingRadioButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_RadioButton, option);
    const QRect textRect = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    painter.drawItemText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, palette(), isEnabled(), caption,
                         QPalette::WindowText);
}

bool TClearCaseWrappingRadioButton::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}
