#include "actions/WFClearCaseMkLbTypeAction.h"

TClearCaseMkLbTypeAction::TClearCaseMkLbTypeAction()
{
    PublishBoolean("MakeGlobal", [this] { return m_makeGlobal; }, [this](bool v) { m_makeGlobal = v; });
    PublishBoolean("Acquire", [this] { return m_acquire; }, [this](bool v) { m_acquire = v; });
    PublishBoolean("PBranch", [this] { return m_pbranch; }, [this](bool v) { m_pbranch = v; });
    PublishBoolean("Shared", [this] { return m_shared; }, [this](bool v) { m_shared = v; });
    PublishBoolean("Replace", [this] { return m_replace; }, [this](bool v) { m_replace = v; });
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
    if (m_pbranch)
        addPlain(builder, "-pbranch");
    if (m_shared)
        addPlain(builder, "-shared");
    result = AddComment(builder) && result;
    result = AddLabelTypeName(builder) && result;
    return result;
}
