#include "actions/WFClearCaseApplyAttributeObjectsAction.h"

TClearCaseApplyAttributeObjectsAction::TClearCaseApplyAttributeObjectsAction()
{
    PublishNoComment();
    PublishComment();
    PublishAttributeName();
    PublishAttributeValue();
    PublishUseDefaultAttributeValue();
    PublishObjectsStorageString();
    PublishVOBSelector();
    PublishBoolean("Replace", &m_replace);
}

bool TClearCaseApplyAttributeObjectsAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_replace)
        addPlain(builder, "-replace");
    result = AddComment(builder) && result;
    result = AddAttributeNameAndValue(builder) && result;
    result = AddObjectSelectors(builder) && result;
    return result;
}
