#pragma once

#include "ui_WFClearCaseMakeBaseLineLabelFrame.h"
#include "WFFrame.h"

/// How a new baseline labels its files: incremental, full, or not at all.
class TClearCaseMakeBaseLineLabelFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeBaseLineLabelFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseMakeBaseLineLabelFrame ui;
};
