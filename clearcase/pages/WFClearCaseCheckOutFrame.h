#pragma once

#include "ui_WFClearCaseCheckOutFrame.h"
#include "WFFrame.h"

/// The check-out switches: reserved or not, where the data goes, which version.
class TClearCaseCheckOutFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCheckOutFrame(QWidget* parent = nullptr);

    /// Under ClearCase LT the version and branch choice is not offered and the stored selectors
    /// are not shown.
    void ReadActionData(TCustomWFAction& action) override;
    /// "Unreserved if already reserved" is stored as both flags set; the three texts are
    /// stored whichever option is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseCheckOutFrame ui;

private:
    void btnReservedClick();
    void btnUnreservedClick();
    void txtExternalPathChange();
    void txtExternalPathButtonClick();
    void txtBranchNameChange();
    void txtVersionNameChange();
};
