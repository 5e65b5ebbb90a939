#pragma once

#include "Commands.h"

namespace ccsim {

void cmdLsvob(Session& s, const ParsedArgs& args);
void cmdLstype(Session& s, const ParsedArgs& args);
void cmdLspool(Session& s, const ParsedArgs& args);
void cmdLsactivity(Session& s, const ParsedArgs& args);
void cmdLscomp(Session& s, const ParsedArgs& args);
void cmdLsfolder(Session& s, const ParsedArgs& args);
void cmdLsproject(Session& s, const ParsedArgs& args);
void cmdLsstream(Session& s, const ParsedArgs& args);
void cmdLsbl(Session& s, const ParsedArgs& args);
void cmdLshistory(Session& s, const ParsedArgs& args);
void cmdLs(Session& s, const ParsedArgs& args);
void cmdLscheckout(Session& s, const ParsedArgs& args);
void cmdDescribe(Session& s, const ParsedArgs& args);

} // namespace ccsim
