#include "actions/WFClearCaseCleartoolAction.h"

TClearCaseCleartoolAction::TClearCaseCleartoolAction()
{
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishString("Arguments", [this] { return m_arguments; }, [this](const std::string& v) { m_arguments = v; });
    PublishString("Command", [this] { return m_command; }, [this](const std::string& v) { m_command = v; });
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
