#include "Listing.h"

#include "Model.h"

#include <algorithm>

namespace ccsim {

std::string pad(std::string text, size_t width)
{
    if (text.size() < width)
        text.resize(width, ' ');
    return text;
}

std::string stampUser(Session& s, Time t, const std::string& user)
{
    return pad(formatShort(t, s.env.now), 12) + "   " + pad(user, 10) + " ";
}

std::string lockSuffix(Store& store, std::string_view kind, Id id)
{
    return isLocked(store, kind, id) ? " (locked)" : "";
}

void printCreated(Session& s, std::string_view kind, Id id, Time t, const std::string& user, const std::string& comment)
{
    s.print("  created " + formatLong(t) + " by " + s.creator(user));
    if (!comment.empty())
        s.print("  \"" + comment + "\"");
    if (auto users = s.store.scalarText("SELECT nusers FROM locks WHERE obj_kind=? AND obj_id=? AND nusers IS NOT NULL",
                                        kind, id)) {
        std::replace(users->begin(), users->end(), ',', ' ');
        s.print(message(Msg::LockedExceptUsers, {*users}));
    }
}

void printOwner(Session& s, const std::string& user)
{
    s.print("  owner: " + user);
    s.print("  group: " + s.env.group);
}

void printAttributes(Session& s, std::string_view kind, Id id)
{
    Stmt q = s.store.query("SELECT t.name, a.value FROM attrs a JOIN types t ON t.id=a.type_id "
                           "WHERE a.obj_kind=? AND a.obj_id=? ORDER BY t.name",
                           kind, id);
    bool header = false;
    while (q.step()) {
        if (!header)
            s.print("  Attributes:");
        header = true;
        s.print("    " + q.text(0) + " = " + q.text(1));
    }
}

Vob listingVob(Session& s, const ParsedArgs& args)
{
    return ucmVob(s, args.value("invob").value_or(""));
}

} // namespace ccsim
