#pragma once

#include "Commands.h"

namespace ccsim {

void cmdMklbtype(Session& s, const ParsedArgs& args);
void cmdMkbrtype(Session& s, const ParsedArgs& args);
void cmdMkattype(Session& s, const ParsedArgs& args);
void cmdMklabel(Session& s, const ParsedArgs& args);
void cmdMkattr(Session& s, const ParsedArgs& args);
void cmdLock(Session& s, const ParsedArgs& args);
void cmdUnlock(Session& s, const ParsedArgs& args);
void cmdLstype(Session& s, const ParsedArgs& args);

} // namespace ccsim
