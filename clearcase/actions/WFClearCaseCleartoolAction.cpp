#include "actions/WFClearCaseCleartoolAction.h"

TClearCaseCleartoolAction::TClearCaseCleartoolAction()
{
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishString("Arguments", &m_arguments);
    PublishString("Command", &m_command);
}

bool TClearCaseCleartoolAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseBaseAction::GetCommandLine(builder);
    std::string arguments;
    if (!TryExpandExpression("Arguments", m_arguments, arguments, false))
        return false;
    addPlain(builder, arguments);
    return result;
}
