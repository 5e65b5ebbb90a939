#include "actions/WFClearCaseLockGenericAction.h"

TClearCaseLockGenericAction::TClearCaseLockGenericAction()
{
    PublishBoolean("Replace", &m_replace);
    PublishBoolean("Obsolete", &m_obsolete);
    PublishBoolean("UseNUsers", &m_useNUsers);
    PublishString("NUsersList", &m_nusersList);
    PublishComment();
    PublishNoComment();
}

bool TClearCaseLockGenericAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_replace)
        addPlain(builder, "-replace");
    if (m_useNUsers)
        builder.AddArgument("-nusers", m_nusersList, akSwitchWithValue);
    else if (m_obsolete)
        addPlain(builder, "-obsolete");
    const bool comment = AddComment(builder);
    return result && comment;
}
