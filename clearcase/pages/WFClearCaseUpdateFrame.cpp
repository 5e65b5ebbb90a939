#include "pages/WFClearCaseUpdateFrame.h"
#include "ui_WFClearCaseUpdateFrame.h"

#include "actions/WFClearCaseUpdateAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseUpdateFrame::TClearCaseUpdateFrame(QWidget* parent) : TFrame(parent), ui(std::make_unique<Ui::TClearCaseUpdateFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image4);
    connect(ui->checkPretend, &QCheckBox::clicked, this, &TClearCaseUpdateFrame::UpdateEnabledControls);
}

TClearCaseUpdateFrame::~TClearCaseUpdateFrame() = default;

std::string TClearCaseUpdateFrame::PageName() const
{
    return "Update Options";
}

void TClearCaseUpdateFrame::ReadActionData(TCustomWFAction& action)
{
    auto& update = narrow<TClearCaseUpdateAction>(action);
    ui->checkPretend->setChecked(update.GetPretendOnly());
    switch (update.GetUpdateTimestamp()) {
    case tbDefault: ClearCaseSetChecked(ui->TSdefaultButton, true); break;
    case tbCurrent: ClearCaseSetChecked(ui->TSctimeButton, true); break;
    case tbCheckin: ClearCaseSetChecked(ui->TSptimeButton, true); break;
    }
    switch (update.GetHijackMode()) {
    case hmOverwrite: ClearCaseSetChecked(ui->overwriteButton, true); break;
    case hmNooverwrite: ClearCaseSetChecked(ui->noOverwriteButton, true); break;
    case hmRename: ClearCaseSetChecked(ui->renameButton, true); break;
    }
    ui->ClearCaseViewContextSubFrame1->SetCaption("Snapshot View to update");
    ui->ClearCaseViewContextSubFrame1->ReadActionData(update);
    UpdateEnabledControls();
}

void TClearCaseUpdateFrame::WriteActionData(TCustomWFAction& action)
{
    auto& update = narrow<TClearCaseUpdateAction>(action);
    update.SetPretendOnly(ui->checkPretend->isChecked());
    if (ui->overwriteButton->isChecked())
        update.SetHijackMode(hmOverwrite);
    else if (ui->noOverwriteButton->isChecked())
        update.SetHijackMode(hmNooverwrite);
    else if (ui->renameButton->isChecked())
        update.SetHijackMode(hmRename);
    if (ui->TSdefaultButton->isChecked())
        update.SetUpdateTimestamp(tbDefault);
    else if (ui->TSctimeButton->isChecked())
        update.SetUpdateTimestamp(tbCurrent);
    else if (ui->TSptimeButton->isChecked())
        update.SetUpdateTimestamp(tbCheckin);
    ui->ClearCaseViewContextSubFrame1->WriteActionData(update);
}

void TClearCaseUpdateFrame::UpdateEnabledControls()
{
    const bool changesFiles = !ui->checkPretend->isChecked();
    for (QRadioButton* button : {ui->overwriteButton, ui->noOverwriteButton, ui->renameButton, ui->TSctimeButton,
                                 ui->TSptimeButton, ui->TSdefaultButton})
        button->setEnabled(changesFiles);
}
