#include "pages/WFClearCaseCommentFrame.h"
#include "ui_WFClearCaseCommentFrame.h"

#include "actions/WFClearCaseBaseAction.h"
#include "pages/WFClearCasePageLook.h"

#include <QKeyEvent>

TClearCaseCommentFrame::TClearCaseCommentFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseCommentFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    // The comment goes on one command-line argument: Enter must not break it.
    ui->txtComment->installEventFilter(this);
    connect(ui->txtComment, &QPlainTextEdit::textChanged, this, &TClearCaseCommentFrame::txtCommentChange);
}

TClearCaseCommentFrame::~TClearCaseCommentFrame() = default;

std::string TClearCaseCommentFrame::PageName() const
{
    return "Comment";
}

void TClearCaseCommentFrame::ReadActionData(TCustomWFAction& action)
{
    auto& base = narrow<TClearCaseBaseAction>(action);
    ui->txtComment->setPlainText(QString::fromStdString(base.GetComment()));
    ClearCaseSetChecked(ui->btnNoComment, base.GetNoComment());
    ClearCaseSetChecked(ui->btnComment, !base.GetNoComment());
}

void TClearCaseCommentFrame::WriteActionData(TCustomWFAction& action)
{
    auto& base = narrow<TClearCaseBaseAction>(action);
    base.SetComment(ui->txtComment->toPlainText().toStdString());
    base.SetNoComment(ui->btnNoComment->isChecked());
}

void TClearCaseCommentFrame::txtCommentChange()
{
    if (!ui->txtComment->toPlainText().isEmpty())
        ui->btnComment->setChecked(true);
}

bool TClearCaseCommentFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui->txtComment && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter)
            return true;
    }
    return TFrame::eventFilter(watched, event);
}
