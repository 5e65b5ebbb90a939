#pragma once

#include "Commands.h"

namespace ccsim {

void cmdMkfolder(Session& s, const ParsedArgs& args);
void cmdMkproject(Session& s, const ParsedArgs& args);
void cmdMkcomp(Session& s, const ParsedArgs& args);
void cmdMkstream(Session& s, const ParsedArgs& args);
void cmdMkactivity(Session& s, const ParsedArgs& args);
void cmdSetactivity(Session& s, const ParsedArgs& args);
void cmdMkbl(Session& s, const ParsedArgs& args);
void cmdLsactivity(Session& s, const ParsedArgs& args);
void cmdLscomp(Session& s, const ParsedArgs& args);
void cmdLsfolder(Session& s, const ParsedArgs& args);
void cmdLsproject(Session& s, const ParsedArgs& args);
void cmdLsstream(Session& s, const ParsedArgs& args);
void cmdLsbl(Session& s, const ParsedArgs& args);

} // namespace ccsim
