#include "CmdUcm.h"

#include "CmdDescribe.h"
#include "ConfigSpec.h"
#include "Listing.h"
#include "Model.h"

#include <algorithm>
#include <sstream>

namespace ccsim {

namespace {

std::vector<std::string> splitList(const std::string& text)
{
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string item; std::getline(in, item, ',');) {
        if (!item.empty())
            out.push_back(item);
    }
    return out;
}

/// The project VOB and bare name of a new UCM object's selector.
std::pair<Vob, std::string> newUcmName(Session& s, ObjectKind kind, const std::string& text)
{
    Selector sel = parseSelector(text);
    if (!sel.kind.empty() && sel.kind != selectorWord(kind))
        fail(message(Msg::NotVobObject, {text}));
    return {ucmVob(s, sel.vob), sel.name};
}

void requireNewName(Session& s, ObjectKind kind, const Vob& vob, const std::string& name)
{
    if (findUcm(s.store, kind, vob.id, name))
        fail(message(Msg::NameExists, {name}), message(Msg::UnableToCreateType, {std::string(selectorWord(kind)), name}));
}

Id makeBaseline(Session& s, const Vob& pvob, const std::string& name, Id component, std::optional<Id> stream,
                const std::string& kind, const std::string& comment)
{
    const Id last = s.store.scalar("SELECT MAX(id) FROM versions").value_or(0);
    return s.store.run("INSERT INTO baselines(vob_id, name, component_id, stream_id, kind, last_version, created, user, comment) "
                       "VALUES(?,?,?,?,?,?,?,?,?)",
                       pvob.id, name, component, stream, kind, last, s.env.now, s.env.user, comment);
}

std::string freeBaselineName(Session& s, const Vob& pvob, const std::string& root)
{
    std::string name = root;
    for (int n = 1; findUcm(s.store, ObjectKind::Baseline, pvob.id, name); ++n)
        name = root + "." + std::to_string(n);
    return name;
}

/// Elements under a component's root directory, root first.
std::vector<Id> componentElements(Session& s, Id component)
{
    std::vector<Id> out;
    if (auto root = s.store.scalar("SELECT root_elem_id FROM components WHERE id=?", component))
        out.push_back(*root);
    for (size_t i = 0; i < out.size(); ++i) {
        for (const auto& child : childElements(s.store, out[i]))
            out.push_back(child.first);
    }
    return out;
}

void labelVersions(Session& s, Id component, const std::string& label, const std::vector<Id>& versions)
{
    const Id vob = *s.store.scalar("SELECT root_vob_id FROM components WHERE id=?", component);
    auto type = findType(s.store, vob, "lbtype", label);
    if (!type)
        type = s.store.run("INSERT INTO types(vob_id, kind, name, created, user, grp, comment) VALUES(?,?,?,?,?,?,'')", vob,
                           "lbtype", label, s.env.now, s.env.user, s.env.group);
    for (Id v : versions) {
        const VersionInfo info = versionInfo(s.store, v);
        putLabel(s, *type, info.element, v);
        addEvent(s, info.element, "label", info.extension(), "", label);
    }
}

/// The stream a baseline is made in: that of -view's view, else of the current view.
struct BaselineStream {
    Id stream = 0;
    Vob pvob;
    std::string viewTag;
};

BaselineStream baselineStream(Session& s, const ParsedArgs& args)
{
    std::optional<Id> stream;
    std::string tag;
    if (auto given = args.value("view")) {
        auto view = s.viewTagged(*given);
        if (!view)
            fail(message(Msg::ViewTagNotFound, {*given}));
        stream = view->stream;
        tag = *given;
    } else {
        const View& view = s.requireView();
        stream = view.stream;
        tag = view.tag;
    }
    if (!stream)
        fail(message(Msg::NotUcmView, {tag}));
    const Id pvob = ucmVobOf(s.store, ObjectKind::Stream, *stream);
    return BaselineStream{*stream, Vob{pvob, vobTag(s.store, pvob), true}, tag};
}

/// -import: a full baseline from each label type, in the component rooted in the label's VOB.
void importBaselines(Session& s, const ParsedArgs& args, const BaselineStream& target, const std::string& comment)
{
    std::vector<Id> allowed;
    std::vector<std::string> labels;
    for (const std::string& op : args.operands()) {
        if (parseSelector(op).kind == "lbtype") {
            labels.push_back(op);
        } else {
            for (const std::string& c : splitList(op))
                allowed.push_back(requireUcm(s, ObjectKind::Component, c));
        }
    }
    if (labels.empty())
        throw UsageError{message(Msg::MissingOperand)};
    s.forEach(labels, [&](const std::string& op) {
        ObjectRef type = resolveObject(s, op);
        Stmt q = s.store.query("SELECT id FROM components WHERE root_vob_id=? ORDER BY id", type.vob);
        std::optional<Id> comp;
        while (q.step()) {
            if (allowed.empty() || std::count(allowed.begin(), allowed.end(), q.integer(0)))
                comp = q.integer(0);
        }
        if (!comp)
            fail(message(Msg::ObjectNotFound, {"component", op}));
        const std::string name = freeBaselineName(s, target.pvob, type.name);
        makeBaseline(s, target.pvob, name, *comp, target.stream, "full", comment);
        s.print(message(Msg::CreatedBaseline, {name, ucmName(s.store, ObjectKind::Component, *comp)}));
    });
}

/// The components -component or -activities names, else all the stream sees; with -activities,
/// `onlyActivities` gets the activities whose change sets count.
std::vector<Id> baselineComponents(Session& s, const ParsedArgs& args, const BaselineStream& target,
                                   std::optional<std::vector<Id>>& onlyActivities)
{
    const std::vector<Id> seen = streamComponents(s.store, target.stream);
    std::vector<Id> comps;
    if (auto list = args.value("component")) {
        for (const std::string& c : splitList(*list)) {
            const Id id = requireUcm(s, ObjectKind::Component, c);
            if (!std::count(seen.begin(), seen.end(), id))
                fail(message(Msg::ComponentNotInStream, {c, ucmName(s.store, ObjectKind::Stream, target.stream)}));
            comps.push_back(id);
        }
        return comps;
    }
    auto acts = args.value("activities");
    if (!acts)
        return seen;
    onlyActivities.emplace();
    if (*acts == "-cact") {
        auto current = s.view() ? s.view()->activity : std::nullopt;
        if (!current)
            fail(message(Msg::NoCurrentActivity, {target.viewTag}));
        onlyActivities->push_back(*current);
    } else {
        for (const std::string& a : splitList(*acts))
            onlyActivities->push_back(requireUcm(s, ObjectKind::Activity, a));
    }
    for (Id a : *onlyActivities) {
        Stmt q = s.store.query("SELECT version_id FROM changeset WHERE activity_id=?", a);
        while (q.step()) {
            auto c = componentOfElement(s.store, versionInfo(s.store, q.integer(0)).element);
            if (c && !std::count(comps.begin(), comps.end(), *c))
                comps.push_back(*c);
        }
    }
    return comps;
}

/// The newest change-set version of each element of `comp` made in `stream` since its last baseline.
std::vector<Id> changedSinceBaseline(Session& s, Id comp, Id stream, const std::optional<std::vector<Id>>& onlyActivities)
{
    const Id since = s.store.scalar("SELECT MAX(last_version) FROM baselines WHERE component_id=? AND "
                                    "(stream_id=? OR id IN (SELECT baseline_id FROM foundations WHERE stream_id=?))",
                                    comp, stream, stream)
                         .value_or(0);
    std::vector<Id> changed;
    std::vector<Id> elementsDone;
    Stmt q = s.store.query("SELECT c.version_id, c.activity_id FROM changeset c JOIN activities a ON a.id=c.activity_id "
                           "WHERE a.stream_id=? AND c.version_id>? ORDER BY c.version_id DESC",
                           stream, since);
    while (q.step()) {
        if (onlyActivities && !std::count(onlyActivities->begin(), onlyActivities->end(), q.integer(1)))
            continue;
        const VersionInfo v = versionInfo(s.store, q.integer(0));
        if (componentOfElement(s.store, v.element) != comp || std::count(elementsDone.begin(), elementsDone.end(), v.element))
            continue;
        elementsDone.push_back(v.element);
        changed.push_back(v.id);
    }
    return changed;
}

void makeComponentBaseline(Session& s, const BaselineStream& target, Id comp,
                           const std::optional<std::vector<Id>>& onlyActivities, const std::string& root,
                           const std::string& kind, const std::string& comment, bool identical)
{
    const std::string compName = ucmName(s.store, ObjectKind::Component, comp);
    checkUnlocked(s,
                  {{"component", comp, "component", compName, target.pvob.id},
                   {"stream", target.stream, "stream", ucmName(s.store, ObjectKind::Stream, target.stream), target.pvob.id}},
                  "make baseline");
    const std::vector<Id> changed = changedSinceBaseline(s, comp, target.stream, onlyActivities);
    if (changed.empty() && !identical) {
        s.print(message(Msg::BaselineUnchanged, {compName}));
        return;
    }
    const std::string name = freeBaselineName(s, target.pvob, root);
    makeBaseline(s, target.pvob, name, comp, target.stream, kind, comment);
    s.print(message(Msg::CreatedBaseline, {name, compName}));
    if (kind == "nlabel")
        return;
    const std::string adverb = kind == "full" ? "fully" : "incrementally";
    s.print(message(Msg::BeginLabeling, {adverb, name}));
    std::vector<Id> versions = changed;
    if (kind == "full") {
        versions.clear();
        for (Id element : componentElements(s, comp)) {
            if (auto main = branchByPath(s.store, element, "/main"))
                versions.push_back(*latestOnBranch(s.store, *main));
        }
    }
    labelVersions(s, comp, name, versions);
    s.print(message(Msg::DoneLabeling, {adverb, name}));
}

} // namespace

