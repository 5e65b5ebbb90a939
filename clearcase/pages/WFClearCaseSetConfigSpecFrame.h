#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseSetConfigSpecFrame;
}

/// Where a view's new config spec comes from, and the view.
class TClearCaseSetConfigSpecFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseSetConfigSpecFrame(QWidget* parent = nullptr);
    ~TClearCaseSetConfigSpecFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// The file is stored whichever source is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseSetConfigSpecFrame> ui;

    void btnFileClick();
    void btnNonFileClick();
    void txtSpecFileButtonClick();
    void enableSpecFile(bool enabled);
};
