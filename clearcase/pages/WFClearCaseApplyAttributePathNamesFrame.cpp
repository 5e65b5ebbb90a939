#include "pages/WFClearCaseApplyAttributePathNamesFrame.h"
#include "ui_WFClearCaseApplyAttributePathNamesFrame.h"

#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseApplyAttributePathNamesFrame::TClearCaseApplyAttributePathNamesFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseApplyAttributePathNamesFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
}

TClearCaseApplyAttributePathNamesFrame::~TClearCaseApplyAttributePathNamesFrame() = default;

std::string TClearCaseApplyAttributePathNamesFrame::PageName() const
{
    return "Options";
}

void TClearCaseApplyAttributePathNamesFrame::ReadActionData(TCustomWFAction& action)
{
    auto& paths = narrow<TClearCaseApplyAttributePathNamesAction>(action);
    ui->boxReplace->setChecked(paths.GetReplace());
    ui->boxRecurse->setChecked(paths.GetRecurse());
    ui->boxUseVersion->setChecked(paths.GetUseVersionSelector());
    ui->txtVersion->setText(QString::fromStdString(paths.GetVersionSelector()));
}

void TClearCaseApplyAttributePathNamesFrame::WriteActionData(TCustomWFAction& action)
{
    auto& paths = narrow<TClearCaseApplyAttributePathNamesAction>(action);
    paths.SetReplace(ui->boxReplace->isChecked());
    paths.SetRecurse(ui->boxRecurse->isChecked());
    paths.SetUseVersionSelector(ui->boxUseVersion->isChecked());
    paths.SetVersionSelector(ui->txtVersion->text().toStdString());
}
