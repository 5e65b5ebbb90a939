#include "pages/WFClearCaseViewContextSubFrame.h"
#include "ui_WFClearCaseViewContextSubFrame.h"

#include "actions/WFClearCaseBaseAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "environment/WFClearCaseOptions.h"
#include "pages/WFClearCasePageLook.h"
#include "WFBrowse.h"

TClearCaseViewContextSubFrame::TClearCaseViewContextSubFrame(QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui::TClearCaseViewContextSubFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->txtViewPathButton, &QToolButton::clicked, this, &TClearCaseViewContextSubFrame::txtViewPathButtonClick);
    // Every way the user can change the view; the browse button's own handler runs first.
    connect(ui->btnDefaultView, &QRadioButton::clicked, this, &TClearCaseViewContextSubFrame::contextChanged);
    connect(ui->btnCustomView, &QRadioButton::clicked, this, &TClearCaseViewContextSubFrame::contextChanged);
    connect(ui->txtViewPath, &QLineEdit::textChanged, this, &TClearCaseViewContextSubFrame::contextChanged);
    connect(ui->txtViewPathButton, &QToolButton::clicked, this, &TClearCaseViewContextSubFrame::contextChanged);
}

TClearCaseViewContextSubFrame::~TClearCaseViewContextSubFrame() = default;

std::string TClearCaseViewContextSubFrame::GetCaption() const
{
    return ui->headingLabel5->text().toStdString();
}

void TClearCaseViewContextSubFrame::SetCaption(const std::string& text)
{
    ui->headingLabel5->setText(QString::fromStdString(text));
}

void TClearCaseViewContextSubFrame::SetPathName(const std::string& path)
{
    m_pathName = path;
    const QString text = QString::fromStdString(path);
    ui->txtViewPath->setText(text);
    ui->txtViewPath->setCursorPosition(static_cast<int>(text.size()));
    ui->txtViewPath->setToolTip(text);
}

std::string TClearCaseViewContextSubFrame::GetContextPath() const
{
    if (ui->btnDefaultView->isChecked()) {
        IWFClearCaseOptions* options = ClearCaseOptions();
        return options ? options->GetDefaultViewPath() : std::string();
    }
    return ui->txtViewPath->text().toStdString();
}

void TClearCaseViewContextSubFrame::ReadActionData(TClearCaseBaseAction& action)
{
    SetPathName(action.GetViewContextPath());
    const bool useDefault = action.GetUseDefaultViewContext() || ui->txtViewPath->text().isEmpty();
    ClearCaseSetChecked(ui->btnDefaultView, useDefault);
    ClearCaseSetChecked(ui->btnCustomView, !useDefault);
}

void TClearCaseViewContextSubFrame::WriteActionData(TClearCaseBaseAction& action)
{
    action.SetUseDefaultViewContext(ui->btnDefaultView->isChecked());
    action.SetViewContextPath(ui->txtViewPath->text().toStdString());
}

void TClearCaseViewContextSubFrame::txtViewPathButtonClick()
{
    const std::string start = m_pathName.empty() ? CCGetLastViewDirectory() : m_pathName;
    std::string chosen;
    if (!WFBrowseForDirectory(start, chosen, "Select View"))
        return;
    SetPathName(chosen);
    setFocus();
    CCSetLastViewDirectory(chosen);
    ClearCaseSetChecked(ui->btnDefaultView, false);
    ClearCaseSetChecked(ui->btnCustomView, true);
}
