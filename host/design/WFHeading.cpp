#include "WFHeading.h"

#include "WFFrame.h"

#include <QEvent>
#include <QFrame>
#include <QLabel>
#include <QPixmap>

#include <algorithm>

namespace {

constexpr int kIconLeft = 8;
constexpr int kIconSize = 16;
constexpr int kLabelLeft = kIconLeft + kIconSize + 4;
constexpr int kLineGap = 8;
constexpr int kRightMargin = kWFPageWidth - kWFPageRightEdge;
/// A line shorter than this no longer reads as one.
constexpr int kShortestLine = 16;

} // namespace

TWFHeading::TWFHeading(QWidget* parent) : QWidget(parent), m_icon(new QLabel(this)), m_label(new QLabel(this)), m_line(new QFrame(this))
{
    QFont bold = m_label->font();
    bold.setBold(true);
    m_label->setFont(bold);
    m_line->setFrameShape(QFrame::HLine);
    m_line->setFrameShadow(QFrame::Sunken);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    place();
}

QString TWFHeading::text() const
{
    return m_label->text();
}

void TWFHeading::setText(const QString& text)
{
    m_label->setText(text);
    updateGeometry();
    place();
}

void TWFHeading::setIcon(const QPixmap& icon)
{
    m_icon->setPixmap(icon);
}

QString TWFHeading::labelName() const
{
    return m_label->objectName();
}

void TWFHeading::setLabelName(const QString& name)
{
    m_label->setObjectName(name);
}

QString TWFHeading::lineName() const
{
    return m_line->objectName();
}

void TWFHeading::setLineName(const QString& name)
{
    m_line->setObjectName(name);
}

QString TWFHeading::iconName() const
{
    return m_icon->objectName();
}

void TWFHeading::setIconName(const QString& name)
{
    m_icon->setObjectName(name);
}

QSize TWFHeading::sizeHint() const
{
    const QSize label = m_label->sizeHint();
    return {kLabelLeft + label.width() + kLineGap + kShortestLine + kRightMargin, std::max(kIconSize, label.height())};
}

QSize TWFHeading::minimumSizeHint() const
{
    return sizeHint();
}

void TWFHeading::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void TWFHeading::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        updateGeometry();
        place();
    }
}

void TWFHeading::place()
{
    // Placed by hand rather than by a layout, so that a caption set on a hidden page moves the
    // line at once.
    const QSize label = m_label->sizeHint();
    const int height = std::max(kIconSize, label.height());
    m_icon->setGeometry(kIconLeft, (height - kIconSize) / 2, kIconSize, kIconSize);
    m_label->setGeometry(kLabelLeft, (height - label.height()) / 2, label.width(), label.height());
    const int lineLeft = kLabelLeft + label.width() + kLineGap;
    m_line->setGeometry(lineLeft, height / 2 - 1, std::max(0, width() - kRightMargin - lineLeft), 2);
}
