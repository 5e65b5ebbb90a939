#include "actions/WFClearCaseSetActivityAction.h"

TClearCaseSetActivityAction::TClearCaseSetActivityAction()
{
    PublishActivityName();
    PublishVOBSelector();
    PublishUseCurrentActivity();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("SetActivityToNone", [this] { return m_setActivityToNone; },
                   [this](bool v) { m_setActivityToNone = v; });
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
