#include "actions/WFClearCaseCheckInPathAction.h"

TClearCaseCheckInPathAction::TClearCaseCheckInPathAction()
{
    PublishPathNameStorageString();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseCheckInPathAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseCheckInGenericAction::GetCommandLine(builder);
    const bool pathNames = AddPathNames(builder);
    return result && pathNames;
}