void cmdMkfolder(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    auto in = args.value("in");
    if (!in)
        throw UsageError{message(Msg::MissingOperand)};
    const Id parent = requireUcm(s, ObjectKind::Folder, *in);
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, ObjectKind::Folder, op);
        requireNewName(s, ObjectKind::Folder, vob, name);
        s.store.run("INSERT INTO folders(vob_id, name, parent_id, created, user, comment) VALUES(?,?,?,?,?,?)", vob.id, name,
                    parent, s.env.now, s.env.user, commentOf(s, args));
        s.print(message(Msg::CreatedObject, {"folder", name}));
    });
}

void cmdMkproject(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    auto in = args.value("in");
    if (!in)
        throw UsageError{message(Msg::MissingOperand)};
    const Id folder = requireUcm(s, ObjectKind::Folder, *in);
    std::vector<Id> comps;
    if (auto mod = args.value("modcomp")) {
        for (const std::string& c : splitList(*mod))
            comps.push_back(requireUcm(s, ObjectKind::Component, c));
    }
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, ObjectKind::Project, op);
        requireNewName(s, ObjectKind::Project, vob, name);
        const Id project = s.store.run("INSERT INTO projects(vob_id, name, folder_id, created, user, comment) "
                                       "VALUES(?,?,?,?,?,?)",
                                       vob.id, name, folder, s.env.now, s.env.user, commentOf(s, args));
        for (Id c : comps)
            s.store.run("INSERT OR IGNORE INTO project_comps(project_id, component_id) VALUES(?,?)", project, c);
        s.print(message(Msg::CreatedObject, {"project", name}));
    });
}

