#pragma once

#include "WFProject.h"

#include <QDialog>

#include <vector>

class QTableWidget;

/// Edits the project's build variables: name, type and starting value.
class TVariablesDialog final : public QDialog {
    Q_OBJECT
public:
    TVariablesDialog(const std::vector<TWFProjectVariable>& variables, QWidget* parent = nullptr);

    std::vector<TWFProjectVariable> variables() const;
    QTableWidget* table() const { return m_table; }
    void addRow(const TWFProjectVariable& variable);
    void accept() override;

    /// Why the variables cannot be kept (a row that is empty, twice or of a bad value); empty when they can.
    static QString problemOf(const std::vector<TWFProjectVariable>& variables);

private:
    QTableWidget* m_table;
};
