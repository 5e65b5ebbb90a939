#include "actions/WFClearCaseMakeBaselineFromLabelAction.h"

TClearCaseMakeBaselineFromLabelAction::TClearCaseMakeBaselineFromLabelAction()
{
    PublishBoolean("SpecifyComponents", &m_specifyComponents);
    PublishComment();
    PublishNoComment();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishComponentSelectorStorageString();
    PublishLabelTypeName();
    PublishVOBSelector();
}

bool TClearCaseMakeBaselineFromLabelAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    result = AddComment(builder) && result;
    addPlain(builder, "-import");
    // An empty component list is logged but does not stop the import.
    if (m_specifyComponents)
        AddComponentSelector(builder);
    result = AddLabelTypeName(builder) && result;
    return result;
}
