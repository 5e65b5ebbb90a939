#pragma once

#include "WFFrame.h"

#include <memory>

class QTimer;

namespace Ui {
class TClearCaseApplyAttributeFrame;
}

/// What both apply-attribute actions share: the VOB, the attribute name and its value or the
/// type's default, with the value type looked up shortly after the user stops typing.
class TClearCaseApplyAttributeFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseApplyAttributeFrame(QWidget* parent = nullptr);
    ~TClearCaseApplyAttributeFrame() override;

    /// Ends with one type lookup at once.
    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseApplyAttributeFrame> ui;

    void boxUseDefaultClick();
    void txtVOBSelectorDropDown();
    void txtAttrNameDropDown();
    void txtAttrNameChange();
    /// Shows the value type of the named attribute type. A found type disables "Use default
    /// value" (the box is enabled only while the label shows no type): kept as users know it.
    void Timer1Timer();

    QTimer* m_timer1 = nullptr;
};
