#include "pages/WFClearCaseMakeAttributeTypeOptionsFrame.h"
#include "ui_WFClearCaseMakeAttributeTypeOptionsFrame.h"

#include "actions/WFClearCaseMakeAttributeTypeAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseMakeAttributeTypeOptionsFrame::TClearCaseMakeAttributeTypeOptionsFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeAttributeTypeOptionsFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
}

TClearCaseMakeAttributeTypeOptionsFrame::~TClearCaseMakeAttributeTypeOptionsFrame() = default;

std::string TClearCaseMakeAttributeTypeOptionsFrame::PageName() const
{
    return "Options";
}

void TClearCaseMakeAttributeTypeOptionsFrame::ReadActionData(TCustomWFAction& action)
{
    auto& type = narrow<TClearCaseMakeAttributeTypeAction>(action);
    ui->boxReplace->setChecked(type.GetReplace());
    ui->boxShared->setChecked(type.GetShared());
    ClearCaseSetChecked(ui->btnGlobal, type.GetGlobal());
    ClearCaseSetChecked(ui->btnOrdinary, !ui->btnGlobal->isChecked());
    ui->boxAcquire->setChecked(type.GetAcquire());
    switch (type.GetConstraints()) {
    case lcDefault:
        ClearCaseSetChecked(ui->btnDefaultUse, true);
        break;
    case lcVPelement:
        ClearCaseSetChecked(ui->btnVPelement, true);
        break;
    case lcVPbranch:
        ClearCaseSetChecked(ui->btnVPBranch, true);
        break;
    case lcVPversion:
        ClearCaseSetChecked(ui->btnVPVersion, true);
        break;
    }
}

void TClearCaseMakeAttributeTypeOptionsFrame::WriteActionData(TCustomWFAction& action)
{
    auto& type = narrow<TClearCaseMakeAttributeTypeAction>(action);
    type.SetReplace(ui->boxReplace->isChecked());
    type.SetShared(ui->boxShared->isChecked());
    if (ui->btnDefaultUse->isChecked())
        type.SetConstraints(lcDefault);
    else if (ui->btnVPelement->isChecked())
        type.SetConstraints(lcVPelement);
    else if (ui->btnVPBranch->isChecked())
        type.SetConstraints(lcVPbranch);
    else if (ui->btnVPVersion->isChecked())
        type.SetConstraints(lcVPversion);
    type.SetGlobal(ui->btnGlobal->isChecked());
    type.SetAcquire(ui->boxAcquire->isChecked());
}
