#include "pages/WFClearCaseUnCheckOutFrame.h"

#include "actions/WFClearCaseUnCheckOutAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseUnCheckOutFrame::TClearCaseUnCheckOutFrame(QWidget* parent) : TFrame(parent)
{
    ui.setupUi(this);
    ClearCaseDecorateHeadings(ui.Image2, {ui.Image1}, {{ui.Label1, ui.Bevel1}});
}

std::string TClearCaseUnCheckOutFrame::PageName() const
{
    return "Uncheckout Options";
}

void TClearCaseUnCheckOutFrame::ReadActionData(TCustomWFAction& action)
{
    ui.boxKeep->setChecked(narrow<TClearCaseUnCheckOutAction>(action).GetKeep());
}

void TClearCaseUnCheckOutFrame::WriteActionData(TCustomWFAction& action)
{
    narrow<TClearCaseUnCheckOutAction>(action).SetKeep(ui.boxKeep->isChecked());
}
