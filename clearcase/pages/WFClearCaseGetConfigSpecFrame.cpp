#include "pages/WFClearCaseGetConfigSpecFrame.h"
#include "ui_WFClearCaseGetConfigSpecFrame.h"

#include "actions/WFClearCaseGetConfigSpecAction.h"
#include "WFBrowse.h"

#include <QFileInfo>

TClearCaseGetConfigSpecFrame::TClearCaseGetConfigSpecFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseGetConfigSpecFrame>())
{
    ui->setupUi(this);
    connect(ui->boxUseFile, &QCheckBox::clicked, this, &TClearCaseGetConfigSpecFrame::boxUseFileClick);
    connect(ui->txtFilePathButton, &QToolButton::clicked, this, &TClearCaseGetConfigSpecFrame::txtFilePathButtonClick);
}

TClearCaseGetConfigSpecFrame::~TClearCaseGetConfigSpecFrame() = default;

std::string TClearCaseGetConfigSpecFrame::PageName() const
{
    return "Options";
}

void TClearCaseGetConfigSpecFrame::ReadActionData(TCustomWFAction& action)
{
    auto& catcs = narrow<TClearCaseGetConfigSpecAction>(action);
    ui->ClearCaseViewContextSubFrame1->ReadActionData(catcs);
    ui->boxUseFile->setChecked(catcs.GetOutputToFile());
    boxUseFileClick();
    ui->txtFilePath->setText(QString::fromStdString(catcs.GetOutputFilePath()));
}

void TClearCaseGetConfigSpecFrame::WriteActionData(TCustomWFAction& action)
{
    auto& catcs = narrow<TClearCaseGetConfigSpecAction>(action);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(catcs);
    catcs.SetOutputToFile(ui->boxUseFile->isChecked());
    catcs.SetOutputFilePath(ui->txtFilePath->text().toStdString());
}

void TClearCaseGetConfigSpecFrame::boxUseFileClick()
{
    ui->txtFilePath->setEnabled(ui->boxUseFile->isChecked());
    ui->txtFilePathButton->setEnabled(ui->boxUseFile->isChecked());
}

void TClearCaseGetConfigSpecFrame::txtFilePathButtonClick()
{
    const QString current = ui->txtFilePath->text();
    TWFBrowseFileRequest request;
    request.title = "Save Config Spec As";
    request.filter = "Text Files (*.txt)|*.TXT|All Files (*.*)|*.*";
    request.save = true;
    request.mustExist = false;
    if (current.isEmpty()) {
        request.fileName = "config_spec.txt";
    } else {
        request.initialDir = QFileInfo(current).path().toStdString();
        request.fileName = current.toStdString();
    }
    std::string chosen;
    if (WFBrowseForFile(request, chosen))
        ui->txtFilePath->setText(QString::fromStdString(chosen));
}
