#include "actions/WFClearCaseUCMAction.h"

namespace {

/// Entries joined with "," between them, each with the prefix.
std::string joinWithCommas(const std::vector<std::string>& entries, const std::string& prefix)
{
    std::string text;
    for (const auto& entry : entries)
        text += prefix + entry + ",";
    if (!text.empty())
        text.pop_back();
    return text;
}

} // namespace

TClearCaseUCMAction::TClearCaseUCMAction() = default;
TClearCaseUCMAction::~TClearCaseUCMAction() = default;

void TClearCaseUCMAction::PublishActivityName()
{
    PublishString("ActivityName", [this] { return GetActivityName(); },
                  [this](const std::string& v) { SetActivityName(v); });
}

void TClearCaseUCMAction::PublishUseCurrentActivity()
{
    PublishBoolean("UseCurrentActivity", &m_useCurrentActivity);
}

void TClearCaseUCMAction::PublishActivitySelectorStorageString()
{
    PublishString("ActivitySelectorStorageString", [this] { return GetActivitySelectorStorageString(); },
                  [this](const std::string& v) { SetActivitySelectorStorageString(v); });
}

void TClearCaseUCMAction::PublishComponentSelectorStorageString()
{
    PublishString("ComponentSelectorStorageString", [this] { return GetComponentSelectorStorageString(); },
                  [this](const std::string& v) { SetComponentSelectorStorageString(v); });
}

std::string TClearCaseUCMAction::GetActivityName() const
{
    return m_activities.empty() ? std::string() : m_activities.front();
}

void TClearCaseUCMAction::SetActivityName(const std::string& value)
{
    m_activities.assign(1, value);
}

bool TClearCaseUCMAction::AddActivityName(ICommandLineBuilder& builder)
{
    if (m_useCurrentActivity || m_activities.empty()) {
        addPlain(builder, "-cact");
        return true;
    }
    std::string selector = "activity:" + GetActivityName();
    if (const std::string vob = GetVOBSelector(); !vob.empty())
        selector.append(1, '@').append(vob);
    std::string expanded;
    if (!TryExpandExpression("Activity Name", selector, expanded, true))
        return false;
    addPlain(builder, quotedIfBlank(expanded));
    return true;
}

bool TClearCaseUCMAction::AddActivitySelectors(ICommandLineBuilder& builder)
{
    if (m_useCurrentActivity || m_activities.empty()) {
        addPlain(builder, "-cact");
        return true;
    }
    addPlain(builder, quotedIfBlank(joinWithCommas(m_activities, "activity:")));
    return true;
}

bool TClearCaseUCMAction::AddComponentSelector(ICommandLineBuilder& builder)
{
    if (m_components.empty()) {
        SendMessage("Error: No UCM components selected.");
        return false;
    }
    addPlain(builder, quotedIfBlank(joinWithCommas(m_components, "")));
    return true;
}
