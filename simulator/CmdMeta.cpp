#include "CmdMeta.h"

#include "ConfigSpec.h"
#include "Listing.h"
#include "Model.h"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <sstream>

namespace ccsim {

namespace {

/// Creates or (with -replace) redefines one type; `define` writes the kind's own columns.
template <class Define>
void makeTypes(Session& s, const ParsedArgs& args, std::string_view kind, Define define)
{
    requireOperands(args);
    const std::string word = typeKindWord(kind);
    const std::string comment = commentOf(s, args);
    s.forEach(args.operands(), [&](const std::string& op) {
        Selector sel = parseSelector(op);
        if (!sel.kind.empty() && sel.kind != kind)
            fail(message(Msg::NotVobObject, {op}), message(Msg::UnableToCreateType, {word, op}));
        const Vob vob = sel.vob.empty() ? s.currentVob() : s.vobFor(sel.vob);
        const std::string unable = message(Msg::UnableToCreateType, {word, sel.name});
        auto existing = findType(s.store, vob.id, kind, sel.name);
        if (existing && !args.has("replace"))
            fail(message(Msg::NameExists, {sel.name}), unable);
        std::vector<ObjectRef> locks{{"vob", vob.id, "versioned object base", vob.tag, vob.id}};
        if (existing)
            locks.push_back({"type", *existing, word, sel.name, vob.id});
        checkUnlocked(s, locks, existing ? "modify type" : "make type", unable);
        Id id = existing.value_or(0);
        if (!existing)
            id = s.store.run("INSERT INTO types(vob_id, kind, name, created, user, grp) VALUES(?,?,?,?,?,?)", vob.id, kind,
                             sel.name, s.env.now, s.env.user, s.env.group);
        s.store.run("UPDATE types SET comment=?, global=?, per_branch=? WHERE id=?", comment, args.has("global"),
                    args.has("pbranch"), id);
        define(id, unable);
        s.print(message(existing ? Msg::ReplacedType : Msg::CreatedType, {word, sel.name}));
    });
}

/// The stored form of an attribute value of `vtype`, or nullopt when it does not parse.
std::optional<std::string> normalizeValue(const std::string& vtype, const std::string& text, Time now)
{
    if (vtype == "string") {
        if (text.size() >= 2 && text.front() == '"' && text.back() == '"')
            return text;
        return std::nullopt;
    }
    if (vtype == "integer") {
        errno = 0;
        char* end = nullptr;
        const long long v = std::strtoll(text.c_str(), &end, 0);
        if (text.empty() || *end || errno)
            return std::nullopt;
        return std::to_string(v);
    }
    if (vtype == "real") {
        char* end = nullptr;
        std::strtod(text.c_str(), &end);
        if (text.empty() || *end)
            return std::nullopt;
        return text;
    }
    if (vtype == "time") {
        auto t = parseDateTime(text, now);
        if (!t)
            return std::nullopt;
        return formatLong(*t);
    }
    return text;
}

/// A comparable number for range checks (integer, real, time).
double numeric(const std::string& vtype, const std::string& text, Time now)
{
    if (vtype == "time")
        return static_cast<double>(parseDateTime(text, now).value_or(0));
    return std::strtod(text.c_str(), nullptr);
}

/// Whether a value (as given; `stored` is its stored form) lies within the type's bounds and -enum list.
bool inRange(Session& s, Id type, const std::string& vtype, const std::string& value, const std::string& stored)
{
    Stmt q = s.store.query("SELECT lo, lo_incl, hi, hi_incl, enums FROM types WHERE id=?", type);
    q.step();
    if (!q.isNull(4) && ("\n" + q.text(4) + "\n").find("\n" + stored + "\n") == std::string::npos)
        return false;
    if (vtype == "string" || vtype == "opaque")
        return true;
    const double v = numeric(vtype, value, s.env.now);
    if (!q.isNull(0)) {
        const double lo = numeric(vtype, q.text(0), s.env.now);
        if (q.integer(1) ? v < lo : v <= lo)
            return false;
    }
    if (!q.isNull(2)) {
        const double hi = numeric(vtype, q.text(2), s.env.now);
        if (q.integer(3) ? v > hi : v >= hi)
            return false;
    }
    return true;
}

struct Labelled {
    std::string name; ///< pathname for messages
    Id element = 0;
    Id version = 0;
};

/// The versions a pathname operand stands for: itself, plus with -recurse everything below a directory.
std::vector<Labelled> versionsFor(Session& s, const std::string& op, const std::optional<std::string>& version,
                                  bool recurse, const std::string& unable)
{
    Target t = s.resolve(op);
    ObjectRef o;
    try {
        o = resolvePathObject(s, t, version);
    } catch (Failure& f) {
        f.lines.push_back(unable);
        throw;
    }
    if (o.kind != "version")
        fail(message(Msg::NotVobObject, {op}), unable);
    std::vector<Labelled> out{{op, *t.element, o.id}};
    if (recurse && isDirectory(s.store, *t.element) && t.view) {
        for (size_t i = 0; i < out.size(); ++i) {
            if (!isDirectory(s.store, out[i].element))
                continue;
            for (auto& [kid, name] : childElements(s.store, out[i].element)) {
                auto sel = viewVersion(s, *t.view, kid);
                if (sel)
                    out.push_back({out[i].name + "/" + name, kid, sel->version});
            }
        }
    }
    return out;
}

void lockOrUnlock(Session& s, const ParsedArgs& args, bool lock)
{
    requireOperands(args);
    const std::string comment = commentOf(s, args);
    s.forEach(args.operands(), [&](const std::string& op) {
        ObjectRef o;
        Selector sel = parseSelector(op);
        if (args.has("pname") || sel.kind.empty()) {
            Target t = s.resolve(op);
            if (!t.extended && t.element)
                o = ObjectRef{"element", *t.element, "element", op, t.vob->id};
            else
                o = resolvePathObject(s, t, args.value("version"));
        } else {
            o = resolveObject(s, op);
        }
        const bool locked = isLocked(s.store, o.kind, o.id);
        if (lock) {
            if (locked && !args.has("replace"))
                fail(message(Msg::AlreadyLocked), message(Msg::UnableToLock, {o.kindWord, o.name}));
            s.store.run("INSERT OR REPLACE INTO locks(obj_kind, obj_id, nusers, obsolete, created, user, comment) "
                        "VALUES(?,?,?,?,?,?,?)",
                        o.kind, o.id, args.value("nusers"), args.has("obsolete"), s.env.now, s.env.user, comment);
            s.print(message(Msg::Locked, {o.kindWord, o.name}));
        } else {
            if (!locked)
                fail(message(Msg::NotLocked), message(Msg::UnableToUnlock, {o.kindWord, o.name}));
            s.store.run("DELETE FROM locks WHERE obj_kind=? AND obj_id=?", o.kind, o.id);
            s.print(message(Msg::Unlocked, {o.kindWord, o.name}));
        }
    });
}

} // namespace

void cmdMklbtype(Session& s, const ParsedArgs& args)
{
    makeTypes(s, args, "lbtype", [](Id, const std::string&) {});
}

void cmdMkbrtype(Session& s, const ParsedArgs& args)
{
    makeTypes(s, args, "brtype", [](Id, const std::string&) {});
}

void cmdMkattype(Session& s, const ParsedArgs& args)
{
    const std::string vtype = args.value("vtype").value_or("string");
    if (vtype != "string" && vtype != "integer" && vtype != "real" && vtype != "time" && vtype != "opaque")
        throw UsageError{message(Msg::BadBound, {"-vtype", vtype, "keyword"})};
    auto bound = [&](const char* a, const char* b) -> std::pair<std::optional<std::string>, bool> {
        std::optional<std::string> text = args.has(a) ? args.value(a) : args.value(b);
        if (!text)
            return {std::nullopt, false};
        if (vtype == "string" || vtype == "opaque" || !normalizeValue(vtype, *text, s.env.now))
            fail(message(Msg::BadBound, {std::string("-") + (args.has(a) ? a : b), *text, vtype}));
        return {text, args.has(b)};
    };
    const auto [lo, loIncl] = bound("gt", "ge");
    const auto [hi, hiIncl] = bound("lt", "le");
    std::optional<std::string> def;
    if (auto d = args.value("default")) {
        def = normalizeValue(vtype, *d, s.env.now);
        if (!def)
            fail(message(Msg::AttributeValueType, {*d, vtype}));
    }
    std::optional<std::string> enums;
    if (auto list = args.value("enum")) {
        std::string joined;
        std::string item;
        for (std::istringstream in(*list); std::getline(in, item, ',');) {
            auto v = normalizeValue(vtype, item, s.env.now);
            if (!v)
                fail(message(Msg::BadBound, {"-enum", item, vtype}));
            joined += (joined.empty() ? "" : "\n") + *v;
        }
        enums = joined;
    }
    const std::optional<std::string> attach = args.has("vpelement") ? std::optional<std::string>("element")
                                            : args.has("vpbranch")   ? std::optional<std::string>("branch")
                                            : args.has("vpversion")  ? std::optional<std::string>("version")
                                                                     : std::nullopt;
    makeTypes(s, args, "attype", [&](Id id, const std::string& unable) {
        s.store.run("UPDATE types SET vtype=?, attach=?, lo=?, lo_incl=?, hi=?, hi_incl=?, defval=?, enums=? WHERE id=?",
                    vtype, attach, lo, loIncl, hi, hiIncl, def, enums, id);
        if (def && !inRange(s, id, vtype, *def, *def))
            fail(message(Msg::AttributeValueRange, {*def, *s.store.scalarText("SELECT name FROM types WHERE id=?", id)}),
                 unable);
    });
}

void cmdMklabel(Session& s, const ParsedArgs& args)
{
    if (args.operands().size() < 2)
        throw UsageError{message(Msg::MissingOperand)};
    Selector sel = parseSelector(args.operands()[0]);
    if (!sel.kind.empty() && sel.kind != "lbtype")
        fail(message(Msg::LabelTypeNotFound, {args.operands()[0]}));
    std::optional<Vob> typeVob;
    if (!sel.vob.empty())
        typeVob = s.vobFor(sel.vob);
    const std::vector<std::string> paths(args.operands().begin() + 1, args.operands().end());
    s.forEach(paths, [&](const std::string& op) {
        const std::string unable = message(Msg::UnableToCreateLabel, {sel.name, op});
        for (const Labelled& l : versionsFor(s, op, args.value("version"), args.has("recurse"), unable)) {
            s.guarded([&] {
                const Id vob = vobOfElement(s.store, l.element);
                const std::string ext = versionInfo(s.store, l.version).extension();
                const std::string unableOne = message(Msg::UnableToCreateLabel, {sel.name, l.name});
                auto type = findType(s.store, vob, "lbtype", sel.name);
                if (!type || (typeVob && typeVob->id != vob))
                    fail(message(Msg::LabelTypeNotFound, {sel.name}), unableOne);
                checkUnlocked(s,
                                  {vobRef(s.store, vob),
                                   {"type", *type, "label type", sel.name, vob},
                                   {"element", l.element, "element", l.name, vob}},
                                  "make label", unableOne);
                auto current = s.store.scalar("SELECT version_id FROM labels WHERE type_id=? AND element_id=?", *type,
                                              l.element);
                if (current && !args.has("replace"))
                    fail(message(*current == l.version ? Msg::LabelOnVersion : Msg::LabelOnElement, {sel.name}),
                         unableOne);
                putLabel(s, *type, l.element, l.version);
                addEvent(s, l.element, "label", ext, commentOf(s, args), sel.name);
                if (current && *current != l.version)
                    s.print(message(Msg::MovedLabel,
                                    {sel.name, l.name, versionInfo(s.store, *current).extension(), ext}));
                else
                    s.print(message(Msg::CreatedLabel, {sel.name, l.name, ext}));
            });
        }
    });
}

void cmdMkattr(Session& s, const ParsedArgs& args)
{
    const bool useDefault = args.has("default");
    const size_t first = useDefault ? 1 : 2;
    if (args.operands().size() <= first)
        throw UsageError{message(Msg::MissingOperand)};
    const Selector typeSel = parseSelector(args.operands()[0]);
    const std::optional<std::string> value = useDefault ? std::nullopt : std::optional(args.operands()[1]);
    const std::vector<std::string> targets(args.operands().begin() + static_cast<long>(first), args.operands().end());
    s.forEach(targets, [&](const std::string& op) {
        const std::string unable = message(Msg::UnableToCreateAttribute, {typeSel.name, op});
        std::vector<ObjectRef> objects;
        std::string selectorShown; ///< messages quote a selector operand as given; locks name the object itself
        const bool isPath = args.has("pname") || parseSelector(op).kind.empty();
        if (isPath && !args.has("version") && !args.has("recurse")) {
            // "a.c@@" and "a.c@@/main" name the element and the branch, which carry attributes of their own.
            Target t = s.resolve(op);
            if (t.extended && t.element) {
                if (auto b = branchByPath(s.store, *t.element, t.extension); b || t.extension.empty())
                    objects.push_back(resolvePathObject(s, t, std::nullopt));
            }
        }
        if (isPath && objects.empty()) {
            for (const Labelled& l : versionsFor(s, op, args.value("version"), args.has("recurse"), unable)) {
                Target t = s.resolve(l.name);
                ObjectRef o = resolvePathObject(s, t, args.value("version"));
                objects.push_back(o);
            }
        } else if (!isPath) {
            try {
                objects.push_back(resolveObject(s, op));
            } catch (Failure& f) {
                f.lines.push_back(unable);
                throw;
            }
            selectorShown = op;
        }
        for (const ObjectRef& o : objects) {
            s.guarded([&] {
                const std::string& shown = selectorShown.empty() ? o.name : selectorShown;
                const std::string unableOne = message(Msg::UnableToCreateAttribute, {typeSel.name, shown});
                const Id vob = typeSel.vob.empty() ? o.vob : s.vobFor(typeSel.vob).id;
                auto type = findType(s.store, vob, "attype", typeSel.name);
                if (!type)
                    fail(message(Msg::AttributeTypeNotFound, {typeSel.name}), unableOne);
                Stmt q = s.store.query("SELECT vtype, attach, defval FROM types WHERE id=?", *type);
                q.step();
                const std::string vtype = q.isNull(0) ? "string" : q.text(0);
                if (!q.isNull(1) && q.text(1) != o.kind)
                    fail(message(Msg::AttributeNotAllowed, {typeSel.name, q.text(1)}), unableOne);
                std::optional<std::string> stored;
                if (useDefault) {
                    if (q.isNull(2))
                        fail(message(Msg::AttributeValueType, {"-default", vtype}), unableOne);
                    stored = q.text(2);
                } else {
                    stored = normalizeValue(vtype, *value, s.env.now);
                    if (!stored)
                        fail(message(Msg::AttributeValueType, {*value, vtype}), unableOne);
                }
                if (!inRange(s, *type, vtype, vtype == "time" && !useDefault ? *value : *stored, *stored))
                    fail(message(Msg::AttributeValueRange, {*value, typeSel.name}), unableOne);
                checkUnlocked(s,
                                  {vobRef(s.store, vob),
                                   {"type", *type, "attribute type", typeSel.name, vob},
                                   o},
                                  "make attribute", unableOne);
                const bool exists = s.store.scalar("SELECT 1 FROM attrs WHERE obj_kind=? AND obj_id=? AND type_id=?", o.kind,
                                                   o.id, *type)
                                        .has_value();
                if (exists && !args.has("replace"))
                    fail(message(Msg::AttributeExists, {typeSel.name, shown}), unableOne);
                s.store.run("INSERT OR REPLACE INTO attrs(obj_kind, obj_id, type_id, value) VALUES(?,?,?,?)", o.kind, o.id,
                            *type, *stored);
                s.print(message(exists ? Msg::ReplacedAttribute : Msg::CreatedAttribute, {typeSel.name, shown}));
            });
        }
    });
}

void cmdLock(Session& s, const ParsedArgs& args)
{
    lockOrUnlock(s, args, true);
}

void cmdUnlock(Session& s, const ParsedArgs& args)
{
    lockOrUnlock(s, args, false);
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

} // namespace ccsim
