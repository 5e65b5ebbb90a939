#include "actions/WFClearCaseMakeBaselineAction.h"

const std::vector<std::string>& selectionTypeMembers()
{
    static const std::vector<std::string> members{"slAll", "slComponents", "slActivities"};
    return members;
}

const std::vector<std::string>& labelBehaviourMembers()
{
    static const std::vector<std::string> members{"lbIncremental", "lbAll", "lbNone"};
    return members;
}

TClearCaseMakeBaselineAction::TClearCaseMakeBaselineAction()
{
    PublishEnum("SelectionType", selectionTypeMembers(), &m_selectionType);
    PublishBoolean("SelectIdenticalComponents", &m_selectIdenticalComponents);
    PublishEnum("Labelling", labelBehaviourMembers(), &m_labelling);
    PublishString("BaselineRootName", &m_baselineRootName);
    PublishBoolean("UseBaselineNameTemplate", &m_useBaselineNameTemplate);
    PublishComment();
    PublishNoComment();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishActivitySelectorStorageString();
    PublishComponentSelectorStorageString();
}

bool TClearCaseMakeBaselineAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    switch (m_selectionType) {
    case slAll:
        addPlain(builder, "-all");
        break;
    case slActivities:
        addPlain(builder, "-activities");
        result = AddActivitySelectors(builder) && result;
        break;
    case slComponents:
        addPlain(builder, "-component");
        result = AddComponentSelector(builder) && result;
        break;
    }
    if (m_selectionType != slActivities && m_selectIdenticalComponents)
        addPlain(builder, "-identical");
    switch (m_labelling) {
    case lbIncremental:
        addPlain(builder, "-incremental");
        break;
    case lbAll:
        addPlain(builder, "-full");
        break;
    case lbNone:
        addPlain(builder, "-nlabel");
        break;
    }
    if (!m_useBaselineNameTemplate) {
        std::string rootName;
        if (TryExpandExpression("Baseline Root Name", m_baselineRootName, rootName, true))
            addPlain(builder, rootName);
        else
            result = false;
    }
    return result;
}
