#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseApplyLabelFrame;
}

/// The label to apply, an optional version selector and the mklabel switches.
class TClearCaseApplyLabelFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyLabelFrame(QWidget* parent = nullptr);
    ~TClearCaseApplyLabelFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// The version selector is kept even when it is not used.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseApplyLabelFrame> ui;

    void boxUseVersionSelectorClick();
    void txtVOBSelectorDropDown();
    void txtLabelNameDropDown();
};
