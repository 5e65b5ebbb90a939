#include "pages/WFClearCasePathListFrame.h"

#include "WFAction.h"
#include "WFHeading.h"

#include <QAbstractButton>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>

namespace {

/// Every action that shows these pages is named "ClearCase " and what it does.
constexpr qsizetype kActionNamePrefixLength = 10;

} // namespace

void TClearCasePathListFrame::bindPathList(TWFHeading* heading, QListWidget* list, QAbstractButton* add, QAbstractButton* edit,
                                           QAbstractButton* rem)
{
    m_heading = heading;
    m_list = list;
    m_edit = edit;
    m_remove = rem;
    // Clicks, double clicks and hovering land on the viewport, keys on the list box itself.
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    list->viewport()->setMouseTracking(true);
    connect(add, &QAbstractButton::clicked, this, [this] { addButtonClick(); });
    connect(edit, &QAbstractButton::clicked, this, [this] { editButtonClick(); });
    connect(rem, &QAbstractButton::clicked, this, [this] { remButtonClick(); });
}

void TClearCasePathListFrame::completeHeading(const TCustomWFAction& action)
{
    const QString name = QString::fromStdString(action.GetActionName());
    setHeading(m_heading->text() + name.mid(kActionNamePrefixLength).toLower());
}

void TClearCasePathListFrame::setHeading(const QString& caption)
{
    m_heading->setText(caption);
}

int TClearCasePathListFrame::selectedRow() const
{
    const QList<QListWidgetItem*> selected = m_list->selectedItems();
    return selected.isEmpty() ? -1 : m_list->row(selected.front());
}

void TClearCasePathListFrame::pathsListBoxMouseMove(const QPoint&) {}

void TClearCasePathListFrame::pathsListBoxResize() {}

void TClearCasePathListFrame::pathsListBoxClick()
{
    const bool enable = selectedRow() >= 0 && m_list->isEnabled();
    m_remove->setEnabled(enable);
    m_edit->setEnabled(enable);
}

void TClearCasePathListFrame::pathsListBoxDblClick()
{
    editButtonClick();
}

void TClearCasePathListFrame::pathsListBoxKeyDown(int key)
{
    if (selectedRow() < 0 || (key != Qt::Key_Delete && key != Qt::Key_Backspace))
        return;
    remButtonClick();
    pathsListBoxClick();
}

bool TClearCasePathListFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (m_list && watched == m_list->viewport()) {
        switch (event->type()) {
        case QEvent::MouseButtonRelease:
            pathsListBoxClick();
            break;
        case QEvent::MouseButtonDblClick:
            // The press before it has already selected the line under the mouse.
            pathsListBoxDblClick();
            break;
        case QEvent::MouseMove:
            pathsListBoxMouseMove(static_cast<QMouseEvent*>(event)->position().toPoint());
            break;
        default:
            break;
        }
    } else if (m_list && watched == m_list) {
        if (event->type() == QEvent::KeyPress)
            pathsListBoxKeyDown(static_cast<QKeyEvent*>(event)->key());
        else if (event->type() == QEvent::Resize)
            pathsListBoxResize();
        else if (event->type() == QEvent::KeyRelease)
            // Moving through the lines with the keys selects as a click does.
            pathsListBoxClick();
    }
    return TFrame::eventFilter(watched, event);
}
