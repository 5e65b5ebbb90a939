#include "pages/WFClearCaseOptionsFrame.h"
#include "ui_WFClearCaseOptionsFrame.h"

#include "environment/WFClearCaseIniFile.h"
#include "environment/WFClearCaseOptions.h"
#include "environment/WFClearCaseUtils.h"
#include "pages/WFClearCasePageLook.h"
#include "WFBrowse.h"
#include "WFFiles.h"

#include <tuple>

namespace {

/// The file name part of a path.
std::string fileName(const std::string& path)
{
    const auto slash = path.find_last_of('/');
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

TWFClearCaseOptions& narrowOptions(TWFOptionsObject& options)
{
    return dynamic_cast<TWFClearCaseOptions&>(options);
}

} // namespace

TClearCaseOptionsFrame::TClearCaseOptionsFrame(QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui::TClearCaseOptionsFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, nullptr);
    connect(ui->boxCheckClearCaseType, &QCheckBox::clicked, this,
            [this] { boxCheckClearCaseTypeClick(ui->boxCheckClearCaseType); });
    connect(ui->editCleartoolPathButton, &QToolButton::clicked, this, &TClearCaseOptionsFrame::editCleartoolPathButtonClick);
    connect(ui->editDefaultViewButton, &QToolButton::clicked, this, &TClearCaseOptionsFrame::editDefaultViewButtonClick);
}

TClearCaseOptionsFrame::~TClearCaseOptionsFrame() = default;

std::string TClearCaseOptionsFrame::GetPageName() const
{
    return "ClearCase Options";
}

void TClearCaseOptionsFrame::InitPage(IWFOptionPageOwner*) {}

void TClearCaseOptionsFrame::OnPageActivate() {}

void TClearCaseOptionsFrame::ReadOptions(TWFOptionsObject& options)
{
    TWFClearCaseOptions& clearCase = narrowOptions(options);
    ui->editDefaultView->setText(QString::fromStdString(clearCase.GetDefaultViewPath()));
    // The path as the actions resolve it, from the live options.
    IWFClearCaseOptions* live = ClearCaseOptions();
    const std::string path = live ? live->GetCleartoolPath() : std::string();
    const bool executable = fileExists(path) && fileName(path) == cleartoolExecutableName();
    ui->editCleartoolPath->setText(QString::fromStdString(executable ? parentDirectory(path) : path));
    const TClearCaseType type = clearCase.GetStoredClearCaseType();
    ClearCaseSetChecked(ui->btnClearCaseLT, type == ccLT);
    ClearCaseSetChecked(ui->btnClearCase, type == ccFull);
    ui->boxCheckClearCaseType->setChecked(clearCase.GetTestForClearCaseType());
    boxCheckClearCaseTypeClick(nullptr);
}

void TClearCaseOptionsFrame::WriteOptions(TWFOptionsObject& options)
{
    TWFClearCaseOptions& clearCase = narrowOptions(options);
    clearCase.SetDefaultViewPath(ui->editDefaultView->text().toStdString());
    clearCase.SetClearToolPath(ui->editCleartoolPath->text().toStdString());
    clearCase.SetTestForClearCaseType(ui->boxCheckClearCaseType->isChecked());
    if (ui->btnClearCase->isChecked())
        clearCase.SetClearCaseType(ccFull);
    else if (ui->btnClearCaseLT->isChecked())
        clearCase.SetClearCaseType(ccLT);
}

void TClearCaseOptionsFrame::boxCheckClearCaseTypeClick(QObject* sender)
{
    const bool detect = ui->boxCheckClearCaseType->isChecked();
    ui->btnClearCase->setEnabled(!detect);
    ui->btnClearCaseLT->setEnabled(!detect);
    if (!detect || !sender)
        return;
    const TClearCaseType type = CCGetClearCaseInstalledType();
    if (type == ccUnknown)
        return;
    ClearCaseSetChecked(ui->btnClearCase, type == ccFull);
    ClearCaseSetChecked(ui->btnClearCaseLT, type == ccLT);
}

void TClearCaseOptionsFrame::editCleartoolPathButtonClick()
{
    TWFBrowseFileRequest request;
    request.title = "Select File";
    request.filter = cleartoolExecutableName();
    std::string file;
    if (!WFBrowseForFile(request, file))
        return;
    // The folder is stored: the options find the executable in it.
    ui->editCleartoolPath->setText(QString::fromStdString(parentDirectory(file)));
}

void TClearCaseOptionsFrame::editDefaultViewButtonClick()
{
    const std::string current = ui->editDefaultView->text().toStdString();
    const std::string start = !current.empty() && directoryExists(current) ? current : CCGetLastViewDirectory();
    std::string chosen;
    if (!WFBrowseForDirectory(start, chosen, "Select Directory"))
        return;
    ui->editDefaultView->setText(QString::fromStdString(chosen));
    CCSetLastViewDirectory(chosen);
}
