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
};
/// The kind a selector prefix ("lbtype", "stream") names.
std::optional<ObjectKind> objectKind(std::string_view selector);
std::string_view selectorWord(ObjectKind kind);
bool isUcmKind(ObjectKind kind);

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
std::vector<Checkout> checkoutsWhere(Store& store, std::string_view condition, Id arg);
std::string viewTag(Store& store, Id view);

/// A lockable object: its kind key in the store, its id, its kind in words and its name for messages.
struct ObjectRef {
    std::string kind; ///< vob, element, branch, version, type, stream, activity, component, project, baseline, folder
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
bool isLocked(Store& store, std::string_view kind, Id id);
bool isObsolete(Store& store, std::string_view kind, Id id);

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

} // namespace ccsim
