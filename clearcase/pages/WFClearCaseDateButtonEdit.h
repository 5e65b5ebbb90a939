#pragma once

#include <QDateTime>
#include <QFrame>

#include <memory>
#include <string>

class QAction;
class QMenu;

namespace Ui {
class TClearCaseDateButtonEdit;
}

/// An edit for a date-time value in the forms cleartool accepts (a keyword such as "today" or
/// "monday", 15-Nov-06, 14:30:00, or 15-Nov-06.14:30:00), with a drop-down of keywords, a
/// calendar and a time picker. What the user types is taken as it stands.
class TClearCaseDateButtonEdit : public QFrame {
    Q_OBJECT
public:
    explicit TClearCaseDateButtonEdit(QWidget* parent = nullptr);
    ~TClearCaseDateButtonEdit() override;

    std::string GetDateString() const;
    void SetDateString(const std::string& value);
    bool GetShowButton() const;
    void SetShowButton(bool value);
    /// Enables or disables the frame together with its edit (and so the drop-down button).
    void SetEnabled(bool value);

    /// The date as dd-MMM-yy with the locale's short month name when the value lies after the
    /// base date (30 Dec 1899), the time as H:mm:ss when it is past midnight, joined by ".";
    /// a value with neither leaves the edit empty.
    void SetDateTimeStamp(const QDateTime& value);
    /// The value that holds a time of day and no date.
    static QDateTime TimeStamp(const QTime& time);

    QMenu* PopupMenu1() const { return m_popupMenu; }

private:
    std::unique_ptr<Ui::TClearCaseDateButtonEdit> ui;

    void txtEditButtonClick();
    void namedItemClick(const QAction* item);
    void ChooseDate1Click();
    void ChooseTime1Click();

    QMenu* m_popupMenu = nullptr;
};
