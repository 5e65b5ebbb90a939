#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseUnCheckOutFrame;
}

/// Whether undoing a check-out keeps the checked-out file's contents.
class TClearCaseUnCheckOutFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseUnCheckOutFrame(QWidget* parent = nullptr);
    ~TClearCaseUnCheckOutFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseUnCheckOutFrame> ui;
};
