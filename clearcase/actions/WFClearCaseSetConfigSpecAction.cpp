#include "actions/WFClearCaseSetConfigSpecAction.h"

#include "WFFiles.h"

const std::vector<std::string>& configSpecTypeMembers()
{
    static const std::vector<std::string> members{"csCurrent", "csDefault", "csFile", "csStream"};
    return members;
}

TClearCaseSetConfigSpecAction::TClearCaseSetConfigSpecAction()
{
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishEnum("CSpecChoice", configSpecTypeMembers(), &m_cspecChoice);
    PublishString("CSFilePath", &m_csFilePath);
}

bool TClearCaseSetConfigSpecAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    switch (m_cspecChoice) {
    case csCurrent:
        addPlain(builder, "-current");
        break;
    case csDefault:
        addPlain(builder, "-default");
        break;
    case csStream:
        addPlain(builder, "-stream");
        break;
    case csFile:
        break;
    }
    if (m_cspecChoice == csFile) {
        std::string path;
        if (!TryExpandExpression("Config Spec File", m_csFilePath, path, true)) {
            result = false;
        } else if (fileExists(path)) {
            addPlain(builder, quoted(path));
        } else {
            SendMessage("Error: The file you have specified for the config spec does not exist.");
            result = false;
        }
    }
    return result;
}
