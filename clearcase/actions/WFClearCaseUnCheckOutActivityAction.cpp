#include "actions/WFClearCaseUnCheckOutActivityAction.h"

TClearCaseUnCheckOutActivityAction::TClearCaseUnCheckOutActivityAction()
{
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseUnCheckOutActivityAction::AddPathNames(ICommandLineBuilder& builder)
{
    addPlain(builder, "-cact");
    return true;
}

bool TClearCaseUnCheckOutActivityAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseUnCheckOutAction::GetCommandLine(builder);
    // Checked only after a successful inherited step, as the system has always done.
    if (result && !GetUseDefaultViewContext() && GetViewContextPath().empty()) {
        SendMessage("Error: You have not specified a View to undo checkout for.");
        return false;
    }
    return result;
}
