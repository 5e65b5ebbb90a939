#include "pages/WFClearCaseCheckOutFrame.h"
#include "ui_WFClearCaseCheckOutFrame.h"

#include "actions/WFClearCaseCheckOutAction.h"
#include "environment/WFClearCaseOptions.h"
#include "pages/WFClearCasePageLook.h"
#include "WFBrowse.h"

#include <initializer_list>

TClearCaseCheckOutFrame::TClearCaseCheckOutFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseCheckOutFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->btnReserved, &QRadioButton::clicked, this, &TClearCaseCheckOutFrame::btnReservedClick);
    connect(ui->btnUnreserved, &QRadioButton::clicked, this, &TClearCaseCheckOutFrame::btnUnreservedClick);
    connect(ui->txtExternalPath, &QLineEdit::textChanged, this, &TClearCaseCheckOutFrame::txtExternalPathChange);
    connect(ui->txtExternalPathButton, &QToolButton::clicked, this, &TClearCaseCheckOutFrame::txtExternalPathButtonClick);
    connect(ui->txtBranchName, &QLineEdit::textChanged, this, &TClearCaseCheckOutFrame::txtBranchNameChange);
    connect(ui->txtVersionName, &QLineEdit::textChanged, this, &TClearCaseCheckOutFrame::txtVersionNameChange);
}

TClearCaseCheckOutFrame::~TClearCaseCheckOutFrame() = default;

std::string TClearCaseCheckOutFrame::PageName() const
{
    return "Checkout Options";
}

void TClearCaseCheckOutFrame::ReadActionData(TCustomWFAction& action)
{
    auto& checkout = narrow<TClearCaseCheckoutAction>(action);
    ui->txtExternalPath->setText(QString::fromStdString(checkout.GetOutExternalPath()));
    ClearCaseSetChecked(ui->btnReserved, checkout.GetReserved());
    ui->boxLazyReserved->setChecked(checkout.GetReserved() && checkout.GetUnreserved());
    ClearCaseSetChecked(ui->btnUnreserved, !ui->btnReserved->isChecked());
    ui->boxLazyReserved->setEnabled(ui->btnReserved->isChecked());
    ui->boxPTime->setChecked(checkout.GetPreserveTime());
    switch (checkout.GetDataLocation()) {
    case coView: ClearCaseSetChecked(ui->btnViewDefault, true); break;
    case coOut: ClearCaseSetChecked(ui->btnOut, true); break;
    case coNoData: ClearCaseSetChecked(ui->btnNData, true); break;
    }

    IWFClearCaseOptions* options = ClearCaseOptions();
    const bool lightEdition = options && options->GetClearCaseType() == ccLT;
    for (QWidget* control : std::initializer_list<QWidget*>{ui->btnSelModeDefault, ui->btnSelModeBranch, ui->btnSelModeVersion,
                                                            ui->txtBranchName, ui->txtVersionName})
        control->setEnabled(!lightEdition);
    if (lightEdition) {
        ui->txtBranchName->clear();
        ui->txtVersionName->clear();
        ClearCaseSetChecked(ui->btnSelModeDefault, true);
        return;
    }
    // The texts go in first: their change handlers would otherwise overrule the stored mode.
    ui->txtBranchName->setText(QString::fromStdString(checkout.GetBranchSelector()));
    ui->txtVersionName->setText(QString::fromStdString(checkout.GetVersionSelector()));
    switch (checkout.GetSelectionMode()) {
    case coDefault: ClearCaseSetChecked(ui->btnSelModeDefault, true); break;
    case coVersion: ClearCaseSetChecked(ui->btnSelModeVersion, true); break;
    case coBranch: ClearCaseSetChecked(ui->btnSelModeBranch, true); break;
    }
}

void TClearCaseCheckOutFrame::WriteActionData(TCustomWFAction& action)
{
    auto& checkout = narrow<TClearCaseCheckoutAction>(action);
    checkout.SetReserved(ui->btnReserved->isChecked());
    checkout.SetUnreserved(ui->btnUnreserved->isChecked() || (ui->btnReserved->isChecked() && ui->boxLazyReserved->isChecked()));
    checkout.SetPreserveTime(ui->boxPTime->isChecked());
    if (ui->btnViewDefault->isChecked())
        checkout.SetDataLocation(coView);
    else if (ui->btnOut->isChecked())
        checkout.SetDataLocation(coOut);
    else if (ui->btnNData->isChecked())
        checkout.SetDataLocation(coNoData);
    if (ui->btnSelModeDefault->isChecked())
        checkout.SetSelectionMode(coDefault);
    else if (ui->btnSelModeBranch->isChecked())
        checkout.SetSelectionMode(coBranch);
    else if (ui->btnSelModeVersion->isChecked())
        checkout.SetSelectionMode(coVersion);
    checkout.SetOutExternalPath(ui->txtExternalPath->text().toStdString());
    checkout.SetBranchSelector(ui->txtBranchName->text().toStdString());
    checkout.SetVersionSelector(ui->txtVersionName->text().toStdString());
}

void TClearCaseCheckOutFrame::btnReservedClick()
{
    ui->boxLazyReserved->setEnabled(true);
}

void TClearCaseCheckOutFrame::btnUnreservedClick()
{
    ui->boxLazyReserved->setEnabled(false);
}

void TClearCaseCheckOutFrame::txtExternalPathChange()
{
    if (!ui->txtExternalPath->text().isEmpty())
        ClearCaseSetChecked(ui->btnOut, true);
}

void TClearCaseCheckOutFrame::txtExternalPathButtonClick()
{
    std::string chosen;
    if (!WFBrowseForDirectory(ui->txtExternalPath->text().toStdString(), chosen, "Select Directory"))
        return;
    ui->txtExternalPath->setText(QString::fromStdString(chosen));
    ClearCaseSetChecked(ui->btnOut, true);
}

void TClearCaseCheckOutFrame::txtBranchNameChange()
{
    if (!ui->txtBranchName->text().isEmpty())
        ClearCaseSetChecked(ui->btnSelModeBranch, true);
}

void TClearCaseCheckOutFrame::txtVersionNameChange()
{
    if (!ui->txtVersionName->text().isEmpty())
        ClearCaseSetChecked(ui->btnSelModeVersion, true);
}
