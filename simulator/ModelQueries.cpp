#include "Model.h"

namespace ccsim {

Id createVob(Session& s, const std::string& tag, const std::string& storage, bool ucm, const std::string& comment)
{
    return s.store.run("INSERT INTO vobs(tag, storage, ucm, created, user, grp, comment) VALUES(?,?,?,?,?,?,?)", tag,
                       storage, ucm, s.env.now, s.env.user, s.env.group, comment);
}

std::string vobStorage(Store& store, Id vob)
{
    return store.scalarText("SELECT storage FROM vobs WHERE id=?", vob).value_or("");
}

Id createView(Session& s, const std::string& tag, const std::string& dir, const std::string& configSpec,
              std::optional<Id> stream)
{
    return s.store.run("INSERT INTO views(tag, dir, cs, stream_id, created, user) VALUES(?,?,?,?,?,?)", tag, dir,
                       configSpec, stream, s.env.now, s.env.user);
}

std::optional<Id> viewIdByTag(Store& store, std::string_view tag)
{
    return store.scalar("SELECT id FROM views WHERE tag=?", tag);
}

std::optional<std::string> viewTagAt(Store& store, const std::string& dir)
{
    return store.scalarText("SELECT tag FROM views WHERE dir=?", dir);
}

void setViewConfigSpec(Store& store, Id view, const std::string& configSpec)
{
    store.run("UPDATE views SET cs=? WHERE id=?", configSpec, view);
}

void removeView(Store& store, Id view)
{
    store.run("DELETE FROM checkouts WHERE view_id=?", view);
    clearLoaded(store, view);
    store.run("DELETE FROM views WHERE id=?", view);
}

std::vector<ViewEntry> viewEntries(Store& store, const std::optional<std::string>& tag)
{
    const std::string sql = "SELECT tag, dir FROM views";
    Stmt q = tag ? store.query(sql + " WHERE tag=?", *tag) : store.query(sql + " ORDER BY tag");
    std::vector<ViewEntry> out;
    while (q.step())
        out.push_back({q.text(0), q.text(1)});
    return out;
}

std::vector<Id> loadedElements(Store& store, Id view)
{
    Stmt q = store.query("SELECT element_id FROM loaded WHERE view_id=?", view);
    std::vector<Id> out;
    while (q.step())
        out.push_back(q.integer(0));
    return out;
}

void clearLoaded(Store& store, Id view)
{
    store.run("DELETE FROM loaded WHERE view_id=?", view);
}

std::optional<std::string> lockExemptUsers(Store& store, ObjectKind kind, Id id)
{
    return store.scalarText("SELECT nusers FROM locks WHERE obj_kind=? AND obj_id=? AND nusers IS NOT NULL", storeKey(kind), id);
}

std::vector<AttributeValue> attributesOf(Store& store, ObjectKind kind, Id id)
{
    Stmt q = store.query("SELECT t.name, a.value FROM attrs a JOIN types t ON t.id=a.type_id "
                         "WHERE a.obj_kind=? AND a.obj_id=? ORDER BY t.name",
                         storeKey(kind), id);
    std::vector<AttributeValue> out;
    while (q.step())
        out.push_back({q.text(0), q.text(1)});
    return out;
}

void addToChangeSet(Store& store, Id activity, Id version)
{
    store.run("INSERT OR IGNORE INTO changeset(activity_id, version_id) VALUES(?,?)", activity, version);
}

std::optional<ActivityHeading> activityHeading(Store& store, Id activity)
{
    Stmt q = store.query("SELECT a.name, v.tag, a.headline FROM activities a JOIN vobs v ON v.id=a.vob_id WHERE a.id=?",
                         activity);
    if (!q.step())
        return std::nullopt;
    return ActivityHeading{q.text(0), q.text(1), q.text(2)};
}

std::vector<HistoryEvent> elementHistory(Store& store, Id element)
{
    Stmt q = store.query(
        "SELECT kind, vext, created, user, comment, label FROM events WHERE element_id=? ORDER BY id DESC", element);
    std::vector<HistoryEvent> out;
    while (q.step())
        out.push_back({q.text(0), q.text(1), q.integer(2), q.text(3), q.text(4), q.isNull(5) ? "" : q.text(5)});
    return out;
}

namespace {

std::vector<Id> ids(Stmt q)
{
    std::vector<Id> out;
    while (q.step())
        out.push_back(q.integer(0));
    return out;
}

std::vector<std::string> texts(Stmt q)
{
    std::vector<std::string> out;
    while (q.step())
        out.push_back(q.text(0));
    return out;
}

/// The row of `q`, which must have one.
Stmt& onlyRow(Stmt& q, std::string_view what, Id id)
{
    if (!q.step())
        throw StoreError("no " + std::string(what) + " " + std::to_string(id) + " in the store");
    return q;
}

std::optional<std::string> optText(const Stmt& q, int col)
{
    return q.isNull(col) ? std::nullopt : std::optional<std::string>(q.text(col));
}

} // namespace

Creation elementCreation(Store& store, Id element)
{
    Stmt q = store.query("SELECT created, user, comment FROM elements WHERE id=?", element);
    onlyRow(q, "element", element);
    return {q.integer(0), q.text(1), q.text(2)};
}

Creation branchCreation(Store& store, Id branch)
{
    Stmt q = store.query("SELECT created, user FROM branches WHERE id=?", branch);
    onlyRow(q, "branch", branch);
    return {q.integer(0), q.text(1), ""};
}

Id elementOfBranch(Store& store, Id branch)
{
    return store.scalar("SELECT element_id FROM branches WHERE id=?", branch).value_or(0);
}

std::vector<BranchRecord> elementBranches(Store& store, Id element)
{
    Stmt q = store.query("SELECT id, path FROM branches WHERE element_id=? ORDER BY id", element);
    std::vector<BranchRecord> out;
    while (q.step())
        out.push_back({q.integer(0), q.text(1)});
    return out;
}

std::optional<Id> versionOnBranch(Store& store, Id branch, std::int64_t number)
{
    return store.scalar("SELECT id FROM versions WHERE branch_id=? AND num=?", branch, number);
}

VersionRecord versionRecord(Store& store, Id version)
{
    Stmt q = store.query("SELECT created, user, comment, pred_id FROM versions WHERE id=?", version);
    onlyRow(q, "version", version);
    return {{q.integer(0), q.text(1), q.text(2)}, q.optInteger(3)};
}

std::vector<std::string> versionLabels(Store& store, Id version)
{
    return texts(store.query("SELECT t.name FROM labels l JOIN types t ON t.id=l.type_id WHERE l.version_id=? "
                             "ORDER BY t.name",
                             version));
}

std::optional<Id> labelOfTypeOn(Store& store, Id type, Id element)
{
    return store.scalar("SELECT version_id FROM labels WHERE type_id=? AND element_id=?", type, element);
}

VobRecord vobRecord(Store& store, Id vob)
{
    Stmt q = store.query("SELECT created, user, comment, storage, ucm FROM vobs WHERE id=?", vob);
    onlyRow(q, "VOB", vob);
    return {{q.integer(0), q.text(1), q.text(2)}, q.text(3), q.integer(4) != 0};
}

namespace {

constexpr std::string_view kTypeColumns = "SELECT id, kind, name, created, user, comment, global, per_branch, vtype, "
                                          "attach, lo, lo_incl, hi, hi_incl, defval, enums FROM types ";

TypeRecord readType(const Stmt& q)
{
    TypeRecord t;
    t.id = q.integer(0);
    t.kind = q.text(1);
    t.name = q.text(2);
    t.creation = {q.integer(3), q.text(4), q.text(5)};
    t.global = q.integer(6) != 0;
    t.perBranch = q.integer(7) != 0;
    t.rule.vtype = optText(q, 8).value_or("string");
    t.rule.attach = optText(q, 9);
    t.rule.lower = optText(q, 10);
    t.rule.lowerInclusive = q.integer(11) != 0;
    t.rule.upper = optText(q, 12);
    t.rule.upperInclusive = q.integer(13) != 0;
    t.rule.defaultValue = optText(q, 14);
    t.rule.enums = optText(q, 15);
    return t;
}

} // namespace

TypeRecord typeRecord(Store& store, Id type)
{
    Stmt q = store.query(std::string(kTypeColumns) + "WHERE id=?", type);
    return readType(onlyRow(q, "type", type));
}

std::vector<TypeRecord> vobTypes(Store& store, Id vob, std::string_view kind)
{
    Stmt q = kind.empty() ? store.query(std::string(kTypeColumns) + "WHERE vob_id=? ORDER BY kind, name", vob)
                          : store.query(std::string(kTypeColumns) + "WHERE vob_id=? AND kind=? ORDER BY name", vob, kind);
    std::vector<TypeRecord> out;
    while (q.step())
        out.push_back(readType(q));
    return out;
}

Id createType(Session& s, Id vob, std::string_view kind, const std::string& name)
{
    return s.store.run("INSERT INTO types(vob_id, kind, name, created, user, grp, comment) VALUES(?,?,?,?,?,?,'')", vob,
                       kind, name, s.env.now, s.env.user, s.env.group);
}

void setTypeScope(Store& store, Id type, const std::string& comment, bool global, bool perBranch)
{
    store.run("UPDATE types SET comment=?, global=?, per_branch=? WHERE id=?", comment, global, perBranch, type);
}

void setValueRule(Store& store, Id type, const ValueRule& r)
{
    store.run("UPDATE types SET vtype=?, attach=?, lo=?, lo_incl=?, hi=?, hi_incl=?, defval=?, enums=? WHERE id=?",
              r.vtype, r.attach, r.lower, r.lowerInclusive, r.upper, r.upperInclusive, r.defaultValue, r.enums, type);
}

void putLock(Session& s, ObjectKind kind, Id id, const std::optional<std::string>& exemptUsers, bool obsolete,
             const std::string& comment)
{
    s.store.run("INSERT OR REPLACE INTO locks(obj_kind, obj_id, nusers, obsolete, created, user, comment) "
                "VALUES(?,?,?,?,?,?,?)",
                storeKey(kind), id, exemptUsers, obsolete, s.env.now, s.env.user, comment);
}

void removeLock(Store& store, ObjectKind kind, Id id)
{
    store.run("DELETE FROM locks WHERE obj_kind=? AND obj_id=?", storeKey(kind), id);
}

bool hasAttribute(Store& store, ObjectKind kind, Id id, Id type)
{
    return store.scalar("SELECT 1 FROM attrs WHERE obj_kind=? AND obj_id=? AND type_id=?", storeKey(kind), id, type).has_value();
}

void setAttribute(Store& store, ObjectKind kind, Id id, Id type, const std::string& value)
{
    store.run("INSERT OR REPLACE INTO attrs(obj_kind, obj_id, type_id, value) VALUES(?,?,?,?)", storeKey(kind), id, type, value);
}

StreamRecord streamRecord(Store& store, Id stream)
{
    Stmt q = store.query("SELECT project_id, integration FROM streams WHERE id=?", stream);
    onlyRow(q, "stream", stream);
    return {q.integer(0), q.integer(1) != 0};
}

std::vector<Id> projectStreams(Store& store, Id project)
{
    return ids(store.query("SELECT id FROM streams WHERE project_id=? ORDER BY name", project));
}

std::vector<Id> foundationBaselines(Store& store, Id stream)
{
    return ids(store.query("SELECT b.id FROM foundations f JOIN baselines b ON b.id=f.baseline_id "
                           "WHERE f.stream_id=? ORDER BY b.name",
                           stream));
}

std::vector<std::string> streamViewTags(Store& store, Id stream)
{
    return texts(store.query("SELECT tag FROM views WHERE stream_id=? ORDER BY tag", stream));
}

std::vector<Id> projectComponents(Store& store, Id project)
{
    return ids(store.query("SELECT component_id FROM project_comps WHERE project_id=? ORDER BY component_id", project));
}

ActivityRecord activityRecord(Store& store, Id activity)
{
    Stmt q = store.query("SELECT stream_id, headline FROM activities WHERE id=?", activity);
    onlyRow(q, "activity", activity);
    return {q.integer(0), q.text(1)};
}

std::vector<Id> changeSet(Store& store, Id activity)
{
    return ids(store.query("SELECT version_id FROM changeset WHERE activity_id=? ORDER BY version_id", activity));
}

std::vector<ChangeSetEntry> streamChangesAfter(Store& store, Id stream, Id after)
{
    Stmt q = store.query("SELECT c.version_id, c.activity_id FROM changeset c JOIN activities a ON a.id=c.activity_id "
                         "WHERE a.stream_id=? AND c.version_id>? ORDER BY c.version_id DESC",
                         stream, after);
    std::vector<ChangeSetEntry> out;
    while (q.step())
        out.push_back({q.integer(0), q.integer(1)});
    return out;
}

BaselineRecord baselineRecord(Store& store, Id baseline)
{
    Stmt q = store.query("SELECT component_id, stream_id, kind FROM baselines WHERE id=?", baseline);
    onlyRow(q, "baseline", baseline);
    return {q.integer(0), q.optInteger(1), q.text(2)};
}

std::vector<std::string> baselineNames(Store& store, ObjectKind owner, Id id)
{
    const char* column = owner == ObjectKind::Stream ? "stream_id" : owner == ObjectKind::Component ? "component_id" : "vob_id";
    return texts(store.query("SELECT name FROM baselines WHERE " + std::string(column) + "=? ORDER BY id", id));
}

Id lastBaselinedVersion(Store& store, Id component, Id stream)
{
    return store
        .scalar("SELECT MAX(last_version) FROM baselines WHERE component_id=? AND "
                "(stream_id=? OR id IN (SELECT baseline_id FROM foundations WHERE stream_id=?))",
                component, stream, stream)
        .value_or(0);
}

std::optional<Id> componentRootElement(Store& store, Id component)
{
    return store.scalar("SELECT root_elem_id FROM components WHERE id=?", component);
}

Id componentRootVob(Store& store, Id component)
{
    return store.scalar("SELECT root_vob_id FROM components WHERE id=?", component).value_or(0);
}

std::vector<Id> componentsRootedIn(Store& store, Id vob)
{
    return ids(store.query("SELECT id FROM components WHERE root_vob_id=? ORDER BY id", vob));
}

Id createBaseline(Session& s, Id pvob, const std::string& name, Id component, std::optional<Id> stream,
                  const std::string& kind, const std::string& comment)
{
    const Id last = s.store.scalar("SELECT MAX(id) FROM versions").value_or(0);
    return s.store.run("INSERT INTO baselines(vob_id, name, component_id, stream_id, kind, last_version, created, user, comment) "
                       "VALUES(?,?,?,?,?,?,?,?,?)",
                       pvob, name, component, stream, kind, last, s.env.now, s.env.user, comment);
}

Id createFolder(Session& s, Id pvob, const std::string& name, Id parent, const std::string& comment)
{
    return s.store.run("INSERT INTO folders(vob_id, name, parent_id, created, user, comment) VALUES(?,?,?,?,?,?)", pvob,
                       name, parent, s.env.now, s.env.user, comment);
}

Id createProject(Session& s, Id pvob, const std::string& name, Id folder, const std::vector<Id>& components,
                 const std::string& comment)
{
    const Id project = s.store.run("INSERT INTO projects(vob_id, name, folder_id, created, user, comment) "
                                   "VALUES(?,?,?,?,?,?)",
                                   pvob, name, folder, s.env.now, s.env.user, comment);
    for (Id c : components)
        s.store.run("INSERT OR IGNORE INTO project_comps(project_id, component_id) VALUES(?,?)", project, c);
    return project;
}

Id createComponent(Session& s, Id pvob, const std::string& name, std::optional<Id> rootVob,
                   std::optional<Id> rootElement, const std::string& comment)
{
    return s.store.run("INSERT INTO components(vob_id, name, root_vob_id, root_elem_id, created, user, comment) "
                       "VALUES(?,?,?,?,?,?,?)",
                       pvob, name, rootVob, rootElement, s.env.now, s.env.user, comment);
}

Id createStream(Session& s, Id pvob, const std::string& name, Id project, bool integration,
                const std::vector<Id>& foundations, const std::string& comment)
{
    const Id stream = s.store.run("INSERT INTO streams(vob_id, name, project_id, integration, created, user, comment) "
                                  "VALUES(?,?,?,?,?,?,?)",
                                  pvob, name, project, integration, s.env.now, s.env.user, comment);
    for (Id b : foundations)
        s.store.run("INSERT OR IGNORE INTO foundations(stream_id, baseline_id) VALUES(?,?)", stream, b);
    return stream;
}

Id createActivity(Session& s, Id pvob, const std::string& name, Id stream, const std::string& headline,
                  const std::string& comment)
{
    return s.store.run("INSERT INTO activities(vob_id, name, stream_id, headline, created, user, comment) "
                       "VALUES(?,?,?,?,?,?,?)",
                       pvob, name, stream, headline, s.env.now, s.env.user, comment);
}

} // namespace ccsim
