#include "SnapshotView.h"

#include "ConfigSpec.h"
#include "Model.h"

#include <fstream>
#include <map>
#include <sstream>
#include <sys/stat.h>

namespace ccsim {

fs::path viewFile(const View& view, const std::string& vobTag, const std::string& vobPath)
{
    fs::path p = view.root / vobTag.substr(vobTag.find_first_not_of('/'));
    return vobPath.empty() ? p : p / vobPath;
}

std::string readFile(const fs::path& file)
{
    std::ifstream in(file, std::ios::binary);
    std::ostringstream ss;
    ss << in.rdbuf();
    return ss.str();
}

bool isHijacked(Session& s, const View& view, std::int64_t element, const fs::path& file)
{
    std::error_code ec;
    if (!fs::is_regular_file(file, ec) || checkoutIn(s.store, element, view.id))
        return false;
    auto loaded = loadedVersion(s.store, view.id, element);
    if (!loaded)
        return false;
    const auto perms = fs::status(file, ec).permissions();
    if ((perms & fs::perms::owner_write) != fs::perms::none)
        return true;
    return readFile(file) != versionData(s.store, *loaded);
}

fs::path keepName(const fs::path& file)
{
    fs::path keep = file.string() + ".keep";
    std::error_code ec;
    for (int n = 1; fs::exists(keep, ec); ++n)
        keep = file.string() + ".keep." + std::to_string(n);
    return keep;
}

namespace {

std::string logLine(std::string_view keyword, const std::string& rest)
{
    std::string line(keyword);
    line.resize(24, ' ');
    return line + rest;
}

struct Pass {
    Session& s;
    const View& view;
    const ConfigSpec& cs;
    const UpdateOptions& opt;
    std::vector<std::string> log;
    std::map<std::int64_t, std::int64_t> kept; ///< element -> version still loaded
    long objects = 0;
    long long bytes = 0;

    std::string rel(const fs::path& p) const { return p.lexically_relative(view.root).string(); }

    void visit(const Vob& vob, Id element, const std::string& vobPath)
    {
        const std::string name = vobPath.empty() ? vob.tag : vob.tag + "/" + vobPath;
        if (!cs.loads_(name))
            return;
        auto sel = selectVersion(s, view, cs, element, name);
        if (!sel)
            return;
        const fs::path file = viewFile(view, vob.tag, vobPath);
        const bool dir = isDirectory(s.store, element);
        kept[element] = sel->version;
        ++objects;
        const auto previous =
            loadedVersion(s.store, view.id, element);
        if (dir) {
            std::error_code ec;
            if (!opt.print)
                fs::create_directories(file, ec);
            s.print(message(Msg::ProcessingDir, {rel(file)}));
        } else if (sel->checkedOut) {
            log.push_back(logLine("CheckedOut:", rel(file)));
            kept[element] = previous.value_or(sel->version);
        } else {
            loadFile(element, file, previous, sel->version);
        }
        if (!dir && sel->checkedOut)
            return;
        if (dir) {
            for (auto& [child, childName] : childElements(s.store, element))
                visit(vob, child, vobPath.empty() ? childName : vobPath + "/" + childName);
        }
    }

    void loadFile(Id element, const fs::path& file, std::optional<Id> previous, Id version)
    {
        std::error_code ec;
        const bool exists = fs::exists(file, ec);
        const bool hijacked = exists && previous && isHijacked(s, view, element, file);
        const std::string ext = versionInfo(s.store, version).extension();
        if (previous == version && exists && !hijacked)
            return;
        if (hijacked && opt.hijack == "nooverwrite") {
            log.push_back(logLine("Hijacked:", rel(file)));
            return;
        }
        if (hijacked && opt.hijack == "rename" && !opt.print) {
            const fs::path keep = keepName(file);
            s.files.moveAside(file, keep);
            s.print(message(Msg::HijackRenamed, {rel(file), rel(keep)}));
        }
        if (!previous || !exists)
            log.push_back(logLine("New:", rel(file) + " " + ext));
        else
            log.push_back(logLine("Updated:", rel(file) + " " + versionInfo(s.store, *previous).extension() + " " + ext));
        if (opt.print)
            return;
        const std::string data = versionData(s.store, version);
        s.files.write(file, data, false,
                      opt.ptime ? s.store.scalar("SELECT created FROM versions WHERE id=?", version) : std::nullopt);
        bytes += static_cast<long long>(data.size());
        s.print(message(Msg::Loading, {rel(file), std::to_string(data.size())}));
    }
};

} // namespace

void updateView(Session& s, const View& view, const UpdateOptions& options)
{
    std::string error;
    auto cs = ConfigSpec::parse(view.configSpec, error);
    if (!cs)
        fail(message(Msg::ConfigSpecLine, {"config spec", error.substr(0, error.find(':')), error.substr(error.find(':') + 2)}));
    Pass pass{s, view, *cs, options, {}, {}, 0, 0};
    for (const Vob& vob : s.vobs()) {
        if (!cs->loads_(vob.tag))
            continue;
        pass.objects = 0;
        pass.bytes = 0;
        const Id root = vobRoot(s.store, vob.id);
        pass.visit(vob, root, "");
        s.print(message(Msg::DoneLoading, {vob.tag, std::to_string(pass.objects), std::to_string((pass.bytes + 1023) / 1024)}));
    }
    // Whatever was loaded before and is no longer selected leaves the view.
    Stmt q = s.store.query("SELECT element_id FROM loaded WHERE view_id=?", view.id);
    std::vector<Id> gone;
    while (q.step()) {
        if (!pass.kept.count(q.integer(0)))
            gone.push_back(q.integer(0));
    }
    for (Id element : gone) {
        const Id vob = vobOfElement(s.store, element);
        const fs::path file = viewFile(view, vobTag(s.store, vob),
                                       elementPath(s.store, element));
        pass.log.push_back(logLine("UnloadDeleted:", pass.rel(file)));
        if (!options.print && !isDirectory(s.store, element))
            s.files.remove(file);
    }
    if (!options.print) {
        s.store.run("DELETE FROM loaded WHERE view_id=?", view.id);
        for (auto [element, version] : pass.kept)
            s.store.run("INSERT INTO loaded(view_id, element_id, version_id) VALUES(?,?,?)", view.id, element, version);
    }
    const fs::path logFile =
        options.log ? s.resolve(*options.log).abs : view.root / ("update." + formatStamp(s.env.now) + ".updt");
    std::ofstream out(logFile);
    if (!out)
        fail(message(Msg::CannotOpenFile, {options.log.value_or(logFile.string())}));
    out << "Update of view \"" << view.tag << "\" at " << formatLong(s.env.now) << "\n";
    for (const std::string& line : pass.log)
        out << line << '\n';
    s.print(message(Msg::LogWritten, {options.log.value_or(logFile.string())}));
}

} // namespace ccsim
