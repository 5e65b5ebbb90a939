#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseApplyAttributeObjectsFrame;
}

/// The object variant's own switch: -replace.
class TClearCaseApplyAttributeObjectsFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyAttributeObjectsFrame(QWidget* parent = nullptr);
    ~TClearCaseApplyAttributeObjectsFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseApplyAttributeObjectsFrame> ui;
};
