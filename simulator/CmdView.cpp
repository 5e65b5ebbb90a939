#include "CmdView.h"

#include "ConfigSpec.h"
#include "Listing.h"
#include "Model.h"
#include "SnapshotView.h"

#include <algorithm>
#include <fstream>

namespace ccsim {

namespace {

View viewByTag(Session& s, const std::string& tag)
{
    auto view = s.viewTagged(tag);
    if (!view)
        fail(message(Msg::ViewTagNotFound, {tag}));
    return *view;
}

/// The view named by -tag, else the one around the working directory.
View chosenView(Session& s, const ParsedArgs& args)
{
    if (auto tag = args.value("tag"))
        return viewByTag(s, *tag);
    return s.requireView();
}

void setConfigSpec(Session& s, const View& view, const std::string& text, const std::string& source)
{
    std::string error;
    if (!ConfigSpec::parse(text, error)) {
        const size_t colon = error.find(':');
        fail(message(Msg::ConfigSpecLine, {source, error.substr(0, colon), error.substr(colon + 2)}));
    }
    s.store.run("UPDATE views SET cs=? WHERE id=?", text, view.id);
    View updated = view;
    updated.configSpec = text;
    updateView(s, updated, UpdateOptions{});
}

} // namespace

void cmdMkvob(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    auto tag = args.value("tag");
    if (!tag)
        throw UsageError{message(Msg::MissingOperand)};
    if (args.operands().size() > 1)
        throw UsageError{message(Msg::TooManyOperands)};
    if (s.vobByTag(*tag))
        fail(message(Msg::VobTagExists, {*tag}));
    const bool ucm = args.has("ucmproject");
    const std::string storage = s.resolve(args.operands()[0]).abs.string();
    const Id vob = s.store.run("INSERT INTO vobs(tag, storage, ucm, created, user, grp, comment) VALUES(?,?,?,?,?,?,?)",
                               *tag, storage, ucm, s.env.now, s.env.user, s.env.group, commentOf(s, args));
    seedVob(s, vob, ucm);
    s.print(message(Msg::CreatedVob, {s.env.host, storage}));
}

void cmdMkview(Session& s, const ParsedArgs& args)
{
    requireOperands(args);
    auto tag = args.value("tag");
    if (!tag)
        throw UsageError{message(Msg::MissingOperand)};
    if (!args.has("snapshot"))
        fail(message(Msg::NotSnapshotView, {args.operands()[0]}));
    if (s.store.scalar("SELECT id FROM views WHERE tag=?", *tag))
        fail(message(Msg::ViewTagExists, {*tag}));
    const fs::path dir = s.resolve(args.operands()[0]).abs;
    std::error_code ec;
    if (fs::exists(dir, ec) && !fs::is_empty(dir, ec))
        fail(message(Msg::ViewDirExists, {args.operands()[0]}));
    std::optional<Id> stream;
    std::string cs = defaultConfigSpec();
    if (auto st = args.value("stream")) {
        stream = requireUcm(s, ObjectKind::Stream, *st);
        cs = streamConfigSpec(s.store, *stream);
    }
    fs::create_directories(dir, ec);
    if (ec)
        fail(message(Msg::NoSuchFile, {args.operands()[0]}));
    const Id id = s.store.run("INSERT INTO views(tag, dir, cs, stream_id, created, user) VALUES(?,?,?,?,?,?)", *tag,
                              dir.string(), cs, stream, s.env.now, s.env.user);
    std::ofstream(dir / "view.dat") << "ccsim snapshot view\ntag=" << *tag << "\n";
    s.print(message(Msg::CreatedView, {s.env.host, dir.string()}));
    updateView(s, View{id, *tag, dir, cs, stream, std::nullopt}, UpdateOptions{});
}

void cmdRmview(Session& s, const ParsedArgs& args)
{
    View view;
    if (auto tag = args.value("tag")) {
        view = viewByTag(s, *tag);
    } else {
        requireOperands(args);
        const fs::path dir = s.resolve(args.operands()[0]).abs;
        Stmt q = s.store.query("SELECT tag FROM views WHERE dir=?", dir.string());
        if (!q.step())
            fail(message(Msg::NotSnapshotView, {args.operands()[0]}));
        view = viewByTag(s, q.text(0));
    }
    s.store.run("DELETE FROM checkouts WHERE view_id=?", view.id);
    s.store.run("DELETE FROM loaded WHERE view_id=?", view.id);
    s.store.run("DELETE FROM views WHERE id=?", view.id);
    if (!args.has("tag")) {
        std::error_code ec;
        fs::permissions(view.root, fs::perms::owner_all, fs::perm_options::add, ec);
        for (auto it = fs::recursive_directory_iterator(view.root, ec); it != fs::recursive_directory_iterator(); ++it)
            fs::permissions(it->path(), fs::perms::owner_write, fs::perm_options::add, ec);
        fs::remove_all(view.root, ec);
    }
    s.print(message(Msg::RemovedView, {view.tag}));
}

void cmdLsview(Session& s, const ParsedArgs& args)
{
    std::string sql = "SELECT tag, dir FROM views";
    std::optional<std::string> tag;
    if (args.has("cview")) {
        tag = s.requireView().tag;
    } else if (!args.operands().empty()) {
        tag = args.operands()[0];
    }
    Stmt q = tag ? s.store.query(sql + " WHERE tag=?", *tag) : s.store.query(sql + " ORDER BY tag");
    bool any = false;
    while (q.step()) {
        any = true;
        const bool current = s.view() && s.view()->tag == q.text(0);
        if (args.has("short"))
            s.print(q.text(0));
        else
            s.print(std::string(current ? "* " : "  ") + q.text(0) + std::string(q.text(0).size() < 24 ? 24 - q.text(0).size() : 1, ' ') + q.text(1));
    }
    if (!any && tag)
        fail(message(Msg::NoMatchingViewTag, {*tag}));
}

void cmdPwv(Session& s, const ParsedArgs& args)
{
    const std::string tag = s.view() ? s.view()->tag : "** NONE **";
    if (args.has("short")) {
        s.print(tag);
        return;
    }
    s.print("Working directory view: " + tag);
    s.print("Set view: ** NONE **");
}

void cmdCatcs(Session& s, const ParsedArgs& args)
{
    const View view = chosenView(s, args);
    s.out << view.configSpec;
    if (!view.configSpec.empty() && view.configSpec.back() != '\n')
        s.out << '\n';
}

void cmdSetcs(Session& s, const ParsedArgs& args)
{
    const View view = chosenView(s, args);
    int modes = args.has("current") + args.has("default") + args.has("stream") + (args.operands().empty() ? 0 : 1);
    if (modes == 0)
        throw UsageError{message(Msg::MissingOperand)};
    if (modes > 1)
        throw UsageError{message(Msg::TooManyOperands)};
    if (args.has("current")) {
        setConfigSpec(s, view, view.configSpec, "config spec");
    } else if (args.has("default")) {
        setConfigSpec(s, view, defaultConfigSpec(), "config spec");
    } else if (args.has("stream")) {
        if (!view.stream)
            fail(message(Msg::NotUcmView, {view.tag}));
        setConfigSpec(s, view, streamConfigSpec(s.store, *view.stream), "config spec");
    } else {
        const std::string& given = args.operands()[0];
        const fs::path file = s.resolve(given).abs;
        std::error_code ec;
        if (!fs::is_regular_file(file, ec))
            fail(message(Msg::CannotOpenFile, {given}));
        setConfigSpec(s, view, readFile(file), given);
    }
}

void cmdUpdate(Session& s, const ParsedArgs& args)
{
    if (!s.view())
        fail(message(Msg::NotSnapshotView, {s.cwd.string()}));
    UpdateOptions opt;
    opt.print = args.has("print");
    opt.hijack = args.has("overwrite") ? "overwrite" : args.has("rename") ? "rename" : "nooverwrite";
    opt.ptime = args.has("ptime");
    opt.log = args.value("log");
    updateView(s, *s.view(), opt);
}

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

} // namespace ccsim
