#include "pages/WFClearCasePageLook.h"

#include "environment/WFClearCaseUtils.h"
#include "resources/WFClearCaseResources.h"
#include "WFComboBox.h"
#include "WFHeading.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QLabel>
#include <QBitmap>
#include <QColor>
#include <QPixmap>
#include <QStyleOptionButton>
#include <QStylePainter>

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

void ClearCaseSetHeadingImage(QLabel* image)
{
    image->setPixmap(logo(16));
    setHelpContext(image);
}

void ClearCaseSetSectionImage(QLabel* image)
{
    image->setPixmap(logo(32));
    setHelpContext(image);
}

void ClearCasePlaceHeading(QLabel* label, QWidget* bevel)
{
    WFPlaceHeadingBevel(label, bevel);
    setHelpContext(label);
    setHelpContext(bevel);
}

void ClearCaseDecorateHeadings(QLabel* sectionImage, std::initializer_list<QLabel*> headingImages,
                               std::initializer_list<std::pair<QLabel*, QWidget*>> headings)
{
    ClearCaseSetSectionImage(sectionImage);
    for (QLabel* image : headingImages)
        ClearCaseSetHeadingImage(image);
    for (const auto& [label, bevel] : headings)
        ClearCasePlaceHeading(label, bevel);
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

void ClearCaseFillVOBListOnce(TWFComboBox* list)
{
    if (list->count() > 0 && !list->itemText(0).isEmpty())
        return;
    list->setItemsKeepingText(ClearCaseLines(CCGetVOBNames()));
}

void ClearCaseFillTypeList(TWFComboBox* list, const char* kind, const QString& vob)
{
    if (vob.isEmpty())
        return;
    list->setItemsKeepingText(ClearCaseLines(CCGetTypeNames(kind, vob.toStdString())));
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
