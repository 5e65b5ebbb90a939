#include "actions/WFClearCaseUnlockPathNamesAction.h"

TClearCaseUnlockPathNamesAction::TClearCaseUnlockPathNamesAction()
{
    PublishPathNameStorageString();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishComment();
    PublishNoComment();
}

bool TClearCaseUnlockPathNamesAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    addPlain(builder, "-pname");
    result = AddPathNames(builder) && result;
    return result;
}
