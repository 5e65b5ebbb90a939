#include "CmdQuery.h"

#include "ConfigSpec.h"
#include "Model.h"
#include "SnapshotView.h"

#include <algorithm>

namespace ccsim {

namespace {

std::string pad(std::string text, size_t width)
{
    if (text.size() < width)
        text.resize(width, ' ');
    return text;
}

/// "16-Dec.15:47   builder    " as long listings start.
std::string stampUser(Session& s, Time t, const std::string& user)
{
    return pad(formatShort(t, s.env.now), 12) + "   " + pad(user, 10) + " ";
}

std::string lockSuffix(Store& store, std::string_view kind, Id id)
{
    return isLocked(store, kind, id) ? " (locked)" : "";
}

/// The creation lines of the object `kind`/`id`, then the users its lock exempts, if any.
void printCreated(Session& s, std::string_view kind, Id id, Time t, const std::string& user, const std::string& comment)
{
    s.print("  created " + formatLong(t) + " by " + s.creator(user));
    if (!comment.empty())
        s.print("  \"" + comment + "\"");
    if (auto users = s.store.scalarText("SELECT nusers FROM locks WHERE obj_kind=? AND obj_id=? AND nusers IS NOT NULL",
                                        kind, id)) {
        std::replace(users->begin(), users->end(), ',', ' ');
        s.print(message(Msg::LockedExceptUsers, {*users}));
    }
}

void printOwner(Session& s, const std::string& user)
{
    s.print("  owner: " + user);
    s.print("  group: " + s.env.group);
}

void printAttributes(Session& s, std::string_view kind, Id id)
{
    Stmt q = s.store.query("SELECT t.name, a.value FROM attrs a JOIN types t ON t.id=a.type_id "
                           "WHERE a.obj_kind=? AND a.obj_id=? ORDER BY t.name",
                           kind, id);
    bool header = false;
    while (q.step()) {
        if (!header)
            s.print("  Attributes:");
        header = true;
        s.print("    " + q.text(0) + " = " + q.text(1));
    }
}

/// The project VOB a UCM listing reads: -invob, else the view's stream's, else the working directory's.
Vob listingVob(Session& s, const ParsedArgs& args)
{
    return ucmVob(s, args.value("invob").value_or(""));
}

void describeStream(Session& s, Id stream)
{
    Stmt q = s.store.query("SELECT s.name, s.created, s.user, s.comment, s.project_id, s.integration FROM streams s "
                           "WHERE s.id=?",
                           stream);
    q.step();
    const Id project = q.integer(4);
    s.print("stream \"" + q.text(0) + "\"" + lockSuffix(s.store, "stream", stream));
    printCreated(s, "stream", stream, q.integer(1), q.text(2), q.text(3));
    printOwner(s, q.text(2));
    s.print("  project: " + ucmSelector(s.store, "projects", project));
    s.print("  title: " + q.text(0));
    if (!q.integer(5)) {
        auto integration = s.store.scalar("SELECT id FROM streams WHERE project_id=? AND integration=1", project);
        if (integration)
            s.print("  default deliver stream: " + ucmSelector(s.store, "streams", *integration));
    }
    s.print("  contains activities:");
    Stmt acts = s.store.query("SELECT id FROM activities WHERE stream_id=? ORDER BY name", stream);
    while (acts.step())
        s.print("    " + ucmSelector(s.store, "activities", acts.integer(0)));
    s.print("  foundation baselines:");
    Stmt found = s.store.query("SELECT b.id, b.component_id FROM foundations f JOIN baselines b ON b.id=f.baseline_id "
                               "WHERE f.stream_id=? ORDER BY b.name",
                               stream);
    while (found.step())
        s.print("    " + ucmSelector(s.store, "baselines", found.integer(0)) + " (" +
                ucmSelector(s.store, "components", found.integer(1)) + ")");
    s.print("  recommended baselines:");
    s.print("  views:");
    Stmt views = s.store.query("SELECT tag FROM views WHERE stream_id=? ORDER BY tag", stream);
    while (views.step())
        s.print("    " + views.text(0));
}

void describeType(Session& s, Id id)
{
    Stmt q = s.store.query("SELECT kind, name, created, user, comment, global, per_branch, vtype, lo, lo_incl, hi, hi_incl, "
                           "defval FROM types WHERE id=?",
                           id);
    q.step();
    const std::string kind = q.text(0);
    s.print(typeKindWord(kind) + " \"" + q.text(1) + "\"" + lockSuffix(s.store, "type", id));
    printCreated(s, "type", id, q.integer(2), q.text(3), q.text(4));
    printOwner(s, q.text(3));
    s.print(std::string("  scope: this VOB (") + (q.integer(5) ? "global" : "ordinary") + " type)");
    if (kind == "lbtype")
        s.print(std::string("  constraint: one version per ") + (q.integer(6) ? "branch" : "element"));
    if (kind == "brtype")
        s.print(std::string("  constraint: one version per ") + (q.integer(6) ? "branch" : "element"));
    if (kind == "attype") {
        s.print("  value type: " + (q.isNull(7) ? std::string("string") : q.text(7)));
        if (!q.isNull(8))
            s.print("  lower bound: " + q.text(8) + (q.integer(9) ? " (inclusive)" : " (exclusive)"));
        if (!q.isNull(10))
            s.print("  upper bound: " + q.text(10) + (q.integer(11) ? " (inclusive)" : " (exclusive)"));
        if (!q.isNull(12))
            s.print("  default value: " + q.text(12));
    }
    printAttributes(s, "type", id);
}

void describeVersion(Session& s, const ObjectRef& o, const Target* t)
{
    const VersionInfo v = versionInfo(s.store, o.id);
    std::optional<Checkout> co;
    if (t && !t->extended && t->view)
        co = checkoutIn(s.store, v.element, t->view->id);
    Stmt q = s.store.query("SELECT created, user, comment, pred_id FROM versions WHERE id=?", o.id);
    q.step();
    if (co) {
        s.print("version \"" + t->given + "@@" + v.branchPath + "/CHECKEDOUT\" from " + v.extension() +
                (co->reserved ? " (reserved)" : " (unreserved)"));
        printCreated(s, "version", o.id, co->created, co->user, co->comment);
    } else {
        s.print("version \"" + o.name + "\"" + lockSuffix(s.store, "version", o.id));
        printCreated(s, "version", o.id, q.integer(0), q.text(1), q.text(2));
    }
    s.print("  element type: " + elementType(s.store, v.element));
    if (co)
        s.print("  predecessor version: " + v.extension());
    else if (!q.isNull(3))
        s.print("  predecessor version: " + versionInfo(s.store, q.integer(3)).extension());
    Stmt labels = s.store.query("SELECT t.name FROM labels l JOIN types t ON t.id=l.type_id WHERE l.version_id=? "
                                "ORDER BY t.name",
                                o.id);
    bool header = false;
    while (labels.step()) {
        if (!header)
            s.print("  Labels:");
        header = true;
        s.print("    " + labels.text(0));
    }
    printAttributes(s, "version", o.id);
}

void describeUcm(Session& s, const ObjectRef& o)
{
    if (o.kind == "stream") {
        describeStream(s, o.id);
        return;
    }
    const std::string table = o.kind == "activity" ? "activities" : o.kind + "s";
    Stmt q = s.store.query("SELECT name, created, user, comment FROM " + table + " WHERE id=?", o.id);
    q.step();
    s.print(o.kindWord + " \"" + q.text(0) + "\"" + lockSuffix(s.store, o.kind, o.id));
    printCreated(s, o.kind, o.id, q.integer(1), q.text(2), q.text(3));
    printOwner(s, q.text(2));
    if (o.kind == "activity") {
        Stmt a = s.store.query("SELECT stream_id, headline FROM activities WHERE id=?", o.id);
        a.step();
        s.print("  stream: " + ucmSelector(s.store, "streams", a.integer(0)));
        s.print("  title: " + a.text(1));
        s.print("  change set versions:");
        Stmt cs = s.store.query("SELECT version_id FROM changeset WHERE activity_id=? ORDER BY version_id", o.id);
        while (cs.step()) {
            const VersionInfo v = versionInfo(s.store, cs.integer(0));
            const Id vob = vobOfElement(s.store, v.element);
            const std::string path = elementPath(s.store, v.element);
            s.print("    " + *s.store.scalarText("SELECT tag FROM vobs WHERE id=?", vob) + (path.empty() ? "" : "/" + path) +
                    "@@" + v.extension());
        }
    } else if (o.kind == "component") {
        Stmt c = s.store.query("SELECT v.tag, c.root_elem_id FROM components c JOIN vobs v ON v.id=c.root_vob_id "
                               "WHERE c.id=?",
                               o.id);
        if (c.step()) {
            const std::string path = elementPath(s.store, c.integer(1));
            s.print("  root directory: " + c.text(0) + (path.empty() ? "" : "/" + path));
        }
    } else if (o.kind == "baseline") {
        Stmt b = s.store.query("SELECT component_id, stream_id, kind FROM baselines WHERE id=?", o.id);
        b.step();
        if (!b.isNull(1))
            s.print("  stream: " + ucmSelector(s.store, "streams", b.integer(1)));
        s.print("  component: " + ucmSelector(s.store, "components", b.integer(0)));
        const std::string kind = b.text(2);
        s.print(std::string("  label status: ") +
                (kind == "nlabel" ? "Not Labeled" : kind == "incremental" ? "Incrementally Labeled" : "Fully Labeled"));
    } else if (o.kind == "project") {
        auto integration = s.store.scalar("SELECT id FROM streams WHERE project_id=? AND integration=1", o.id);
        if (integration)
            s.print("  integration stream: " + ucmSelector(s.store, "streams", *integration));
        s.print("  modifiable components:");
        Stmt c = s.store.query("SELECT component_id FROM project_comps WHERE project_id=?", o.id);
        while (c.step())
            s.print("    " + ucmSelector(s.store, "components", c.integer(0)));
    }
    printAttributes(s, o.kind, o.id);
}

void describeOne(Session& s, const std::string& operand, const std::optional<std::string>& version)
{
    Selector sel = parseSelector(operand);
    std::optional<Target> t;
    ObjectRef o;
    if (sel.kind.empty()) {
        t = s.resolve(operand);
        o = resolvePathObject(s, *t, version);
    } else {
        o = resolveObject(s, operand);
    }
    if (o.kind == "version") {
        describeVersion(s, o, t ? &*t : nullptr);
    } else if (o.kind == "element" || o.kind == "branch") {
        const Id element = o.kind == "element" ? o.id : *s.store.scalar("SELECT element_id FROM branches WHERE id=?", o.id);
        Stmt q = o.kind == "element" ? s.store.query("SELECT created, user, comment FROM elements WHERE id=?", o.id)
                                     : s.store.query("SELECT created, user, '' FROM branches WHERE id=?", o.id);
        q.step();
        if (o.kind == "element")
            s.print(std::string(isDirectory(s.store, element) ? "directory" : "file") + " element \"" + o.name + "\"" +
                    lockSuffix(s.store, "element", o.id));
        else
            s.print("branch \"" + o.name + "\"" + lockSuffix(s.store, "branch", o.id));
        printCreated(s, o.kind, o.id, q.integer(0), q.text(1), q.text(2));
        if (o.kind == "element")
            s.print("  element type: " + elementType(s.store, element));
        else
            s.print("  branch type: main");
        printAttributes(s, o.kind, o.id);
    } else if (o.kind == "type") {
        describeType(s, o.id);
    } else if (o.kind == "vob") {
        Stmt q = s.store.query("SELECT created, user, comment, storage, ucm FROM vobs WHERE id=?", o.id);
        q.step();
        s.print("versioned object base \"" + o.name + "\"" + lockSuffix(s.store, "vob", o.id));
        printCreated(s, "vob", o.id, q.integer(0), q.text(1), q.text(2));
        s.print("  VOB storage global pathname \"" + q.text(3) + "\"");
        if (q.integer(4))
            s.print("  VOB family feature level: 5 (project VOB)");
        printOwner(s, q.text(1));
        printAttributes(s, "vob", o.id);
    } else {
        describeUcm(s, o);
    }
}

/// The events of one element, newest first, as lshistory prints them.
void history(Session& s, const std::string& given, Id element, bool shortForm, std::optional<Time> since)
{
    Stmt q = s.store.query(
        "SELECT kind, vext, created, user, comment, label FROM events WHERE element_id=? ORDER BY id DESC", element);
    while (q.step()) {
        if (since && q.integer(2) < *since)
            continue;
        const std::string name = given + "@@" + q.text(1);
        if (shortForm) {
            s.print(name);
            continue;
        }
        const std::string kind = q.text(0);
        const std::string what =
            kind == "label"   ? message(Msg::HistoryLabel, {q.isNull(5) ? "" : q.text(5), name})
            : kind == "element" ? "create " + std::string(isDirectory(s.store, element) ? "directory" : "file") +
                                      " element \"" + name + "\""
            : kind == "branch" ? "create branch \"" + name + "\""
                               : "create version \"" + name + "\"";
        s.print(stampUser(s, q.integer(2), q.text(3)) + what);
        if (!q.text(4).empty())
            s.print("  \"" + q.text(4) + "\"");
    }
}

/// The name `ls` shows for one file-system entry, and whether it is a directory to descend into.
std::string lsName(Session& s, const fs::path& path, const std::string& shown, bool longForm)
{
    Target t = s.resolve(path.string());
    if (!t.element || !t.view)
        return longForm ? "view private object    " + shown : shown;
    const View& view = *t.view;
    std::string ext;
    if (auto co = checkoutIn(s.store, *t.element, view.id)) {
        ext = versionInfo(s.store, co->pred).branchPath + "/CHECKEDOUT";
    } else if (auto sel = viewVersion(s, view, *t.element)) {
        ext = versionInfo(s.store, sel->version).extension();
    }
    std::string out = shown + "@@" + ext;
    if (longForm) {
        const std::string kind = isDirectory(s.store, *t.element) ? "directory version      " : "version                ";
        out = kind + out;
        if (isHijacked(s, view, *t.element, path))
            out += " [hijacked]";
    }
    return out;
}

void listDir(Session& s, const fs::path& dir, const std::string& prefix, bool recurse, bool longForm)
{
    std::vector<fs::directory_entry> entries;
    std::error_code ec;
    for (auto& e : fs::directory_iterator(dir, ec))
        entries.push_back(e);
    std::sort(entries.begin(), entries.end(), [](auto& a, auto& b) { return a.path().filename() < b.path().filename(); });
    std::vector<std::pair<fs::path, std::string>> subdirs;
    for (auto& e : entries) {
        const std::string name = e.path().filename().string();
        if ((name == "view.dat" || name.starts_with("update.")) && fs::is_regular_file(dir / "view.dat", ec))
            continue;
        const std::string shown = prefix.empty() ? name : prefix + "/" + name;
        s.print(lsName(s, e.path(), shown, longForm));
        if (e.is_directory(ec))
            subdirs.emplace_back(e.path(), shown);
    }
    if (recurse) {
        for (auto& [path, shown] : subdirs)
            listDir(s, path, shown, true, longForm);
    }
}

} // namespace

void cmdLsvob(Session& s, const ParsedArgs& args)
{
    for (const Vob& v : s.vobs()) {
        if (!args.operands().empty() &&
            std::find(args.operands().begin(), args.operands().end(), v.tag) == args.operands().end())
            continue;
        if (args.has("short")) {
            s.print(v.tag);
            continue;
        }
        const std::string storage = *s.store.scalarText("SELECT storage FROM vobs WHERE id=?", v.id);
        s.print("* " + pad(v.tag, 24) + " " + storage + " public" + (v.ucm ? " (ucmvob)" : ""));
    }
}

void cmdLstype(Session& s, const ParsedArgs& args)
{
    const Vob vob = args.value("invob") ? s.vobFor(*args.value("invob")) : s.currentVob();
    const std::string kind = args.value("kind").value_or("");
    if (!kind.empty() && (!kind.ends_with("type") || typeKindWord(kind).empty()))
        throw UsageError{message(Msg::NotVobObject, {kind})};
    Stmt q = kind.empty() ? s.store.query("SELECT id, kind, name, created, user, comment FROM types WHERE vob_id=? "
                                          "ORDER BY kind, name",
                                          vob.id)
                          : s.store.query("SELECT id, kind, name, created, user, comment FROM types WHERE vob_id=? AND kind=? "
                                          "ORDER BY name",
                                          vob.id, kind);
    while (q.step()) {
        const Id id = q.integer(0);
        if (isObsolete(s.store, "type", id) && !args.has("obsolete"))
            continue;
        const std::string suffix = lockSuffix(s.store, "type", id);
        if (args.has("short")) {
            s.print(q.text(2) + suffix);
            continue;
        }
        s.print(stampUser(s, q.integer(3), q.text(4)) + typeKindWord(q.text(1)) + " \"" + q.text(2) + "\"" + suffix);
        if (!q.text(5).empty())
            s.print("  \"" + q.text(5) + "\"");
    }
}

void cmdLspool(Session& s, const ParsedArgs& args)
{
    const Vob vob = args.value("invob") ? s.vobFor(*args.value("invob")) : s.currentVob();
    (void)vob;
    for (const char* pool : {"cdft", "ddft", "sdft"}) {
        if (args.has("short"))
            s.print(pool);
        else
            s.print(pad(formatShort(s.env.now, s.env.now), 12) + "   " + pad(s.env.user, 10) + " pool \"" + pool + "\"");
    }
}

void cmdLsactivity(Session& s, const ParsedArgs& args)
{
    std::optional<Stmt> q;
    if (auto in = args.value("in")) {
        q.emplace(s.store.query("SELECT id FROM activities WHERE stream_id=? ORDER BY name", requireUcm(s, "stream", *in)));
    } else if (args.has("cview") || (!args.value("invob") && s.view() && s.view()->stream)) {
        const View& view = s.requireView();
        if (!view.stream)
            fail(message(Msg::NotUcmView, {view.tag}));
        q.emplace(s.store.query("SELECT id FROM activities WHERE stream_id=? ORDER BY name", *view.stream));
    } else {
        const Vob vob = listingVob(s, args);
        q.emplace(s.store.query("SELECT id FROM activities WHERE vob_id=? ORDER BY name", vob.id));
    }
    while (q->step()) {
        Stmt a = s.store.query("SELECT name, created, user, headline FROM activities WHERE id=?", q->integer(0));
        a.step();
        if (args.has("short")) {
            s.print(a.text(0));
            continue;
        }
        s.print(stampUser(s, a.integer(1), a.text(2)) + "activity \"" + a.text(0) + "\"");
        s.print("  \"" + a.text(3) + "\"");
    }
}

void cmdLscomp(Session& s, const ParsedArgs& args)
{
    std::vector<Id> ids;
    if (!args.value("invob") && s.view() && s.view()->stream) {
        ids = streamComponents(s.store, *s.view()->stream);
    } else {
        const Vob vob = listingVob(s, args);
        Stmt q = s.store.query("SELECT id FROM components WHERE vob_id=? ORDER BY name", vob.id);
        while (q.step())
            ids.push_back(q.integer(0));
    }
    std::vector<std::string> names;
    for (Id id : ids)
        names.push_back(ucmName(s.store, "components", id));
    std::sort(names.begin(), names.end());
    for (const std::string& n : names)
        s.print(args.has("short") ? n : "component \"" + n + "\"");
}

void cmdLsfolder(Session& s, const ParsedArgs& args)
{
    const Vob vob = listingVob(s, args);
    Stmt q = s.store.query("SELECT name FROM folders WHERE vob_id=? ORDER BY name", vob.id);
    while (q.step())
        s.print(args.has("short") ? q.text(0) : "folder \"" + q.text(0) + "\"");
}

void cmdLsproject(Session& s, const ParsedArgs& args)
{
    const Vob vob = listingVob(s, args);
    Stmt q = s.store.query("SELECT name FROM projects WHERE vob_id=? ORDER BY name", vob.id);
    while (q.step())
        s.print(args.has("short") ? q.text(0) : "project \"" + q.text(0) + "\"");
}

void cmdLsstream(Session& s, const ParsedArgs& args)
{
    std::vector<Id> ids;
    if (args.has("cview") || args.value("view")) {
        const View& view = s.requireView();
        std::optional<Id> stream = view.stream;
        std::string tag = view.tag;
        if (auto other = args.value("view")) {
            tag = *other;
            stream = s.store.scalar("SELECT stream_id FROM views WHERE tag=?", *other);
        }
        if (!stream)
            fail(message(Msg::NotUcmView, {tag}));
        ids.push_back(*stream);
    } else if (!args.operands().empty()) {
        for (const std::string& op : args.operands())
            ids.push_back(requireUcm(s, "stream", op));
    } else if (auto in = args.value("in")) {
        Stmt q = s.store.query("SELECT id FROM streams WHERE project_id=? ORDER BY name", requireUcm(s, "project", *in));
        while (q.step())
            ids.push_back(q.integer(0));
    } else {
        const Vob vob = listingVob(s, args);
        Stmt q = s.store.query("SELECT id FROM streams WHERE vob_id=? ORDER BY name", vob.id);
        while (q.step())
            ids.push_back(q.integer(0));
    }
    for (Id id : ids) {
        if (args.has("long"))
            describeStream(s, id);
        else if (args.has("short"))
            s.print(ucmName(s.store, "streams", id));
        else {
            Stmt q = s.store.query("SELECT name, created, user FROM streams WHERE id=?", id);
            q.step();
            s.print(stampUser(s, q.integer(1), q.text(2)) + "stream \"" + q.text(0) + "\"");
        }
    }
}

void cmdLsbl(Session& s, const ParsedArgs& args)
{
    std::string where = "1=1";
    std::optional<Id> arg;
    if (auto st = args.value("stream")) {
        where = "stream_id=?";
        arg = requireUcm(s, "stream", *st);
    } else if (auto c = args.value("component")) {
        where = "component_id=?";
        arg = requireUcm(s, "component", *c);
    } else {
        where = "vob_id=?";
        arg = ucmVob(s, "").id;
    }
    Stmt q = s.store.query("SELECT name FROM baselines WHERE " + where + " ORDER BY id", *arg);
    while (q.step())
        s.print(args.has("short") ? q.text(0) : "baseline \"" + q.text(0) + "\"");
}

void cmdLshistory(Session& s, const ParsedArgs& args)
{
    std::optional<Time> since;
    if (auto text = args.value("since")) {
        since = parseDateTime(*text, s.env.now);
        if (!since)
            throw UsageError{message(Msg::AttributeValueType, {*text, "date-time"})};
    }
    std::vector<std::string> ops = args.operands();
    if (ops.empty())
        ops.push_back(".");
    s.forEach(ops, [&](const std::string& op) {
        Target t = s.resolve(op);
        if (!t.element)
            fail(message(Msg::NotObjectInVob, {op}));
        history(s, op == "." && args.operands().empty() ? "." : op, *t.element, args.has("short"), since);
    });
}

void cmdLs(Session& s, const ParsedArgs& args)
{
    std::vector<std::string> ops = args.operands();
    const bool given = !ops.empty();
    if (!given)
        ops.push_back(".");
    s.forEach(ops, [&](const std::string& op) {
        Target t = s.resolve(op);
        std::error_code ec;
        if (!fs::exists(t.abs, ec))
            fail(message(Msg::NoSuchFile, {op}));
        if (fs::is_directory(t.abs, ec) && !args.has("directory"))
            listDir(s, t.abs, given ? op : "", args.has("recurse"), args.has("long"));
        else
            s.print(lsName(s, t.abs, op, args.has("long")));
    });
}

void cmdLscheckout(Session& s, const ParsedArgs& args)
{
    std::vector<std::string> ops = args.operands();
    if (ops.empty())
        ops.push_back(".");
    s.forEach(ops, [&](const std::string& op) {
        Target scope = s.resolve(op);
        if (!scope.view && !scope.vob)
            fail(message(Msg::NotObjectInVob, {op}));
        const View* view = scope.view ? &*scope.view : nullptr;
        const View* current = view ? view : s.view() ? &*s.view() : nullptr;
        const std::string root = scope.abs.string();
        Stmt q = s.store.query("SELECT element_id, view_id FROM checkouts ORDER BY id");
        std::vector<Checkout> found;
        while (q.step()) {
            if (args.has("cview") && (!current || q.integer(1) != current->id))
                continue;
            auto co = checkoutIn(s.store, q.integer(0), q.integer(1));
            if (args.has("me") && co->user != s.env.user)
                continue;
            const Id vob = vobOfElement(s.store, co->element);
            const std::string tag = *s.store.scalarText("SELECT tag FROM vobs WHERE id=?", vob);
            const std::string path = elementPath(s.store, co->element);
            const fs::path file = view ? viewFile(*view, tag, path) : fs::path(tag + (path.empty() ? "" : "/" + path));
            const std::string f = file.string();
            const bool below = f.starts_with(root + "/");
            const bool direct = below && file.parent_path().string() == root;
            const bool self = f == root;
            const bool recurse = args.has("recurse") || args.has("all") || !scope.vob;
            if (!(self && (args.has("directory") || recurse || !isDirectory(s.store, co->element))) &&
                !(args.has("directory") ? false : recurse ? below : direct))
                continue;
            const std::string shown = s.display(file);
            if (args.has("short")) {
                s.print(shown);
                continue;
            }
            s.print(stampUser(s, co->created, co->user) + "checkout " +
                    (isDirectory(s.store, co->element) ? "directory version \"" : "version \"") + shown + "\" from " +
                    versionInfo(s.store, co->pred).extension() + (co->reserved ? " (reserved)" : " (unreserved)"));
            if (!co->comment.empty())
                s.print("  \"" + co->comment + "\"");
        }
    });
}

void cmdDescribe(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    s.forEach(args.operands(), [&](const std::string& op) { describeOne(s, op, args.value("version")); });
}

} // namespace ccsim
