#pragma once

#include "WFExport.h"

#include <string>

class TCustomWFAction;

/// A property page class, by name. The design-time part of a host turns names into frames.
struct WF_API TWFPageClass {
    std::string className;
};

/// A property page as the host drives it. The design-time part of the host derives its
/// frames (widgets) from this; the contract itself knows no toolkit.
class WF_API IWFActionPage {
public:
    virtual ~IWFActionPage() = default;
    /// Owner is the host's container widget, passed opaquely.
    virtual void InitFrame(void* owner) = 0;
    virtual void InitPage(TCustomWFAction& action) = 0;
    virtual void OnPageActivate() = 0;
    virtual void OnPageDeActivate() = 0;
    /// Copies the action's properties into the controls.
    virtual void ReadActionData(TCustomWFAction& action) = 0;
    /// Copies the controls back into the action, when the user accepts.
    virtual void WriteActionData(TCustomWFAction& action) = 0;
    /// The tab caption.
    virtual std::string PageName() const = 0;
};
