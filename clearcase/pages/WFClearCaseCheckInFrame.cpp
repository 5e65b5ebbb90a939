#include "pages/WFClearCaseCheckInFrame.h"
#include "ui_WFClearCaseCheckInFrame.h"

#include "actions/WFClearCaseCheckInGenericAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseCheckInFrame::TClearCaseCheckInFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseCheckInFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->boxKeep, &QCheckBox::clicked, this, &TClearCaseCheckInFrame::boxKeepClick);
    connect(ui->boxRemove, &QCheckBox::clicked, this, &TClearCaseCheckInFrame::boxRemoveClick);
}

TClearCaseCheckInFrame::~TClearCaseCheckInFrame() = default;

std::string TClearCaseCheckInFrame::PageName() const
{
    return "Checkin Options";
}

void TClearCaseCheckInFrame::ReadActionData(TCustomWFAction& action)
{
    auto& checkin = narrow<TClearCaseCheckInGenericAction>(action);
    ui->boxKeep->setChecked(checkin.GetKeep());
    ui->boxRemove->setChecked(checkin.GetRemove());
    ui->boxIdentical->setChecked(checkin.GetIdenticalCheckin());
    ui->boxNoWarn->setChecked(checkin.GetNoWarnings());
    ui->boxPTime->setChecked(checkin.GetPreserveTime());
}

void TClearCaseCheckInFrame::WriteActionData(TCustomWFAction& action)
{
    auto& checkin = narrow<TClearCaseCheckInGenericAction>(action);
    checkin.SetKeep(ui->boxKeep->isChecked());
    checkin.SetRemove(ui->boxRemove->isChecked());
    checkin.SetIdenticalCheckin(ui->boxIdentical->isChecked());
    checkin.SetNoWarnings(ui->boxNoWarn->isChecked());
    checkin.SetPreserveTime(ui->boxPTime->isChecked());
}

void TClearCaseCheckInFrame::boxKeepClick()
{
    if (ui->boxKeep->isChecked() && ui->boxRemove->isChecked())
        ui->boxRemove->setChecked(false);
}

void TClearCaseCheckInFrame::boxRemoveClick()
{
    if (ui->boxKeep->isChecked() && ui->boxRemove->isChecked())
        ui->boxKeep->setChecked(false);
}
