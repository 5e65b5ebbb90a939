#include "actions/WFClearCaseApplyAttributePathNamesAction.h"

TClearCaseApplyAttributePathNamesAction::TClearCaseApplyAttributePathNamesAction()
{
    PublishNoComment();
    PublishComment();
    PublishAttributeName();
    PublishAttributeValue();
    PublishUseDefaultAttributeValue();
    PublishPathNameStorageString();
    PublishVersionSelector();
    PublishUseVersionSelector();
    PublishVOBSelector();
    PublishBoolean("Replace", &m_replace);
    PublishBoolean("Recurse", &m_recurse);
}

bool TClearCaseApplyAttributePathNamesAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    addSwitches(builder, {{m_replace, "-replace"}, {m_recurse, "-recurse"}});
    if (GetUseVersionSelector())
        result = AddVersionSelector(builder) && result;
    // "-pname" stands before the comment and the attribute, as the system has always written it.
    addPlain(builder, "-pname");
    result = AddComment(builder) && result;
    result = AddAttributeNameAndValue(builder) && result;
    result = AddPathNames(builder) && result;
    return result;
}
