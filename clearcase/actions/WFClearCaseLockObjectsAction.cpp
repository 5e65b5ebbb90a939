#include "actions/WFClearCaseLockObjectsAction.h"

TClearCaseLockObjectsAction::TClearCaseLockObjectsAction()
{
    PublishObjectsStorageString();
}

bool TClearCaseLockObjectsAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseLockGenericAction::GetCommandLine(builder);
    const bool objects = AddObjectSelectors(builder);
    return result && objects;
}
