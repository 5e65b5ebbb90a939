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
    PublishBoolean("Reserved", &m_reserved);
    PublishBoolean("Unreserved", &m_unreserved);
    PublishBoolean("PreserveTime", &m_preserveTime);
    PublishEnum("DataLocation", dataLocationMembers(), &m_dataLocation);
    PublishEnum("SelectionMode", checkOutSelectorMembers(), &m_selectionMode);
    PublishString("OutExternalPath", &m_outExternalPath);
    PublishVersionSelector();
    PublishString("BranchSelector", &m_branchSelector);
}

bool TClearCaseCheckoutAction::GetCommandLine(ICommandLineBuilder& builder)
{
    bool result = TClearCaseBaseAction::GetCommandLine(builder);
    addSwitches(builder, {{m_reserved, "-reserved"}, {m_unreserved, "-unreserved"}});

    if (m_dataLocation == coOut) {
        std::string outPath;
        if (!TryExpandExpression("External Pathname", m_outExternalPath, outPath, true))
            return false;
        addPlain(builder, "-out " + quoted(outPath));
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
        addPlain(builder, (version ? "-version " : "-branch ") + quoted(selector));
    }

    result = AddComment(builder) && result;
    addPlain(builder, "-nquery");
    result = AddPathNames(builder) && result;
    return result;
}
