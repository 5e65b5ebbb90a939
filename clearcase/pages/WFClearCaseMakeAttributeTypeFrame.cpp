#include "pages/WFClearCaseMakeAttributeTypeFrame.h"
#include "ui_WFClearCaseMakeAttributeTypeFrame.h"

#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseMakeAttributeTypeFrame::TClearCaseMakeAttributeTypeFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeAttributeTypeFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    ui->minDateFrame->hide();
    ui->maxDateFrame->hide();
    ui->txtDefaultValue->SetShowButton(false);
    connect(ui->txtVOBSelector, &TWFComboBox::dropDown, this, &TClearCaseMakeAttributeTypeFrame::txtVOBSelectorDropDown);
    connect(ui->txtAttrName, &TWFComboBox::dropDown, this, &TClearCaseMakeAttributeTypeFrame::txtAttrNameDropDown);
    connect(ui->cmbValueType, &QComboBox::currentIndexChanged, this, &TClearCaseMakeAttributeTypeFrame::cmbValueTypeChange);
    for (QCheckBox* box : {ui->boxUseMin, ui->boxUseMax, ui->boxUseDefaultValue})
        connect(box, &QCheckBox::toggled, this, &TClearCaseMakeAttributeTypeFrame::UpdateEnabled);
    UpdateEnabled();
}

TClearCaseMakeAttributeTypeFrame::~TClearCaseMakeAttributeTypeFrame() = default;

std::string TClearCaseMakeAttributeTypeFrame::PageName() const
{
    return "New Type";
}

void TClearCaseMakeAttributeTypeFrame::ReadActionData(TCustomWFAction& action)
{
    auto& type = narrow<TClearCaseMakeAttributeTypeAction>(action);
    ui->txtAttrName->setEditText(QString::fromStdString(type.GetAttributeName()));
    ui->txtVOBSelector->setEditText(QString::fromStdString(type.GetVOBSelector()));
    // Both edits of a bound hold its text, so switching the type shows it either way.
    const QString minValue = QString::fromStdString(type.GetMinValue());
    const QString maxValue = QString::fromStdString(type.GetMaxValue());
    ui->txtMinValue->setText(minValue);
    ui->minDateFrame->SetDateString(minValue.toStdString());
    ui->txtMaxValue->setText(maxValue);
    ui->maxDateFrame->SetDateString(maxValue.toStdString());
    ui->cmbValueType->setCurrentIndex(type.GetNewAttributeType());
    ui->boxUseMin->setChecked(type.GetUseMin());
    ui->boxMinInclusive->setChecked(type.GetMinInclusive());
    ui->boxUseMax->setChecked(type.GetUseMax());
    ui->boxMaxInclusive->setChecked(type.GetMaxInclusive());
    ui->boxUseDefaultValue->setChecked(type.GetUseDefaultValue());
    ui->txtDefaultValue->SetDateString(type.GetDefaultValue());
    UpdateEnabled();
}

void TClearCaseMakeAttributeTypeFrame::WriteActionData(TCustomWFAction& action)
{
    auto& type = narrow<TClearCaseMakeAttributeTypeAction>(action);
    type.SetAttributeName(ui->txtAttrName->currentText().toStdString());
    type.SetVOBSelector(ui->txtVOBSelector->currentText().toStdString());
    if (ui->cmbValueType->currentIndex() >= 0)
        type.SetNewAttributeType(static_cast<TClearCaseAttributeType>(ui->cmbValueType->currentIndex()));
    // The bound values themselves are not written back.
    type.SetUseMin(ui->boxUseMin->isChecked());
    type.SetMinInclusive(ui->boxMinInclusive->isChecked());
    type.SetUseMax(ui->boxUseMax->isChecked());
    type.SetMaxInclusive(ui->boxMaxInclusive->isChecked());
    type.SetUseDefaultValue(ui->boxUseDefaultValue->isChecked());
    type.SetDefaultValue(ui->txtDefaultValue->GetDateString());
}

void TClearCaseMakeAttributeTypeFrame::txtVOBSelectorDropDown()
{
    ClearCaseFillVOBListOnce(ui->txtVOBSelector);
}

void TClearCaseMakeAttributeTypeFrame::txtAttrNameDropDown()
{
    ClearCaseFillTypeList(ui->txtAttrName, "attype", ui->txtVOBSelector->currentText());
}

void TClearCaseMakeAttributeTypeFrame::cmbValueTypeChange()
{
    const bool date = ui->cmbValueType->currentIndex() == atDate;
    if (date != m_dateShown) {
        if (date) {
            ui->minDateFrame->SetDateString(ui->txtMinValue->text().toStdString());
            ui->maxDateFrame->SetDateString(ui->txtMaxValue->text().toStdString());
        } else {
            ui->txtMinValue->setText(QString::fromStdString(ui->minDateFrame->GetDateString()));
            ui->txtMaxValue->setText(QString::fromStdString(ui->maxDateFrame->GetDateString()));
        }
        m_dateShown = date;
    }
    ui->txtMinValue->setVisible(!date);
    ui->txtMaxValue->setVisible(!date);
    ui->minDateFrame->setVisible(date);
    ui->maxDateFrame->setVisible(date);
    ui->txtDefaultValue->SetShowButton(date);
    UpdateEnabled();
}

void TClearCaseMakeAttributeTypeFrame::UpdateEnabled()
{
    const int valueType = ui->cmbValueType->currentIndex();
    const bool ranged = valueType == atInteger || valueType == atReal || valueType == atDate;
    ui->boxUseMin->setEnabled(ranged);
    ui->boxUseMax->setEnabled(ranged);
    const bool useMin = ranged && ui->boxUseMin->isChecked();
    const bool useMax = ranged && ui->boxUseMax->isChecked();
    ui->txtMinValue->setEnabled(useMin);
    ui->minDateFrame->SetEnabled(useMin);
    ui->boxMinInclusive->setEnabled(useMin);
    ui->txtMaxValue->setEnabled(useMax);
    ui->maxDateFrame->SetEnabled(useMax);
    ui->boxMaxInclusive->setEnabled(useMax);
    ui->txtDefaultValue->SetEnabled(ui->boxUseDefaultValue->isChecked());
}
