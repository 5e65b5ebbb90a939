#pragma once

#include "core/WFClearCaseExport.h"

#include <string>

// The current user's ClearCase settings, kept in the host's per-user INI file under section
// "ClearCase". The file is opened and closed on every call; no handle outlives one.

/// The last directory chosen as a view; the options' default view when none was chosen yet.
WF_CC_API std::string CCGetLastViewDirectory();
/// Remembers a view directory as given. False when the settings file cannot be written.
WF_CC_API bool CCSetLastViewDirectory(const std::string& dir);
/// Lets the user pick a view directory, starting at `current` or else the last one. Returns the
/// choice (and remembers it), or `current` unchanged when the user cancels.
WF_CC_API std::string CCSelectViewPath(const std::string& current);

/// Whether the object selector editor last worked in its free text field; false when unset.
WF_CC_API bool CCGetUsingCustomObjectSelector();
/// False when the settings file cannot be written.
WF_CC_API bool CCSetUsingCustomObjectSelector(bool value);
