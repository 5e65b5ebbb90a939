#include "CmdUcm.h"

#include "ConfigSpec.h"
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
std::pair<Vob, std::string> newUcmName(Session& s, std::string_view kind, const std::string& text)
{
    Selector sel = parseSelector(text);
    if (!sel.kind.empty() && sel.kind != kind)
        fail(message(Msg::NotVobObject, {text}));
    return {ucmVob(s, sel.vob), sel.name};
}

void requireNewName(Session& s, std::string_view table, std::string_view word, const Vob& vob, const std::string& name)
{
    if (findUcm(s.store, table, vob.id, name))
        fail(message(Msg::NameExists, {name}), message(Msg::UnableToCreateType, {word, name}));
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
    for (int n = 1; findUcm(s.store, "baselines", pvob.id, name); ++n)
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
        Stmt q = s.store.query("SELECT id FROM elements WHERE parent_id=? ORDER BY name", out[i]);
        while (q.step())
            out.push_back(q.integer(0));
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
        s.store.run("DELETE FROM labels WHERE type_id=? AND element_id=?", *type, info.element);
        s.store.run("INSERT INTO labels(type_id, version_id, element_id, created, user) VALUES(?,?,?,?,?)", *type, v,
                    info.element, s.env.now, s.env.user);
        addEvent(s, info.element, "label", info.extension(), "", label);
    }
}

} // namespace

