#include "CmdDescribe.h"

#include "ConfigSpec.h"
#include "Listing.h"
#include "Model.h"

#include <algorithm>

namespace ccsim {

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
    s.print("  project: " + ucmSelector(s.store, ObjectKind::Project, project));
    s.print("  title: " + q.text(0));
    if (!q.integer(5)) {
        auto integration = integrationStream(s.store, project);
        if (integration)
            s.print("  default deliver stream: " + ucmSelector(s.store, ObjectKind::Stream, *integration));
    }
    s.print("  contains activities:");
    for (Id activity : streamActivities(s.store, stream))
        s.print("    " + ucmSelector(s.store, ObjectKind::Activity, activity));
    s.print("  foundation baselines:");
    Stmt found = s.store.query("SELECT b.id, b.component_id FROM foundations f JOIN baselines b ON b.id=f.baseline_id "
                               "WHERE f.stream_id=? ORDER BY b.name",
                               stream);
    while (found.step())
        s.print("    " + ucmSelector(s.store, ObjectKind::Baseline, found.integer(0)) + " (" +
                ucmSelector(s.store, ObjectKind::Component, found.integer(1)) + ")");
    s.print("  recommended baselines:");
    s.print("  views:");
    Stmt views = s.store.query("SELECT tag FROM views WHERE stream_id=? ORDER BY tag", stream);
    while (views.step())
        s.print("    " + views.text(0));
}

namespace {


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

void describeActivity(Session& s, Id activity)
{
    Stmt a = s.store.query("SELECT stream_id, headline FROM activities WHERE id=?", activity);
    a.step();
    s.print("  stream: " + ucmSelector(s.store, ObjectKind::Stream, a.integer(0)));
    s.print("  title: " + a.text(1));
    s.print("  change set versions:");
    Stmt cs = s.store.query("SELECT version_id FROM changeset WHERE activity_id=? ORDER BY version_id", activity);
    while (cs.step()) {
        const VersionInfo v = versionInfo(s.store, cs.integer(0));
        const std::string path = elementPath(s.store, v.element);
        s.print("    " + vobTag(s.store, vobOfElement(s.store, v.element)) + (path.empty() ? "" : "/" + path) + "@@" +
                v.extension());
    }
}

void describeBaseline(Session& s, Id baseline)
{
    Stmt b = s.store.query("SELECT component_id, stream_id, kind FROM baselines WHERE id=?", baseline);
    b.step();
    if (!b.isNull(1))
        s.print("  stream: " + ucmSelector(s.store, ObjectKind::Stream, b.integer(1)));
    s.print("  component: " + ucmSelector(s.store, ObjectKind::Component, b.integer(0)));
    const std::string kind = b.text(2);
    s.print(std::string("  label status: ") +
            (kind == "nlabel" ? "Not Labeled" : kind == "incremental" ? "Incrementally Labeled" : "Fully Labeled"));
}

void describeProject(Session& s, Id project)
{
    if (auto integration = integrationStream(s.store, project))
        s.print("  integration stream: " + ucmSelector(s.store, ObjectKind::Stream, *integration));
    s.print("  modifiable components:");
    Stmt c = s.store.query("SELECT component_id FROM project_comps WHERE project_id=?", project);
    while (c.step())
        s.print("    " + ucmSelector(s.store, ObjectKind::Component, c.integer(0)));
}

void describeUcm(Session& s, const ObjectRef& o)
{
    const ObjectKind kind = *objectKind(o.kind);
    if (kind == ObjectKind::Stream) {
        describeStream(s, o.id);
        return;
    }
    const UcmRecord r = ucmRecord(s.store, kind, o.id);
    s.print(o.kindWord + " \"" + r.name + "\"" + lockSuffix(s.store, o.kind, o.id));
    printCreated(s, o.kind, o.id, r.created, r.user, r.comment);
    printOwner(s, r.user);
    switch (kind) {
    case ObjectKind::Activity:
        describeActivity(s, o.id);
        break;
    case ObjectKind::Component:
        if (const std::string root = componentRootPath(s.store, o.id); !root.empty())
            s.print("  root directory: " + root);
        break;
    case ObjectKind::Baseline:
        describeBaseline(s, o.id);
        break;
    case ObjectKind::Project:
        describeProject(s, o.id);
        break;
    default: // a folder prints only what every UCM object does
        break;
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

} // namespace

void cmdDescribe(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    s.forEach(args.operands(), [&](const std::string& op) { describeOne(s, op, args.value("version")); });
}

} // namespace ccsim
