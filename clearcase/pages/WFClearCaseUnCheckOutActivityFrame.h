#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseUnCheckOutActivityFrame;
}

/// Undoing every check-out of the current activity of a view: whether the contents are kept,
/// and the view.
class TClearCaseUnCheckOutActivityFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseUnCheckOutActivityFrame(QWidget* parent = nullptr);
    ~TClearCaseUnCheckOutActivityFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseUnCheckOutActivityFrame> ui;
};
