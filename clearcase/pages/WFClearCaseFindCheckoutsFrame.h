#pragma once

#include "ui_WFClearCaseFindCheckoutsFrame.h"
#include "WFFrame.h"

/// Where the list of check-outs goes and in which format, and the view.
class TClearCaseFindCheckoutsFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseFindCheckoutsFrame(QWidget* parent = nullptr);

    /// Offers the open project's variables; a stored name the project no longer has selects none.
    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseFindCheckoutsFrame ui;
};
