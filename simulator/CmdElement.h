#pragma once

#include "Commands.h"
#include "Model.h"

namespace ccsim {

void cmdCheckout(Session& s, const ParsedArgs& args);
void cmdCheckin(Session& s, const ParsedArgs& args);
void cmdUncheckout(Session& s, const ParsedArgs& args);
void cmdMkelem(Session& s, const ParsedArgs& args);
void cmdMkdir(Session& s, const ParsedArgs& args);

/// Fails unless a UCM view has a current activity; gives that activity.
std::optional<Id> requireActivity(const View& view, std::string_view unable);
void cmdLshistory(Session& s, const ParsedArgs& args);
void cmdLs(Session& s, const ParsedArgs& args);
void cmdLscheckout(Session& s, const ParsedArgs& args);

} // namespace ccsim
