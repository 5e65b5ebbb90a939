#include "pages/WFClearCaseMakeElementFrame.h"
#include "ui_WFClearCaseMakeElementFrame.h"

#include "actions/WFClearCaseMakeElementAction.h"
#include "environment/WFClearCaseOptions.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseMakeElementFrame::TClearCaseMakeElementFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeElementFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->btnCheckedIn, &QRadioButton::clicked, this, &TClearCaseMakeElementFrame::btnCheckedInClick);
    connect(ui->btnCheckedOut, &QRadioButton::clicked, this, &TClearCaseMakeElementFrame::btnCheckedOutClick);
    connect(ui->btnNoCheckOut, &QRadioButton::clicked, this, &TClearCaseMakeElementFrame::btnCheckedOutClick);
    connect(ui->txtElementType, &TWFComboBox::dropDown, this, &TClearCaseMakeElementFrame::txtElementTypeDropDown);
}

TClearCaseMakeElementFrame::~TClearCaseMakeElementFrame() = default;

std::string TClearCaseMakeElementFrame::PageName() const
{
    return "New Element";
}

void TClearCaseMakeElementFrame::ReadActionData(TCustomWFAction& action)
{
    auto& element = narrow<TClearCaseMakeElementAction>(action);
    const TClearCaseCheckOutType checkout = element.GetCheckout();
    ClearCaseSetChecked(ui->btnCheckedOut, checkout == ccCheckedOut);
    ClearCaseSetChecked(ui->btnCheckedIn, checkout == ccCheckedIn);
    ClearCaseSetChecked(ui->btnNoCheckOut, checkout == ccNoCheckOut);
    // The preserved time only matters for a checked-in first version.
    ui->boxPreserveTime->setEnabled(checkout == ccCheckedIn);
    ui->boxPreserveTime->setChecked(element.GetPreserveTime());
    ui->boxUseElementType->setChecked(element.GetUseElementType());
    ui->txtElementType->setEditText(QString::fromStdString(element.GetElementType()));
    ui->boxMakePath->setChecked(element.GetMakePath());
    ui->boxNoWarn->setChecked(element.GetNoWarnings());
    IWFClearCaseOptions* options = ClearCaseOptions();
    // Replica mastership does not exist under LT.
    if (options && options->GetClearCaseType() == ccLT)
        ui->boxMaster->setEnabled(false);
    else
        ui->boxMaster->setChecked(element.GetMaster());
}

void TClearCaseMakeElementFrame::WriteActionData(TCustomWFAction& action)
{
    auto& element = narrow<TClearCaseMakeElementAction>(action);
    if (ui->btnCheckedOut->isChecked())
        element.SetCheckout(ccCheckedOut);
    else if (ui->btnCheckedIn->isChecked())
        element.SetCheckout(ccCheckedIn);
    else if (ui->btnNoCheckOut->isChecked())
        element.SetCheckout(ccNoCheckOut);
    element.SetPreserveTime(ui->boxPreserveTime->isChecked());
    element.SetUseElementType(ui->boxUseElementType->isChecked());
    element.SetElementType(ui->txtElementType->currentText().toStdString());
    element.SetMakePath(ui->boxMakePath->isChecked());
    element.SetMaster(ui->boxMaster->isChecked());
    element.SetNoWarnings(ui->boxNoWarn->isChecked());
}

void TClearCaseMakeElementFrame::btnCheckedInClick()
{
    ui->boxPreserveTime->setEnabled(true);
}

void TClearCaseMakeElementFrame::btnCheckedOutClick()
{
    ui->boxPreserveTime->setEnabled(false);
}

void TClearCaseMakeElementFrame::txtElementTypeDropDown()
{
    // Asking every VOB is slow: the list is loaded once per page.
    if (ui->txtElementType->count() == 0)
        ui->txtElementType->setItemsKeepingText(TClearCaseLookUp(ui->txtElementType).lines(CCGetAllTypeNames("eltype")));
}
