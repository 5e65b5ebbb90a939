#include "actions/WFClearCaseUpdateAction.h"

const std::vector<std::string>& hijackModeMembers()
{
    static const std::vector<std::string> members{"hmOverwrite", "hmNooverwrite", "hmRename"};
    return members;
}

TClearCaseUpdateAction::TClearCaseUpdateAction()
{
    PublishBoolean("PretendOnly", &m_pretendOnly);
    PublishEnum("UpdateTimestamp", timeStampBehaviourMembers(), &m_updateTimestamp);
    PublishEnum("HijackMode", hijackModeMembers(), &m_hijackMode);
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseUpdateAction::Validate(IWFActionValidationError& errors)
{
    const bool result = TClearCaseBaseAction::Validate(errors);
    if (!GetViewContextPath().empty() || GetUseDefaultViewContext())
        return result;
    errors.AddError("Update Options", "You have not specified a snapshot view to update.");
    return false;
}

bool TClearCaseUpdateAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseBaseAction::GetCommandLine(builder);
    // "-print" goes in before the view check, so a failed check leaves it in the builder.
    if (m_pretendOnly)
        addPlain(builder, "-print");
    if (GetViewContextPath().empty() && !GetUseDefaultViewContext()) {
        SendMessage("Update failed: No snapshot view specified to update!");
        return false;
    }
    addPlain(builder, "-force");
    switch (m_hijackMode) {
    case hmOverwrite:
        addPlain(builder, "-overwrite");
        break;
    case hmNooverwrite:
        addPlain(builder, "-nooverwrite");
        break;
    case hmRename:
        addPlain(builder, "-rename");
        break;
    }
    if (m_updateTimestamp == tbCurrent)
        addPlain(builder, "-ctime");
    else if (m_updateTimestamp == tbCheckin)
        addPlain(builder, "-ptime");
    return result;
}
