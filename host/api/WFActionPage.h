#pragma once

#include "WFExport.h"

#include <functional>
#include <string>

class QWidget;
class TCustomWFAction;
class TWFOptionsObject;

/// A property page class: its name and how to make one. Only a host with a user interface
/// calls `create`; the headless runtime never does, so it needs no widget library. A page made
/// for an action implements IWFActionPage, one made for options IWFOptionsPage.
struct WF_API TWFPageClass {
    std::string className;
    std::function<QWidget*(QWidget* parent)> create;
};

/// A property page as the host drives it (the page binding cycle: InitFrame, InitPage,
/// ReadActionData, then WriteActionData when the user accepts).
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

/// The host's options dialog as an options page sees it.
class WF_API IWFOptionPageOwner {
public:
    virtual ~IWFOptionPageOwner() = default;
};

/// A page of the host's options dialog.
class WF_API IWFOptionsPage {
public:
    virtual ~IWFOptionsPage() = default;
    virtual std::string GetPageName() const = 0;
    virtual void InitPage(IWFOptionPageOwner* owner) = 0;
    virtual void OnPageActivate() = 0;
    virtual void ReadOptions(TWFOptionsObject& options) = 0;
    virtual void WriteOptions(TWFOptionsObject& options) = 0;
};
