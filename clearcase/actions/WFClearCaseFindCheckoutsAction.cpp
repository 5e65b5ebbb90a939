#include "actions/WFClearCaseFindCheckoutsAction.h"

TClearCaseFindCheckoutsAction::TClearCaseFindCheckoutsAction()
{
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("WriteToVariable", &m_writeToVariable);
    PublishString("VariableName", &m_variableName);
    PublishBoolean("UseShort", &m_useShort);
}

bool TClearCaseFindCheckoutsAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_useShort)
        addPlain(builder, "-short");
    return result;
}

void TClearCaseFindCheckoutsAction::BeforeExecute(ICommandLineBuilder& builder)
{
    TClearCaseBaseAction::BeforeExecute(builder);
    if (m_writeToVariable && IsVariableDefined(m_variableName))
        SetVariable(m_variableName, TWFVariant(std::string()));
}

void TClearCaseFindCheckoutsAction::OnStdOutData(IWFProcess& process, const std::string& data)
{
    TClearCaseBaseAction::OnStdOutData(process, data);
    // The variant's addition appends in place to the buffer it shares with the stored value,
    // so a listing that arrives in many chunks is collected in linear time.
    if (m_writeToVariable && IsVariableDefined(m_variableName))
        SetVariable(m_variableName, GetVariableValue(m_variableName) + TWFVariant(data));
}
