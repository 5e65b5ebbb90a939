#pragma once

#include "core/WFClearCaseExport.h"
#include "WFAction.h"
#include "environment/WFClearCaseUtils.h"
#include "WFCommandLine.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

/// Time stamp given to the files an update loads (used by the update action).
enum TCCTimeStampBehaviour : int { tbDefault = 0, tbCurrent = 1, tbCheckin = 2 };
/// Member names of TCCTimeStampBehaviour, in value order, as persisted.
WF_CC_API const std::vector<std::string>& timeStampBehaviourMembers();

/// The help file every action of the package points to.
inline constexpr const char* kClearCaseHelpFile = "Plugins\\ClearCase.html";

/// What the catalogue says about an action class. The catalogue binds its row to every action
/// it makes, so names and help topics are written once, in the catalogue.
struct TClearCaseActionIdentity {
    const char* typeId;
    const char* className;
    const char* displayName;
    int helpTopic;
};

/// Base of every ClearCase action: runs cleartool with the sub-command of the concrete action
/// in the view named by the view context, and offers the shared command-line building blocks.
class WF_CC_API TClearCaseBaseAction : public TWFExecuteAbstractAction {
public:
    TClearCaseBaseAction();
    ~TClearCaseBaseAction() override;

    // Host operations.
    bool Validate(IWFActionValidationError& errors) override;
    std::string GetQuickHelpFilename() const override;
    /// The catalogue's topic; the package's general topic for an action the catalogue did not make.
    int GetHelpTopicID() const override;
    /// The catalogue's display name; the host's default for an action the catalogue did not make.
    std::string GetActionName() const override;
    bool GetCommandLine(ICommandLineBuilder& builder) override;
    std::string GetExecutable() override;
    /// The view directory (logged as "Starting Directory: "), or the host's default folder for
    /// an action that needs no view; empty, with an error logged, when the view is missing.
    std::string GetStartingDir(const std::string& executable) override;
    void BeforeExecute(ICommandLineBuilder& builder) override;

    // Slots added after the host's.
    virtual bool GetActionDoesNotUseViewContext();
    /// The cleartool sub-command.
    virtual std::string GetCommand() = 0;
    /// "-c" with the quoted comment, or "-nc".
    virtual bool AddComment(ICommandLineBuilder& builder);
    /// Every path name, quoted; false with a message for an empty list.
    virtual bool AddPathNames(ICommandLineBuilder& builder);
    /// "lbtype:" and the label type name, with "@" and the VOB when one is set.
    virtual bool AddLabelTypeName(ICommandLineBuilder& builder);
    /// "-version" and the selector, only when UseVersionSelector is set and a selector stored.
    virtual bool AddVersionSelector(ICommandLineBuilder& builder);
    /// Every object selector, quoted when it holds a blank; false with a message for none.
    virtual bool AddObjectSelectors(ICommandLineBuilder& builder);

    /// Binds the catalogue row the action was made from; the row outlives the action.
    void SetIdentity(const TClearCaseActionIdentity& identity) { m_identity = &identity; }

    /// The view path names followed by the extended ("@@") ones, rebuilt on each call.
    const std::vector<std::string>& GetPathNames();

    // Accessors of the shared properties.
    /// True when NoComment is set or the comment is empty.
    bool GetNoComment() const { return m_noComment || m_comment.empty(); }
    void SetNoComment(bool value) { m_noComment = value; }
    std::string GetPathNameStorageString();
    void SetPathNameStorageString(const std::string& value);
    std::string GetObjectsStorageString() const;
    void SetObjectsStorageString(const std::string& value);
    std::string GetComment() const { return m_comment; }
    void SetComment(const std::string& value) { m_comment = value; }
    std::string GetViewContextPath() const { return m_viewContextPath; }
    void SetViewContextPath(const std::string& value) { m_viewContextPath = value; }
    bool GetUseDefaultViewContext() const { return m_useDefaultViewContext; }
    void SetUseDefaultViewContext(bool value) { m_useDefaultViewContext = value; }
    std::string GetVOBSelector() const { return m_vobSelector; }
    void SetVOBSelector(const std::string& value) { m_vobSelector = value; }
    std::string GetLabelTypeName() const { return m_labelTypeName; }
    void SetLabelTypeName(const std::string& value) { m_labelTypeName = value; }
    std::string GetVersionSelector() const { return m_versionSelector; }
    void SetVersionSelector(const std::string& value) { m_versionSelector = value; }
    bool GetUseVersionSelector() const { return m_useVersionSelector; }
    void SetUseVersionSelector(bool value) { m_useVersionSelector = value; }

    // The lists the property pages edit (stored together in PathNameStorageString and
    // ObjectsStorageString).
    const std::vector<std::string>& GetViewPathNames() const { return m_viewPathNames; }
    void SetViewPathNames(std::vector<std::string> value) { m_viewPathNames = std::move(value); }
    const std::vector<std::string>& GetExtendedPathNames() const { return m_extendedPathNames; }
    void SetExtendedPathNames(std::vector<std::string> value) { m_extendedPathNames = std::move(value); }
    const std::vector<std::string>& GetObjectSelectors() const { return m_objectSelectors; }
    void SetObjectSelectors(std::vector<std::string> value) { m_objectSelectors = std::move(value); }

protected:
    // Each concrete class publishes exactly its own properties, in its persistence order.
    void PublishComment();
    void PublishNoComment();
    void PublishPathNameStorageString();
    void PublishObjectsStorageString();
    void PublishViewContextPath();
    void PublishUseDefaultViewContext();
    void PublishVOBSelector();
    void PublishLabelTypeName();
    void PublishVersionSelector();
    void PublishUseVersionSelector();

    /// Appends one plain argument (kind 2), written unchanged.
    static void addPlain(ICommandLineBuilder& builder, const std::string& text);

    /// A switch of the command line and whether its property is set.
    struct TSwitch {
        bool on;
        const char* text;
    };
    /// Appends, in table order, the switches whose properties are set.
    static void addSwitches(ICommandLineBuilder& builder, std::initializer_list<TSwitch> switches);

    /// Forces the action to run outside any view; no action of the package sets it.
    bool IgnoreViewContext = false;

private:
    bool cleartoolFound(const std::string& path) const;

    const TClearCaseActionIdentity* m_identity = nullptr;
    bool m_noComment = false;
    std::string m_comment;
    std::string m_vobSelector;
    std::string m_viewContextPath;
    bool m_useDefaultViewContext = false;
    std::vector<std::string> m_viewPathNames;
    std::vector<std::string> m_extendedPathNames;
    std::vector<std::string> m_objectSelectors;
    std::string m_labelTypeName;
    std::string m_versionSelector;
    std::vector<std::string> m_combinedPathNames;
    bool m_useVersionSelector = false;
};
