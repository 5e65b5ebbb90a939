#include "actions/WFClearCaseUnlockObjectsAction.h"

TClearCaseUnlockObjectsAction::TClearCaseUnlockObjectsAction()
{
    PublishObjectsStorageString();
    PublishComment();
    PublishNoComment();
}

bool TClearCaseUnlockObjectsAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    result = AddObjectSelectors(builder) && result;
    return result;
}
