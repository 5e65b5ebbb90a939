#include "pages/WFClearCaseMakeBaselineFromLabelFrame.h"
#include "ui_WFClearCaseMakeBaselineFromLabelFrame.h"

#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseMakeBaselineFromLabelFrame::TClearCaseMakeBaselineFromLabelFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeBaselineFromLabelFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->txtLabel, &TWFComboBox::dropDown, this, &TClearCaseMakeBaselineFromLabelFrame::txtLabelDropDown);
    connect(ui->txtVOB, &TWFComboBox::dropDown, this, &TClearCaseMakeBaselineFromLabelFrame::txtVOBDropDown);
}

TClearCaseMakeBaselineFromLabelFrame::~TClearCaseMakeBaselineFromLabelFrame() = default;

std::string TClearCaseMakeBaselineFromLabelFrame::PageName() const
{
    return "Components";
}

void TClearCaseMakeBaselineFromLabelFrame::ReadActionData(TCustomWFAction& action)
{
    auto& fromLabel = narrow<TClearCaseMakeBaselineFromLabelAction>(action);
    ui->ClearCaseViewContextSubFrame1->ReadActionData(fromLabel);
    ui->btnSpecifyComponents->setChecked(fromLabel.GetSpecifyComponents());
    ui->txtComponent->setPlainText(QString::fromStdString(fromLabel.GetComponentSelectorStorageString()).replace("\r\n", "\n"));
    ui->txtVOB->setCurrentText(QString::fromStdString(fromLabel.GetVOBSelector()));
    ui->txtLabel->setCurrentText(QString::fromStdString(fromLabel.GetLabelTypeName()));
}

void TClearCaseMakeBaselineFromLabelFrame::WriteActionData(TCustomWFAction& action)
{
    auto& fromLabel = narrow<TClearCaseMakeBaselineFromLabelAction>(action);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(fromLabel);
    fromLabel.SetSpecifyComponents(ui->btnSpecifyComponents->isChecked());
    fromLabel.SetComponentSelectorStorageString(ui->txtComponent->toPlainText().toStdString());
    fromLabel.SetVOBSelector(ui->txtVOB->currentText().toStdString());
    fromLabel.SetLabelTypeName(ui->txtLabel->currentText().toStdString());
}

void TClearCaseMakeBaselineFromLabelFrame::txtLabelDropDown()
{
    const QString vob = ui->txtVOB->currentText();
    if (!vob.isEmpty()) {
        TClearCaseLookUp lookUp(ui->txtLabel);
        ui->txtLabel->setItemsKeepingText(lookUp.lines(CCGetLabelNames(lookUp.expand(vob))));
    }
}

void TClearCaseMakeBaselineFromLabelFrame::txtVOBDropDown()
{
    // Every drop-down asks again: VOBs mounted since the page opened show up.
    ui->txtVOB->setItemsKeepingText(TClearCaseLookUp(ui->txtVOB).lines(CCGetVOBNames()));
}
