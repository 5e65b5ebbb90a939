#pragma once

#include "ui_WFClearCaseSetConfigSpecFrame.h"
#include "WFFrame.h"

/// Where a view's new config spec comes from, and the view.
class TClearCaseSetConfigSpecFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseSetConfigSpecFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    /// The file is stored whichever source is chosen.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseSetConfigSpecFrame ui;

private:
    void btnFileClick();
    void btnNonFileClick();
    void txtSpecFileButtonClick();
    void enableSpecFile(bool enabled);
};
