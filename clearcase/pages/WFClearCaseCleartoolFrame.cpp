#include "pages/WFClearCaseCleartoolFrame.h"
#include "ui_WFClearCaseCleartoolFrame.h"

#include "actions/WFClearCaseCleartoolAction.h"
#include "pages/WFClearCasePageLook.h"
#include "WFBoundControls.h"

TClearCaseCleartoolFrame::TClearCaseCleartoolFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseCleartoolFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image4);
    connect(ui->txtCommand, &QLineEdit::textChanged, this, &TClearCaseCleartoolFrame::txtCommandChange);
    connect(ui->txtArgs, &QPlainTextEdit::textChanged, this, &TClearCaseCleartoolFrame::txtArgsChange);
    UpdateLabel();
}

TClearCaseCleartoolFrame::~TClearCaseCleartoolFrame() = default;

std::string TClearCaseCleartoolFrame::PageName() const
{
    return "Cleartool Parameters";
}

void TClearCaseCleartoolFrame::ReadActionData(TCustomWFAction& action)
{
    auto& cleartool = narrow<TClearCaseCleartoolAction>(action);
    ui->txtCommand->setText(QString::fromStdString(cleartool.GetCommand()));
    WFShowInMemo(ui->txtArgs, cleartool.GetArguments());
    ui->ViewContext->SetCaption("View Context (Starting Directory)");
    ui->ViewContext->ReadActionData(cleartool);
}

void TClearCaseCleartoolFrame::WriteActionData(TCustomWFAction& action)
{
    auto& cleartool = narrow<TClearCaseCleartoolAction>(action);
    ui->ViewContext->WriteActionData(cleartool);
    cleartool.SetCommand(ui->txtCommand->text().toStdString());
    cleartool.SetArguments(WFMemoValue(ui->txtArgs, "\r\n"));
}

void TClearCaseCleartoolFrame::txtCommandChange()
{
    UpdateLabel();
}

void TClearCaseCleartoolFrame::txtArgsChange()
{
    UpdateLabel();
}

void TClearCaseCleartoolFrame::UpdateLabel()
{
    ui->lblPath->setText("Full Command Will Be: 'cleartool " + ui->txtCommand->text() + " " + ui->txtArgs->toPlainText() + "'");
}
