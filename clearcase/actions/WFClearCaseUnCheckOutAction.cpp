#include "actions/WFClearCaseUnCheckOutAction.h"

TClearCaseUnCheckOutAction::TClearCaseUnCheckOutAction()
{
    PublishBoolean("Keep", &m_keep);
    PublishPathNameStorageString();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseUnCheckOutAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseBaseAction::GetCommandLine(builder);
    addPlain(builder, m_keep ? "-keep" : "-rm");
    const bool pathNames = AddPathNames(builder);
    return result && pathNames;
}
