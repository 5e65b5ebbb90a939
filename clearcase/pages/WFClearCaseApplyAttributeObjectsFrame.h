#pragma once

#include "ui_WFClearCaseApplyAttributeObjectsFrame.h"
#include "WFFrame.h"

/// The object variant's own switch: -replace.
class TClearCaseApplyAttributeObjectsFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyAttributeObjectsFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseApplyAttributeObjectsFrame ui;
};
