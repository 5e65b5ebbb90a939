#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// What an update does with hijacked files.
enum TCCHijackMode : int { hmOverwrite = 0, hmNooverwrite = 1, hmRename = 2 };
WF_CC_API const std::vector<std::string>& hijackModeMembers();

/// "ClearCase Update Snapshot View": cleartool update in the view context's directory.
class WF_CC_API TClearCaseUpdateAction : public TClearCaseBaseAction {
public:
    TClearCaseUpdateAction();

    std::string GetCommand() override { return "update"; }
    /// The base checks, then an error under "Update Options" when no view is named.
    bool Validate(IWFActionValidationError& errors) override;
    /// Sub-command, "-print", then (only with a view) "-force", the hijack and time stamp switches.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetPretendOnly() const { return m_pretendOnly; }
    void SetPretendOnly(bool value) { m_pretendOnly = value; }
    TCCTimeStampBehaviour GetUpdateTimestamp() const { return m_updateTimestamp; }
    void SetUpdateTimestamp(TCCTimeStampBehaviour value) { m_updateTimestamp = value; }
    TCCHijackMode GetHijackMode() const { return m_hijackMode; }
    void SetHijackMode(TCCHijackMode value) { m_hijackMode = value; }

private:
    bool m_pretendOnly = false;
    TCCTimeStampBehaviour m_updateTimestamp = tbDefault;
    TCCHijackMode m_hijackMode = hmOverwrite;
};
