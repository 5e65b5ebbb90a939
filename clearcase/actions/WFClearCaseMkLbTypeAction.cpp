#include "actions/WFClearCaseMkLbTypeAction.h"

TClearCaseMkLbTypeAction::TClearCaseMkLbTypeAction()
{
    PublishBoolean("MakeGlobal", &m_makeGlobal);
    PublishBoolean("Acquire", &m_acquire);
    PublishBoolean("PBranch", &m_pbranch);
    PublishBoolean("Shared", &m_shared);
    PublishBoolean("Replace", &m_replace);
    PublishComment();
    PublishNoComment();
    PublishLabelTypeName();
    PublishVOBSelector();
}

bool TClearCaseMkLbTypeAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (GetLabelTypeName().empty()) {
        SendMessage("Error: You have not specified the label type selector for your new label type.");
        result = false;
    }
    if (GetVOBSelector().empty()) {
        SendMessage("Error: You have not specified a selector for your new label type's VOB.");
        result = false;
    }
    if (m_replace)
        addPlain(builder, "-replace");
    if (m_makeGlobal) {
        addPlain(builder, "-global");
        if (m_acquire)
            addPlain(builder, "-acquire");
    } else {
        addPlain(builder, "-ordinary");
    }
    addSwitches(builder, {{m_pbranch, "-pbranch"}, {m_shared, "-shared"}});
    result = AddComment(builder) && result;
    result = AddLabelTypeName(builder) && result;
    return result;
}
