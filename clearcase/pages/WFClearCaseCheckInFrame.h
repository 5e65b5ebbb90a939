#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseCheckInFrame;
}

/// The check-in switches, for every check-in action.
class TClearCaseCheckInFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCheckInFrame(QWidget* parent = nullptr);
    ~TClearCaseCheckInFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseCheckInFrame> ui;

    // "-keep" and "-rm" exclude each other: the one clicked last wins.
    void boxKeepClick();
    void boxRemoveClick();
};
