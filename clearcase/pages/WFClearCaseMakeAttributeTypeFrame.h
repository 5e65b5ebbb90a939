#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseMakeAttributeTypeFrame;
}

/// The new attribute type: its name and VOB, its value type, the range of allowed values and
/// the default value. A time type edits its values with date edits. The page stores the range
/// flags but not the two bound values, as users of the action know it: a bound typed here is
/// shown and not kept.
class TClearCaseMakeAttributeTypeFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseMakeAttributeTypeFrame(QWidget* parent = nullptr);
    ~TClearCaseMakeAttributeTypeFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

private:
    std::unique_ptr<Ui::TClearCaseMakeAttributeTypeFrame> ui;

    void txtVOBSelectorDropDown();
    void txtAttrNameDropDown();
    /// Shows the date edits for a time type and the plain edits for the others, carrying the
    /// bounds over, then the enable rules.
    void cmbValueTypeChange();
    /// A range applies to integer, real and time types; each part of it only while its box is
    /// ticked, and the default value only while its box is.
    void UpdateEnabled();

    bool m_dateShown = false;
};
