#include "pages/WFClearCaseMakeBaseLineLabelFrame.h"
#include "ui_WFClearCaseMakeBaseLineLabelFrame.h"

#include "actions/WFClearCaseMakeBaselineAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseMakeBaseLineLabelFrame::TClearCaseMakeBaseLineLabelFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseMakeBaseLineLabelFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, nullptr);
}

TClearCaseMakeBaseLineLabelFrame::~TClearCaseMakeBaseLineLabelFrame() = default;

std::string TClearCaseMakeBaseLineLabelFrame::PageName() const
{
    return "Labelling";
}

void TClearCaseMakeBaseLineLabelFrame::ReadActionData(TCustomWFAction& action)
{
    const TLabelBehaviour labelling = narrow<TClearCaseMakeBaselineAction>(action).GetLabelling();
    ClearCaseSetChecked(ui->btnIncremental, labelling == lbIncremental);
    ClearCaseSetChecked(ui->btnFulllabel, labelling == lbAll);
    ClearCaseSetChecked(ui->btnNlabel, labelling == lbNone);
}

void TClearCaseMakeBaseLineLabelFrame::WriteActionData(TCustomWFAction& action)
{
    auto& baseline = narrow<TClearCaseMakeBaselineAction>(action);
    if (ui->btnIncremental->isChecked())
        baseline.SetLabelling(lbIncremental);
    else if (ui->btnFulllabel->isChecked())
        baseline.SetLabelling(lbAll);
    else if (ui->btnNlabel->isChecked())
        baseline.SetLabelling(lbNone);
}
