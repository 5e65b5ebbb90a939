#include "ConfigSpec.h"

#include "Model.h"

#include <fnmatch.h>
#include <sstream>

namespace ccsim {

namespace {

std::vector<std::string> words(const std::string& line)
{
    std::istringstream in(line);
    std::vector<std::string> out;
    for (std::string w; in >> w;)
        out.push_back(w);
    return out;
}

bool matches(const std::string& pattern, const std::string& name, bool dir, const std::string& kind)
{
    if ((kind == "-file" && dir) || (kind == "-directory" && !dir))
        return false;
    if (pattern == "*")
        return true;
    if (pattern.ends_with("/...")) {
        const std::string prefix = pattern.substr(0, pattern.size() - 4);
        return name == prefix || name.starts_with(prefix + "/");
    }
    if (pattern.find('/') != std::string::npos)
        return fnmatch(pattern.c_str(), name.c_str(), FNM_PATHNAME) == 0;
    const std::string base = name.substr(name.rfind('/') + 1);
    return fnmatch(pattern.c_str(), base.c_str(), 0) == 0;
}

std::optional<Id> branchFor(Store& store, Id element, const std::string& path)
{
    if (path.starts_with(".../")) {
        const std::string tail = path.substr(3);
        Stmt q = store.query("SELECT id, path FROM branches WHERE element_id=? ORDER BY id", element);
        while (q.step()) {
            if (q.text(1).ends_with(tail))
                return q.integer(0);
        }
        return std::nullopt;
    }
    return branchByPath(store, element, path);
}

} // namespace

std::optional<ConfigSpec> ConfigSpec::parse(const std::string& text, std::string& error)
{
    ConfigSpec cs;
    std::istringstream in(text);
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
        if (const size_t hash = line.find('#'); hash != std::string::npos)
            line.erase(hash);
        auto w = words(line);
        if (w.empty() || w[0] == "ucm" || w[0] == "identity" || (w[0] == "end" && w.size() == 2))
            continue;
        if (w[0] == "load") {
            if (w.size() < 2) {
                error = std::to_string(number) + ": load rule needs a pathname";
                return std::nullopt;
            }
            for (size_t i = 1; i < w.size(); ++i)
                cs.loads.push_back(w[i].size() > 1 && w[i].back() == '/' ? w[i].substr(0, w[i].size() - 1) : w[i]);
            continue;
        }
        if (w[0] != "element") {
            error = std::to_string(number) + ": unrecognized rule \"" + w[0] + "\"";
            return std::nullopt;
        }
        Rule rule;
        size_t i = 1;
        if (i < w.size() && (w[i] == "-file" || w[i] == "-directory"))
            rule.kind = w[i++];
        if (i + 1 >= w.size()) {
            error = std::to_string(number) + ": element rule needs a pattern and a version selector";
            return std::nullopt;
        }
        rule.pattern = w[i++];
        rule.selector = w[i++];
        for (; i < w.size(); ++i) {
            if (w[i] == "-mkbranch" && i + 1 < w.size()) {
                rule.mkbranch = w[++i];
            } else if (w[i] != "-nocheckout") {
                error = std::to_string(number) + ": unrecognized option \"" + w[i] + "\"";
                return std::nullopt;
            }
        }
        cs.rules.push_back(std::move(rule));
    }
    return cs;
}

bool ConfigSpec::loads_(const std::string& elementName) const
{
    for (const std::string& load : loads) {
        if (elementName == load || elementName.starts_with(load + "/") || load.starts_with(elementName + "/"))
            return true;
    }
    return false;
}

std::optional<Selection> selectVersion(Session& s, const View& view, const ConfigSpec& cs, Id element,
                                       const std::string& elementName)
{
    const bool dir = isDirectory(s.store, element);
    for (const ConfigSpec::Rule& rule : cs.rules) {
        if (!matches(rule.pattern, elementName, dir, rule.kind))
            continue;
        const std::string& sel = rule.selector;
        if (sel == "CHECKEDOUT") {
            if (auto co = checkoutIn(s.store, element, view.id))
                return Selection{co->pred, true};
            continue;
        }
        std::optional<Id> version;
        if (sel.find('/') == std::string::npos) {
            version = labelledVersion(s.store, element, sel);
        } else {
            const size_t last = sel.rfind('/');
            const std::string leaf = sel.substr(last + 1);
            auto branch = branchFor(s.store, element, sel.substr(0, last));
            if (branch && leaf == "LATEST") {
                version = latestOnBranch(s.store, *branch);
            } else if (branch) {
                const std::string path = branchPath(s.store, *branch);
                version = versionByExtension(s.store, element, path + "/" + leaf);
            }
        }
        if (version)
            return Selection{*version, false};
    }
    return std::nullopt;
}

std::optional<Selection> viewVersion(Session& s, const View& view, Id element)
{
    if (auto co = checkoutIn(s.store, element, view.id))
        return Selection{co->pred, true};
    std::string error;
    auto cs = ConfigSpec::parse(view.configSpec, error);
    if (!cs)
        return std::nullopt;
    const Id vob = vobOfElement(s.store, element);
    const std::string tag = vobTag(s.store, vob);
    const std::string path = elementPath(s.store, element);
    const std::string name = path.empty() ? tag : tag + "/" + path;
    if (auto loaded = loadedVersion(s.store, view.id, element))
        return Selection{*loaded, false};
    return selectVersion(s, view, *cs, element, name);
}

} // namespace ccsim
