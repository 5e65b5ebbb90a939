#include "actions/WFClearCaseBaseAction.h"

#include "environment/WFClearCaseOptions.h"
#include "WFFiles.h"

namespace {

constexpr const char* kNoCleartoolPath =
    "The path to cleartool.exe has not been specified. Please check under Tools -> Options.";
constexpr const char* kCleartoolMissing =
    "Cleartool.exe cannot be found at the path specified. Please check under Tools -> Options.";

std::string optionsCleartoolPath()
{
    IWFClearCaseOptions* options = ClearCaseOptions();
    return options ? options->GetCleartoolPath() : std::string();
}

std::string optionsDefaultViewPath()
{
    IWFClearCaseOptions* options = ClearCaseOptions();
    return options ? options->GetDefaultViewPath() : std::string();
}

} // namespace

const std::vector<std::string>& timeStampBehaviourMembers()
{
    static const std::vector<std::string> members{"tbDefault", "tbCurrent", "tbCheckin"};
    return members;
}

TClearCaseBaseAction::TClearCaseBaseAction()
{
    LogOutput = true;
    UseExitCode = true;
}

TClearCaseBaseAction::~TClearCaseBaseAction() = default;

void TClearCaseBaseAction::addPlain(ICommandLineBuilder& builder, const std::string& text)
{
    builder.AddArgument(text, std::string(), akPlain);
}

void TClearCaseBaseAction::addSwitches(ICommandLineBuilder& builder, std::initializer_list<TSwitch> switches)
{
    for (const TSwitch& entry : switches)
        if (entry.on)
            addPlain(builder, entry.text);
}

// --- Published properties -------------------------------------------------------------

void TClearCaseBaseAction::PublishComment()
{
    PublishString("Comment", &m_comment);
}

void TClearCaseBaseAction::PublishNoComment()
{
    PublishBoolean("NoComment", [this] { return GetNoComment(); }, [this](bool v) { SetNoComment(v); });
}

void TClearCaseBaseAction::PublishPathNameStorageString()
{
    PublishString("PathNameStorageString", [this] { return GetPathNameStorageString(); },
                  [this](const std::string& v) { SetPathNameStorageString(v); });
}

void TClearCaseBaseAction::PublishObjectsStorageString()
{
    PublishString("ObjectsStorageString", [this] { return GetObjectsStorageString(); },
                  [this](const std::string& v) { SetObjectsStorageString(v); });
}

void TClearCaseBaseAction::PublishViewContextPath()
{
    PublishString("ViewContextPath", &m_viewContextPath);
}

void TClearCaseBaseAction::PublishUseDefaultViewContext()
{
    PublishBoolean("UseDefaultViewContext", &m_useDefaultViewContext);
}

void TClearCaseBaseAction::PublishVOBSelector()
{
    PublishString("VOBSelector", &m_vobSelector);
}

void TClearCaseBaseAction::PublishLabelTypeName()
{
    PublishString("LabelTypeName", &m_labelTypeName);
}

void TClearCaseBaseAction::PublishVersionSelector()
{
    PublishString("VersionSelector", &m_versionSelector);
}

void TClearCaseBaseAction::PublishUseVersionSelector()
{
    PublishBoolean("UseVersionSelector", &m_useVersionSelector);
}

// --- Storage strings ------------------------------------------------------------------

const std::vector<std::string>& TClearCaseBaseAction::GetPathNames()
{
    m_combinedPathNames.clear();
    m_combinedPathNames.insert(m_combinedPathNames.end(), m_viewPathNames.begin(), m_viewPathNames.end());
    m_combinedPathNames.insert(m_combinedPathNames.end(), m_extendedPathNames.begin(), m_extendedPathNames.end());
    return m_combinedPathNames;
}

std::string TClearCaseBaseAction::GetPathNameStorageString()
{
    return stringListText(GetPathNames());
}

void TClearCaseBaseAction::SetPathNameStorageString(const std::string& value)
{
    m_viewPathNames.clear();
    m_extendedPathNames.clear();
    for (auto& line : splitStringListText(value)) {
        if (line.find("@@") != std::string::npos)
            m_extendedPathNames.push_back(std::move(line));
        else
            m_viewPathNames.push_back(std::move(line));
    }
}

std::string TClearCaseBaseAction::GetObjectsStorageString() const
{
    return stringListText(m_objectSelectors);
}

void TClearCaseBaseAction::SetObjectsStorageString(const std::string& value)
{
    m_objectSelectors = splitStringListText(value);
}

// --- Host operations ------------------------------------------------------------------

bool TClearCaseBaseAction::Validate(IWFActionValidationError& errors)
{
    bool result = TWFExecuteAbstractAction::Validate(errors);
    const std::string cleartoolPath = GetExecutable();
    if (cleartoolPath.empty()) {
        errors.AddError("Options", kNoCleartoolPath);
        result = false;
    } else if (!cleartoolFound(cleartoolPath)) {
        errors.AddError("Options", kCleartoolMissing);
        result = false;
    }
    return result;
}

std::string TClearCaseBaseAction::GetQuickHelpFilename() const
{
    return kClearCaseHelpFile;
}

int TClearCaseBaseAction::GetHelpTopicID() const
{
    return m_identity ? m_identity->helpTopic : 4430;
}

