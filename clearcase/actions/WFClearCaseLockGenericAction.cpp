#include "actions/WFClearCaseLockGenericAction.h"

TClearCaseLockGenericAction::TClearCaseLockGenericAction()
{
    PublishBoolean("Replace", [this] { return m_replace; }, [this](bool v) { m_replace = v; });
    PublishBoolean("Obsolete", [this] { return m_obsolete; }, [this](bool v) { m_obsolete = v; });
    PublishBoolean("UseNUsers", [this] { return m_useNUsers; }, [this](bool v) { m_useNUsers = v; });
    PublishString("NUsersList", [this] { return m_nusersList; }, [this](const std::string& v) { m_nusersList = v; });
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
