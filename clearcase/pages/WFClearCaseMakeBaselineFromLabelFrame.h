#pragma once

#include "ui_WFClearCaseMakeBaselineFromLabelFrame.h"
#include "WFFrame.h"

/// The label type a baseline is imported from, its VOB, and optionally the components.
class TClearCaseMakeBaselineFromLabelFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeBaselineFromLabelFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseMakeBaselineFromLabelFrame ui;

private:
    void txtLabelDropDown();
    void txtVOBDropDown();
};
