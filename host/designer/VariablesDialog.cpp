#include "VariablesDialog.h"

#include "WFVariables.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QPushButton>
#include <QSet>
#include <QTableWidget>
#include <QVBoxLayout>

namespace {

const QStringList kTypes = {"string", "integer", "boolean"};

} // namespace

TVariablesDialog::TVariablesDialog(const std::vector<TWFProjectVariable>& variables, QWidget* parent)
    : QDialog(parent), m_table(new QTableWidget(0, 3, this))
{
    setObjectName("variablesDialog");
    setWindowTitle(tr("Build Variables"));
    m_table->setObjectName("variablesTable");
    m_table->setHorizontalHeaderLabels({tr("Name"), tr("Type"), tr("Value")});
    m_table->horizontalHeader()->setStretchLastSection(true);
    m_table->verticalHeader()->hide();
    m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
    for (const auto& variable : variables)
        addRow(variable);

    auto* add = new QPushButton(tr("&Add"));
    add->setObjectName("btnAddVariable");
    auto* remove = new QPushButton(tr("&Remove"));
    remove->setObjectName("btnRemoveVariable");
    connect(add, &QPushButton::clicked, this, [this] {
        addRow({});
        m_table->setCurrentCell(m_table->rowCount() - 1, 0);
        m_table->editItem(m_table->item(m_table->rowCount() - 1, 0));
    });
    connect(remove, &QPushButton::clicked, this, [this] {
        if (m_table->currentRow() >= 0)
            m_table->removeRow(m_table->currentRow());
    });
    auto* side = new QVBoxLayout;
    side->addWidget(add);
    side->addWidget(remove);
    side->addStretch();
    auto* body = new QHBoxLayout;
    body->addWidget(m_table, 1);
    body->addLayout(side);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &TVariablesDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TVariablesDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(body, 1);
    layout->addWidget(buttons);
    resize(560, 320);
}

void TVariablesDialog::addRow(const TWFProjectVariable& variable)
{
    const int row = m_table->rowCount();
    m_table->insertRow(row);
    m_table->setItem(row, 0, new QTableWidgetItem(QString::fromStdString(variable.name)));
    auto* type = new QComboBox;
    type->addItems(kTypes);
    type->setCurrentText(QString::fromStdString(variable.type));
    m_table->setCellWidget(row, 1, type);
    m_table->setItem(row, 2, new QTableWidgetItem(QString::fromStdString(variable.value)));
}

std::vector<TWFProjectVariable> TVariablesDialog::variables() const
{
    std::vector<TWFProjectVariable> result;
    for (int row = 0; row < m_table->rowCount(); ++row) {
        TWFProjectVariable variable;
        variable.name = m_table->item(row, 0) ? m_table->item(row, 0)->text().trimmed().toStdString() : std::string();
        variable.type = static_cast<QComboBox*>(m_table->cellWidget(row, 1))->currentText().toStdString();
        variable.value = m_table->item(row, 2) ? m_table->item(row, 2)->text().toStdString() : std::string();
        result.push_back(std::move(variable));
    }
    return result;
}

QString TVariablesDialog::problemOf(const std::vector<TWFProjectVariable>& variables)
{
    QSet<QString> seen;
    for (std::size_t i = 0; i < variables.size(); ++i) {
        const auto& variable = variables[i];
        const QString name = QString::fromStdString(variable.name);
        const QString row = tr("Row %1").arg(i + 1);
        if (const std::string problem = variableNameProblem(variable.name); !problem.empty())
            return tr("%1: %2.").arg(row, QString::fromStdString(problem));
        if (seen.contains(name.toUpper()))
            return tr("%1: \"%2\" is defined twice.").arg(row, name);
        seen.insert(name.toUpper());
        const QString value = QString::fromStdString(variable.value);
        bool ok = true;
        if (variable.type == "integer")
            value.toLongLong(&ok);
        else if (variable.type == "boolean")
            ok = value.compare("True", Qt::CaseInsensitive) == 0 || value.compare("False", Qt::CaseInsensitive) == 0;
        if (!ok)
            return tr("%1: \"%2\" is no %3 value.").arg(row, value, QString::fromStdString(variable.type));
    }
    return {};
}

void TVariablesDialog::accept()
{
    if (const QString problem = problemOf(variables()); !problem.isEmpty()) {
        QMessageBox::warning(this, tr("Build Variables"), problem);
        return;
    }
    QDialog::accept();
}
