#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseMakeActivityFrame;
}

/// A new UCM activity: its view, a generated or given name, its project VOB, headline, and
/// whether it becomes the view's current activity.
class TClearCaseMakeActivityFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeActivityFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeActivityFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// A typed name is stored even when the generated name is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseMakeActivityFrame> ui;

    void txtVOBSelectorDropDown();
};
