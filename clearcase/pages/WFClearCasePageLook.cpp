#include "pages/WFClearCasePageLook.h"

#include "environment/WFClearCaseUtils.h"
#include "resources/WFClearCaseResources.h"
#include "WFComboBox.h"
#include "WFHeading.h"
#include "WFPageStatus.h"
#include "WFServices.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QFrame>
#include <QLabel>
#include <QBitmap>
#include <QColor>
#include <QPixmap>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

namespace {

QPixmap logo(int size)
{
    const auto bytes = WFClearCaseFindResource("CC_LOGO");
    QPixmap pixmap;
    pixmap.loadFromData(bytes.data(), static_cast<unsigned>(bytes.size()), "BMP");
    // The bitmaps mark their transparent parts in magenta.
    if (!pixmap.isNull())
        pixmap.setMask(pixmap.createMaskFromColor(QColor(255, 0, 255)));
    return pixmap.isNull() ? pixmap : pixmap.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

void setHelpContext(QWidget* widget)
{
    widget->setProperty("helpContext", kClearCaseHeadingHelpContext);
}

} // namespace

void ClearCaseDecoratePage(QWidget* page, QLabel* sectionImage)
{
    const QPixmap small = logo(16);
    for (TWFHeading* heading : page->findChildren<TWFHeading*>()) {
        heading->setIcon(small);
        for (QWidget* part : {static_cast<QWidget*>(heading->icon()), static_cast<QWidget*>(heading->label()),
                              static_cast<QWidget*>(heading->line())})
            setHelpContext(part);
    }
    if (sectionImage) {
        sectionImage->setPixmap(logo(32));
        setHelpContext(sectionImage);
    }
}

void ClearCaseSetChecked(QAbstractButton* button, bool checked)
{
    QButtonGroup* group = button->group();
    if (checked || !group || !group->exclusive() || !button->isChecked()) {
        button->setChecked(checked);
        return;
    }
    group->setExclusive(false);
    button->setChecked(false);
    group->setExclusive(true);
}

QStringList ClearCaseLines(const std::string& queryResult)
{
    QStringList lines = QString::fromStdString(queryResult).split("\r\n");
    if (!lines.isEmpty() && lines.back().isEmpty())
        lines.pop_back();
    return lines;
}

std::string TClearCaseLookUp::expand(const QString& value)
{
    std::string expanded;
    std::string error;
    if (WFDesignApplicationServices().ExpandExpression(value.toStdString(), expanded, error))
        return expanded;
    if (m_problem.empty())
        m_problem = "Could not expand \"" + value.toStdString() + "\": " + error + ".";
    return value.toStdString();
}

QStringList TClearCaseLookUp::lines(const std::string& queryResult)
{
    const QStringList items = ClearCaseLines(queryResult);
    const std::string why = items.isEmpty() ? (m_problem.empty() ? CCWhyLastQueryGaveNothing() : m_problem) : std::string();
    WFSetPageStatus(m_control, QString::fromStdString(why));
    return items;
}

void ClearCaseFillVOBListOnce(TWFComboBox* list)
{
    if (list->count() > 0 && !list->itemText(0).isEmpty())
        return;
    list->setItemsKeepingText(TClearCaseLookUp(list).lines(CCGetVOBNames()));
}

void ClearCaseFillTypeList(TWFComboBox* list, const char* kind, const QString& vob)
{
    if (vob.isEmpty())
        return;
    TClearCaseLookUp lookUp(list);
    list->setItemsKeepingText(lookUp.lines(CCGetTypeNames(kind, lookUp.expand(vob))));
}

int TClearCaseWrappingRadioButton::captionLeft() const
{
    QStyleOptionButton option;
    initStyleOption(&option);
    return style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this).left();
}

int TClearCaseWrappingRadioButton::heightForWidth(int width) const
{
    const QRect bounds(0, 0, std::max(1, width - captionLeft()), 0xffff);
    const QRect text = fontMetrics().boundingRect(bounds, Qt::TextWordWrap, this->text());
    return std::max(QRadioButton::sizeHint().height(), text.height() + 4);
}

QSize TClearCaseWrappingRadioButton::sizeHint() const
{
    // One line where it fits in about fifty characters, else wrapped at that width.
    const int width = std::min(QRadioButton::sizeHint().width(), captionLeft() + 50 * fontMetrics().averageCharWidth());
    return {width, heightForWidth(width)};
}

QSize TClearCaseWrappingRadioButton::minimumSizeHint() const
{
    int longestWord = 0;
    for (const QString& word : text().split(' ', Qt::SkipEmptyParts))
        longestWord = std::max(longestWord, fontMetrics().horizontalAdvance(word));
    const int width = captionLeft() + longestWord;
    return {width, heightForWidth(width)};
}

void TClearCaseWrappingRadioButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_RadioButton, option);
    const QRect textRect = style()->subElementRect(QStyle::SE_RadioButtonContents, &option, this);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap, caption);
}
