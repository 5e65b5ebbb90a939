#pragma once

#include "ui_WFClearCaseApplyLabelFrame.h"
#include "WFFrame.h"

/// The label to apply, an optional version selector and the mklabel switches.
class TClearCaseApplyLabelFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyLabelFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    /// The version selector is kept even when it is not used.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseApplyLabelFrame ui;

private:
    void boxUseVersionSelectorClick();
    void txtVOBSelectorDropDown();
    void txtLabelNameDropDown();
};
