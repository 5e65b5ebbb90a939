#pragma once

#include <string>
#include <vector>

/// The folder of the running program.
std::string executableDirectory();

/// Where installed plug-ins live relative to the program: `plugins` beside it (the build
/// tree) and `../lib/wrenfield/plugins` (the installed layout).
std::vector<std::string> defaultPluginFolders(const std::string& executableDirectory);

/// Loads every shared library of the default folders (unless told not to), then each extra
/// path, registering them with pages only when asked (a host with a user interface). False with a
/// message naming the file that failed.
bool loadRunnerPlugins(bool withDefaults, const std::vector<std::string>& extra, std::string& error,
                       bool registerPages = false);
