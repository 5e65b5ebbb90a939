#include "pages/WFClearCaseUnCheckOutFrame.h"
#include "ui_WFClearCaseUnCheckOutFrame.h"

#include "actions/WFClearCaseUnCheckOutAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseUnCheckOutFrame::TClearCaseUnCheckOutFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseUnCheckOutFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
}

TClearCaseUnCheckOutFrame::~TClearCaseUnCheckOutFrame() = default;

std::string TClearCaseUnCheckOutFrame::PageName() const
{
    return "Uncheckout Options";
}

void TClearCaseUnCheckOutFrame::ReadActionData(TCustomWFAction& action)
{
    ui->boxKeep->setChecked(narrow<TClearCaseUnCheckOutAction>(action).GetKeep());
}

void TClearCaseUnCheckOutFrame::WriteActionData(TCustomWFAction& action)
{
    narrow<TClearCaseUnCheckOutAction>(action).SetKeep(ui->boxKeep->isChecked());
}
