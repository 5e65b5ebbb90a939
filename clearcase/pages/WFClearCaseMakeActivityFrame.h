#pragma once

#include "ui_WFClearCaseMakeActivityFrame.h"
#include "WFFrame.h"

/// A new UCM activity: its view, a generated or given name, its project VOB, headline, and
/// whether it becomes the view's current activity.
class TClearCaseMakeActivityFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeActivityFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    /// A typed name is stored even when the generated name is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseMakeActivityFrame ui;

private:
    void txtVOBSelectorDropDown();
};