std::string TClearCaseBaseAction::GetActionName() const
{
    return m_identity ? m_identity->displayName : TWFExecuteAbstractAction::GetActionName();
}

std::string TClearCaseBaseAction::GetExecutable()
{
    const TWFActionHost* host = GetHost();
    return host ? host->Remembered("ClearCase.CleartoolPath", optionsCleartoolPath) : optionsCleartoolPath();
}

bool TClearCaseBaseAction::cleartoolFound(const std::string& path) const
{
    const TWFActionHost* host = GetHost();
    if (!host)
        return fileExists(path);
    return host->Remembered("ClearCase.CleartoolFound:" + path, [&] { return fileExists(path) ? "1" : ""; }) == "1";
}

bool TClearCaseBaseAction::GetCommandLine(ICommandLineBuilder& builder)
{
    const std::string cleartoolPath = GetExecutable();
    if (cleartoolPath.empty()) {
        SendMessage(kNoCleartoolPath);
        return false;
    }
    if (!cleartoolFound(cleartoolPath)) {
        SendMessage(kCleartoolMissing);
        return false;
    }
    addPlain(builder, GetCommand());
    if (!TWFExecuteAbstractAction::GetCommandLine(builder))
        return false;
    // A view context was checked on the way; the host's starting folder was not.
    const std::string directory = GetStartingDir(cleartoolPath);
    return !directory.empty() && (!GetActionDoesNotUseViewContext() || directoryExists(directory));
}

std::string TClearCaseBaseAction::GetStartingDir(const std::string& executable)
{
    std::string directory;
    if (GetActionDoesNotUseViewContext()) {
        directory = TWFExecuteAbstractAction::GetStartingDir(executable);
    } else if (m_useDefaultViewContext) {
        if (!TryExpandExpression("Default View Context", optionsDefaultViewPath(), directory, false)
            || !directoryExists(directory)) {
            SendMessage("Error: The Default View you have specified is invalid or does not exist. "
                        "To rectify go to Tools->Options.");
            return {};
        }
    } else {
        if (!TryExpandExpression("View Context Path", m_viewContextPath, directory, false)
            || !directoryExists(directory)) {
            SendMessage("Error: The View Context Path you have specified is invalid or does not exist.");
            return {};
        }
    }
    SendMessage("Starting Directory: " + directory);
    return directory;
}

void TClearCaseBaseAction::BeforeExecute(ICommandLineBuilder& builder)
{
    TWFExecuteAbstractAction::BeforeExecute(builder);
    SendMessage("Command Line: " + builder.GetCommandLineText());
}

bool TClearCaseBaseAction::GetActionDoesNotUseViewContext()
{
    if (IgnoreViewContext)
        return true;
    const bool contextMissing = m_useDefaultViewContext ? optionsDefaultViewPath().empty() : m_viewContextPath.empty();
    if (!contextMissing)
        return false;
    if (!m_viewPathNames.empty() && m_extendedPathNames.empty())
        return true;
    return !m_objectSelectors.empty();
}

// --- Building blocks ------------------------------------------------------------------

bool TClearCaseBaseAction::AddComment(ICommandLineBuilder& builder)
{
    std::string comment;
    if (!TryExpandExpression("Comment", m_comment, comment, false))
        return false;
    // The stored flag decides, not the NoComment property (which reads true for an empty comment).
    if (!m_noComment && !comment.empty())
        addPlain(builder, "-c " + quoted(comment));
    else
        addPlain(builder, "-nc");
    return true;
}

bool TClearCaseBaseAction::AddPathNames(ICommandLineBuilder& builder)
{
    const std::vector<std::string>& pathNames = GetPathNames();
    if (pathNames.empty()) {
        SendMessage("Action Failed: No pathnames specified to act on.");
        return false;
    }
    for (const auto& pathName : pathNames) {
        std::string expanded;
        if (!TryExpandExpression("Pathname", pathName, expanded, true))
            return false;
        addPlain(builder, quoted(expanded));
    }
    return true;
}

bool TClearCaseBaseAction::AddObjectSelectors(ICommandLineBuilder& builder)
{
    if (m_objectSelectors.empty()) {
        SendMessage("Action Failed: No object selectors have been specified.");
        return false;
    }
    for (const auto& selector : m_objectSelectors) {
        std::string expanded;
        if (!TryExpandExpression("Object Selector", selector, expanded, true))
            return false;
        addPlain(builder, quotedIfBlank(expanded));
    }
    return true;
}

bool TClearCaseBaseAction::AddLabelTypeName(ICommandLineBuilder& builder)
{
    std::string name;
    std::string vob;
    if (!TryExpandExpression("Label Type Name", m_labelTypeName, name, true))
        return false;
    if (!TryExpandExpression("VOB Selector", m_vobSelector, vob, true))
        return false;
    std::string text = name;
    if (!m_vobSelector.empty())
        text += "@" + vob;
    addPlain(builder, "lbtype:" + quotedIfBlank(text));
    return true;
}

bool TClearCaseBaseAction::AddVersionSelector(ICommandLineBuilder& builder)
{
    if (!m_useVersionSelector || m_versionSelector.empty())
        return true;
    std::string selector;
    if (!TryExpandExpression("Version Selector", m_versionSelector, selector, false))
        return false;
    builder.AddArgument("-version", selector, akSwitchWithValue);
    return true;
}
