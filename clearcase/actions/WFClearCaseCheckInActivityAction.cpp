#include "actions/WFClearCaseCheckInActivityAction.h"

TClearCaseCheckInActivityAction::TClearCaseCheckInActivityAction()
{
    PublishActivityName();
    PublishVOBSelector();
    PublishUseCurrentActivity();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseCheckInActivityAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseCheckInGenericAction::GetCommandLine(builder);
    const bool activity = AddActivityName(builder);
    return result && activity;
}
