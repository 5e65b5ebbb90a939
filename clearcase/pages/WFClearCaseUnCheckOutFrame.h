#pragma once

#include "ui_WFClearCaseUnCheckOutFrame.h"
#include "WFFrame.h"

/// Whether undoing a check-out keeps the checked-out file's contents.
class TClearCaseUnCheckOutFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseUnCheckOutFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseUnCheckOutFrame ui;
};
