#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseActivitySelectorFrame;
}

/// The activity a UCM action works on: the view's current one (on the set-activity action:
/// none at all) or a named activity in a project VOB.
class TClearCaseActivitySelectorFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseActivitySelectorFrame(QWidget* parent = nullptr);
    ~TClearCaseActivitySelectorFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// The name and VOB are stored whichever choice is made.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseActivitySelectorFrame> ui;

    void btnCurrentActivityClick();
    void btnCustomActivityClick();
    void txtActivityNameDropDown();
    void txtVOBSelectorDropDown();
};
