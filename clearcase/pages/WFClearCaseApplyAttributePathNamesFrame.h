#pragma once

#include "ui_WFClearCaseApplyAttributePathNamesFrame.h"
#include "WFFrame.h"

/// The path variant's own switches: the version to attach to, -replace and -recurse. The
/// version edit stays editable whatever its box says.
class TClearCaseApplyAttributePathNamesFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyAttributePathNamesFrame(QWidget* parent = nullptr);

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    Ui::TClearCaseApplyAttributePathNamesFrame ui;
};
