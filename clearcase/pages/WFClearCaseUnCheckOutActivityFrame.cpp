#include "pages/WFClearCaseUnCheckOutActivityFrame.h"
#include "ui_WFClearCaseUnCheckOutActivityFrame.h"

#include "actions/WFClearCaseUnCheckOutActivityAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseUnCheckOutActivityFrame::TClearCaseUnCheckOutActivityFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseUnCheckOutActivityFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image4);
}

TClearCaseUnCheckOutActivityFrame::~TClearCaseUnCheckOutActivityFrame() = default;

std::string TClearCaseUnCheckOutActivityFrame::PageName() const
{
    return "Uncheckout Options";
}

void TClearCaseUnCheckOutActivityFrame::ReadActionData(TCustomWFAction& action)
{
    auto& undo = narrow<TClearCaseUnCheckOutActivityAction>(action);
    ui->boxKeep->setChecked(undo.GetKeep());
    ui->ClearCaseViewContextSubFrame1->ReadActionData(undo);
}

void TClearCaseUnCheckOutActivityFrame::WriteActionData(TCustomWFAction& action)
{
    auto& undo = narrow<TClearCaseUnCheckOutActivityAction>(action);
    undo.SetKeep(ui->boxKeep->isChecked());
    ui->ClearCaseViewContextSubFrame1->WriteActionData(undo);
}
