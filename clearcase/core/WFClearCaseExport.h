#pragma once

/// Marks what the package's core library (environment, actions, resources) gives the plug-in,
/// the page library and the tests. The core is compiled with hidden visibility, so everything
/// unmarked stays inside it.
#define WF_CC_API __attribute__((visibility("default")))
