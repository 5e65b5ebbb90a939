#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseUCMAction.h"

#include <string>

/// The check-in switches and everything of a check-in command line except its operands;
/// base of the path-name and activity check-ins. Not registered by itself.
class WF_CC_API TClearCaseCheckInGenericAction : public TClearCaseUCMAction {
public:
    TClearCaseCheckInGenericAction();

    std::string GetCommand() override { return "checkin"; }
    /// Sub-command, comment (whose result is ignored), "-nwarn", "-ptime", "-keep" or "-rm",
    /// "-identical"; the base step's result.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetNoWarnings() const { return m_noWarnings; }
    void SetNoWarnings(bool value) { m_noWarnings = value; }
    bool GetKeep() const { return m_keep; }
    void SetKeep(bool value) { m_keep = value; }
    bool GetRemove() const { return m_remove; }
    void SetRemove(bool value) { m_remove = value; }
    bool GetPreserveTime() const { return m_preserveTime; }
    void SetPreserveTime(bool value) { m_preserveTime = value; }
    bool GetIdenticalCheckin() const { return m_identicalCheckin; }
    void SetIdenticalCheckin(bool value) { m_identicalCheckin = value; }

private:
    bool m_noWarnings = false;
    bool m_keep = false;
    bool m_remove = false;
    bool m_preserveTime = false;
    bool m_identicalCheckin = false;
};
