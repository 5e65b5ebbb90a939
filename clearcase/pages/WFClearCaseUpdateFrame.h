#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseUpdateFrame;
}

/// How a snapshot view is updated, and which view.
class TClearCaseUpdateFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseUpdateFrame(QWidget* parent = nullptr);
    ~TClearCaseUpdateFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// A choice whose group has no button checked leaves its property as it was.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseUpdateFrame> ui;

    /// A pretend run changes no file, so how files would be changed is not asked.
    void UpdateEnabledControls();
};
