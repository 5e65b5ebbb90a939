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
    PublishBoolean("UseElementType", &m_useElementType);
    PublishString("ElementType", &m_elementType);
    PublishBoolean("PreserveTime", &m_preserveTime);
    PublishBoolean("MakePath", &m_makePath);
    PublishBoolean("Master", &m_master);
    PublishBoolean("NoWarnings", &m_noWarnings);
}

bool TClearCaseMakeElementAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_useElementType)
        addPlain(builder, "-eltype " + m_elementType);
    // PreserveTime means something only for an element that is checked in.
    addSwitches(builder, {{m_checkout == ccCheckedIn, "-ci"},
                          {m_checkout == ccNoCheckOut, "-nco"},
                          {m_checkout == ccCheckedIn && m_preserveTime, "-ptime"},
                          {m_makePath, "-mkpath"},
                          {m_master, "-master"},
                          {m_noWarnings, "-nwarn"}});
    result = AddComment(builder) && result;
    result = AddPathNames(builder) && result;
    return result;
}
