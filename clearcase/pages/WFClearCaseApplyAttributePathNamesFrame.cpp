#include "pages/WFClearCaseApplyAttributePathNamesFrame.h"

#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseApplyAttributePathNamesFrame::TClearCaseApplyAttributePathNamesFrame(QWidget* parent) : TFrame(parent)
{
    ui.setupUi(this);
    ClearCaseDecorateHeadings(ui.Image2, {ui.Image1, ui.Image3}, {{ui.Label1, ui.Bevel1}, {ui.Label2, ui.Bevel2}});
}

std::string TClearCaseApplyAttributePathNamesFrame::PageName() const
{
    return "Options";
}

void TClearCaseApplyAttributePathNamesFrame::ReadActionData(TCustomWFAction& action)
{
    auto& paths = narrow<TClearCaseApplyAttributePathNamesAction>(action);
    ui.boxReplace->setChecked(paths.GetReplace());
    ui.boxRecurse->setChecked(paths.GetRecurse());
    ui.boxUseVersion->setChecked(paths.GetUseVersionSelector());
    ui.txtVersion->setText(QString::fromStdString(paths.GetVersionSelector()));
}

void TClearCaseApplyAttributePathNamesFrame::WriteActionData(TCustomWFAction& action)
{
    auto& paths = narrow<TClearCaseApplyAttributePathNamesAction>(action);
    paths.SetReplace(ui.boxReplace->isChecked());
    paths.SetRecurse(ui.boxRecurse->isChecked());
    paths.SetUseVersionSelector(ui.boxUseVersion->isChecked());
    paths.SetVersionSelector(ui.txtVersion->text().toStdString());
}
