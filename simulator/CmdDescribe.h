#pragma once

#include "Commands.h"

namespace ccsim {

void cmdDescribe(Session& s, const ParsedArgs& args);
/// What describe and lsstream -long print about a stream.
void describeStream(Session& s, std::int64_t stream);

} // namespace ccsim
