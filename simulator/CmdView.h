#pragma once

#include "Commands.h"

namespace ccsim {

void cmdMkvob(Session& s, const ParsedArgs& args);
void cmdMkview(Session& s, const ParsedArgs& args);
void cmdRmview(Session& s, const ParsedArgs& args);
void cmdLsview(Session& s, const ParsedArgs& args);
void cmdPwv(Session& s, const ParsedArgs& args);
void cmdCatcs(Session& s, const ParsedArgs& args);
void cmdSetcs(Session& s, const ParsedArgs& args);
void cmdUpdate(Session& s, const ParsedArgs& args);
void cmdLsvob(Session& s, const ParsedArgs& args);
void cmdLspool(Session& s, const ParsedArgs& args);

} // namespace ccsim
