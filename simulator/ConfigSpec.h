#pragma once

#include "Session.h"

#include <optional>
#include <string>
#include <vector>

namespace ccsim {

/// A parsed config spec: element rules in order, then load rules.
struct ConfigSpec {
    struct Rule {
        std::string pattern;
        std::string selector;
        std::string mkbranch;
        std::string kind; ///< "", "-file" or "-directory"
    };
    std::vector<Rule> rules;
    std::vector<std::string> loads;

    /// Parses `text`; a bad line gives its 1-based number and the reason in `error`.
    static std::optional<ConfigSpec> parse(const std::string& text, std::string& error);
    /// True when an element of that full name ("/vobs/main/src") is loaded: under a load rule or on the way to one.
    bool loads_(const std::string& elementName) const;
};

struct Selection {
    std::int64_t version = 0;
    bool checkedOut = false;
};

/// The version of `element` the view selects, walking the rules in order.
std::optional<Selection> selectVersion(Session& s, const View& view, const ConfigSpec& cs, std::int64_t element,
                                       const std::string& elementName);

/// The version a pathname stands for in the current view (its check-out's predecessor when checked out).
std::optional<Selection> viewVersion(Session& s, const View& view, std::int64_t element);

} // namespace ccsim
