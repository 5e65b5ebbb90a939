#pragma once

#include "ui_WFClearCaseMakeElementFrame.h"
#include "WFFrame.h"

/// How a new element is left after creation, its element type and the creation switches.
class TClearCaseMakeElementFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeElementFrame(QWidget* parent = nullptr);

    /// Under ClearCase LT the mastership box stays greyed and unticked whatever is stored.
    void ReadActionData(TCustomWFAction& action) override;
    /// Every control is written, enabled or not.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseMakeElementFrame ui;

private:
    void btnCheckedInClick();
    void btnCheckedOutClick();
    void txtElementTypeDropDown();
};
