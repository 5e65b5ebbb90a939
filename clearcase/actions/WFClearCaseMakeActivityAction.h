#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseUCMAction.h"

#include <string>

/// "UCM Make Activity": cleartool mkactivity in the stream of a view.
class WF_CC_API TClearCaseMakeActivityAction : public TClearCaseUCMAction {
public:
    TClearCaseMakeActivityAction();

    std::string GetCommand() override { return "mkactivity"; }
    /// Sub-command, comment, the quoted headline, "-nset", "-force", the activity operand;
    /// a headline that fails to expand stops at once.
    bool GetCommandLine(ICommandLineBuilder& builder) override;

    bool GetDontSetAsCurrent() const { return m_dontSetAsCurrent; }
    void SetDontSetAsCurrent(bool value) { m_dontSetAsCurrent = value; }
    bool GetAutoGenerateName() const { return m_autoGenerateName; }
    void SetAutoGenerateName(bool value) { m_autoGenerateName = value; }
    std::string GetHeadline() const { return m_headline; }
    void SetHeadline(const std::string& value) { m_headline = value; }

private:
    bool m_dontSetAsCurrent = false;
    bool m_autoGenerateName = false;
    std::string m_headline;
};
