#include "actions/WFClearCaseApplyLabelAction.h"

TClearCaseApplyLabelAction::TClearCaseApplyLabelAction()
{
    PublishBoolean("Replace", &m_replace);
    PublishBoolean("Recurse", &m_recurse);
    PublishBoolean("FollowLinks", &m_followLinks);
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
    addSwitches(builder, {{m_replace, "-replace"}, {m_recurse, "-recurse"}, {m_followLinks, "-follow"}});
    result = AddVersionSelector(builder) && result;
    result = AddComment(builder) && result;
    result = AddLabelTypeName(builder) && result;
    result = AddPathNames(builder) && result;
    return result;
}
