#pragma once

#include "DesignerIcons.h"

#include <QAbstractTableModel>

#include <vector>

class TDesignerDocument;

/// MIME types of the project list's drags: rows of the project, and a type ID from the catalogue.
inline constexpr const char* kActionRowsMime = "application/x-wrenfield-action-rows";
inline constexpr const char* kActionTypeMime = "application/x-wrenfield-action-type";

/// The project's actions as the main window lists them: action (icon, title, enabled check
/// box), whether it is valid, run status and elapsed time; then a heading row "When the build fails" and the
/// clean-up actions (rows as the document counts them). Edits go to the document as undoable
/// changes.
class TProjectModel final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { ActionColumn, ValidColumn, StatusColumn, TimeColumn, ColumnCount };

    explicit TProjectModel(TDesignerDocument& document, QObject* parent = nullptr);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;
    Qt::DropActions supportedDropActions() const override;
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column, const QModelIndex& parent) override;

    /// Run state of a row; cleared when the project changes.
    void setRunState(int row, TRunStatus status, double seconds = -1);
    TRunStatus runStatus(int row) const;
    void clearRunState();
    /// What validation found wrong with a row (empty: valid); cleared when the project changes.
    void setValidation(int row, const QStringList& errors);
    QStringList validation(int row) const;

signals:
    /// A catalogue entry dropped before a row: the window adds it through the action's dialog.
    void typeDropped(int row, const QString& typeId);
    /// A row moved by a drag, and where it is now.
    void rowDropped(int row);

private:
    void reset();
    QVariant headingData(const QModelIndex& index, int role) const;

    struct TRowState {
        TRunStatus status = TRunStatus::None;
        double seconds = -1;
        QStringList errors;
    };
    TDesignerDocument& m_document;
    std::vector<TRowState> m_run;
};
