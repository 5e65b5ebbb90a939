#include "pages/WFClearCaseMkLbTypeFrame.h"
#include "ui_WFClearCaseMkLbTypeFrame.h"

#include "actions/WFClearCaseMkLbTypeAction.h"
#include "pages/WFClearCasePageLook.h"

#include <QValidator>

namespace {

/// Turns whatever is typed into capitals.
class TUpperCaseValidator : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& input, int&) const override
    {
        input = input.toUpper();
        return Acceptable;
    }
};

} // namespace

TClearCaseMkLbTypeFrame::TClearCaseMkLbTypeFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMkLbTypeFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    m_upperCase = new TUpperCaseValidator(this);
    setUpperCaseEntry(ui->boxUpperCase->isChecked());
    connect(ui->btnGlobal, &QRadioButton::clicked, this, &TClearCaseMkLbTypeFrame::btnGlobalClick);
    connect(ui->btnOrdinary, &QRadioButton::clicked, this, &TClearCaseMkLbTypeFrame::btnOrdinaryClick);
    connect(ui->boxUpperCase, &QCheckBox::clicked, this, &TClearCaseMkLbTypeFrame::boxUpperCaseClick);
    connect(ui->txtVOBSelector, &TWFComboBox::dropDown, this, &TClearCaseMkLbTypeFrame::txtVOBSelectorDropDown);
}

TClearCaseMkLbTypeFrame::~TClearCaseMkLbTypeFrame() = default;

std::string TClearCaseMkLbTypeFrame::PageName() const
{
    return "Options";
}

void TClearCaseMkLbTypeFrame::ReadActionData(TCustomWFAction& action)
{
    auto& mklbtype = narrow<TClearCaseMkLbTypeAction>(action);
    const QString name = QString::fromStdString(mklbtype.GetLabelTypeName());
    if (name != name.toUpper()) {
        setUpperCaseEntry(false);
        ui->boxUpperCase->setChecked(false);
    }
    ui->txtLabelSelector->setText(name);
    ui->txtVOBSelector->setEditText(QString::fromStdString(mklbtype.GetVOBSelector()));
    ClearCaseSetChecked(ui->btnGlobal, mklbtype.GetMakeGlobal());
    ClearCaseSetChecked(ui->btnOrdinary, !ui->btnGlobal->isChecked());
    ui->boxAcquire->setEnabled(ui->btnGlobal->isChecked());
    ui->boxAcquire->setChecked(mklbtype.GetAcquire());
    ui->boxReplace->setChecked(mklbtype.GetReplace());
    ui->boxShared->setChecked(mklbtype.GetShared());
    ClearCaseSetChecked(ui->btnPBranch, mklbtype.GetPBranch());
    ClearCaseSetChecked(ui->btnNoPbranch, !ui->btnPBranch->isChecked());
}

void TClearCaseMkLbTypeFrame::WriteActionData(TCustomWFAction& action)
{
    auto& mklbtype = narrow<TClearCaseMkLbTypeAction>(action);
    mklbtype.SetLabelTypeName(ui->txtLabelSelector->text().toStdString());
    mklbtype.SetVOBSelector(ui->txtVOBSelector->currentText().toStdString());
    mklbtype.SetMakeGlobal(ui->btnGlobal->isChecked());
    mklbtype.SetAcquire(ui->boxAcquire->isChecked());
    mklbtype.SetReplace(ui->boxReplace->isChecked());
    mklbtype.SetShared(ui->boxShared->isChecked());
    mklbtype.SetPBranch(ui->btnPBranch->isChecked());
}

void TClearCaseMkLbTypeFrame::btnGlobalClick()
{
    ui->boxAcquire->setEnabled(ui->btnGlobal->isChecked());
}

void TClearCaseMkLbTypeFrame::btnOrdinaryClick()
{
    ui->boxAcquire->setEnabled(ui->btnGlobal->isChecked());
}

void TClearCaseMkLbTypeFrame::boxUpperCaseClick()
{
    setUpperCaseEntry(ui->boxUpperCase->isChecked());
}

void TClearCaseMkLbTypeFrame::txtVOBSelectorDropDown()
{
    ClearCaseFillVOBListOnce(ui->txtVOBSelector);
}

void TClearCaseMkLbTypeFrame::setUpperCaseEntry(bool upperCase)
{
    // Switching to capitals also turns the name already typed into capitals; switching back
    // leaves it as it is.
    ui->txtLabelSelector->setValidator(upperCase ? m_upperCase : nullptr);
    if (!upperCase)
        return;
    const QString text = ui->txtLabelSelector->text();
    if (text != text.toUpper())
        ui->txtLabelSelector->setText(text.toUpper());
}
