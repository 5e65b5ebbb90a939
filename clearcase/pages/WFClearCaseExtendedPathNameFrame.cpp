#include "pages/WFClearCaseExtendedPathNameFrame.h"
#include "ui_WFClearCaseExtendedPathNameFrame.h"

#include "actions/WFClearCaseBaseAction.h"
#include "environment/WFClearCaseOptions.h"
#include "pages/WFClearCaseEditExtendedPathNameForm.h"
#include "pages/WFClearCasePageLook.h"

#include <memory>

TClearCaseExtendedPathNameFrame::TClearCaseExtendedPathNameFrame(QWidget* parent)
    : TClearCasePathListFrame(parent), ui(std::make_unique<Ui::TClearCaseExtendedPathNameFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    bindPathList(ui->headingTxtHeading, ui->pathsListBox, ui->addButton, ui->editButton, ui->remButton);
}

TClearCaseExtendedPathNameFrame::~TClearCaseExtendedPathNameFrame() = default;

std::string TClearCaseExtendedPathNameFrame::PageName() const
{
    return "Extended Pathnames";
}

void TClearCaseExtendedPathNameFrame::InitPage(TCustomWFAction&)
{
    IWFClearCaseOptions* options = ClearCaseOptions();
    if (!options || options->GetClearCaseType() != ccLT)
        return;
    for (QWidget* control : findChildren<QWidget*>())
        control->setEnabled(false);
}

void TClearCaseExtendedPathNameFrame::ReadActionData(TCustomWFAction& action)
{
    auto& base = narrow<TClearCaseBaseAction>(action);
    if (!ui->headingTxtHeading->label()->isEnabled()) {
        m_kept = TKept{base.GetExtendedPathNames(), base.GetViewContextPath(), base.GetUseDefaultViewContext()};
        setHeading("Extended Pathnames (not available in ClearCase LT)");
        return;
    }
    m_kept.reset();
    ui->ClearCaseViewContextSubFrame1->ReadActionData(base);
    ui->pathsListBox->clear();
    for (const auto& path : base.GetExtendedPathNames())
        ui->pathsListBox->addItem(QString::fromStdString(path));
    completeHeading(action);
}

void TClearCaseExtendedPathNameFrame::WriteActionData(TCustomWFAction& action)
{
    auto& base = narrow<TClearCaseBaseAction>(action);
    if (m_kept) {
        base.SetUseDefaultViewContext(m_kept->useDefaultViewContext);
        base.SetViewContextPath(m_kept->viewContextPath);
        base.SetExtendedPathNames(m_kept->extendedPathNames);
        return;
    }
    ui->ClearCaseViewContextSubFrame1->WriteActionData(base);
    std::vector<std::string> lines;
    for (int row = 0; row < ui->pathsListBox->count(); ++row)
        lines.push_back(ui->pathsListBox->item(row)->text().toStdString());
    base.SetExtendedPathNames(std::move(lines));
}

void TClearCaseExtendedPathNameFrame::addButtonClick()
{
    TClearCaseEditExtendedPathNameForm form(window());
    form.SetViewContext(ui->ClearCaseViewContextSubFrame1->GetContextPath());
    if (form.exec() == QDialog::Accepted)
        ui->pathsListBox->addItem(QString::fromStdString(form.GetPathName()));
}

void TClearCaseExtendedPathNameFrame::editButtonClick()
{
    const int row = selectedRow();
    if (row < 0)
        return;
    TClearCaseEditExtendedPathNameForm form(window());
    form.SetViewContext(ui->ClearCaseViewContextSubFrame1->GetContextPath());
    form.SetPathName(ui->pathsListBox->item(row)->text().toStdString());
    if (form.exec() == QDialog::Accepted)
        ui->pathsListBox->item(row)->setText(QString::fromStdString(form.GetPathName()));
}

void TClearCaseExtendedPathNameFrame::remButtonClick()
{
    for (QListWidgetItem* item : ui->pathsListBox->selectedItems())
        const std::unique_ptr<QListWidgetItem> removed(ui->pathsListBox->takeItem(ui->pathsListBox->row(item)));
    ui->pathsListBox->setCurrentItem(nullptr);
}