void cmdMkfolder(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    auto in = args.value("in");
    if (!in)
        throw UsageError{message(Msg::MissingOperand)};
    const Id parent = requireUcm(s, "folder", *in);
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, "folder", op);
        requireNewName(s, "folders", "folder", vob, name);
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
    const Id folder = requireUcm(s, "folder", *in);
    std::vector<Id> comps;
    if (auto mod = args.value("modcomp")) {
        for (const std::string& c : splitList(*mod))
            comps.push_back(requireUcm(s, "component", c));
    }
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, "project", op);
        requireNewName(s, "projects", "project", vob, name);
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
        auto [vob, name] = newUcmName(s, "component", op);
        requireNewName(s, "components", "component", vob, name);
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
    const Id project = requireUcm(s, "project", *in);
    std::vector<Id> baselines;
    if (auto list = args.value("baseline")) {
        for (const std::string& b : splitList(*list))
            baselines.push_back(requireUcm(s, "baseline", b));
    }
    const bool integration = args.has("integration");
    s.forEach(args.operands(), [&](const std::string& op) {
        auto [vob, name] = newUcmName(s, "stream", op);
        requireNewName(s, "streams", "stream", vob, name);
        if (integration && s.store.scalar("SELECT id FROM streams WHERE project_id=? AND integration=1", project))
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
        stream = requireUcm(s, "stream", *in);
    } else {
        const View& view = s.requireView();
        if (!view.stream)
            fail(message(Msg::NotUcmView, {view.tag}));
        stream = view.stream;
    }
    const Id pvobId = *s.store.scalar("SELECT vob_id FROM streams WHERE id=?", *stream);
    const Vob pvob{pvobId, *s.store.scalarText("SELECT tag FROM vobs WHERE id=?", pvobId), true};
    std::vector<std::string> ops = args.operands();
    if (ops.empty()) {
        // Generated names: "activity" + yymmdd.HHMMSS of the clock, with ".N" added until free.
        const std::string stem = "activity" + formatCompact(s.env.now);
        std::string name = stem;
        for (int n = 1; findUcm(s.store, "activities", pvob.id, name); ++n)
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
        requireNewName(s, "activities", "activity", vob, sel.name);
        checkUnlocked(s, {{"stream", *stream, "stream", ucmName(s.store, "streams", *stream), vob.id}}, "make activity", unable);
        const std::string headline = args.value("headline").value_or(sel.name);
        const Id id = s.store.run("INSERT INTO activities(vob_id, name, stream_id, headline, created, user, comment) "
                                  "VALUES(?,?,?,?,?,?,?)",
                                  vob.id, sel.name, *stream, headline, s.env.now, s.env.user, comment);
        s.print(message(Msg::CreatedActivity, {sel.name}));
        if (setCurrent) {
            s.store.run("UPDATE views SET activity_id=? WHERE id=?", id, s.view()->id);
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
        s.store.run("UPDATE views SET activity_id=NULL WHERE id=?", view.id);
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
    auto id = findUcm(s.store, "activities", vob.id, sel.name);
    if (!id || s.store.scalar("SELECT stream_id FROM activities WHERE id=?", *id) != view.stream)
        fail(message(Msg::ObjectNotFound, {"activity", sel.withoutKind()}));
    s.store.run("UPDATE views SET activity_id=? WHERE id=?", *id, view.id);
    s.print(message(Msg::SetActivity, {sel.name, view.tag}));
}

void cmdMkbl(Session& s, const ParsedArgs& args)
{
    std::optional<Id> streamOpt;
    std::string viewTagText;
    if (auto tag = args.value("view")) {
        Stmt q = s.store.query("SELECT stream_id FROM views WHERE tag=?", *tag);
        if (!q.step())
            fail(message(Msg::ViewTagNotFound, {*tag}));
        streamOpt = q.optInteger(0);
        viewTagText = *tag;
    } else {
        const View& view = s.requireView();
        streamOpt = view.stream;
        viewTagText = view.tag;
    }
    if (!streamOpt)
        fail(message(Msg::NotUcmView, {viewTagText}));
    const Id stream = *streamOpt;
    const Id pvobId = *s.store.scalar("SELECT vob_id FROM streams WHERE id=?", stream);
    const Vob pvob{pvobId, *s.store.scalarText("SELECT tag FROM vobs WHERE id=?", pvobId), true};
    const std::string comment = commentOf(s, args);
    for (const auto& group : {std::vector<std::string>{"component", "all", "activities"},
                              std::vector<std::string>{"nlabel", "incremental", "full"}}) {
        std::vector<std::string> given;
        for (const std::string& name : group) {
            if (args.has(name))
                given.push_back("-" + name);
        }
        if (given.size() > 1)
            throw UsageError{message(Msg::ConflictingOptions, {given[0], given[1]})};
    }
    const std::vector<Id> seen = streamComponents(s.store, stream);

    if (args.has("import")) {
        std::vector<Id> allowed;
        std::vector<std::string> labels;
        for (const std::string& op : args.operands()) {
            if (parseSelector(op).kind == "lbtype") {
                labels.push_back(op);
            } else {
                for (const std::string& c : splitList(op))
                    allowed.push_back(requireUcm(s, "component", c));
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
            const std::string name = freeBaselineName(s, pvob, type.name);
            makeBaseline(s, pvob, name, *comp, stream, "full", comment);
            s.print(message(Msg::CreatedBaseline, {name, ucmName(s.store, "components", *comp)}));
        });
        return;
    }

    std::vector<Id> comps;
    std::optional<std::vector<Id>> onlyActivities;
    if (auto list = args.value("component")) {
        for (const std::string& c : splitList(*list)) {
            const Id id = requireUcm(s, "component", c);
            if (!std::count(seen.begin(), seen.end(), id))
                fail(message(Msg::ComponentNotInStream, {c, ucmName(s.store, "streams", stream)}));
            comps.push_back(id);
        }
    } else if (auto acts = args.value("activities")) {
        onlyActivities.emplace();
        if (*acts == "-cact") {
            auto current = s.view() ? s.view()->activity : std::nullopt;
            if (!current)
                fail(message(Msg::NoCurrentActivity, {viewTagText}));
            onlyActivities->push_back(*current);
        } else {
            for (const std::string& a : splitList(*acts))
                onlyActivities->push_back(requireUcm(s, "activity", a));
        }
        for (Id a : *onlyActivities) {
            Stmt q = s.store.query("SELECT version_id FROM changeset WHERE activity_id=?", a);
            while (q.step()) {
                auto c = componentOfElement(s.store, versionInfo(s.store, q.integer(0)).element);
                if (c && !std::count(comps.begin(), comps.end(), *c))
                    comps.push_back(*c);
            }
        }
    } else {
        comps = seen;
    }
    if (args.operands().size() > 1)
        throw UsageError{message(Msg::TooManyOperands)};
    const std::string root = args.operands().empty() ? ucmName(s.store, "streams", stream) + "_" + formatCompact(s.env.now)
                                                     : args.operands()[0];
    const std::string kind = args.has("nlabel") ? "nlabel" : args.has("full") ? "full" : "incremental";
    const std::string adverb = kind == "full" ? "fully" : "incrementally";
    for (Id comp : comps) {
        s.guarded([&] {
            const std::string compName = ucmName(s.store, "components", comp);
            checkUnlocked(s, {{"component", comp, "component", compName, pvob.id},
                              {"stream", stream, "stream", ucmName(s.store, "streams", stream), pvob.id}},
                          "make baseline");
            const Id since = s.store.scalar("SELECT MAX(last_version) FROM baselines WHERE component_id=? AND "
                                            "(stream_id=? OR id IN (SELECT baseline_id FROM foundations WHERE stream_id=?))",
                                            comp, stream, stream)
                                 .value_or(0);
            // The newest change-set version of each element of this component made since the last baseline.
            std::vector<Id> changed;
            Stmt q = s.store.query("SELECT c.version_id, c.activity_id FROM changeset c JOIN activities a ON a.id=c.activity_id "
                                   "WHERE a.stream_id=? AND c.version_id>? ORDER BY c.version_id DESC",
                                   stream, since);
            std::vector<Id> elementsDone;
            while (q.step()) {
                if (onlyActivities && !std::count(onlyActivities->begin(), onlyActivities->end(), q.integer(1)))
                    continue;
                const VersionInfo v = versionInfo(s.store, q.integer(0));
                if (componentOfElement(s.store, v.element) != comp ||
                    std::count(elementsDone.begin(), elementsDone.end(), v.element))
                    continue;
                elementsDone.push_back(v.element);
                changed.push_back(v.id);
            }
            if (changed.empty() && !args.has("identical")) {
                s.print(message(Msg::BaselineUnchanged, {compName}));
                return;
            }
            const std::string name = freeBaselineName(s, pvob, root);
            makeBaseline(s, pvob, name, comp, stream, kind, comment);
            s.print(message(Msg::CreatedBaseline, {name, compName}));
            if (kind == "nlabel")
                return;
            s.print(message(Msg::BeginLabeling, {adverb, name}));
            std::vector<Id> versions = changed;
            if (kind == "full") {
                versions.clear();
                for (Id element : componentElements(s, comp)) {
                    auto main = branchByPath(s.store, element, "/main");
                    if (main)
                        versions.push_back(*latestOnBranch(s.store, *main));
                }
            }
            labelVersions(s, comp, name, versions);
            s.print(message(Msg::DoneLabeling, {adverb, name}));
        });
    }
}

} // namespace ccsim
