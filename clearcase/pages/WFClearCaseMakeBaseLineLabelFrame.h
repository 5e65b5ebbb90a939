#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseMakeBaseLineLabelFrame;
}

/// How a new baseline labels its files: incremental, full, or not at all.
class TClearCaseMakeBaseLineLabelFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeBaseLineLabelFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeBaseLineLabelFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseMakeBaseLineLabelFrame> ui;
};
