#include "pages/WFClearCaseApplyAttributeObjectsFrame.h"

#include "actions/WFClearCaseApplyAttributeObjectsAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseApplyAttributeObjectsFrame::TClearCaseApplyAttributeObjectsFrame(QWidget* parent) : TFrame(parent)
{
    ui.setupUi(this);
    ClearCaseDecorateHeadings(ui.Image2, {ui.Image1}, {{ui.Label1, ui.Bevel1}});
}

std::string TClearCaseApplyAttributeObjectsFrame::PageName() const
{
    return "Options";
}

void TClearCaseApplyAttributeObjectsFrame::ReadActionData(TCustomWFAction& action)
{
    ui.boxReplace->setChecked(narrow<TClearCaseApplyAttributeObjectsAction>(action).GetReplace());
}

void TClearCaseApplyAttributeObjectsFrame::WriteActionData(TCustomWFAction& action)
{
    narrow<TClearCaseApplyAttributeObjectsAction>(action).SetReplace(ui.boxReplace->isChecked());
}
