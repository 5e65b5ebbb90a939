#pragma once

#include "core/WFClearCaseExport.h"

#include <string>
#include <vector>

// The text form of a string list, shared by the list storage strings of the actions and the
// results of the cleartool queries.

/// Every entry followed by CR LF, the last one included; an empty list gives "".
WF_CC_API std::string stringListText(const std::vector<std::string>& lines);
/// The entries of a string list's text, split at CR LF, CR or LF; a final line break does not
/// start another entry, every other line (empty ones included) is one entry.
WF_CC_API std::vector<std::string> splitStringListText(const std::string& text);
