#include "actions/WFClearCaseCheckOutAction.h"

const std::vector<std::string>& dataLocationMembers()
{
    static const std::vector<std::string> members{"coView", "coOut", "coNoData"};
    return members;
}

const std::vector<std::string>& checkOutSelectorMembers()
{
    static const std::vector<std::string> members{"coDefault", "coVersion", "coBranch"};
    return members;
}

TClearCaseCheckoutAction::TClearCaseCheckoutAction()
{
    PublishNoComment();
    PublishComment();
    PublishPathNameStorageString();
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("Reserved", [this] { return m_reserved; }, [this](bool v) { m_reserved = v; });
    PublishBoolean("Unreserved", [this] { return m_unreserved; }, [this](bool v) { m_unreserved = v; });
    PublishBoolean("PreserveTime", [this] { return m_preserveTime; }, [this](bool v) { m_preserveTime = v; });
    PublishEnum("DataLocation", dataLocationMembers(), &m_dataLocation);
    PublishEnum("SelectionMode", checkOutSelectorMembers(), &m_selectionMode);
    PublishString("OutExternalPath", [this] { return m_outExternalPath; },
                  [this](const std::string& v) { m_outExternalPath = v; });
    PublishVersionSelector();
    PublishString("BranchSelector", [this] { return m_branchSelector; },
                  [this](const std::string& v) { m_branchSelector = v; });
}

bool TClearCaseCheckoutAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    if (m_reserved)
        addPlain(builder, "-reserved");
    if (m_unreserved)
        addPlain(builder, "-unreserved");

    if (m_dataLocation == coOut) {
        std::string outPath;
        if (!TryExpandExpression("External Pathname", m_outExternalPath, outPath, true))
            return false;
        addPlain(builder, "-out \"" + outPath + "\"");
    } else if (m_dataLocation == coNoData) {
        addPlain(builder, "-ndata");
    }
    if (m_preserveTime)
        addPlain(builder, "-ptime");

    if (m_selectionMode == coVersion || m_selectionMode == coBranch) {
        const bool version = m_selectionMode == coVersion;
        std::string selector;
        if (!TryExpandExpression(version ? "Version Selector" : "Branch Selector",
                                 version ? GetVersionSelector() : m_branchSelector, selector, true))
            return false;
        addPlain(builder, (version ? "-version \"" : "-branch \"") + selector + "\"");
    }

    result = AddComment(builder) && result;
    addPlain(builder, "-nquery");
    result = AddPathNames(builder) && result;
    return result;
}
