#include "actions/WFClearCaseSetActivityAction.h"

TClearCaseSetActivityAction::TClearCaseSetActivityAction()
{
    PublishActivityName();
    PublishVOBSelector();
    PublishUseCurrentActivity();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("SetActivityToNone", &m_setActivityToNone);
}

bool TClearCaseSetActivityAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    if (m_setActivityToNone) {
        addPlain(builder, "-none");
        return result;
    }
    result = AddActivityName(builder) && result;
    return result;
}
