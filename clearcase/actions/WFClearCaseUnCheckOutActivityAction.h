#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseUnCheckOutAction.h"

#include <string>

/// "UCM Undo Checkouts for Activity": cleartool uncheckout of the check-outs of the view's
/// current activity.
class WF_CC_API TClearCaseUnCheckOutActivityAction : public TClearCaseUnCheckOutAction {
public:
    TClearCaseUnCheckOutActivityAction();

    /// The undo-check-out line; after a successful one, an error when no view is named.
    bool GetCommandLine(ICommandLineBuilder& builder) override;
    /// "-cact" in place of the path names.
    bool AddPathNames(ICommandLineBuilder& builder) override;
};
