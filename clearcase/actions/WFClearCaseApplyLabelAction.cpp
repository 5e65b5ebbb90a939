#include "actions/WFClearCaseApplyLabelAction.h"

TClearCaseApplyLabelAction::TClearCaseApplyLabelAction()
{
    PublishBoolean("Replace", [this] { return m_replace; }, [this](bool v) { m_replace = v; });
    PublishBoolean("Recurse", [this] { return m_recurse; }, [this](bool v) { m_recurse = v; });
    PublishBoolean("FollowLinks", [this] { return m_followLinks; }, [this](bool v) { m_followLinks = v; });
    PublishComment();
    PublishNoComment();
    PublishLabelTypeName();
    PublishPathNameStorageString();
    PublishVOBSelector();
    PublishVersionSelector();
    PublishUseVersionSelector();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
}

bool TClearCaseApplyLabelAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_replace)
        addPlain(builder, "-replace");
    if (m_recurse)
        addPlain(builder, "-recurse");
    if (m_followLinks)
        addPlain(builder, "-follow");
    result = AddVersionSelector(builder) && result;
    result = AddComment(builder) && result;
    result = AddLabelTypeName(builder) && result;
    result = AddPathNames(builder) && result;
    return result;
}
