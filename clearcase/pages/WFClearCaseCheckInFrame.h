#pragma once

#include "ui_WFClearCaseCheckInFrame.h"
#include "WFFrame.h"

/// The check-in switches, for every check-in action.
class TClearCaseCheckInFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCheckInFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseCheckInFrame ui;

private:
    // "-keep" and "-rm" exclude each other: the one clicked last wins.
    void boxKeepClick();
    void boxRemoveClick();
};
