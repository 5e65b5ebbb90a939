#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseCleartoolFrame;
}

/// Any cleartool sub-command with its arguments, the command line it makes, and where it runs.
class TClearCaseCleartoolFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseCleartoolFrame(QWidget* parent = nullptr);
    ~TClearCaseCleartoolFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    /// The arguments are stored as the memo holds them, lines joined by CR LF; unedited, as read.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseCleartoolFrame> ui;

    void txtCommandChange();
    void txtArgsChange();
    /// Shows the command line exactly as the action will run it.
    void UpdateLabel();
};
