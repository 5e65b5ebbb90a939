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

std::string lockSuffix(Store& store, ObjectKind kind, Id id)
{
    return isLocked(store, kind, id) ? " (locked)" : "";
}

void printCreated(Session& s, ObjectKind kind, Id id, Time t, const std::string& user, const std::string& comment)
{
    s.print("  created " + formatLong(t) + " by " + s.creator(user));
    if (!comment.empty())
        s.print("  \"" + comment + "\"");
    if (auto users = lockExemptUsers(s.store, kind, id)) {
        std::replace(users->begin(), users->end(), ',', ' ');
        s.print(message(Msg::LockedExceptUsers, {*users}));
    }
}

void printOwner(Session& s, const std::string& user)
{
    s.print("  owner: " + user);
    s.print("  group: " + s.env.group);
}

void printAttributes(Session& s, ObjectKind kind, Id id)
{
    const std::vector<AttributeValue> attributes = attributesOf(s.store, kind, id);
    if (!attributes.empty())
        s.print("  Attributes:");
    for (const AttributeValue& a : attributes)
        s.print("    " + a.type + " = " + a.value);
}

Vob listingVob(Session& s, const ParsedArgs& args)
{
    return ucmVob(s, args.value("invob").value_or(""));
}

} // namespace ccsim
