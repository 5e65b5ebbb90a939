#include "pages/WFClearCaseApplyAttributeFrame.h"
#include "ui_WFClearCaseApplyAttributeFrame.h"

#include "actions/WFClearCaseBaseAttributeAction.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

#include <QTimer>

TClearCaseApplyAttributeFrame::TClearCaseApplyAttributeFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseApplyAttributeFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    // Waits for a pause in typing, so that cleartool is not asked once per letter.
    m_timer1 = new QTimer(this);
    m_timer1->setObjectName("Timer1");
    m_timer1->setInterval(400);
    connect(m_timer1, &QTimer::timeout, this, &TClearCaseApplyAttributeFrame::Timer1Timer);
    connect(ui->boxUseDefault, &QCheckBox::clicked, this, &TClearCaseApplyAttributeFrame::boxUseDefaultClick);
    connect(ui->txtVOBSelector, &TWFComboBox::dropDown, this, &TClearCaseApplyAttributeFrame::txtVOBSelectorDropDown);
    connect(ui->txtAttrName, &TWFComboBox::dropDown, this, &TClearCaseApplyAttributeFrame::txtAttrNameDropDown);
    connect(ui->txtVOBSelector, &QComboBox::editTextChanged, this, &TClearCaseApplyAttributeFrame::txtAttrNameChange);
    connect(ui->txtAttrName, &QComboBox::editTextChanged, this, &TClearCaseApplyAttributeFrame::txtAttrNameChange);
}

TClearCaseApplyAttributeFrame::~TClearCaseApplyAttributeFrame() = default;

std::string TClearCaseApplyAttributeFrame::PageName() const
{
    return "Attribute";
}

void TClearCaseApplyAttributeFrame::ReadActionData(TCustomWFAction& action)
{
    auto& attribute = narrow<TClearCaseBaseAttributeAction>(action);
    ui->txtVOBSelector->setEditText(QString::fromStdString(attribute.GetVOBSelector()));
    ui->txtAttrName->setEditText(QString::fromStdString(attribute.GetAttributeName()));
    ui->txtValue->setText(QString::fromStdString(attribute.GetAttributeValue()));
    ui->boxUseDefault->setChecked(attribute.GetUseDefaultAttributeValue());
    ui->txtValue->setEnabled(ui->boxUseDefault->isEnabled() ? !ui->boxUseDefault->isChecked() : true);
    Timer1Timer();
}

void TClearCaseApplyAttributeFrame::WriteActionData(TCustomWFAction& action)
{
    auto& attribute = narrow<TClearCaseBaseAttributeAction>(action);
    attribute.SetVOBSelector(ui->txtVOBSelector->currentText().toStdString());
    attribute.SetAttributeName(ui->txtAttrName->currentText().toStdString());
    attribute.SetAttributeValue(ui->txtValue->text().toStdString());
    attribute.SetUseDefaultAttributeValue(ui->boxUseDefault->isChecked());
}

void TClearCaseApplyAttributeFrame::boxUseDefaultClick()
{
    ui->txtValue->setEnabled(!ui->boxUseDefault->isChecked());
}

void TClearCaseApplyAttributeFrame::txtVOBSelectorDropDown()
{
    ClearCaseFillVOBListOnce(ui->txtVOBSelector);
}

void TClearCaseApplyAttributeFrame::txtAttrNameDropDown()
{
    ClearCaseFillTypeList(ui->txtAttrName, "attype", ui->txtVOBSelector->currentText());
}

void TClearCaseApplyAttributeFrame::txtAttrNameChange()
{
    m_timer1->stop();
    m_timer1->start();
}

void TClearCaseApplyAttributeFrame::Timer1Timer()
{
    m_timer1->stop();
    const QString name = ui->txtAttrName->currentText();
    const QString vob = ui->txtVOBSelector->currentText();
    QString type;
    if (!name.isEmpty() && !vob.isEmpty())
        type = QString::fromStdString(CCGetAttributeType(TClearCaseLookUp(ui->txtVOBSelector).expand(name + "@" + vob)));
    if (!type.isEmpty())
        ui->lblType->setText("(Type: " + type.left(1).toUpper() + type.mid(1) + ")");
    else
        ui->lblType->clear();
    const QString shown = ui->lblType->text();
    ui->boxUseDefault->setEnabled(shown.isEmpty() || shown.contains("default value:"));
}