void cmdMkcomp(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    if (args.has("root") == args.has("nroot"))
        throw UsageError{message(args.has("root") ? Msg::ConflictingOptions : Msg::MissingOperand, {"-root", "-nroot"})};
    std::optional<Id> rootVob, rootElem;
    if (auto root = args.value("root")) {
        Target t = s.resolve(*root);
        if (!t.element || !isDirectory(s.store, *t.element))
            fail(message(Msg::NotVobObject, {*root}));
        rootVob = t.vob->id;
        rootElem = *t.element;
    }
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, ObjectKind::Component, op);
        requireNewName(s, ObjectKind::Component, vob, name);
        const Id comp = s.store.run("INSERT INTO components(vob_id, name, root_vob_id, root_elem_id, created, user, comment) "
                                    "VALUES(?,?,?,?,?,?,?)",
                                    vob.id, name, rootVob, rootElem, s.env.now, s.env.user, commentOf(s, args));
        const std::string initial = freeBaselineName(s, vob, name + "_INITIAL");
        makeBaseline(s, vob, initial, comp, std::nullopt, "full", "");
        if (rootElem) {
            auto main = branchByPath(s.store, *rootElem, "/main");
            labelVersions(s, comp, initial, {*s.store.scalar("SELECT id FROM versions WHERE branch_id=? AND num=0", *main)});
        }
        s.print(message(Msg::CreatedObject, {"component", name}));
    });
}

