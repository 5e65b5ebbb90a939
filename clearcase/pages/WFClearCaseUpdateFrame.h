#pragma once

#include "ui_WFClearCaseUpdateFrame.h"
#include "WFFrame.h"

/// How a snapshot view is updated, and which view.
class TClearCaseUpdateFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseUpdateFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    /// A choice whose group has no button checked leaves its property as it was.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseUpdateFrame ui;

private:
    /// A pretend run changes no file, so how files would be changed is not asked.
    void UpdateEnabledControls();
};
