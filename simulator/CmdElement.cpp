#include "CmdElement.h"

#include "ConfigSpec.h"
#include "Listing.h"
#include "SnapshotView.h"

#include <algorithm>
#include <iostream>

namespace ccsim {

namespace {

struct ElementInView {
    Target target;
    View view;
    Id element = 0;
    fs::path file;
};

/// The element a pathname names in the view that holds it, or a failure ending with `unable`.
ElementInView elementInView(Session& s, const std::string& pname, const std::string& unable)
{
    Target t = s.resolve(pname);
    if (!t.element || !t.view) {
        std::error_code ec;
        if (!fs::exists(t.abs, ec))
            fail(message(Msg::NoSuchFile, {pname}), unable);
        fail(message(Msg::NotVobObject, {pname}), unable);
    }
    const Id element = *t.element;
    const fs::path file = viewFile(*t.view, t.vob->tag, t.vobPath);
    const View view = *t.view;
    return ElementInView{std::move(t), view, element, file};
}

/// What a change to `element` must find unlocked; with `branch`, that branch and its branch type too.
std::vector<ObjectRef> elementLocks(Session& s, Id element, const std::string& name, std::optional<Id> branch = {})
{
    const Id vob = vobOfElement(s.store, element);
    std::vector<ObjectRef> locks{vobRef(s.store, vob), ObjectRef{"element", element, "element", name, vob}};
    if (branch) {
        const std::string path = branchPath(s.store, *branch);
        const std::string type = path.substr(path.rfind('/') + 1);
        if (auto id = findType(s.store, vob, "brtype", type))
            locks.push_back(ObjectRef{"type", *id, "branch type", type, vob});
        locks.push_back(ObjectRef{"branch", *branch, "branch", name + "@@" + path, vob});
    }
    return locks;
}

void printActivity(Session& s, std::optional<Id> activity)
{
    if (!activity)
        return;
    Stmt q = s.store.query("SELECT a.name, v.tag, a.headline FROM activities a JOIN vobs v ON v.id=a.vob_id WHERE a.id=?",
                           *activity);
    if (q.step()) {
        s.print(message(Msg::AttachedActivities));
        s.print(message(Msg::AttachedActivity, {q.text(0), q.text(1), q.text(2)}));
    }
}

struct CheckoutRequest {
    bool reserved = true;
    bool anyVersion = false;
    std::optional<std::string> branch;
    std::optional<std::string> out;
    bool ndata = false;
    std::string comment;
};

void checkOut(Session& s, const std::string& pname, const CheckoutRequest& req)
{
    const std::string unable = message(Msg::UnableToCheckOut, {pname});
    ElementInView e = elementInView(s, pname, unable);
    const View& view = e.view;
    auto activity = requireActivity(view, unable);
    if (checkoutIn(s.store, e.element, view.id))
        fail(message(Msg::AlreadyCheckedOut, {pname, view.tag}), unable);

    Id version = 0;
    if (req.branch) {
        std::string path = *req.branch;
        if (const size_t at = path.find("@@"); at != std::string::npos)
            path = path.substr(at + 2);
        auto branch = branchByPath(s.store, e.element, path);
        if (!branch)
            fail(message(Msg::BranchNotFound, {*req.branch, pname}), unable);
        version = *latestOnBranch(s.store, *branch);
    } else if (e.target.extended) {
        auto v = versionByExtension(s.store, e.element, e.target.extension);
        if (!v)
            fail(message(Msg::NotVobObject, {pname}), unable);
        version = *v;
    } else {
        auto sel = viewVersion(s, view, e.element);
        if (!sel)
            fail(message(Msg::NotVobObject, {pname}), unable);
        version = sel->version;
    }
    const VersionInfo info = versionInfo(s.store, version);
    if (!req.anyVersion && latestOnBranch(s.store, info.branch) != version)
        fail(message(Msg::NotLatestVersion, {info.extension()}), unable);
    if (req.reserved) {
        auto holder = s.store.scalar("SELECT view_id FROM checkouts WHERE element_id=? AND branch_id=? AND reserved=1",
                                     e.element, info.branch);
        if (holder)
            fail(message(Msg::AlreadyCheckedOut, {pname, viewTag(s.store, *holder)}), unable);
    }
    checkUnlocked(s, elementLocks(s, e.element, pname, info.branch), "checkout", unable);
    addCheckout(s, e.element, view.id, info.branch, version, req.reserved, req.comment, activity);
    if (!isDirectory(s.store, e.element)) {
        std::error_code ec;
        if (req.out) {
            s.files.write(s.resolve(*req.out).abs, versionData(s.store, version), true);
        } else if (!req.ndata) {
            const bool keepHijack = fs::exists(e.file, ec) && isHijacked(s, view, e.element, e.file);
            if (keepHijack)
                s.files.setWritable(e.file, true);
            else
                s.files.write(e.file, versionData(s.store, version), true);
        }
    }
    s.print(message(Msg::CheckedOut, {pname, info.extension()}));
    printActivity(s, activity);
}

struct CheckinRequest {
    std::optional<std::string> comment;
    bool identical = false;
    bool keep = false;
};

void checkIn(Session& s, const std::string& pname, const View& view, Id element, const fs::path& file,
             const CheckinRequest& req)
{
    const std::string unable = message(Msg::UnableToCheckIn, {pname});
    auto co = checkoutIn(s.store, element, view.id);
    if (!co)
        fail(message(Msg::NoBranchCheckedOut, {view.tag}), message(Msg::UnableToFindCheckedOut, {pname}));
    const bool dir = isDirectory(s.store, element);
    const auto latest = latestOnBranch(s.store, co->branch);
    if (latest != co->pred)
        fail(message(Msg::NotPredecessor, {versionInfo(s.store, co->pred).branchPath}), unable);
    if (!co->reserved) {
        auto holder = s.store.scalar(
            "SELECT view_id FROM checkouts WHERE element_id=? AND branch_id=? AND reserved=1 AND view_id<>?", element,
            co->branch, view.id);
        if (holder)
            fail(message(Msg::ReservedElsewhere, {pname, viewTag(s.store, *holder)}), unable);
    }
    std::string data;
    if (!dir) {
        auto contents = s.files.contents(file);
        if (!contents)
            fail(message(Msg::NoSuchFile, {pname}), unable);
        data = std::move(*contents);
        if (!req.identical && versionInfo(s.store, co->pred).number > 0 && data == versionData(s.store, co->pred))
            fail(message(Msg::IdenticalData), unable);
    }
    checkUnlocked(s, elementLocks(s, element, pname, co->branch), "checkin", unable);
    const Id version = createVersion(s, element, co->branch, data, req.comment.value_or(co->comment), co->pred);
    s.store.run("DELETE FROM checkouts WHERE id=?", co->id);
    if (co->activity)
        s.store.run("INSERT OR IGNORE INTO changeset(activity_id, version_id) VALUES(?,?)", *co->activity, version);
    setLoaded(s.store, view.id, element, version);
    if (!dir) {
        if (req.keep) {
            const fs::path keep = keepName(file);
            s.files.write(keep, data, true);
            s.print(message(Msg::PrivateSaved, {pname, s.display(keep)}));
        }
        s.files.setWritable(file, false);
    }
    s.print(message(Msg::CheckedIn, {pname, versionInfo(s.store, version).extension()}));
}

/// The check-outs of this view attached to the activity an operand names ("-cact" or a selector).
std::vector<Checkout> activityCheckouts(Session& s, const std::string& selector)
{
    const View& view = s.requireView();
    Id activity = 0;
    if (selector == "-cact") {
        if (!view.activity)
            fail(message(Msg::NoCurrentActivity, {view.tag}));
        activity = *view.activity;
    } else {
        Selector sel = parseSelector(selector);
        const Vob vob = ucmVob(s, sel.vob);
        auto id = findUcm(s.store, ObjectKind::Activity, vob.id, sel.name);
        if (!id)
            fail(message(Msg::ObjectNotFound, {"activity", sel.withoutKind()}));
        activity = *id;
    }
    std::vector<Checkout> out;
    for (const Checkout& c : checkoutsWhere(s.store, "activity_id=?", activity)) {
        if (c.view == view.id)
            out.push_back(c);
    }
    return out;
}

fs::path checkoutFile(Session& s, const View& view, Id element)
{
    const Id vob = vobOfElement(s.store, element);
    return viewFile(view, vobTag(s.store, vob), elementPath(s.store, element));
}

std::vector<std::string> withCact(const ParsedArgs& args)
{
    std::vector<std::string> ops = args.operands();
    if (args.has("cact"))
        ops.insert(ops.begin(), "-cact");
    if (ops.empty())
        requireOperands(args);
    return ops;
}

bool isActivityOperand(const std::string& op)
{
    return op == "-cact" || op.starts_with("activity:");
}

/// Runs `body` on each pathname operand in the view that holds it, and on each check-out of the
/// current view that an activity operand ("-cact" or a selector) holds; every one fails or succeeds alone.
template <class F>
void forEachCheckoutOperand(Session& s, const std::vector<std::string>& ops, Msg unable, F body)
{
    for (const std::string& op : ops) {
        if (!isActivityOperand(op)) {
            s.guarded([&] {
                ElementInView e = elementInView(s, op, message(unable, {op}));
                body(op, e.view, e.element, e.file);
            });
            continue;
        }
        std::vector<Checkout> cos;
        if (!s.guarded([&] { cos = activityCheckouts(s, op); }))
            continue;
        const View& view = *s.view();
        for (const Checkout& c : cos) {
            const fs::path file = checkoutFile(s, view, c.element);
            s.guarded([&] { body(s.display(file), view, c.element, file); });
        }
    }
}

struct MakeRequest {
    bool dir = false;
    std::string eltype;
    std::string mode; ///< "co", "nco" or "ci"
    bool mkpath = false;
    std::string comment;
};

Id makeElement(Session& s, const std::string& pname, const MakeRequest& req);

/// The directory element holding `t`, checked out (or made, with -mkpath) in the view holding `t`.
Id parentFor(Session& s, const Target& t, const std::string& unable, const MakeRequest& req)
{
    const View& view = *t.view;
    const fs::path parentAbs = t.abs.parent_path();
    const std::string parentName = s.display(parentAbs);
    Target parent = s.resolve(parentAbs.string());
    if (!parent.vob || !parent.view)
        fail(message(Msg::NotVobObject, {parentName}), unable);
    if (!parent.element) {
        if (!req.mkpath)
            fail(message(Msg::NoSuchFile, {parentName}), unable);
        MakeRequest dirReq{true, "directory", "co", true, req.comment};
        return makeElement(s, parentName, dirReq);
    }
    if (!checkoutIn(s.store, *parent.element, view.id)) {
        if (!req.mkpath)
            fail(message(Msg::DirNotCheckedOut, {parentName}), unable);
        checkOut(s, parentName, CheckoutRequest{true, false, std::nullopt, std::nullopt, false, req.comment});
    }
    return *parent.element;
}

Id makeElement(Session& s, const std::string& pname, const MakeRequest& req)
{
    const std::string unable = req.dir ? message(Msg::UnableToCreateDirectory, {pname})
                                       : message(Msg::UnableToCreateElement, {pname});
    Target t = s.resolve(pname);
    if (!t.vob || !t.view || t.vobPath.empty())
        fail(message(Msg::NotVobObject, {pname}), unable);
    const View& view = *t.view;
    const std::string name = t.abs.filename().string();
    if (t.element)
        fail(message(Msg::EntryExists, {name}), unable);
    // With -mkpath a view-private directory becomes the element; its contents stay private.
    std::error_code ec;
    if (req.dir && fs::exists(t.abs, ec) && !(req.mkpath && fs::is_directory(t.abs, ec)))
        fail(message(Msg::EntryExists, {name}), unable);
    auto activity = requireActivity(view, unable);
    std::string data;
    if (!req.dir && fs::is_regular_file(t.abs, ec))
        data = readFile(t.abs);
    std::string eltype = req.eltype;
    if (eltype.empty())
        eltype = data.find('\0') != std::string::npos ? "compressed_file" : "text_file";
    // Before -mkpath makes parent directories: a refusal must leave no directory behind.
    if (!findType(s.store, t.vob->id, "eltype", eltype))
        fail(message(Msg::ElementTypeNotFound, {eltype}), unable);
    const Id parent = parentFor(s, t, unable, req);
    checkUnlocked(s, elementLocks(s, parent, s.display(t.abs.parent_path())), "make element", unable);
    const Id element = createElement(s, t.vob->id, parent, name, eltype, req.dir, req.comment);
    const Id branch = *branchByPath(s.store, element, "/main");
    const Id v0 = *latestOnBranch(s.store, branch);
    setLoaded(s.store, view.id, element, v0);
    s.print(req.dir ? message(Msg::CreatedDirElement, {pname}) : message(Msg::CreatedElement, {pname, eltype}));
    if (req.dir)
        fs::create_directories(t.abs, ec);
    if (req.mode == "nco") {
        if (!req.dir) {
            if (!data.empty()) {
                const fs::path keep = keepName(t.abs);
                s.files.moveAside(t.abs, keep);
                s.print(message(Msg::PrivateSaved, {pname, s.display(keep)}));
            }
            s.files.write(t.abs, "", false);
        }
        return element;
    }
    addCheckout(s, element, view.id, branch, v0, true, req.comment, activity);
    if (!req.dir)
        s.files.write(t.abs, data, true);
    s.print(message(Msg::CheckedOut, {pname, "/main/0"}));
    if (req.mode == "ci")
        checkIn(s, pname, view, element, t.abs, CheckinRequest{req.comment, true, false});
    return element;
}

void refuseMasterInLt(Session& s, const ParsedArgs& args)
{
    if (args.has("master") && s.env.lt)
        fail(message(Msg::LtUnsupported, {"Mastership (-master)"}));
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

std::optional<Id> requireActivity(const View& view, std::string_view unable)
{
    if (!view.stream)
        return std::nullopt;
    if (!view.activity)
        fail(message(Msg::NoCurrentActivity, {view.tag}), std::string(unable));
    return view.activity;
}

void cmdCheckout(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    CheckoutRequest req;
    req.reserved = !args.has("unreserved");
    req.anyVersion = args.has("version");
    req.branch = args.value("branch");
    req.out = args.value("out");
    req.ndata = args.has("ndata");
    req.comment = commentOf(s, args);
    s.forEach(args.operands(), [&](const std::string& pname) { checkOut(s, pname, req); });
}

void cmdCheckin(Session& s, const ParsedArgs& args)
{
    const auto ops = withCact(args);
    CheckinRequest req;
    if (args.has("comment") || args.has("ncomment") || args.has("cfile"))
        req.comment = commentOf(s, args);
    req.identical = args.has("identical");
    req.keep = args.has("keep");
    forEachCheckoutOperand(s, ops, Msg::UnableToCheckIn,
                           [&](const std::string& pname, const View& view, Id element, const fs::path& file) {
                               checkIn(s, pname, view, element, file, req);
                           });
}

void cmdUncheckout(Session& s, const ParsedArgs& args)
{
    const auto ops = withCact(args);
    auto undo = [&](const std::string& pname, const View& view, Id element, const fs::path& file) {
        const std::string unable = message(Msg::UnableToUncheckout, {pname});
        auto co = checkoutIn(s.store, element, view.id);
        if (!co)
            fail(message(Msg::NotCheckedOut, {pname}), unable);
        checkUnlocked(s, elementLocks(s, element, pname), "uncheckout", unable);
        s.store.run("DELETE FROM checkouts WHERE id=?", co->id);
        setLoaded(s.store, view.id, element, co->pred);
        std::error_code ec;
        if (!isDirectory(s.store, element)) {
            bool keep = args.has("keep");
            if (!keep && !args.has("rm")) {
                s.out << message(Msg::SaveQuestion, {pname}) << std::flush;
                std::string answer;
                std::getline(s.in, answer);
                keep = answer.empty() || answer[0] == 'y' || answer[0] == 'Y';
            }
            if (keep && fs::exists(file, ec)) {
                const fs::path kept = keepName(file);
                s.files.moveAside(file, kept);
                s.print(message(Msg::PrivateSaved, {pname, s.display(kept)}));
            }
            s.files.write(file, versionData(s.store, co->pred), false);
        }
        s.print(message(Msg::CheckoutCancelled, {pname}));
    };
    forEachCheckoutOperand(s, ops, Msg::UnableToUncheckout, undo);
}

void cmdMkelem(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    refuseMasterInLt(s, args);
    MakeRequest req;
    req.eltype = args.value("eltype").value_or("");
    req.mode = args.has("nco") ? "nco" : args.has("ci") ? "ci" : "co";
    req.mkpath = args.has("mkpath");
    req.comment = commentOf(s, args);
    if (req.eltype == "directory")
        req.dir = true;
    s.forEach(args.operands(), [&](const std::string& pname) { makeElement(s, pname, req); });
}

void cmdMkdir(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    refuseMasterInLt(s, args);
    MakeRequest req{true, "directory", args.has("nco") ? "nco" : "co", false, commentOf(s, args)};
    s.forEach(args.operands(), [&](const std::string& pname) { makeElement(s, pname, req); });
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
            const std::string tag = vobTag(s.store, vob);
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

} // namespace ccsim
