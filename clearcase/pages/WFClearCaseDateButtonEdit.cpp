#include "pages/WFClearCaseDateButtonEdit.h"
#include "ui_WFClearCaseDateButtonEdit.h"

#include <QCalendarWidget>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLocale>
#include <QMenu>
#include <QTimeEdit>
#include <QVBoxLayout>

namespace {

/// Day zero of the date-time values cleartool time stamps are counted from.
const QDate kBaseDate(1899, 12, 30);

/// A panel that pops up under the edit and closes when the user clicks elsewhere; `content`
/// goes above OK and Cancel.
class PopupPanel : public QDialog {
public:
    PopupPanel(QWidget* edit, const char* name, QWidget* content) : QDialog(edit, Qt::Popup)
    {
        setObjectName(name);
        auto* layout = new QVBoxLayout(this);
        layout->setContentsMargins(4, 4, 4, 4);
        content->setParent(this);
        layout->addWidget(content);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        layout->addWidget(buttons);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        move(edit->mapToGlobal(QPoint(0, edit->height())));
    }
};

} // namespace

TClearCaseDateButtonEdit::TClearCaseDateButtonEdit(QWidget* parent)
    : QFrame(parent), ui(std::make_unique<Ui::TClearCaseDateButtonEdit>())
{
    ui->setupUi(this);
    m_popupMenu = new QMenu(this);
    m_popupMenu->setObjectName("PopupMenu1");
    const auto named = [this](QMenu* menu, const char* name, const char* caption) {
        QAction* item = menu->addAction(caption);
        item->setObjectName(name);
        connect(item, &QAction::triggered, this, [this, item] { namedItemClick(item); });
    };
    named(m_popupMenu, "NowItem", "Now");
    named(m_popupMenu, "odayItem", "Today");
    named(m_popupMenu, "Yesterday", "Yesterday");
    m_popupMenu->addSeparator();
    QMenu* days = m_popupMenu->addMenu("Day of Week");
    days->setObjectName("DayofWeekMenu");
    days->menuAction()->setObjectName("DayofWeek");
    // cleartool reads English day names only, so the captions are never translated.
    for (const char* day : {"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"})
        named(days, (std::string(day) + "1").c_str(), day);
    m_popupMenu->addSeparator();
    QAction* chooseDate = m_popupMenu->addAction("Choose Date...");
    chooseDate->setObjectName("ChooseDate1");
    connect(chooseDate, &QAction::triggered, this, &TClearCaseDateButtonEdit::ChooseDate1Click);
    QAction* chooseTime = m_popupMenu->addAction("Choose Time...");
    chooseTime->setObjectName("ChooseTime1");
    connect(chooseTime, &QAction::triggered, this, &TClearCaseDateButtonEdit::ChooseTime1Click);
    connect(ui->txtEditButton, &QToolButton::clicked, this, &TClearCaseDateButtonEdit::txtEditButtonClick);
}

TClearCaseDateButtonEdit::~TClearCaseDateButtonEdit() = default;

std::string TClearCaseDateButtonEdit::GetDateString() const
{
    return ui->txtEdit->text().toStdString();
}

void TClearCaseDateButtonEdit::SetDateString(const std::string& value)
{
    ui->txtEdit->setText(QString::fromStdString(value));
}

bool TClearCaseDateButtonEdit::GetShowButton() const
{
    return !ui->txtEditButton->isHidden();
}

void TClearCaseDateButtonEdit::SetShowButton(bool value)
{
    ui->txtEditButton->setVisible(value);
}

void TClearCaseDateButtonEdit::SetEnabled(bool value)
{
    setEnabled(value);
    ui->txtEdit->setEnabled(value);
    ui->txtEditButton->setEnabled(value);
}

QDateTime TClearCaseDateButtonEdit::TimeStamp(const QTime& time)
{
    return QDateTime(kBaseDate, time);
}

void TClearCaseDateButtonEdit::SetDateTimeStamp(const QDateTime& value)
{
    const QString date = value.date() > kBaseDate ? QLocale().toString(value.date(), "dd-MMM-yy") : QString();
    const QString time = value.time() > QTime(0, 0) ? value.time().toString("H:mm:ss") : QString();
    ui->txtEdit->setText(date);
    if (!date.isEmpty() && !time.isEmpty())
        ui->txtEdit->setText(date + "." + time);
    else if (!time.isEmpty())
        ui->txtEdit->setText(time);
}

void TClearCaseDateButtonEdit::txtEditButtonClick()
{
    const QPoint below(ui->txtEditButton->x(), ui->txtEdit->y() + ui->txtEdit->height());
    m_popupMenu->popup(mapToGlobal(below));
}

void TClearCaseDateButtonEdit::namedItemClick(const QAction* item)
{
    ui->txtEdit->setText(item->text().remove('&').toLower());
}

void TClearCaseDateButtonEdit::ChooseDate1Click()
{
    auto* calendar = new QCalendarWidget;
    calendar->setObjectName("Calendar");
    calendar->setMinimumDate(kBaseDate.addDays(1));
    PopupPanel panel(ui->txtEdit, "DatePanel", calendar);
    // A click on a day or Enter picks it, as OK does.
    connect(calendar, &QCalendarWidget::clicked, &panel, &QDialog::accept);
    connect(calendar, &QCalendarWidget::activated, &panel, &QDialog::accept);
    if (panel.exec() == QDialog::Accepted)
        SetDateTimeStamp(QDateTime(calendar->selectedDate(), QTime(0, 0)));
}

void TClearCaseDateButtonEdit::ChooseTime1Click()
{
    const QString text = ui->txtEdit->text();
    QString datePart;
    if (const auto dot = text.indexOf('.'); dot >= 0)
        datePart = text.left(dot);
    else if (!text.contains(':') && text != "now")
        datePart = text;

    auto* picker = new QTimeEdit;
    picker->setObjectName("TimePicker");
    picker->setDisplayFormat("HH:mm:ss");
    const QTime now = QTime::currentTime();
    picker->setTime(QTime(now.hour(), now.minute()));
    PopupPanel panel(ui->txtEdit, "TimePanel", picker);
    if (panel.exec() != QDialog::Accepted)
        return;
    // A time alone is written; the kept date part goes before it.
    SetDateTimeStamp(TimeStamp(picker->time()));
    if (!datePart.isEmpty())
        ui->txtEdit->setText(datePart + "." + ui->txtEdit->text());
}
