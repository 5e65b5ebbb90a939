#include "Session.h"

#include "Model.h"

#include <fstream>
#include <grp.h>
#include <iostream>
#include <pwd.h>
#include <unistd.h>

namespace ccsim {

void fail(std::string cause)
{
    throw Failure{{std::move(cause)}};
}

void fail(std::string cause, std::string unable)
{
    throw Failure{{std::move(cause), std::move(unable)}};
}

std::string Target::elementName() const
{
    if (!vob)
        return abs.string();
    return vobPath.empty() ? vob->tag : vob->tag + "/" + vobPath;
}

Environment readEnvironment()
{
    Environment env;
    const passwd* pw = getpwuid(getuid());
    const char* user = std::getenv("USER");
    env.user = user && *user ? user : (pw ? pw->pw_name : "unknown");
    if (pw && env.user == pw->pw_name && pw->pw_gecos && *pw->pw_gecos) {
        std::string gecos = pw->pw_gecos;
        env.fullName = gecos.substr(0, gecos.find(','));
    }
    if (env.fullName.empty())
        env.fullName = env.user;
    const group* gr = getgrgid(getgid());
    env.group = gr ? gr->gr_name : "users";
    char host[256] = {};
    gethostname(host, sizeof host - 1);
    env.host = *host ? host : "localhost";
    if (const char* home = std::getenv("CCSIM_HOME"); home && *home) {
        env.home = home;
    } else {
        const char* h = std::getenv("HOME");
        env.home = fs::path(h && *h ? h : (pw ? pw->pw_dir : "/tmp")) / ".ccsim";
    }
    if (const char* edition = std::getenv("CCSIM_EDITION"))
        env.lt = std::string_view(edition) == "lt" || std::string_view(edition) == "LT";
    return env;
}

Session::Session(Store& s, Environment e, fs::path wd, std::ostream& o, std::ostream& er, std::istream& i)
    : store(s)
    , env(std::move(e))
    , cwd(std::move(wd))
    , out(o)
    , err(er)
    , in(i)
{
    m_view = viewAt(cwd);
}

void Session::error(const std::string& text)
{
    err << "cleartool: Error: " << text << '\n';
    m_status = 1;
}

void Session::warning(const std::string& text)
{
    err << "cleartool: Warning: " << text << '\n';
}

void Session::print(const std::string& line)
{
    out << line << '\n';
}

void Session::printLines(const std::vector<std::string>& lines)
{
    for (const std::string& line : lines)
        print(line);
}

std::optional<View> Session::viewAt(const fs::path& path)
{
    for (fs::path dir = path;; dir = dir.parent_path()) {
        std::error_code ec;
        if (fs::is_regular_file(dir / "view.dat", ec)) {
            std::ifstream in(dir / "view.dat");
            std::string line, tag;
            while (std::getline(in, line)) {
                if (line.starts_with("tag="))
                    tag = line.substr(4);
            }
            // Files live where the marker is, however the store spells the view's directory.
            auto view = viewTagged(tag);
            if (view)
                view->root = dir;
            return view;
        }
        if (dir == dir.root_path() || dir.empty())
            return std::nullopt;
    }
}

std::optional<View> Session::viewTagged(const std::string& tag)
{
    Stmt s = store.query("SELECT id, tag, dir, cs, stream_id, activity_id FROM views WHERE tag=?", tag);
    if (!s.step())
        return std::nullopt;
    return View{s.integer(0), s.text(1), s.text(2), s.text(3), s.optInteger(4), s.optInteger(5)};
}

const View& Session::requireView()
{
    if (!m_view)
        fail(message(Msg::NoViewInfo));
    return *m_view;
}

std::vector<Vob> Session::vobs()
{
    if (!m_vobs) {
        m_vobs.emplace();
        Stmt s = store.query("SELECT id, tag, ucm FROM vobs ORDER BY tag");
        while (s.step())
            m_vobs->push_back(Vob{s.integer(0), s.text(1), s.integer(2) != 0});
    }
    return *m_vobs;
}

std::optional<Vob> Session::vobByTag(std::string_view tag)
{
    for (const Vob& v : vobs()) {
        if (v.tag == tag)
            return v;
    }
    return std::nullopt;
}

Vob Session::vobFor(const std::string& selector)
{
    std::string tag = selector.starts_with("vob:") ? selector.substr(4) : selector;
    if (auto v = vobByTag(tag))
        return *v;
    // A pathname inside a loaded VOB names that VOB too.
    if (!tag.empty()) {
        Target t = resolve(tag);
        if (t.vob)
            return *t.vob;
    }
    fail(message(Msg::UnableToDetermineVob, {selector}));
}

Vob Session::currentVob()
{
    Target t = resolve(".");
    if (!t.vob)
        fail(message(Msg::UnableToDetermineVob, {"."}));
    return *t.vob;
}

Target Session::resolve(const std::string& given)
{
    Target t;
    t.given = given;
    std::string pathPart = given;
    if (const size_t at = given.find("@@"); at != std::string::npos) {
        t.extended = true;
        t.extension = given.substr(at + 2);
        pathPart = given.substr(0, at);
        if (env.lt)
            fail(message(Msg::LtUnsupported, {"Version-extended pathname \"" + given + "\""}));
    }
    if (pathPart.empty())
        pathPart = ".";
    fs::path p = fs::path(pathPart).is_absolute() ? fs::path(pathPart) : cwd / pathPart;
    std::error_code ec;
    fs::path canon = fs::weakly_canonical(p, ec);
    t.abs = (ec ? p : canon).lexically_normal();
    std::string s = t.abs.string();
    while (s.size() > 1 && s.back() == '/')
        s.pop_back();
    t.abs = s;

    std::string inner = s; // the path in VOB-tag space
    t.view = viewAt(t.abs);
    if (t.view) {
        inner = s.substr(t.view->root.string().size());
        if (inner.empty())
            inner = "/";
    }
    for (const Vob& v : vobs()) {
        if (inner == v.tag || inner.starts_with(v.tag + "/")) {
            if (!t.vob || v.tag.size() > t.vob->tag.size()) {
                t.vob = v;
                t.vobPath = inner.size() > v.tag.size() ? inner.substr(v.tag.size() + 1) : "";
            }
        }
    }
    if (!t.vob)
        return t;
    std::optional<std::int64_t> id = vobRoot(store, t.vob->id);
    size_t start = 0;
    const std::string& vp = t.vobPath;
    while (id && start < vp.size()) {
        size_t slash = vp.find('/', start);
        std::string name = vp.substr(start, slash == std::string::npos ? std::string::npos : slash - start);
        id = store.scalar("SELECT id FROM elements WHERE vob_id=? AND parent_id=? AND name=?", t.vob->id, *id, name);
        start = slash == std::string::npos ? vp.size() : slash + 1;
    }
    t.element = id;
    return t;
}

std::string Session::display(const fs::path& abs) const
{
    const std::string a = abs.string(), c = cwd.string();
    if (a == c)
        return ".";
    if (a.starts_with(c + "/"))
        return a.substr(c.size() + 1);
    return a;
}

std::string Session::creator(const std::string& user) const
{
    const std::string name = user == env.user ? env.fullName : user;
    return name + " (" + user + "." + env.group + "@" + env.host + ")";
}

} // namespace ccsim
