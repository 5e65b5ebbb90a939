#include "pages/WFClearCaseLockFrame.h"
#include "ui_WFClearCaseLockFrame.h"

#include "actions/WFClearCaseLockGenericAction.h"
#include "pages/WFClearCasePageLook.h"

TClearCaseLockFrame::TClearCaseLockFrame(QWidget* parent) : TFrame(parent), ui(std::make_unique<Ui::TClearCaseLockFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    connect(ui->boxObsolete, &QCheckBox::clicked, this, &TClearCaseLockFrame::boxObsoleteClick);
    connect(ui->boxUseNUsers, &QCheckBox::clicked, this, &TClearCaseLockFrame::boxUseNUsersClick);
}

TClearCaseLockFrame::~TClearCaseLockFrame() = default;

std::string TClearCaseLockFrame::PageName() const
{
    return "Options";
}

QString TClearCaseLockFrame::UsersToMemo(const std::string& users)
{
    QString memo = QString::fromStdString(users).replace(",", ",\n");
    if (!memo.isEmpty())
        memo += "\n";
    return memo;
}

std::string TClearCaseLockFrame::MemoToUsers(const QString& memo)
{
    // The memo's line breaks are line feeds; text pasted in may bring carriage returns too.
    QString users = memo;
    users.remove("\r\n").remove('\n');
    // One pass each: a run of blanks beside a comma loses one blank per pass.
    users.replace(", ", ",").replace(" ,", ",");
    while (!users.isEmpty()) {
        const QChar last = users.back();
        if (last != ',' && last != ' ' && users != "\r")
            break;
        users.chop(1);
    }
    return users.toStdString();
}

void TClearCaseLockFrame::ReadActionData(TCustomWFAction& action)
{
    auto& lock = narrow<TClearCaseLockGenericAction>(action);
    ui->boxReplace->setChecked(lock.GetReplace());
    ui->boxUseNUsers->setChecked(lock.GetUseNUsers());
    ui->boxObsolete->setChecked(lock.GetObsolete());
    ui->txtNUsersList->setPlainText(UsersToMemo(lock.GetNUsersList()));
    ui->txtNUsersList->setEnabled(ui->boxUseNUsers->isChecked());
}

void TClearCaseLockFrame::WriteActionData(TCustomWFAction& action)
{
    auto& lock = narrow<TClearCaseLockGenericAction>(action);
    lock.SetReplace(ui->boxReplace->isChecked());
    lock.SetUseNUsers(ui->boxUseNUsers->isChecked());
    lock.SetObsolete(ui->boxObsolete->isChecked());
    lock.SetNUsersList(MemoToUsers(ui->txtNUsersList->toPlainText()));
}

void TClearCaseLockFrame::boxUseNUsersClick()
{
    ui->txtNUsersList->setEnabled(ui->boxUseNUsers->isChecked());
    if (ui->boxUseNUsers->isChecked())
        ui->boxObsolete->setChecked(false);
}

void TClearCaseLockFrame::boxObsoleteClick()
{
    // The command line takes one of -obsolete and -nusers: the last one ticked wins.
    if (ui->boxObsolete->isChecked()) {
        ui->boxUseNUsers->setChecked(false);
        boxUseNUsersClick();
    }
}
