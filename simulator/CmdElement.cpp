#include "CmdElement.h"

#include "ConfigSpec.h"
#include "SnapshotView.h"

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
        const std::string path = *s.store.scalarText("SELECT path FROM branches WHERE id=?", *branch);
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
    s.store.run("INSERT INTO checkouts(element_id, view_id, branch_id, pred_id, reserved, created, user, comment, activity_id) "
                "VALUES(?,?,?,?,?,?,?,?,?)",
                e.element, view.id, info.branch, version, req.reserved, s.env.now, s.env.user, req.comment, activity);
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
    s.store.run("INSERT OR REPLACE INTO loaded(view_id, element_id, version_id) VALUES(?,?,?)", view.id, element, version);
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
        auto id = findUcm(s.store, "activities", vob.id, sel.name);
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
    return viewFile(view, *s.store.scalarText("SELECT tag FROM vobs WHERE id=?", vob), elementPath(s.store, element));
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
    s.store.run("INSERT OR REPLACE INTO loaded(view_id, element_id, version_id) VALUES(?,?,?)", view.id, element, v0);
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
    s.store.run("INSERT INTO checkouts(element_id, view_id, branch_id, pred_id, reserved, created, user, comment, activity_id) "
                "VALUES(?,?,?,?,1,?,?,?,?)",
                element, view.id, branch, v0, s.env.now, s.env.user, req.comment, activity);
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
    if (args.has("reserved") && args.has("unreserved"))
        throw UsageError{message(Msg::ConflictingOptions, {"-reserved", "-unreserved"})};
    if (args.has("out") && args.has("ndata"))
        throw UsageError{message(Msg::ConflictingOptions, {"-out", "-ndata"})};
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
    if (args.has("keep") && args.has("rm"))
        throw UsageError{message(Msg::ConflictingOptions, {"-keep", "-rm"})};
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
    if (args.has("keep") && args.has("rm"))
        throw UsageError{message(Msg::ConflictingOptions, {"-keep", "-rm"})};
    const auto ops = withCact(args);
    auto undo = [&](const std::string& pname, const View& view, Id element, const fs::path& file) {
        const std::string unable = message(Msg::UnableToUncheckout, {pname});
        auto co = checkoutIn(s.store, element, view.id);
        if (!co)
            fail(message(Msg::NotCheckedOut, {pname}), unable);
        checkUnlocked(s, elementLocks(s, element, pname), "uncheckout", unable);
        s.store.run("DELETE FROM checkouts WHERE id=?", co->id);
        s.store.run("INSERT OR REPLACE INTO loaded(view_id, element_id, version_id) VALUES(?,?,?)", view.id, element,
                    co->pred);
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
    if (args.has("nco") && args.has("ci"))
        throw UsageError{message(Msg::ConflictingOptions, {"-nco", "-ci"})};
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

} // namespace ccsim
