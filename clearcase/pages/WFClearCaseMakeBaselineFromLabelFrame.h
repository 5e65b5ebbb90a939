#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseMakeBaselineFromLabelFrame;
}

/// The label type a baseline is imported from, its VOB, and optionally the components.
class TClearCaseMakeBaselineFromLabelFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeBaselineFromLabelFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeBaselineFromLabelFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseMakeBaselineFromLabelFrame> ui;

    void txtLabelDropDown();
    void txtVOBDropDown();
};
