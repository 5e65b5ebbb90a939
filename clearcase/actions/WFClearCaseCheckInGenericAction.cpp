#include "actions/WFClearCaseCheckInGenericAction.h"

TClearCaseCheckInGenericAction::TClearCaseCheckInGenericAction()
{
    PublishPathNameStorageString();
    PublishComment();
    PublishNoComment();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("NoWarnings", [this] { return m_noWarnings; }, [this](bool v) { m_noWarnings = v; });
    PublishBoolean("Keep", [this] { return m_keep; }, [this](bool v) { m_keep = v; });
    PublishBoolean("Remove", [this] { return m_remove; }, [this](bool v) { m_remove = v; });
    PublishBoolean("PreserveTime", [this] { return m_preserveTime; }, [this](bool v) { m_preserveTime = v; });
    PublishBoolean("IdenticalCheckin", [this] { return m_identicalCheckin; }, [this](bool v) { m_identicalCheckin = v; });
}

bool TClearCaseCheckInGenericAction::GetCommandLine(ICommandLineBuilder& builder)
{
    if (!TClearCaseBaseAction::GetCommandLine(builder))
        return false;
    // A comment that fails to expand does not fail a check-in (unlike a check-out).
    AddComment(builder);
    if (m_noWarnings)
        addPlain(builder, "-nwarn");
    if (m_preserveTime)
        addPlain(builder, "-ptime");
    if (m_keep)
        addPlain(builder, "-keep");
    else if (m_remove)
        addPlain(builder, "-rm");
    if (m_identicalCheckin)
        addPlain(builder, "-identical");
    return true;
}
