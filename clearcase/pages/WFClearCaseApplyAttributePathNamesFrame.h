#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseApplyAttributePathNamesFrame;
}

/// The path variant's own switches: the version to attach to, -replace and -recurse. The
/// version edit stays editable whatever its box says.
class TClearCaseApplyAttributePathNamesFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyAttributePathNamesFrame(QWidget* parent = nullptr);
    ~TClearCaseApplyAttributePathNamesFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;


private:
    std::unique_ptr<Ui::TClearCaseApplyAttributePathNamesFrame> ui;
};
