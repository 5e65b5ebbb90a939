#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>

/// The lock options shared by the two lock actions; not registered by itself.
class WF_CC_API TClearCaseLockGenericAction : public TClearCaseBaseAction {
public:
    TClearCaseLockGenericAction();

    std::string GetCommand() override { return "lock"; }
    /// Sub-command, "-replace", "-nusers" with its list or else "-obsolete", the comment; the
    /// AND of the base step and the comment.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetReplace() const { return m_replace; }
    void SetReplace(bool value) { m_replace = value; }
    bool GetObsolete() const { return m_obsolete; }
    void SetObsolete(bool value) { m_obsolete = value; }
    bool GetUseNUsers() const { return m_useNUsers; }
    void SetUseNUsers(bool value) { m_useNUsers = value; }
    std::string GetNUsersList() const { return m_nusersList; }
    void SetNUsersList(const std::string& value) { m_nusersList = value; }

private:
    bool m_useNUsers = false;
    bool m_obsolete = false;
    bool m_replace = false;
    std::string m_nusersList;
};
