#include "actions/WFClearCaseLockPathNamesAction.h"

TClearCaseLockPathNamesAction::TClearCaseLockPathNamesAction()
{
    PublishPathNameStorageString();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseLockPathNamesAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseLockGenericAction::GetCommandLine(builder);
    addPlain(builder, "-pname");
    const bool pathNames = AddPathNames(builder);
    return result && pathNames;
}
