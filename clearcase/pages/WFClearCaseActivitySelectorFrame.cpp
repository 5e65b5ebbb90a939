#include "pages/WFClearCaseActivitySelectorFrame.h"
#include "ui_WFClearCaseActivitySelectorFrame.h"

#include "actions/WFClearCaseSetActivityAction.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"

#include <QFileInfo>

TClearCaseActivitySelectorFrame::TClearCaseActivitySelectorFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseActivitySelectorFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->btnCurrentActivity, &QRadioButton::clicked, this, &TClearCaseActivitySelectorFrame::btnCurrentActivityClick);
    connect(ui->btnCustomActivity, &QRadioButton::clicked, this, &TClearCaseActivitySelectorFrame::btnCustomActivityClick);
    connect(ui->txtActivityName, &TWFComboBox::dropDown, this, &TClearCaseActivitySelectorFrame::txtActivityNameDropDown);
    connect(ui->txtVOBSelector, &TWFComboBox::dropDown, this, &TClearCaseActivitySelectorFrame::txtVOBSelectorDropDown);
}

TClearCaseActivitySelectorFrame::~TClearCaseActivitySelectorFrame() = default;

std::string TClearCaseActivitySelectorFrame::PageName() const
{
    return "Activity";
}

void TClearCaseActivitySelectorFrame::ReadActionData(TCustomWFAction& action)
{
    auto& ucm = narrow<TClearCaseUCMAction>(action);
    ui->ClearCaseViewContextSubFrame1->ReadActionData(ucm);
    ui->txtActivityName->setCurrentText(QString::fromStdString(ucm.GetActivityName()));
    ui->txtVOBSelector->setCurrentText(QString::fromStdString(ucm.GetVOBSelector()));
    bool first = ucm.GetUseCurrentActivity();
    if (const auto* setActivity = dynamic_cast<const TClearCaseSetActivityAction*>(&ucm)) {
        ui->btnCurrentActivity->setText("Set Current Activity to None (-none)");
        first = setActivity->GetSetActivityToNone();
    }
    // Checking a radio button here runs its click handler as a click would, so that the
    // combo boxes open in the state that matches the choice.
    ClearCaseSetChecked(ui->btnCurrentActivity, first);
    if (first)
        btnCurrentActivityClick();
    ClearCaseSetChecked(ui->btnCustomActivity, !first);
    if (!first)
        btnCustomActivityClick();
}

void TClearCaseActivitySelectorFrame::WriteActionData(TCustomWFAction& action)
{
    auto& ucm = narrow<TClearCaseUCMAction>(action);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(ucm);
    ucm.SetActivityName(ui->txtActivityName->currentText().toStdString());
    ucm.SetVOBSelector(ui->txtVOBSelector->currentText().toStdString());
    if (auto* setActivity = dynamic_cast<TClearCaseSetActivityAction*>(&ucm))
        setActivity->SetSetActivityToNone(ui->btnCurrentActivity->isChecked());
    else
        ucm.SetUseCurrentActivity(ui->btnCurrentActivity->isChecked());
}

void TClearCaseActivitySelectorFrame::btnCurrentActivityClick()
{
    ui->txtActivityName->setEnabled(false);
    ui->txtVOBSelector->setEnabled(false);
}

void TClearCaseActivitySelectorFrame::btnCustomActivityClick()
{
    ui->txtActivityName->setEnabled(true);
    ui->txtVOBSelector->setEnabled(true);
}

void TClearCaseActivitySelectorFrame::txtActivityNameDropDown()
{
    // A view that is not there has no activities to ask for: the list keeps what it showed.
    TClearCaseLookUp lookUp(ui->txtActivityName);
    const std::string folder = lookUp.expand(QString::fromStdString(ui->ClearCaseViewContextSubFrame1->GetContextPath()));
    if (!QFileInfo(QString::fromStdString(folder)).isDir())
        return;
    ui->txtActivityName->setItemsKeepingText(lookUp.lines(CCGetUCMActivities(folder)));
}

void TClearCaseActivitySelectorFrame::txtVOBSelectorDropDown()
{
    ClearCaseFillVOBListOnce(ui->txtVOBSelector);
}
