#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseFindCheckoutsFrame;
}

/// Where the list of check-outs goes and in which format, and the view.
class TClearCaseFindCheckoutsFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseFindCheckoutsFrame(QWidget* parent = nullptr);
    ~TClearCaseFindCheckoutsFrame() override;

    /// Offers the open project's variables; a stored name the project no longer has selects none.
    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseFindCheckoutsFrame> ui;
};
