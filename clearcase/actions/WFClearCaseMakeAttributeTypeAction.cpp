#include "actions/WFClearCaseMakeAttributeTypeAction.h"

const std::vector<std::string>& labelConstraintsMembers()
{
    static const std::vector<std::string> members{"lcDefault", "lcVPelement", "lcVPbranch", "lcVPversion"};
    return members;
}

TClearCaseMakeAttributeTypeAction::TClearCaseMakeAttributeTypeAction()
{
    PublishComment();
    PublishNoComment();
    PublishAttributeName();
    PublishVOBSelector();
    PublishEnum("Constraints", labelConstraintsMembers(), &m_constraints);
    PublishBoolean("Global", &m_global);
    PublishBoolean("Acquire", &m_acquire);
    PublishEnum("NewAttributeType", attributeTypeMembers(), &m_newAttributeType);
    PublishString("DefaultValue", &m_defaultValue);
    PublishBoolean("UseDefaultValue", &m_useDefaultValue);
    PublishBoolean("Replace", &m_replace);
    PublishBoolean("Shared", &m_shared);
    PublishString("MinValue", &m_minValue);
    PublishString("MaxValue", &m_maxValue);
    PublishBoolean("MinInclusive", &m_minInclusive);
    PublishBoolean("MaxInclusive", &m_maxInclusive);
    PublishBoolean("UseMin", &m_useMin);
    PublishBoolean("UseMax", &m_useMax);
}

bool TClearCaseMakeAttributeTypeAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_replace)
        addPlain(builder, "-replace");
    if (m_global) {
        addPlain(builder, "-global");
        if (m_acquire)
            addPlain(builder, "-acquire");
    } else {
        addPlain(builder, "-ordinary");
    }
    switch (m_constraints) {
    case lcVPelement:
        addPlain(builder, "-vpelement");
        break;
    case lcVPbranch:
        addPlain(builder, "-vpbranch");
        break;
    case lcVPversion:
        addPlain(builder, "-vpversion");
        break;
    case lcDefault:
        break;
    }
    if (m_shared)
        addPlain(builder, "-shared");
    addPlain(builder, "-vtype");
    switch (m_newAttributeType) {
    case atString:
        addPlain(builder, "string");
        break;
    case atInteger:
        addPlain(builder, "integer");
        break;
    case atReal:
        addPlain(builder, "real");
        break;
    case atDate:
        addPlain(builder, "time");
        break;
    case atOpaque:
        addPlain(builder, "opaque");
        break;
    }
    // The bounds are crossed on purpose: MaxValue is written as the lower bound, first, and
    // MinValue as the upper bound, each with its own inclusive flag.
    if (m_useMax) {
        addPlain(builder, m_maxInclusive ? "-ge" : "-gt");
        addPlain(builder, m_maxValue);
    }
    if (m_useMin) {
        addPlain(builder, m_minInclusive ? "-le" : "-lt");
        addPlain(builder, m_minValue);
    }
    if (m_useDefaultValue)
        addPlain(builder, "-default " + m_defaultValue);
    result = AddComment(builder) && result;
    result = AddAttributeName(builder) && result;
    return result;
}
