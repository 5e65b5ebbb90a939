#pragma once

#include "ui_WFClearCaseGetConfigSpecFrame.h"
#include "WFFrame.h"

/// Whether a view's config spec is also saved to a file, and the view.
class TClearCaseGetConfigSpecFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseGetConfigSpecFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseGetConfigSpecFrame ui;

private:
    void boxUseFileClick();
    /// A save dialog proposing the file on the page, or config_spec.txt.
    void txtFilePathButtonClick();
};
