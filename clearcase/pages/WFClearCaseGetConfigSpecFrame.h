#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseGetConfigSpecFrame;
}

/// Whether a view's config spec is also saved to a file, and the view.
class TClearCaseGetConfigSpecFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseGetConfigSpecFrame(QWidget* parent = nullptr);
    ~TClearCaseGetConfigSpecFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseGetConfigSpecFrame> ui;

    void boxUseFileClick();
    /// A save dialog proposing the file on the page, or config_spec.txt.
    void txtFilePathButtonClick();
};
