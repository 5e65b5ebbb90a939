#include "pages/WFClearCaseCheckInFrame.h"

#include "actions/WFClearCaseCheckInGenericAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseCheckInFrame::TClearCaseCheckInFrame(QWidget* parent) : TFrame(parent)
{
    ui.setupUi(this);
    ClearCaseDecorateHeadings(ui.Image2, {ui.Image1, ui.Image3}, {{ui.Label1, ui.Bevel1}, {ui.Label2, ui.Bevel2}});
    connect(ui.boxKeep, &QCheckBox::clicked, this, &TClearCaseCheckInFrame::boxKeepClick);
    connect(ui.boxRemove, &QCheckBox::clicked, this, &TClearCaseCheckInFrame::boxRemoveClick);
}

std::string TClearCaseCheckInFrame::PageName() const
{
    return "Checkin Options";
}

void TClearCaseCheckInFrame::ReadActionData(TCustomWFAction& action)
{
    auto& checkin = narrow<TClearCaseCheckInGenericAction>(action);
    ui.boxKeep->setChecked(checkin.GetKeep());
    ui.boxRemove->setChecked(checkin.GetRemove());
    ui.boxIdentical->setChecked(checkin.GetIdenticalCheckin());
    ui.boxNoWarn->setChecked(checkin.GetNoWarnings());
    ui.boxPTime->setChecked(checkin.GetPreserveTime());
}

void TClearCaseCheckInFrame::WriteActionData(TCustomWFAction& action)
{
    auto& checkin = narrow<TClearCaseCheckInGenericAction>(action);
    checkin.SetKeep(ui.boxKeep->isChecked());
    checkin.SetRemove(ui.boxRemove->isChecked());
    checkin.SetIdenticalCheckin(ui.boxIdentical->isChecked());
    checkin.SetNoWarnings(ui.boxNoWarn->isChecked());
    checkin.SetPreserveTime(ui.boxPTime->isChecked());
}

void TClearCaseCheckInFrame::boxKeepClick()
{
    if (ui.boxKeep->isChecked() && ui.boxRemove->isChecked())
        ui.boxRemove->setChecked(false);
}

void TClearCaseCheckInFrame::boxRemoveClick()
{
    if (ui.boxKeep->isChecked() && ui.boxRemove->isChecked())
        ui.boxKeep->setChecked(false);
}
