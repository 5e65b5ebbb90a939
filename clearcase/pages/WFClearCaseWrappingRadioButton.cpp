#include "pages/WFClearCaseWrappingRadioButton.h"

#include <QStyleOptionButton>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

TClearCaseWrappingRadioButton::TClearCaseWrappingRadioButton(QWidget* parent) : QRadioButton(parent) {}

void TClearCaseWrappingRadioButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    const bool focused = option.state & QStyle::State_HasFocus;
    option.text.clear();
    option.state &= ~QStyle::State_HasFocus;
    painter.drawControl(QStyle::CE_RadioButton, option);
    const QRect contents = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    const int flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap;
    painter.drawItemText(contents, flags, palette(), isEnabled(), caption, QPalette::WindowText);
    if (focused) {
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = fontMetrics().boundingRect(contents, flags, caption).adjusted(-1, 0, 1, 0);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

bool TClearCaseWrappingRadioButton::hitButton(const QPoint& pos) const
{
    return rect().contains(pos);
}
