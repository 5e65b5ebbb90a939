#include "pages/WFClearCaseEditViewPathForm.h"
#include "ui_WFClearCaseEditViewPathForm.h"

#include "WFBrowse.h"

#include <QFileInfo>

TClearCaseEditViewPathForm::TClearCaseEditViewPathForm(QWidget* parent)
    : QDialog(parent), ui(std::make_unique<Ui::TClearCaseEditViewPathForm>())
{
    ui->setupUi(this);
    connect(ui->btnOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(ui->btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->txtExternalPathButton, &QToolButton::clicked, this, &TClearCaseEditViewPathForm::txtExternalPathButtonClick);
}

TClearCaseEditViewPathForm::~TClearCaseEditViewPathForm() = default;

void TClearCaseEditViewPathForm::SetPathName(const std::string& path)
{
    const QString text = QString::fromStdString(path);
    ui->txtExternalPath->setText(text);
    const QFileInfo info(text);
    m_isDirectory = !text.isEmpty() && info.isDir();
    ui->txtExternalPathButton->setVisible(!text.isEmpty() && info.exists() && (info.isDir() || info.isFile()));
}

std::string TClearCaseEditViewPathForm::GetPathName() const
{
    return ui->txtExternalPath->text().toStdString();
}

void TClearCaseEditViewPathForm::txtExternalPathButtonClick()
{
    const std::string current = GetPathName();
    std::string chosen;
    if (m_isDirectory) {
        if (!WFBrowseForDirectory(current, chosen, "Select View or Component"))
            return;
    } else {
        TWFBrowseFileRequest request;
        request.title = "Select File";
        request.filter = "*.*";
        request.initialDir = current;
        if (!WFBrowseForFile(request, chosen))
            return;
    }
    ui->txtExternalPath->setText(QString::fromStdString(chosen));
}
