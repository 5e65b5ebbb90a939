#include "pages/WFClearCaseFindCheckoutsFrame.h"
#include "ui_WFClearCaseFindCheckoutsFrame.h"

#include "actions/WFClearCaseFindCheckoutsAction.h"
#include "pages/WFClearCasePageLook.h"
#include "WFServices.h"

TClearCaseFindCheckoutsFrame::TClearCaseFindCheckoutsFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseFindCheckoutsFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image4);
}

TClearCaseFindCheckoutsFrame::~TClearCaseFindCheckoutsFrame() = default;

std::string TClearCaseFindCheckoutsFrame::PageName() const
{
    return "Options";
}

void TClearCaseFindCheckoutsFrame::ReadActionData(TCustomWFAction& action)
{
    auto& find = narrow<TClearCaseFindCheckoutsAction>(action);
    ui->ClearCaseViewContextSubFrame1->ReadActionData(find);
    ui->cmbVariable->clear();
    for (const std::string& name : WFDesignApplicationServices().GetVariableNames())
        ui->cmbVariable->addItem(QString::fromStdString(name));
    ui->cmbVariable->setCurrentIndex(ui->cmbVariable->findText(QString::fromStdString(find.GetVariableName()), Qt::MatchExactly));
    ui->boxVariable->setChecked(find.GetWriteToVariable());
    ui->boxShort->setChecked(find.GetUseShort());
}

void TClearCaseFindCheckoutsFrame::WriteActionData(TCustomWFAction& action)
{
    auto& find = narrow<TClearCaseFindCheckoutsAction>(action);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(find);
    find.SetWriteToVariable(ui->boxVariable->isChecked());
    find.SetVariableName(ui->cmbVariable->currentText().toStdString());
    find.SetUseShort(ui->boxShort->isChecked());
}
