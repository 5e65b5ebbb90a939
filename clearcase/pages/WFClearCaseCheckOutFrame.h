#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseCheckOutFrame;
}

/// The check-out switches: reserved or not, where the data goes, which version.
class TClearCaseCheckOutFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCheckOutFrame(QWidget* parent = nullptr);
    ~TClearCaseCheckOutFrame() override;

    /// Under ClearCase LT the version and branch choice is not offered and the stored selectors
    /// are not shown.
    void ReadActionData(TCustomWFAction& action) override;
    /// "Unreserved if already reserved" is stored as both flags set; the three texts are
    /// stored whichever option is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseCheckOutFrame> ui;

    void btnReservedClick();
    void btnUnreservedClick();
    void txtExternalPathChange();
    void txtExternalPathButtonClick();
    void txtBranchNameChange();
    void txtVersionNameChange();
};
