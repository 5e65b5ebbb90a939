#include "actions/WFClearCaseCheckInGenericAction.h"

TClearCaseCheckInGenericAction::TClearCaseCheckInGenericAction()
{
    PublishPathNameStorageString();
    PublishComment();
    PublishNoComment();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("NoWarnings", &m_noWarnings);
    PublishBoolean("Keep", &m_keep);
    PublishBoolean("Remove", &m_remove);
    PublishBoolean("PreserveTime", &m_preserveTime);
    PublishBoolean("IdenticalCheckin", &m_identicalCheckin);
}

bool TClearCaseCheckInGenericAction::GetCommandLine(ICommandLineBuilder& builder)
{
    if (!TClearCaseBaseAction::GetCommandLine(builder))
        return false;
    // A comment that fails to expand does not fail a check-in (unlike a check-out).
    AddComment(builder);
    // Keep wins over Remove.
    addSwitches(builder, {{m_noWarnings, "-nwarn"},
                          {m_preserveTime, "-ptime"},
                          {m_keep, "-keep"},
                          {!m_keep && m_remove, "-rm"},
                          {m_identicalCheckin, "-identical"}});
    return true;
}
