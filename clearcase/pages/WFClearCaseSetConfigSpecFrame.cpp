#include "pages/WFClearCaseSetConfigSpecFrame.h"
#include "ui_WFClearCaseSetConfigSpecFrame.h"

#include "actions/WFClearCaseSetConfigSpecAction.h"
#include "pages/WFClearCasePageLook.h"
#include "WFBrowse.h"

#include <QFileInfo>

TClearCaseSetConfigSpecFrame::TClearCaseSetConfigSpecFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseSetConfigSpecFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image4);
    for (QRadioButton* button : {ui->btnCurrent, ui->btnDefault, ui->btnStream})
        connect(button, &QRadioButton::clicked, this, &TClearCaseSetConfigSpecFrame::btnNonFileClick);
    connect(ui->btnFile, &QRadioButton::clicked, this, &TClearCaseSetConfigSpecFrame::btnFileClick);
    connect(ui->txtSpecFileButton, &QToolButton::clicked, this, &TClearCaseSetConfigSpecFrame::txtSpecFileButtonClick);
}

TClearCaseSetConfigSpecFrame::~TClearCaseSetConfigSpecFrame() = default;

std::string TClearCaseSetConfigSpecFrame::PageName() const
{
    return "Options";
}

void TClearCaseSetConfigSpecFrame::ReadActionData(TCustomWFAction& action)
{
    auto& setcs = narrow<TClearCaseSetConfigSpecAction>(action);
    ui->ClearCaseViewContextSubFrame1->ReadActionData(setcs);
    switch (setcs.GetCSpecChoice()) {
    case csCurrent: ClearCaseSetChecked(ui->btnCurrent, true); break;
    case csDefault: ClearCaseSetChecked(ui->btnDefault, true); break;
    case csFile: ClearCaseSetChecked(ui->btnFile, true); break;
    case csStream: ClearCaseSetChecked(ui->btnStream, true); break;
    }
    ui->txtSpecFile->setText(QString::fromStdString(setcs.GetCSFilePath()));
    enableSpecFile(ui->btnFile->isChecked());
}

void TClearCaseSetConfigSpecFrame::WriteActionData(TCustomWFAction& action)
{
    auto& setcs = narrow<TClearCaseSetConfigSpecAction>(action);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(setcs);
    if (ui->btnCurrent->isChecked())
        setcs.SetCSpecChoice(csCurrent);
    else if (ui->btnDefault->isChecked())
        setcs.SetCSpecChoice(csDefault);
    else if (ui->btnFile->isChecked())
        setcs.SetCSpecChoice(csFile);
    else if (ui->btnStream->isChecked())
        setcs.SetCSpecChoice(csStream);
    setcs.SetCSFilePath(ui->txtSpecFile->text().toStdString());
}

void TClearCaseSetConfigSpecFrame::btnFileClick()
{
    enableSpecFile(true);
}

void TClearCaseSetConfigSpecFrame::btnNonFileClick()
{
    enableSpecFile(false);
}

void TClearCaseSetConfigSpecFrame::enableSpecFile(bool enabled)
{
    ui->txtSpecFile->setEnabled(enabled);
    ui->txtSpecFileButton->setEnabled(enabled);
}

void TClearCaseSetConfigSpecFrame::txtSpecFileButtonClick()
{
    const QString current = ui->txtSpecFile->text();
    TWFBrowseFileRequest request;
    request.title = "Select Config Spec File";
    request.filter = "*.*";
    request.fileName = current.toStdString();
    if (!current.isEmpty())
        request.initialDir = QFileInfo(current).path().toStdString();
    std::string chosen;
    if (WFBrowseForFile(request, chosen))
        ui->txtSpecFile->setText(QString::fromStdString(chosen));
}
