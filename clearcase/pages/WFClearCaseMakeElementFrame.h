#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseMakeElementFrame;
}

/// How a new element is left after creation, its element type and the creation switches.
class TClearCaseMakeElementFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeElementFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeElementFrame() override;

    /// Under ClearCase LT the mastership box stays greyed and unticked whatever is stored.
    void ReadActionData(TCustomWFAction& action) override;
    /// Every control is written, enabled or not.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseMakeElementFrame> ui;

    void btnCheckedInClick();
    void btnCheckedOutClick();
    void txtElementTypeDropDown();
};
