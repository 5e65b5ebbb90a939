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
    PublishBoolean("Global", [this] { return m_global; }, [this](bool v) { m_global = v; });
    PublishBoolean("Acquire", [this] { return m_acquire; }, [this](bool v) { m_acquire = v; });
    PublishEnum("NewAttributeType", attributeTypeMembers(), &m_newAttributeType);
    PublishString("DefaultValue", [this] { return m_defaultValue; }, [this](const std::string& v) { m_defaultValue = v; });
    PublishBoolean("UseDefaultValue", [this] { return m_useDefaultValue; }, [this](bool v) { m_useDefaultValue = v; });
    PublishBoolean("Replace", [this] { return m_replace; }, [this](bool v) { m_replace = v; });
    PublishBoolean("Shared", [this] { return m_shared; }, [this](bool v) { m_shared = v; });
    PublishString("MinValue", [this] { return m_minValue; }, [this](const std::string& v) { m_minValue = v; });
    PublishString("MaxValue", [this] { return m_maxValue; }, [this](const std::string& v) { m_maxValue = v; });
    PublishBoolean("MinInclusive", [this] { return m_minInclusive; }, [this](bool v) { m_minInclusive = v; });
    PublishBoolean("MaxInclusive", [this] { return m_maxInclusive; }, [this](bool v) { m_maxInclusive = v; });
    PublishBoolean("UseMin", [this] { return m_useMin; }, [this](bool v) { m_useMin = v; });
    PublishBoolean("UseMax", [this] { return m_useMax; }, [this](bool v) { m_useMax = v; });
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
