#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <string>
#include <vector>

/// Base of the actions that name UCM activities or components: an activity list (whose first
/// entry is ActivityName), a component list and the flag for the view's current activity.
class WF_CC_API TClearCaseUCMAction : public TClearCaseBaseAction {
public:
    TClearCaseUCMAction();
    ~TClearCaseUCMAction() override;

    /// "-cact" for the current activity or an empty list; otherwise "activity:" + the first
    /// entry (with "@" + VOB when set), expanded, quoted when it holds a blank.
    virtual bool AddActivityName(ICommandLineBuilder& builder);
    /// "-cact", or every entry as "activity:" + entry, comma-separated, in one argument.
    virtual bool AddActivitySelectors(ICommandLineBuilder& builder);
    /// Every component, comma-separated, in one argument; false with a message for none.
    virtual bool AddComponentSelector(ICommandLineBuilder& builder);

    /// The first entry of the activity list, or empty.
    std::string GetActivityName() const;
    /// Replaces the activity list by the one entry.
    void SetActivityName(const std::string& value);
    std::string GetActivitySelectorStorageString() const { return stringListText(m_activities); }
    void SetActivitySelectorStorageString(const std::string& value) { m_activities = splitStringListText(value); }
    std::string GetComponentSelectorStorageString() const { return stringListText(m_components); }
    void SetComponentSelectorStorageString(const std::string& value) { m_components = splitStringListText(value); }
    bool GetUseCurrentActivity() const { return m_useCurrentActivity; }
    void SetUseCurrentActivity(bool value) { m_useCurrentActivity = value; }
    const std::vector<std::string>& GetActivities() const { return m_activities; }
    void SetActivities(std::vector<std::string> value) { m_activities = std::move(value); }
    const std::vector<std::string>& GetComponents() const { return m_components; }
    void SetComponents(std::vector<std::string> value) { m_components = std::move(value); }

protected:
    void PublishActivityName();
    void PublishUseCurrentActivity();
    void PublishActivitySelectorStorageString();
    void PublishComponentSelectorStorageString();

private:
    std::vector<std::string> m_activities;
    bool m_useCurrentActivity = false;
    std::vector<std::string> m_components;
};
