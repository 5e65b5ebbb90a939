#include "pages/WFClearCaseUnCheckOutActivityFrame.h"

#include "actions/WFClearCaseUnCheckOutActivityAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseUnCheckOutActivityFrame::TClearCaseUnCheckOutActivityFrame(QWidget* parent) : TFrame(parent)
{
    ui.setupUi(this);
    ClearCaseDecorateHeadings(ui.Image4, {ui.Image3}, {{ui.Label1, ui.Bevel1}});
}

std::string TClearCaseUnCheckOutActivityFrame::PageName() const
{
    return "Uncheckout Options";
}

void TClearCaseUnCheckOutActivityFrame::ReadActionData(TCustomWFAction& action)
{
    auto& undo = narrow<TClearCaseUnCheckOutActivityAction>(action);
    ui.boxKeep->setChecked(undo.GetKeep());
    ui.ClearCaseViewContextSubFrame1->ReadActionData(undo);
}

void TClearCaseUnCheckOutActivityFrame::WriteActionData(TCustomWFAction& action)
{
    auto& undo = narrow<TClearCaseUnCheckOutActivityAction>(action);
    undo.SetKeep(ui.boxKeep->isChecked());
    ui.ClearCaseViewContextSubFrame1->WriteActionData(undo);
}