void cmdMkstream(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    auto in = args.value("in");
    if (!in)
        throw UsageError{message(Msg::MissingOperand)};
    const Id project = requireUcm(s, ObjectKind::Project, *in);
    std::vector<Id> baselines;
    if (auto list = args.value("baseline")) {
        for (const std::string& b : splitList(*list))
            baselines.push_back(requireUcm(s, ObjectKind::Baseline, b));
    }
    const bool integration = args.has("integration");
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, ObjectKind::Stream, op);
        requireNewName(s, ObjectKind::Stream, vob, name);
        if (integration && integrationStream(s.store, project))
            fail(message(Msg::NameExists, {"integration stream"}), message(Msg::UnableToCreateType, {"stream", name}));
        const Id stream = s.store.run("INSERT INTO streams(vob_id, name, project_id, integration, created, user, comment) "
                                      "VALUES(?,?,?,?,?,?,?)",
                                      vob.id, name, project, integration, s.env.now, s.env.user, commentOf(s, args));
        for (Id b : baselines)
            s.store.run("INSERT OR IGNORE INTO foundations(stream_id, baseline_id) VALUES(?,?)", stream, b);
        s.print(message(Msg::CreatedObject, {"stream", name}));
    });
}

void cmdMkactivity(Session& s, const ParsedArgs& args)
{
    std::optional<Id> stream;
    if (auto in = args.value("in")) {
        stream = requireUcm(s, ObjectKind::Stream, *in);
    } else {
        const View& view = s.requireView();
        if (!view.stream)
            fail(message(Msg::NotUcmView, {view.tag}));
        stream = view.stream;
    }
    const Id pvobId = ucmVobOf(s.store, ObjectKind::Stream, *stream);
    const Vob pvob{pvobId, vobTag(s.store, pvobId), true};
    std::vector<std::string> ops = args.operands();
    if (ops.empty()) {
        // Generated names: "activity" + yymmdd.HHMMSS of the clock, with ".N" added until free.
        const std::string stem = "activity" + formatCompact(s.env.now);
        std::string name = stem;
        for (int n = 1; findUcm(s.store, ObjectKind::Activity, pvob.id, name); ++n)
            name = stem + "." + std::to_string(n);
        ops.push_back(name + "@" + pvob.tag);
    }
    const std::string comment = commentOf(s, args);
    const bool setCurrent = !args.has("nset") && s.view() && s.view()->stream == stream;
    s.forEach(ops, [&](const std::string& op) {
        Selector sel = parseSelector(op);
        if (!sel.kind.empty() && sel.kind != "activity")
            fail(message(Msg::NotVobObject, {op}));
        const Vob vob = sel.vob.empty() ? pvob : ucmVob(s, sel.vob);
        const std::string unable = message(Msg::UnableToCreateType, {"activity", sel.name});
        if (vob.id != pvob.id)
            fail(message(Msg::NotProjectVob, {vob.tag}), unable);
        requireNewName(s, ObjectKind::Activity, vob, sel.name);
        checkUnlocked(s, {{"stream", *stream, "stream", ucmName(s.store, ObjectKind::Stream, *stream), vob.id}}, "make activity", unable);
        const std::string headline = args.value("headline").value_or(sel.name);
        const Id id = s.store.run("INSERT INTO activities(vob_id, name, stream_id, headline, created, user, comment) "
                                  "VALUES(?,?,?,?,?,?,?)",
                                  vob.id, sel.name, *stream, headline, s.env.now, s.env.user, comment);
        s.print(message(Msg::CreatedActivity, {sel.name}));
        if (setCurrent) {
            setCurrentActivity(s.store, s.view()->id, id);
            s.print(message(Msg::SetActivity, {sel.name, s.view()->tag}));
        }
    });
}

