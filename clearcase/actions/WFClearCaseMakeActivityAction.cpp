#include "actions/WFClearCaseMakeActivityAction.h"

TClearCaseMakeActivityAction::TClearCaseMakeActivityAction()
{
    PublishActivityName();
    PublishVOBSelector();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishComment();
    PublishNoComment();
    PublishBoolean("AutoGenerateName", [this] { return m_autoGenerateName; }, [this](bool v) { m_autoGenerateName = v; });
    PublishBoolean("DontSetAsCurrent", [this] { return m_dontSetAsCurrent; }, [this](bool v) { m_dontSetAsCurrent = v; });
    PublishString("Headline", [this] { return m_headline; }, [this](const std::string& v) { m_headline = v; });
}

bool TClearCaseMakeActivityAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    if (!m_headline.empty()) {
        std::string headline;
        if (!TryExpandExpression("Headline", m_headline, headline, true))
            return false;
        addPlain(builder, "-headline \"" + headline + "\"");
    }
    if (m_dontSetAsCurrent)
        addPlain(builder, "-nset");
    addPlain(builder, "-force");
    if (!m_autoGenerateName)
        result = AddActivityName(builder) && result;
    return result;
}
