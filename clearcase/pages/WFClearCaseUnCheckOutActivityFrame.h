#pragma once

#include "ui_WFClearCaseUnCheckOutActivityFrame.h"
#include "WFFrame.h"

/// Undoing every check-out of the current activity of a view: whether the contents are kept,
/// and the view.
class TClearCaseUnCheckOutActivityFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseUnCheckOutActivityFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseUnCheckOutActivityFrame ui;
};
