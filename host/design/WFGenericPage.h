#pragma once

#include "WFBoundControls.h"

#include <string>
#include <vector>

class QFormLayout;

/// The page of an action whose package registers none: one control per published property
/// (a line edit for text and numbers, a memo for multi-line text, a check box for a Boolean, a
/// drop-down for an enumeration), named "txt", "box" or "cmb" plus the property's name.
class TWFGenericPropertyPage : public TWFBoundFrame {
    Q_OBJECT
public:
    explicit TWFGenericPropertyPage(QWidget* parent = nullptr);

    /// Builds the controls for the action's properties.
    void InitPage(TCustomWFAction& action) override;

private:
    QFormLayout* m_form;
};

/// The pages an action of the class gets: those its package registered, in their order, or the
/// generic property page when it registered none.
std::vector<TWFPageClass> WFPagesFor(const std::string& actionClassName);
