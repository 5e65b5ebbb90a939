#include "actions/WFClearCaseMakeActivityAction.h"

TClearCaseMakeActivityAction::TClearCaseMakeActivityAction()
{
    PublishActivityName();
    PublishVOBSelector();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishComment();
    PublishNoComment();
    PublishBoolean("AutoGenerateName", &m_autoGenerateName);
    PublishBoolean("DontSetAsCurrent", &m_dontSetAsCurrent);
    PublishString("Headline", &m_headline);
}

bool TClearCaseMakeActivityAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    if (!m_headline.empty()) {
        std::string headline;
        if (!TryExpandExpression("Headline", m_headline, headline, true))
            return false;
        addPlain(builder, "-headline " + quoted(headline));
    }
    if (m_dontSetAsCurrent)
        addPlain(builder, "-nset");
    addPlain(builder, "-force");
    if (!m_autoGenerateName)
        result = AddActivityName(builder) && result;
    return result;
}
