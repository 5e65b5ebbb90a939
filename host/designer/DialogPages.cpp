#include "DialogPages.h"

#include <QDialog>
#include <QScreen>
#include <QSettings>

#include <utility>

TPageArea::TPageArea(QWidget* page, QWidget* parent) : QScrollArea(parent)
{
    setWidget(page);
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
}

QSize TPageArea::sizeHint() const
{
    const QMargins frame = contentsMargins();
    return widget()->sizeHint().grownBy(frame);
}

TDialogSize::TDialogSize(QDialog& dialog, QSettings& settings, QString key)
    : m_dialog(dialog), m_settings(settings), m_key(std::move(key))
{
    QSize stored = m_settings.value(m_key).toSize();
    if (!stored.isValid())
        return;
    if (const QScreen* screen = m_dialog.screen())
        stored = stored.boundedTo(screen->availableGeometry().size());
    m_dialog.resize(stored);
}

TDialogSize::~TDialogSize()
{
    m_settings.setValue(m_key, m_dialog.size());
}

QSize TDialogSize::fitted(const QDialog& dialog, QSize wanted)
{
    wanted = wanted.expandedTo(dialog.sizeHint());
    if (const QScreen* screen = dialog.screen())
        wanted = wanted.boundedTo(screen->availableGeometry().size());
    return wanted;
}