void cmdSetactivity(Session& s, const ParsedArgs& args)
{
    View view;
    if (auto tag = args.value("view")) {
        Stmt q = s.store.query("SELECT id, tag, stream_id FROM views WHERE tag=?", *tag);
        if (!q.step())
            fail(message(Msg::ViewTagNotFound, {*tag}));
        view.id = q.integer(0);
        view.tag = q.text(1);
        view.stream = q.optInteger(2);
    } else {
        view = s.requireView();
    }
    if (!view.stream)
        fail(message(Msg::NotUcmView, {view.tag}));
    if (args.has("none")) {
        if (!args.operands().empty())
            throw UsageError{message(Msg::TooManyOperands)};
        setCurrentActivity(s.store, view.id, std::nullopt);
        s.print(message(Msg::ClearedActivity, {view.tag}));
        return;
    }
    if (args.operands().size() != 1)
        throw UsageError{message(args.operands().empty() ? Msg::MissingOperand : Msg::TooManyOperands)};
    const std::string& op = args.operands()[0];
    Selector sel = parseSelector(op);
    if (!sel.kind.empty() && sel.kind != "activity")
        fail(message(Msg::ObjectNotFound, {"activity", op}));
    const Vob vob = ucmVob(s, sel.vob);
    auto id = findUcm(s.store, ObjectKind::Activity, vob.id, sel.name);
    if (!id || s.store.scalar("SELECT stream_id FROM activities WHERE id=?", *id) != view.stream)
        fail(message(Msg::ObjectNotFound, {"activity", sel.withoutKind()}));
    setCurrentActivity(s.store, view.id, *id);
    s.print(message(Msg::SetActivity, {sel.name, view.tag}));
}

void cmdMkbl(Session& s, const ParsedArgs& args)
{
    const BaselineStream target = baselineStream(s, args);
    const std::string comment = commentOf(s, args);
    if (args.has("import")) {
        importBaselines(s, args, target, comment);
        return;
    }
    std::optional<std::vector<Id>> onlyActivities;
    const std::vector<Id> comps = baselineComponents(s, args, target, onlyActivities);
    if (args.operands().size() > 1)
        throw UsageError{message(Msg::TooManyOperands)};
    const std::string root = args.operands().empty()
                                 ? ucmName(s.store, ObjectKind::Stream, target.stream) + "_" + formatCompact(s.env.now)
                                 : args.operands()[0];
    const std::string kind = args.has("nlabel") ? "nlabel" : args.has("full") ? "full" : "incremental";
    for (Id comp : comps) {
        s.guarded([&] {
            makeComponentBaseline(s, target, comp, onlyActivities, root, kind, comment, args.has("identical"));
        });
    }
}

void cmdLsactivity(Session& s, const ParsedArgs& args)
{
    std::vector<Id> activities;
    if (auto in = args.value("in")) {
        activities = streamActivities(s.store, requireUcm(s, ObjectKind::Stream, *in));
    } else if (args.has("cview") || (!args.value("invob") && s.view() && s.view()->stream)) {
        const View& view = s.requireView();
        if (!view.stream)
            fail(message(Msg::NotUcmView, {view.tag}));
        activities = streamActivities(s.store, *view.stream);
    } else {
        const Vob vob = listingVob(s, args);
        Stmt q = s.store.query("SELECT id FROM activities WHERE vob_id=? ORDER BY name", vob.id);
        while (q.step())
            activities.push_back(q.integer(0));
    }
    for (Id activity : activities) {
        Stmt a = s.store.query("SELECT name, created, user, headline FROM activities WHERE id=?", activity);
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
        names.push_back(ucmName(s.store, ObjectKind::Component, id));
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
            ids.push_back(requireUcm(s, ObjectKind::Stream, op));
    } else if (auto in = args.value("in")) {
        Stmt q = s.store.query("SELECT id FROM streams WHERE project_id=? ORDER BY name", requireUcm(s, ObjectKind::Project, *in));
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
            s.print(ucmName(s.store, ObjectKind::Stream, id));
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
        arg = requireUcm(s, ObjectKind::Stream, *st);
    } else if (auto c = args.value("component")) {
        where = "component_id=?";
        arg = requireUcm(s, ObjectKind::Component, *c);
    } else {
        where = "vob_id=?";
        arg = ucmVob(s, "").id;
    }
    Stmt q = s.store.query("SELECT name FROM baselines WHERE " + where + " ORDER BY id", *arg);
    while (q.step())
        s.print(args.has("short") ? q.text(0) : "baseline \"" + q.text(0) + "\"");
}

} // namespace ccsim
