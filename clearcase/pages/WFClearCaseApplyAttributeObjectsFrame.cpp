#include "pages/WFClearCaseApplyAttributeObjectsFrame.h"
#include "ui_WFClearCaseApplyAttributeObjectsFrame.h"

#include "actions/WFClearCaseApplyAttributeObjectsAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseApplyAttributeObjectsFrame::TClearCaseApplyAttributeObjectsFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseApplyAttributeObjectsFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
}

TClearCaseApplyAttributeObjectsFrame::~TClearCaseApplyAttributeObjectsFrame() = default;

std::string TClearCaseApplyAttributeObjectsFrame::PageName() const
{
    return "Options";
}

void TClearCaseApplyAttributeObjectsFrame::ReadActionData(TCustomWFAction& action)
{
    ui->boxReplace->setChecked(narrow<TClearCaseApplyAttributeObjectsAction>(action).GetReplace());
}

void TClearCaseApplyAttributeObjectsFrame::WriteActionData(TCustomWFAction& action)
{
    narrow<TClearCaseApplyAttributeObjectsAction>(action).SetReplace(ui->boxReplace->isChecked());
}
