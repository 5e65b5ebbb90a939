#include "pages/WFClearCaseApplyLabelFrame.h"
#include "ui_WFClearCaseApplyLabelFrame.h"

#include "actions/WFClearCaseApplyLabelAction.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseApplyLabelFrame::TClearCaseApplyLabelFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseApplyLabelFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->boxUseVersionSelector, &QCheckBox::clicked, this, &TClearCaseApplyLabelFrame::boxUseVersionSelectorClick);
    connect(ui->txtVOBSelector, &TWFComboBox::dropDown, this, &TClearCaseApplyLabelFrame::txtVOBSelectorDropDown);
    connect(ui->txtLabelName, &TWFComboBox::dropDown, this, &TClearCaseApplyLabelFrame::txtLabelNameDropDown);
}

TClearCaseApplyLabelFrame::~TClearCaseApplyLabelFrame() = default;

std::string TClearCaseApplyLabelFrame::PageName() const
{
    return "Options";
}

void TClearCaseApplyLabelFrame::ReadActionData(TCustomWFAction& action)
{
    auto& label = narrow<TClearCaseApplyLabelAction>(action);
    ui->txtVOBSelector->setEditText(QString::fromStdString(label.GetVOBSelector()));
    ui->txtLabelName->setEditText(QString::fromStdString(label.GetLabelTypeName()));
    ui->boxUseVersionSelector->setChecked(label.GetUseVersionSelector());
    ui->txtVersionSelector->setText(QString::fromStdString(label.GetVersionSelector()));
    ui->txtVersionSelector->setEnabled(ui->boxUseVersionSelector->isChecked());
    ui->boxReplace->setChecked(label.GetReplace());
    ui->boxRecurse->setChecked(label.GetRecurse());
    ui->boxFollow->setChecked(label.GetFollowLinks());
}

void TClearCaseApplyLabelFrame::WriteActionData(TCustomWFAction& action)
{
    auto& label = narrow<TClearCaseApplyLabelAction>(action);
    label.SetVOBSelector(ui->txtVOBSelector->currentText().toStdString());
    label.SetLabelTypeName(ui->txtLabelName->currentText().toStdString());
    label.SetUseVersionSelector(ui->boxUseVersionSelector->isChecked());
    label.SetVersionSelector(ui->txtVersionSelector->text().toStdString());
    label.SetReplace(ui->boxReplace->isChecked());
    label.SetRecurse(ui->boxRecurse->isChecked());
    label.SetFollowLinks(ui->boxFollow->isChecked());
}

void TClearCaseApplyLabelFrame::boxUseVersionSelectorClick()
{
    ui->txtVersionSelector->setEnabled(ui->boxUseVersionSelector->isChecked());
}

void TClearCaseApplyLabelFrame::txtVOBSelectorDropDown()
{
    ClearCaseFillVOBListOnce(ui->txtVOBSelector);
}

void TClearCaseApplyLabelFrame::txtLabelNameDropDown()
{
    // The labels belong to the VOB typed now, which may have changed since the last drop-down.
    TClearCaseLookUp lookUp(ui->txtLabelName);
    ui->txtLabelName->setItemsKeepingText(lookUp.lines(CCGetLabelNames(lookUp.expand(ui->txtVOBSelector->currentText()))));
}
