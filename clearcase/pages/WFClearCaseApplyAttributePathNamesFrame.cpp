#include "pages/WFClearCaseApplyAttributePathNamesFrame.h"

#include "actions/WFClearCaseApplyAttributePathNamesAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseApplyAttributePathNamesFrame::TClearCaseApplyAttributePathNamesFrame(QWidget* parent) : TFrame(parent)
{
    ui.setupUi(this);
    ClearCaseSetHeadingImage(ui.Image1);
    ClearCaseSetSectionImage(ui.Image2);
    ClearCaseSetHeadingImage(ui.Image3);
    ClearCasePlaceHeading(ui.Label1, ui.Bevel1);
    ClearCasePlaceHeading(ui.Label2, ui.Bevel2);
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
