#include "ProjectModel.h"

#include "DesignerDocument.h"

#include "WFAction.h"
#include "WFServices.h"

#include <QApplication>
#include <QColor>
#include <QDataStream>
#include <QFont>
#include <QIODevice>
#include <QMimeData>
#include <QStyle>

namespace {

QString displayNameOf(const TCustomWFAction& action)
{
    const auto* entry = WFActionServices().Find(action.GetActionTypeID());
    return QString::fromStdString(entry ? entry->displayName : action.GetActionName());
}

} // namespace

TProjectModel::TProjectModel(TDesignerDocument& document, QObject* parent) : QAbstractTableModel(parent), m_document(document)
{
    connect(&m_document, &TDesignerDocument::projectChanged, this, &TProjectModel::reset);
    m_run.resize(static_cast<std::size_t>(m_document.rowCount()));
}

void TProjectModel::reset()
{
    beginResetModel();
    m_run.assign(static_cast<std::size_t>(m_document.rowCount()), TRowState{});
    endResetModel();
}

int TProjectModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_document.rowCount();
}

int TProjectModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant TProjectModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const TCustomWFAction* found = m_document.actionAt(index.row());
    if (!found)
        return headingData(index, role);
    const TCustomWFAction& action = *found;
    const TRowState& run = m_run[index.row()];
    switch (index.column()) {
    case ActionColumn:
        switch (role) {
        case Qt::DisplayRole: {
            const QString description = QString::fromStdString(action.GetDescription());
            return description.isEmpty() ? displayNameOf(action) : description;
        }
        case Qt::ToolTipRole:
            return displayNameOf(action) + " (" + QString::fromStdString(action.GetActionTypeID()) + ")";
        case Qt::DecorationRole:
            return packageIcon(action.GetActionTypeID());
        case Qt::CheckStateRole:
            return action.GetEnabled() ? Qt::Checked : Qt::Unchecked;
        case Qt::ForegroundRole:
            return action.GetEnabled() ? QVariant() : QVariant(QColor(Qt::gray));
        default:
            return {};
        }
    case ValidColumn:
        if (run.errors.isEmpty())
            return {};
        if (role == Qt::DecorationRole)
            return QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning);
        if (role == Qt::ToolTipRole)
            return run.errors.join('\n');
        if (role == Qt::AccessibleTextRole)
            return tr("Not valid");
        return {};
    case StatusColumn:
        if (role == Qt::DisplayRole)
            return statusText(run.status);
        if (role == Qt::DecorationRole)
            return statusIcon(run.status);
        return {};
    case TimeColumn:
        if (role == Qt::DisplayRole && run.seconds >= 0)
            return QString::number(run.seconds, 'f', run.seconds < 10 ? 2 : 1) + " s";
        if (role == Qt::TextAlignmentRole)
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return {};
    default:
        return {};
    }
}

QVariant TProjectModel::headingData(const QModelIndex& index, int role) const
{
    if (index.column() != ActionColumn)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return tr("When the build fails");
    case Qt::ToolTipRole:
        return tr("Clean-up actions: they run, in order, when the build fails or is stopped");
    case Qt::FontRole: {
        QFont font;
        font.setBold(true);
        return font;
    }
    default:
        return {};
    }
}

bool TProjectModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || index.column() != ActionColumn || role != Qt::CheckStateRole || !m_document.actionAt(index.row()))
        return false;
    m_document.setEnabled({index.row()}, value.toInt() == Qt::Checked);
    return true;
}

QVariant TProjectModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case ActionColumn:
        return tr("Action");
    case ValidColumn:
        return tr("Valid");
    case StatusColumn:
        return tr("Status");
    case TimeColumn:
        return tr("Time");
    default:
        return {};
    }
}

Qt::ItemFlags TProjectModel::flags(const QModelIndex& index) const
{
    if (!index.isValid())
        return Qt::ItemIsDropEnabled;
    // The heading can take the selection (to add or paste at the start of its section) and
    // drops, but is neither dragged nor switched off.
    if (!m_document.actionAt(index.row()))
        return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDropEnabled;
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled;
    if (index.column() == ActionColumn)
        flags |= Qt::ItemIsUserCheckable;
    return flags;
}

QStringList TProjectModel::mimeTypes() const
{
    return {kActionRowsMime, kActionTypeMime};
}

QMimeData* TProjectModel::mimeData(const QModelIndexList& indexes) const
{
    QList<int> rows;
    for (const auto& index : indexes)
        if (!rows.contains(index.row()) && m_document.actionAt(index.row()))
            rows << index.row();
    auto* data = new QMimeData;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << rows;
    data->setData(kActionRowsMime, bytes);
    return data;
}

Qt::DropActions TProjectModel::supportedDropActions() const
{
    // Copy: the view must not remove the dragged rows itself; the move is one undoable change.
    return Qt::CopyAction | Qt::MoveAction;
}

bool TProjectModel::dropMimeData(const QMimeData* data, Qt::DropAction, int row, int, const QModelIndex& parent)
{
    if (row < 0) {
        row = parent.isValid() ? parent.row() : rowCount();
        // Dropped onto the heading: at the start of its section.
        if (parent.isValid() && parent.row() == m_document.cleanupHeadingRow())
            ++row;
    }
    if (data->hasFormat(kActionTypeMime)) {
        // Queued: the dialog the window opens must not run inside the view's drag loop.
        QMetaObject::invokeMethod(this, [this, row, typeId = QString::fromUtf8(data->data(kActionTypeMime))] {
            emit typeDropped(row, typeId);
        }, Qt::QueuedConnection);
        return false;
    }
    if (data->hasFormat(kActionRowsMime)) {
        QList<int> rows;
        QByteArray bytes = data->data(kActionRowsMime);
        QDataStream stream(&bytes, QIODevice::ReadOnly);
        stream >> rows;
        if (rows.size() == 1) {
            const int from = rows.first();
            const int to = row > from ? row - 1 : row;
            m_document.moveAction(from, to);
            emit rowDropped(to);
        }
    }
    // The change is made; false keeps the view from removing the source rows as for a move.
    return false;
}

void TProjectModel::setRunState(int row, TRunStatus status, double seconds)
{
    if (row < 0 || static_cast<std::size_t>(row) >= m_run.size())
        return;
    m_run[row].status = status;
    m_run[row].seconds = seconds;
    emit dataChanged(index(row, StatusColumn), index(row, TimeColumn));
}

TRunStatus TProjectModel::runStatus(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_run.size() ? m_run[row].status : TRunStatus::None;
}

void TProjectModel::setValidation(int row, const QStringList& errors)
{
    if (row < 0 || static_cast<std::size_t>(row) >= m_run.size() || m_run[row].errors == errors)
        return;
    m_run[row].errors = errors;
    emit dataChanged(index(row, ValidColumn), index(row, ValidColumn));
}

QStringList TProjectModel::validation(int row) const
{
    return row >= 0 && static_cast<std::size_t>(row) < m_run.size() ? m_run[row].errors : QStringList();
}

void TProjectModel::clearRunState()
{
    for (auto& run : m_run) {
        run.status = TRunStatus::None;
        run.seconds = -1;
    }
    if (!m_run.empty())
        emit dataChanged(index(0, StatusColumn), index(rowCount() - 1, TimeColumn));
}
