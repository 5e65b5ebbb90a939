#include "pages/WFClearCaseMakeActivityFrame.h"
#include "ui_WFClearCaseMakeActivityFrame.h"

#include "actions/WFClearCaseMakeActivityAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseMakeActivityFrame::TClearCaseMakeActivityFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeActivityFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->txtVOBSelector, &TWFComboBox::dropDown, this, &TClearCaseMakeActivityFrame::txtVOBSelectorDropDown);
}

TClearCaseMakeActivityFrame::~TClearCaseMakeActivityFrame() = default;

std::string TClearCaseMakeActivityFrame::PageName() const
{
    return "Activity";
}

void TClearCaseMakeActivityFrame::ReadActionData(TCustomWFAction& action)
{
    auto& make = narrow<TClearCaseMakeActivityAction>(action);
    ui->ClearCaseViewContextSubFrame1->ReadActionData(make);
    ClearCaseSetChecked(ui->btnGenerateName, make.GetAutoGenerateName());
    ClearCaseSetChecked(ui->btnCustomName, !ui->btnGenerateName->isChecked());
    ui->txtActivityName->setCurrentText(QString::fromStdString(make.GetActivityName()));
    ui->txtVOBSelector->setCurrentText(QString::fromStdString(make.GetVOBSelector()));
    ui->txtHeadline->setText(QString::fromStdString(make.GetHeadline()));
    ui->boxNSet->setChecked(make.GetDontSetAsCurrent());
}

void TClearCaseMakeActivityFrame::WriteActionData(TCustomWFAction& action)
{
    auto& make = narrow<TClearCaseMakeActivityAction>(action);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(make);
    make.SetAutoGenerateName(ui->btnGenerateName->isChecked());
    make.SetActivityName(ui->txtActivityName->currentText().toStdString());
    make.SetVOBSelector(ui->txtVOBSelector->currentText().toStdString());
    make.SetHeadline(ui->txtHeadline->text().toStdString());
    make.SetDontSetAsCurrent(ui->boxNSet->isChecked());
}

void TClearCaseMakeActivityFrame::txtVOBSelectorDropDown()
{
    ClearCaseFillVOBListOnce(ui->txtVOBSelector);
}
