#pragma once

#include "WFExport.h"

#include <functional>
#include <string>

/// Runs blocking work a user waits for (a design-time query). Without a hook the work runs on
/// the calling thread. A host with a user interface installs a hook that keeps its windows
/// painted while the work runs and lets the user call `cancel`, which must make `work` return
/// soon; the hook returns once `work` has returned, whatever happened.
using TWFBusyHook = std::function<void(const std::string& message, const std::function<void()>& work,
                                       const std::function<void()>& cancel)>;

WF_API void WFRunBusy(const std::string& message, const std::function<void()>& work, const std::function<void()>& cancel);
/// Whether a user can cancel busy work: callers that would otherwise bound a wait themselves
/// may then wait for the end.
WF_API bool WFBusyCanCancel();
/// Replaces the hook; an empty function restores running on the calling thread. Returns the previous one.
WF_API TWFBusyHook SetWFBusyHook(TWFBusyHook hook);
