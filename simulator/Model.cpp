#include "Model.h"

#include "ConfigSpec.h"

#include <algorithm>

namespace ccsim {

namespace {

struct KindInfo {
    ObjectKind kind;
    std::string_view selector; ///< the prefix of "lbtype:REL1"
    std::string_view word;     ///< how messages name it
    std::string_view table;    ///< where a UCM object lives; empty for the others
    Msg notFound;              ///< what a type selector naming no type says
};

// One row per ObjectKind, in its order.
constexpr KindInfo kKinds[] = {
    {ObjectKind::LabelType, "lbtype", "label type", "", Msg::LabelTypeNotFound},
    {ObjectKind::BranchType, "brtype", "branch type", "", Msg::BranchTypeNotFound},
    {ObjectKind::AttributeType, "attype", "attribute type", "", Msg::AttributeTypeNotFound},
    {ObjectKind::ElementType, "eltype", "element type", "", Msg::ElementTypeNotFound},
    {ObjectKind::HyperlinkType, "hltype", "hyperlink type", "", Msg::NotVobObject},
    {ObjectKind::TriggerType, "trtype", "trigger type", "", Msg::NotVobObject},
    {ObjectKind::Activity, "activity", "activity", "activities", Msg::NotVobObject},
    {ObjectKind::Stream, "stream", "stream", "streams", Msg::NotVobObject},
    {ObjectKind::Component, "component", "component", "components", Msg::NotVobObject},
    {ObjectKind::Project, "project", "project", "projects", Msg::NotVobObject},
    {ObjectKind::Folder, "folder", "folder", "folders", Msg::NotVobObject},
    {ObjectKind::Baseline, "baseline", "baseline", "baselines", Msg::NotVobObject},
    {ObjectKind::Vob, "vob", "versioned object base", "", Msg::NotVobObject},
    {ObjectKind::Pool, "pool", "pool", "", Msg::NotVobObject},
    {ObjectKind::Oid, "oid", "object", "", Msg::NotVobObject},
};

const KindInfo* kindInfo(std::string_view selector)
{
    for (const KindInfo& k : kKinds) {
        if (k.selector == selector)
            return &k;
    }
    return nullptr;
}

const KindInfo& kindInfo(ObjectKind kind)
{
    return kKinds[static_cast<size_t>(kind)];
}

/// A UCM kind's table: table names come from this table, never from input.
std::string ucmTable(ObjectKind kind)
{
    return std::string(kindInfo(kind).table);
}

} // namespace

std::optional<ObjectKind> objectKind(std::string_view selector)
{
    const KindInfo* k = kindInfo(selector);
    return k ? std::optional<ObjectKind>(k->kind) : std::nullopt;
}

std::string_view selectorWord(ObjectKind kind)
{
    return kindInfo(kind).selector;
}

bool isUcmKind(ObjectKind kind)
{
    return !kindInfo(kind).table.empty();
}

std::string typeKindWord(std::string_view kind)
{
    const KindInfo* k = kindInfo(kind);
    return k ? std::string(k->word) : std::string();
}

bool isSelectorKind(std::string_view kind)
{
    return kindInfo(kind) != nullptr;
}

std::string vobTag(Store& store, Id vob)
{
    return store.scalarText("SELECT tag FROM vobs WHERE id=?", vob).value_or("");
}

Id ucmVobOf(Store& store, ObjectKind kind, Id id)
{
    return store.scalar("SELECT vob_id FROM " + ucmTable(kind) + " WHERE id=?", id).value_or(0);
}

std::optional<Id> loadedVersion(Store& store, Id view, Id element)
{
    return store.scalar("SELECT version_id FROM loaded WHERE view_id=? AND element_id=?", view, element);
}

void setLoaded(Store& store, Id view, Id element, Id version)
{
    store.run("INSERT OR REPLACE INTO loaded(view_id, element_id, version_id) VALUES(?,?,?)", view, element, version);
}

std::optional<Id> integrationStream(Store& store, Id project)
{
    return store.scalar("SELECT id FROM streams WHERE project_id=? AND integration=1", project);
}

std::vector<Id> streamActivities(Store& store, Id stream)
{
    std::vector<Id> out;
    Stmt q = store.query("SELECT id FROM activities WHERE stream_id=? ORDER BY name", stream);
    while (q.step())
        out.push_back(q.integer(0));
    return out;
}

void setCurrentActivity(Store& store, Id view, std::optional<Id> activity)
{
    store.run("UPDATE views SET activity_id=? WHERE id=?", activity, view);
}

std::string branchPath(Store& store, Id branch)
{
    return store.scalarText("SELECT path FROM branches WHERE id=?", branch).value_or("");
}

std::vector<std::pair<Id, std::string>> childElements(Store& store, Id directory)
{
    std::vector<std::pair<Id, std::string>> out;
    Stmt q = store.query("SELECT id, name FROM elements WHERE parent_id=? ORDER BY name", directory);
    while (q.step())
        out.emplace_back(q.integer(0), q.text(1));
    return out;
}

Id vobRoot(Store& store, Id vob)
{
    return store.scalar("SELECT id FROM elements WHERE vob_id=? AND parent_id IS NULL", vob).value_or(0);
}

Id addMainBranch(Session& s, Id element)
{
    return s.store.run("INSERT INTO branches(element_id, path, created, user) VALUES(?, '/main', ?, ?)", element, s.env.now,
                       s.env.user);
}

void putLabel(Session& s, Id type, Id element, Id version)
{
    s.store.run("DELETE FROM labels WHERE type_id=? AND element_id=?", type, element);
    s.store.run("INSERT INTO labels(type_id, version_id, element_id, created, user) VALUES(?,?,?,?,?)", type, version, element,
                s.env.now, s.env.user);
}

void addCheckout(Session& s, Id element, Id view, Id branch, Id pred, bool reserved, const std::string& comment,
                 std::optional<Id> activity)
{
    s.store.run("INSERT INTO checkouts(element_id, view_id, branch_id, pred_id, reserved, created, user, comment, activity_id) "
                "VALUES(?,?,?,?,?,?,?,?,?)",
                element, view, branch, pred, reserved, s.env.now, s.env.user, comment, activity);
}

std::string componentRootPath(Store& store, Id component)
{
    Stmt q = store.query("SELECT v.tag, c.root_elem_id FROM components c JOIN vobs v ON v.id=c.root_vob_id WHERE c.id=?",
                         component);
    if (!q.step())
        return {};
    const std::string path = elementPath(store, q.integer(1));
    return q.text(0) + (path.empty() ? "" : "/" + path);
}

std::optional<Id> findType(Store& store, Id vob, std::string_view kind, std::string_view name)
{
    return store.scalar("SELECT id FROM types WHERE vob_id=? AND kind=? AND name=?", vob, kind, name);
}

void seedVob(Session& s, Id vob, bool ucm)
{
    struct Seed {
        const char* kind;
        const char* name;
        const char* vtype;
    };
    static constexpr Seed seeds[] = {
        {"lbtype", "BACKSTOP", nullptr},     {"lbtype", "CHECKEDOUT", nullptr},
        {"lbtype", "LATEST", nullptr},       {"brtype", "main", nullptr},
        {"attype", "HlinkFromText", "string"}, {"attype", "HlinkToText", "string"},
        {"eltype", "file", nullptr},         {"eltype", "text_file", nullptr},
        {"eltype", "compressed_file", nullptr}, {"eltype", "compressed_text_file", nullptr},
        {"eltype", "binary_delta_file", nullptr}, {"eltype", "directory", nullptr},
        {"eltype", "file_system_object", nullptr}, {"eltype", "html", nullptr},
        {"eltype", "xml", nullptr},          {"hltype", "Merge", nullptr},
        {"hltype", "Text", nullptr},
    };
    for (const Seed& seed : seeds) {
        s.store.run("INSERT INTO types(vob_id, kind, name, created, user, grp, comment, vtype) VALUES(?,?,?,?,?,?,?,?)",
                    vob, seed.kind, seed.name, s.env.now, s.env.user, s.env.group, "",
                    seed.vtype ? std::optional<std::string>(seed.vtype) : std::nullopt);
    }
    s.store.run("INSERT INTO elements(vob_id, parent_id, name, eltype, is_dir, created, user, comment) "
                "VALUES(?, NULL, '', 'directory', 1, ?, ?, '')",
                vob, s.env.now, s.env.user);
    const Id root = s.store.lastId();
    const Id branch = addMainBranch(s, root);
    createVersion(s, root, branch, "", "", 0);
    if (ucm)
        s.store.run("INSERT INTO folders(vob_id, name, created, user, comment) VALUES(?, 'RootFolder', ?, ?, '')", vob,
                    s.env.now, s.env.user);
}

VersionInfo versionInfo(Store& store, Id version)
{
    Stmt q = store.query("SELECT v.element_id, v.branch_id, b.path, v.num FROM versions v JOIN branches b ON b.id=v.branch_id "
                         "WHERE v.id=?",
                         version);
    if (!q.step())
        throw StoreError("no version " + std::to_string(version));
    return VersionInfo{version, q.integer(0), q.integer(1), q.text(2), q.integer(3)};
}

std::optional<Id> branchByPath(Store& store, Id element, std::string_view path)
{
    return store.scalar("SELECT id FROM branches WHERE element_id=? AND path=?", element, path);
}

std::optional<Id> latestOnBranch(Store& store, Id branch)
{
    return store.scalar("SELECT id FROM versions WHERE branch_id=? ORDER BY num DESC LIMIT 1", branch);
}

std::optional<Id> labelledVersion(Store& store, Id element, std::string_view label)
{
    return store.scalar("SELECT l.version_id FROM labels l JOIN types t ON t.id=l.type_id "
                        "WHERE l.element_id=? AND t.name=?",
                        element, label);
}

std::optional<Id> versionByExtension(Store& store, Id element, std::string_view ext)
{
    if (const size_t at = ext.find("@@"); at != std::string_view::npos)
        ext = ext.substr(at + 2);
    const size_t slash = ext.rfind('/');
    if (slash == std::string_view::npos || slash == 0)
        return ext.empty() ? std::nullopt : labelledVersion(store, element, ext.substr(ext.find_first_not_of('/')));
    auto branch = branchByPath(store, element, ext.substr(0, slash));
    if (!branch)
        return std::nullopt;
    const std::string_view leaf = ext.substr(slash + 1);
    if (leaf == "LATEST")
        return latestOnBranch(store, *branch);
    if (!leaf.empty() && std::all_of(leaf.begin(), leaf.end(), [](char c) { return c >= '0' && c <= '9'; }))
        return store.scalar("SELECT id FROM versions WHERE branch_id=? AND num=?", *branch, std::stoll(std::string(leaf)));
    auto labelled = labelledVersion(store, element, leaf);
    if (labelled && versionInfo(store, *labelled).branch == *branch)
        return labelled;
    return std::nullopt;
}

std::string versionData(Store& store, Id version)
{
    return store.scalarText("SELECT data FROM versions WHERE id=?", version).value_or("");
}

std::string elementPath(Store& store, Id element)
{
    std::string path;
    for (std::optional<Id> id = element; id;) {
        Stmt q = store.query("SELECT parent_id, name FROM elements WHERE id=?", *id);
        if (!q.step())
            break;
        if (!q.isNull(0))
            path = path.empty() ? q.text(1) : q.text(1) + "/" + path;
        id = q.optInteger(0);
    }
    return path;
}

std::string elementType(Store& store, Id element)
{
    return store.scalarText("SELECT eltype FROM elements WHERE id=?", element).value_or("");
}

bool isDirectory(Store& store, Id element)
{
    return store.scalar("SELECT is_dir FROM elements WHERE id=?", element).value_or(0) != 0;
}

Id vobOfElement(Store& store, Id element)
{
    return store.scalar("SELECT vob_id FROM elements WHERE id=?", element).value_or(0);
}

void addEvent(Session& s, Id element, std::string_view kind, const std::string& extension, const std::string& comment,
              const std::string& label)
{
    s.store.run("INSERT INTO events(element_id, kind, vext, created, user, comment, label) VALUES(?,?,?,?,?,?,?)", element,
                kind, extension, s.env.now, s.env.user, comment, label);
}

Id createVersion(Session& s, Id element, Id branch, const std::string& data, const std::string& comment, Id pred)
{
    const std::int64_t num =
        s.store.scalar("SELECT MAX(num) FROM versions WHERE branch_id=?", branch).value_or(-1) + 1;
    const Id id = s.store.run("INSERT INTO versions(element_id, branch_id, num, data, created, user, comment, pred_id) "
                              "VALUES(?,?,?,?,?,?,?,?)",
                              element, branch, num, data, s.env.now, s.env.user, comment,
                              pred ? std::optional<Id>(pred) : std::nullopt);
    addEvent(s, element, "version", versionInfo(s.store, id).extension(), comment);
    return id;
}

Id createElement(Session& s, Id vob, Id parent, const std::string& name, const std::string& eltype, bool dir,
                 const std::string& comment)
{
    const Id element = s.store.run("INSERT INTO elements(vob_id, parent_id, name, eltype, is_dir, created, user, comment) "
                                   "VALUES(?,?,?,?,?,?,?,?)",
                                   vob, parent, name, eltype, dir, s.env.now, s.env.user, comment);
    addEvent(s, element, "element", "", comment);
    const Id branch = addMainBranch(s, element);
    addEvent(s, element, "branch", "/main", comment);
    createVersion(s, element, branch, "", comment, 0);
    return element;
}

namespace {

Checkout readCheckout(Stmt& q)
{
    Checkout c;
    c.id = q.integer(0);
    c.element = q.integer(1);
    c.view = q.integer(2);
    c.branch = q.integer(3);
    c.pred = q.integer(4);
    c.reserved = q.integer(5) != 0;
    c.created = q.integer(6);
    c.user = q.text(7);
    c.comment = q.text(8);
    c.activity = q.optInteger(9);
    return c;
}

constexpr std::string_view kCheckoutColumns =
    "SELECT id, element_id, view_id, branch_id, pred_id, reserved, created, user, comment, activity_id FROM checkouts ";

} // namespace

std::optional<Checkout> checkoutIn(Store& store, Id element, Id view)
{
    Stmt q = store.query(std::string(kCheckoutColumns) + "WHERE element_id=? AND view_id=?", element, view);
    if (!q.step())
        return std::nullopt;
    return readCheckout(q);
}

std::vector<Checkout> checkoutsWhere(Store& store, std::string_view condition, Id arg)
{
    Stmt q = store.query(std::string(kCheckoutColumns) + "WHERE " + std::string(condition) + " ORDER BY id", arg);
    std::vector<Checkout> out;
    while (q.step())
        out.push_back(readCheckout(q));
    return out;
}

std::string viewTag(Store& store, Id view)
{
    return store.scalarText("SELECT tag FROM views WHERE id=?", view).value_or("");
}

ObjectRef vobRef(Store& store, Id vob)
{
    return ObjectRef{"vob", vob, "versioned object base", vobTag(store, vob), vob};
}

bool isLocked(Store& store, std::string_view kind, Id id)
{
    return store.scalar("SELECT 1 FROM locks WHERE obj_kind=? AND obj_id=?", kind, id).has_value();
}

bool isObsolete(Store& store, std::string_view kind, Id id)
{
    return store.scalar("SELECT obsolete FROM locks WHERE obj_kind=? AND obj_id=?", kind, id).value_or(0) != 0;
}

void checkUnlocked(Session& s, const std::vector<ObjectRef>& objects, std::string_view operation,
                   const std::string& unable)
{
    for (const ObjectRef& o : objects) {
        Stmt q = s.store.query("SELECT nusers, obsolete FROM locks WHERE obj_kind=? AND obj_id=?", o.kind, o.id);
        if (!q.step())
            continue;
        bool exempt = false;
        if (!q.isNull(0) && q.integer(1) == 0) {
            const std::string list = "," + q.text(0) + ",";
            exempt = list.find("," + s.env.user + ",") != std::string::npos;
        }
        if (!exempt) {
            Failure f{{message(Msg::LockPrevents, {o.kindWord, o.name, operation})}};
            if (!unable.empty())
                f.lines.push_back(unable);
            throw f;
        }
    }
}

Selector parseSelector(const std::string& text)
{
    Selector sel;
    std::string rest = text;
    if (const size_t colon = rest.find(':'); colon != std::string::npos && isSelectorKind(rest.substr(0, colon))) {
        sel.kind = rest.substr(0, colon);
        rest = rest.substr(colon + 1);
    }
    if (sel.kind == "vob") {
        sel.name = rest;
        return sel;
    }
    if (const size_t at = rest.find('@'); at != std::string::npos) {
        sel.vob = rest.substr(at + 1);
        rest = rest.substr(0, at);
    }
    sel.name = rest;
    return sel;
}

Vob ucmVob(Session& s, const std::string& vobPart)
{
    Vob vob;
    if (!vobPart.empty()) {
        vob = s.vobFor(vobPart);
    } else if (s.view() && s.view()->stream) {
        const Id v = ucmVobOf(s.store, ObjectKind::Stream, *s.view()->stream);
        vob = Vob{v, vobTag(s.store, v), true};
    } else {
        vob = s.currentVob();
    }
    if (!vob.ucm)
        fail(message(Msg::NotProjectVob, {vob.tag}));
    return vob;
}

std::optional<Id> findUcm(Store& store, ObjectKind kind, Id vob, std::string_view name)
{
    return store.scalar("SELECT id FROM " + ucmTable(kind) + " WHERE vob_id=? AND name=?", vob, name);
}

Id requireUcm(Session& s, ObjectKind kind, const std::string& text, Vob* vobOut)
{
    Selector sel = parseSelector(text);
    const std::string_view word = selectorWord(kind);
    if (!sel.kind.empty() && sel.kind != word)
        fail(message(Msg::NotVobObject, {text}));
    const Vob vob = ucmVob(s, sel.vob);
    if (vobOut)
        *vobOut = vob;
    auto id = findUcm(s.store, kind, vob.id, sel.name);
    if (!id)
        fail(message(Msg::ObjectNotFound, {std::string(word), sel.withoutKind()}));
    return *id;
}

std::string ucmName(Store& store, ObjectKind kind, Id id)
{
    return store.scalarText("SELECT name FROM " + ucmTable(kind) + " WHERE id=?", id).value_or("");
}

UcmRecord ucmRecord(Store& store, ObjectKind kind, Id id)
{
    Stmt q = store.query("SELECT name, created, user, comment FROM " + ucmTable(kind) + " WHERE id=?", id);
    if (!q.step())
        throw StoreError("no " + std::string(selectorWord(kind)) + " " + std::to_string(id));
    return UcmRecord{q.text(0), q.integer(1), q.text(2), q.text(3)};
}

std::string ucmSelector(Store& store, ObjectKind kind, Id id)
{
    Stmt q = store.query("SELECT t.name, v.tag FROM " + ucmTable(kind) + " t JOIN vobs v ON v.id=t.vob_id WHERE t.id=?", id);
    return q.step() ? q.text(0) + "@" + q.text(1) : std::string();
}

ObjectRef resolvePathObject(Session& s, const Target& t, const std::optional<std::string>& versionSelector)
{
    if (!t.element) {
        std::error_code ec;
        if (!t.vob && !fs::exists(t.abs, ec))
            fail(message(Msg::NoSuchFile, {t.given}));
        fail(message(Msg::NotVobObject, {t.given}));
    }
    const Id element = *t.element;
    const Id vob = t.vob->id;
    if (versionSelector) {
        auto v = versionByExtension(s.store, element, *versionSelector);
        if (!v)
            fail(message(Msg::NotVobObject, {t.given + "@@" + *versionSelector}));
        return ObjectRef{"version", *v, "version", t.given + "@@" + versionInfo(s.store, *v).extension(), vob};
    }
    if (t.extended) {
        if (t.extension.empty())
            return ObjectRef{"element", element, "element", t.given, vob};
        if (auto branch = branchByPath(s.store, element, t.extension))
            return ObjectRef{"branch", *branch, "branch", t.given, vob};
        auto v = versionByExtension(s.store, element, t.extension);
        if (!v)
            fail(message(Msg::NotVobObject, {t.given}));
        return ObjectRef{"version", *v, "version", t.given, vob};
    }
    std::optional<Selection> sel;
    if (t.view)
        sel = viewVersion(s, *t.view, element);
    if (!sel) {
        auto main = branchByPath(s.store, element, "/main");
        sel = Selection{*latestOnBranch(s.store, *main), false};
    }
    return ObjectRef{"version", sel->version, "version", t.given + "@@" + versionInfo(s.store, sel->version).extension(),
                     vob};
}

ObjectRef resolveObject(Session& s, const std::string& text)
{
    Selector sel = parseSelector(text);
    if (sel.kind.empty())
        return resolvePathObject(s, s.resolve(text), std::nullopt);
    const KindInfo& k = *kindInfo(sel.kind);
    if (k.kind == ObjectKind::Vob) {
        Vob v = s.vobFor(sel.name);
        return ObjectRef{"vob", v.id, std::string(k.word), v.tag, v.id};
    }
    if (isUcmKind(k.kind)) {
        Vob v;
        const Id id = requireUcm(s, k.kind, text, &v);
        return ObjectRef{sel.kind, id, std::string(k.word), sel.name, v.id};
    }
    if (sel.kind.ends_with("type")) {
        const Vob v = sel.vob.empty() ? s.currentVob() : s.vobFor(sel.vob);
        auto id = findType(s.store, v.id, sel.kind, sel.name);
        if (!id)
            fail(k.notFound == Msg::NotVobObject ? message(Msg::NotVobObject, {text}) : message(k.notFound, {sel.name}));
        return ObjectRef{"type", *id, std::string(k.word), sel.name, v.id};
    }
    fail(message(Msg::NotVobObject, {text}));
}

std::vector<Id> streamComponents(Store& store, Id stream)
{
    std::vector<Id> out;
    Stmt q = store.query("SELECT DISTINCT b.component_id FROM foundations f JOIN baselines b ON b.id=f.baseline_id "
                         "WHERE f.stream_id=?1 UNION SELECT pc.component_id FROM project_comps pc JOIN streams s "
                         "ON s.project_id=pc.project_id WHERE s.id=?1",
                         stream);
    while (q.step())
        out.push_back(q.integer(0));
    std::sort(out.begin(), out.end());
    out.erase(std::unique(out.begin(), out.end()), out.end());
    return out;
}

std::optional<Id> componentOfElement(Store& store, Id element)
{
    const Id vob = vobOfElement(store, element);
    const std::string path = elementPath(store, element);
    Stmt q = store.query("SELECT id, root_elem_id FROM components WHERE root_vob_id=?", vob);
    while (q.step()) {
        const std::string root = elementPath(store, q.integer(1));
        if (root.empty() || path == root || path.starts_with(root + "/"))
            return q.integer(0);
    }
    return std::nullopt;
}

std::string defaultConfigSpec()
{
    return "element * CHECKEDOUT\nelement * /main/LATEST\n";
}

std::string streamConfigSpec(Store& store, Id stream)
{
    std::string cs = "ucm\nidentity UCM.Stream oid:" + ucmSelector(store, ObjectKind::Stream, stream) + " 1\n\n" +
                     "# ONLY EDIT THIS CONFIG SPEC IN THE INDICATED \"CUSTOM\" AREAS\n#\n" + defaultConfigSpec() + "\n";
    for (Id comp : streamComponents(store, stream)) {
        if (const std::string root = componentRootPath(store, comp); !root.empty())
            cs += "load " + root + "\n";
    }
    return cs + "\nend ucm\n";
}

} // namespace ccsim
