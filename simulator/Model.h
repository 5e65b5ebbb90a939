#pragma once

#include "Session.h"

#include <optional>
#include <string>
#include <vector>

namespace ccsim {

using Id = std::int64_t;

/// What a selector names ("lbtype:REL1", "stream:dev@/vobs/pvob"); UCM kinds each have a table.
enum class ObjectKind {
    LabelType,
    BranchType,
    AttributeType,
    ElementType,
    HyperlinkType,
    TriggerType,
    Activity,
    Stream,
    Component,
    Project,
    Folder,
    Baseline,
    Vob,
    Pool,
    Oid,
    // Objects a pathname names, never a selector.
    Element,
    Branch,
    Version,
};
/// The kind a selector prefix ("lbtype", "stream") names.
std::optional<ObjectKind> objectKind(std::string_view selector);
std::string_view selectorWord(ObjectKind kind);
bool isUcmKind(ObjectKind kind);
/// How the locks and attributes tables name a kind: "type" for every type kind, else its word.
std::string_view storeKey(ObjectKind kind);

/// "label type" for "lbtype", and so on; empty for an unknown kind.
std::string typeKindWord(std::string_view kind);
std::string vobTag(Store& store, Id vob);
/// The project VOB a UCM object lives in.
Id ucmVobOf(Store& store, ObjectKind kind, Id id);
/// The version of `element` a snapshot view holds, if it holds one.
std::optional<Id> loadedVersion(Store& store, Id view, Id element);
void setLoaded(Store& store, Id view, Id element, Id version);
std::optional<Id> integrationStream(Store& store, Id project);
/// A stream's activities by name.
std::vector<Id> streamActivities(Store& store, Id stream);
void setCurrentActivity(Store& store, Id view, std::optional<Id> activity);
std::string branchPath(Store& store, Id branch); ///< "/main"
/// The elements a directory element holds, by name.
std::vector<std::pair<Id, std::string>> childElements(Store& store, Id directory);
Id vobRoot(Store& store, Id vob); ///< the VOB's root directory element
Id addMainBranch(Session& s, Id element);
/// Puts label `type` on `version`, moving it from any other version of `element`.
void putLabel(Session& s, Id type, Id element, Id version);
void addCheckout(Session& s, Id element, Id view, Id branch, Id pred, bool reserved, const std::string& comment,
                 std::optional<Id> activity);
/// "/vobs/main/src": the VOB tag and path of a component's root directory.
std::string componentRootPath(Store& store, Id component);
std::optional<Id> findType(Store& store, Id vob, std::string_view kind, std::string_view name);
/// Creates the types, pools and root directory every new VOB has.
void seedVob(Session& s, Id vob, bool ucm);

struct VersionInfo {
    Id id = 0;
    Id element = 0;
    Id branch = 0;
    std::string branchPath; ///< "/main"
    std::int64_t number = 0;
    std::string extension() const { return branchPath + "/" + std::to_string(number); }
};

VersionInfo versionInfo(Store& store, Id version);
std::optional<Id> branchByPath(Store& store, Id element, std::string_view path);
std::optional<Id> latestOnBranch(Store& store, Id branch);
/// The version an extension such as "/main/3", "/main/LATEST" or "/main/REL1" names.
std::optional<Id> versionByExtension(Store& store, Id element, std::string_view extension);
std::optional<Id> labelledVersion(Store& store, Id element, std::string_view label);
std::string versionData(Store& store, Id version);
std::string elementPath(Store& store, Id element); ///< path inside the VOB
std::string elementType(Store& store, Id element);
bool isDirectory(Store& store, Id element);
Id vobOfElement(Store& store, Id element);

/// Makes an element with its main branch and empty version 0, recording the history events.
Id createElement(Session& s, Id vob, Id parent, const std::string& name, const std::string& eltype, bool dir,
                 const std::string& comment);
Id createVersion(Session& s, Id element, Id branch, const std::string& data, const std::string& comment, Id pred);
/// Records what lshistory prints; a label event also names its label.
void addEvent(Session& s, Id element, std::string_view kind, const std::string& extension, const std::string& comment,
              const std::string& label = {});

struct Checkout {
    Id id = 0;
    Id element = 0;
    Id view = 0;
    Id branch = 0;
    Id pred = 0;
    bool reserved = true;
    Time created = 0;
    std::string user;
    std::string comment;
    std::optional<Id> activity;
};
std::optional<Checkout> checkoutIn(Store& store, Id element, Id view);
std::vector<Checkout> activityCheckouts(Store& store, Id activity);
std::vector<Checkout> allCheckouts(Store& store); ///< in the order they were made
/// The view holding a reserved checkout of `branch`, other than `besides`.
std::optional<Id> reservingView(Store& store, Id element, Id branch, std::optional<Id> besides = std::nullopt);
void removeCheckout(Store& store, Id checkout);
std::string viewTag(Store& store, Id view);

/// A lockable object: its kind key in the store, its id, its kind in words and its name for messages.
struct ObjectRef {
    ObjectKind kind = ObjectKind::Vob;
    Id id = 0;
    std::string kindWord;
    std::string name;
    Id vob = 0;
};
ObjectRef vobRef(Store& store, Id vob);
/// Fails with "Lock on ... prevents operation" when any of `objects` is locked against the user
/// (a lock's -nusers list exempts its users, an obsolete lock exempts nobody); with `unable`,
/// that line follows the lock message.
void checkUnlocked(Session& s, const std::vector<ObjectRef>& objects, std::string_view operation,
                   const std::string& unable = {});
bool isLocked(Store& store, ObjectKind kind, Id id);
bool isObsolete(Store& store, ObjectKind kind, Id id);

/// Splits "kind:name@vob" into its parts; kind and vob may come back empty.
struct Selector {
    std::string kind;
    std::string name;
    std::string vob;
    /// "name@vob" as given, without the kind: how messages quote the object.
    std::string withoutKind() const { return vob.empty() ? name : name + "@" + vob; }
};
Selector parseSelector(const std::string& text);
bool isSelectorKind(std::string_view kind);

/// Resolves a selector of any kind, or a pathname when `text` has no kind prefix, to a store object.
ObjectRef resolveObject(Session& s, const std::string& text);
/// Resolves a pathname (with or without "@@") to its element, branch or version.
ObjectRef resolvePathObject(Session& s, const Target& t, const std::optional<std::string>& versionSelector);

/// The project VOB meant by "@vob" in a UCM selector, or by the current view's stream when it is omitted.
Vob ucmVob(Session& s, const std::string& vobPart);
std::optional<Id> findUcm(Store& store, ObjectKind kind, Id vob, std::string_view name);
/// A UCM object by selector ("stream:dev@/vobs/pvob", "dev@/vobs/pvob" or "dev"), or a failure.
Id requireUcm(Session& s, ObjectKind kind, const std::string& text, Vob* vobOut = nullptr);
std::string ucmName(Store& store, ObjectKind kind, Id id);
/// What every UCM object records about its making.
struct UcmRecord {
    std::string name;
    Time created = 0;
    std::string user;
    std::string comment;
};
UcmRecord ucmRecord(Store& store, ObjectKind kind, Id id);
std::string ucmSelector(Store& store, ObjectKind kind, Id id); ///< "name@/vobs/pvob"

/// Components a stream sees: those of its foundation baselines and its project's modifiable ones.
std::vector<Id> streamComponents(Store& store, Id stream);
/// The component whose root directory holds `element`, if any.
std::optional<Id> componentOfElement(Store& store, Id element);

/// The config spec a stream's views use, with a load rule per component root.
std::string streamConfigSpec(Store& store, Id stream);
std::string defaultConfigSpec();

// Views and VOBs as the view and listing commands see them.
Id createVob(Session& s, const std::string& tag, const std::string& storage, bool ucm, const std::string& comment);
std::string vobStorage(Store& store, Id vob);
Id createView(Session& s, const std::string& tag, const std::string& dir, const std::string& configSpec,
              std::optional<Id> stream);
std::optional<Id> viewIdByTag(Store& store, std::string_view tag);
/// The tag of the snapshot view rooted at `dir`, if one is.
std::optional<std::string> viewTagAt(Store& store, const std::string& dir);
void setViewConfigSpec(Store& store, Id view, const std::string& configSpec);
/// Forgets a view with its checkouts and what it has loaded.
void removeView(Store& store, Id view);
struct ViewEntry {
    std::string tag;
    std::string dir;
};
/// One view by tag, or every view by tag when `tag` is empty.
std::vector<ViewEntry> viewEntries(Store& store, const std::optional<std::string>& tag);
std::vector<Id> loadedElements(Store& store, Id view);
void clearLoaded(Store& store, Id view);

/// The users a lock exempts ("alice,bob"), when it names any.
std::optional<std::string> lockExemptUsers(Store& store, ObjectKind kind, Id id);
struct AttributeValue {
    std::string type;
    std::string value;
};
/// The attributes on an object, by type name.
std::vector<AttributeValue> attributesOf(Store& store, ObjectKind kind, Id id);

void addToChangeSet(Store& store, Id activity, Id version);
struct ActivityHeading {
    std::string name;
    std::string vobTag;
    std::string headline;
};
std::optional<ActivityHeading> activityHeading(Store& store, Id activity);
/// One line of an element's history.
struct HistoryEvent {
    std::string kind; ///< element, branch, version or label
    std::string extension;
    Time created = 0;
    std::string user;
    std::string comment;
    std::string label;
};
std::vector<HistoryEvent> elementHistory(Store& store, Id element); ///< newest first

/// When and by whom an object was made.
struct Creation {
    Time created = 0;
    std::string user;
    std::string comment;
};
Creation elementCreation(Store& store, Id element);
Creation branchCreation(Store& store, Id branch); ///< branches carry no comment
Id elementOfBranch(Store& store, Id branch);
struct BranchRecord {
    Id id = 0;
    std::string path; ///< "/main/dev"
};
std::vector<BranchRecord> elementBranches(Store& store, Id element); ///< oldest first
/// The version at `number` on a branch.
std::optional<Id> versionOnBranch(Store& store, Id branch, std::int64_t number);
struct VersionRecord {
    Creation creation;
    std::optional<Id> pred;
};
VersionRecord versionRecord(Store& store, Id version);
/// Names of the labels on a version, sorted.
std::vector<std::string> versionLabels(Store& store, Id version);
/// The version of `element` that label `type` is on, if any.
std::optional<Id> labelOfTypeOn(Store& store, Id type, Id element);
struct VobRecord {
    Creation creation;
    std::string storage;
    bool ucm = false;
};
VobRecord vobRecord(Store& store, Id vob);

/// What an attribute type allows: its value type, what it attaches to, its bounds, default and -enum list.
struct ValueRule {
    std::string vtype = "string";
    std::optional<std::string> attach; ///< element, branch or version; any object when empty
    std::optional<std::string> lower;
    bool lowerInclusive = false;
    std::optional<std::string> upper;
    bool upperInclusive = false;
    std::optional<std::string> defaultValue;
    std::optional<std::string> enums; ///< the allowed values, one a line
};
struct TypeRecord {
    Id id = 0;
    std::string kind; ///< lbtype, brtype, attype, ...
    std::string name;
    Creation creation;
    bool global = false;
    bool perBranch = false;
    ValueRule rule;
};
TypeRecord typeRecord(Store& store, Id type);
/// A VOB's types of one kind by name, or of every kind by kind and name when `kind` is empty.
std::vector<TypeRecord> vobTypes(Store& store, Id vob, std::string_view kind);
Id createType(Session& s, Id vob, std::string_view kind, const std::string& name);
void setTypeScope(Store& store, Id type, const std::string& comment, bool global, bool perBranch);
void setValueRule(Store& store, Id type, const ValueRule& rule);

void putLock(Session& s, ObjectKind kind, Id id, const std::optional<std::string>& exemptUsers, bool obsolete,
             const std::string& comment);
void removeLock(Store& store, ObjectKind kind, Id id);
bool hasAttribute(Store& store, ObjectKind kind, Id id, Id type);
void setAttribute(Store& store, ObjectKind kind, Id id, Id type, const std::string& value);

// UCM objects.
/// The UCM objects of one kind a project VOB holds, by name.
std::vector<Id> ucmObjectsIn(Store& store, ObjectKind kind, Id vob);
struct StreamRecord {
    Id project = 0;
    bool integration = false;
};
StreamRecord streamRecord(Store& store, Id stream);
std::vector<Id> projectStreams(Store& store, Id project); ///< by name
std::vector<Id> foundationBaselines(Store& store, Id stream); ///< by name
std::vector<std::string> streamViewTags(Store& store, Id stream);
std::vector<Id> projectComponents(Store& store, Id project);
struct ActivityRecord {
    Id stream = 0;
    std::string headline;
};
ActivityRecord activityRecord(Store& store, Id activity);
std::vector<Id> changeSet(Store& store, Id activity); ///< version ids, oldest first
struct ChangeSetEntry {
    Id version = 0;
    Id activity = 0;
};
/// The change-set versions of a stream's activities made after `after`, newest first.
std::vector<ChangeSetEntry> streamChangesAfter(Store& store, Id stream, Id after);
struct BaselineRecord {
    Id component = 0;
    std::optional<Id> stream;
    std::string kind; ///< full, incremental or nlabel
};
BaselineRecord baselineRecord(Store& store, Id baseline);
/// Names of the baselines of a stream, a component or a project VOB (`owner` says which), oldest first.
std::vector<std::string> baselineNames(Store& store, ObjectKind owner, Id id);
/// The newest version any baseline of `component` in or below `stream` records.
Id lastBaselinedVersion(Store& store, Id component, Id stream);
std::optional<Id> componentRootElement(Store& store, Id component);
Id componentRootVob(Store& store, Id component);
/// Components whose root directory lies in `vob`, oldest first.
std::vector<Id> componentsRootedIn(Store& store, Id vob);

/// A baseline recording every version made so far.
Id createBaseline(Session& s, Id pvob, const std::string& name, Id component, std::optional<Id> stream,
                  const std::string& kind, const std::string& comment);
Id createFolder(Session& s, Id pvob, const std::string& name, Id parent, const std::string& comment);
Id createProject(Session& s, Id pvob, const std::string& name, Id folder, const std::vector<Id>& components,
                 const std::string& comment);
Id createComponent(Session& s, Id pvob, const std::string& name, std::optional<Id> rootVob,
                   std::optional<Id> rootElement, const std::string& comment);
Id createStream(Session& s, Id pvob, const std::string& name, Id project, bool integration,
                const std::vector<Id>& foundations, const std::string& comment);
Id createActivity(Session& s, Id pvob, const std::string& name, Id stream, const std::string& headline,
                  const std::string& comment);

} // namespace ccsim
