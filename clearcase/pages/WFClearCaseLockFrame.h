#pragma once

#include "WFFrame.h"

#include <memory>
#include <string>

namespace Ui {
class TClearCaseLockFrame;
}

/// The lock options: replace, obsolete, or a list of exempted users edited one name a line.
class TClearCaseLockFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseLockFrame(QWidget* parent = nullptr);
    ~TClearCaseLockFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    /// The stored list (names separated by commas) as the memo shows it: each name after the
    /// first on a line of its own, every line ended.
    static QString UsersToMemo(const std::string& users);
    /// The memo's text as the stored list. Line breaks are dropped, not turned into commas.
    static std::string MemoToUsers(const QString& memo);

private:
    std::unique_ptr<Ui::TClearCaseLockFrame> ui;

    void boxObsoleteClick();
    void boxUseNUsersClick();
};
