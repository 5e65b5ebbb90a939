#include "actions/WFClearCaseMakeElementAction.h"

const std::vector<std::string>& checkOutTypeMembers()
{
    static const std::vector<std::string> members{"ccCheckedOut", "ccCheckedIn", "ccNoCheckOut"};
    return members;
}

TClearCaseMakeElementAction::TClearCaseMakeElementAction()
{
    PublishPathNameStorageString();
    PublishComment();
    PublishNoComment();
    PublishEnum("Checkout", checkOutTypeMembers(), &m_checkout);
    PublishBoolean("UseElementType", [this] { return m_useElementType; }, [this](bool v) { m_useElementType = v; });
    PublishString("ElementType", [this] { return m_elementType; }, [this](const std::string& v) { m_elementType = v; });
    PublishBoolean("PreserveTime", [this] { return m_preserveTime; }, [this](bool v) { m_preserveTime = v; });
    PublishBoolean("MakePath", [this] { return m_makePath; }, [this](bool v) { m_makePath = v; });
    PublishBoolean("Master", [this] { return m_master; }, [this](bool v) { m_master = v; });
    PublishBoolean("NoWarnings", [this] { return m_noWarnings; }, [this](bool v) { m_noWarnings = v; });
}

bool TClearCaseMakeElementAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_useElementType)
        addPlain(builder, "-eltype " + m_elementType);
    if (m_checkout == ccCheckedIn)
        addPlain(builder, "-ci");
    else if (m_checkout == ccNoCheckOut)
        addPlain(builder, "-nco");
    if (m_checkout == ccCheckedIn && m_preserveTime)
        addPlain(builder, "-ptime");
    if (m_makePath)
        addPlain(builder, "-mkpath");
    if (m_master)
        addPlain(builder, "-master");
    if (m_noWarnings)
        addPlain(builder, "-nwarn");
    result = AddComment(builder) && result;
    result = AddPathNames(builder) && result;
    return result;
}
