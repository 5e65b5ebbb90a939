#pragma once

#include "Options.h"
#include "Session.h"

#include <string>
#include <string_view>

namespace ccsim {

// What listings and describe print the same way for every kind of object.

std::string pad(std::string text, size_t width);
/// "16-Dec.15:47   builder    " as long listings start.
std::string stampUser(Session& s, Time t, const std::string& user);
std::string lockSuffix(Store& store, std::string_view kind, std::int64_t id);
/// The creation lines of the object `kind`/`id`, then the users its lock exempts, if any.
void printCreated(Session& s, std::string_view kind, std::int64_t id, Time t, const std::string& user,
                  const std::string& comment);
void printOwner(Session& s, const std::string& user);
void printAttributes(Session& s, std::string_view kind, std::int64_t id);
/// The project VOB a UCM listing reads: -invob, else the view's stream's, else the working directory's.
Vob listingVob(Session& s, const ParsedArgs& args);

} // namespace ccsim
