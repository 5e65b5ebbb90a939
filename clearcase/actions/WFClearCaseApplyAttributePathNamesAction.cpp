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
    PublishBoolean("Replace", [this] { return m_replace; }, [this](bool v) { m_replace = v; });
    PublishBoolean("Recurse", [this] { return m_recurse; }, [this](bool v) { m_recurse = v; });
}

bool TClearCaseApplyAttributePathNamesAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_replace)
        addPlain(builder, "-replace");
    if (m_recurse)
        addPlain(builder, "-recurse");
    if (GetUseVersionSelector())
        result = AddVersionSelector(builder) && result;
    // "-pname" stands before the comment and the attribute, as the system has always written it.
    addPlain(builder, "-pname");
    result = AddComment(builder) && result;
    result = AddAttributeNameAndValue(builder) && result;
    result = AddPathNames(builder) && result;
    return result;
}
