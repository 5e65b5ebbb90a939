#pragma once

#include "WFExport.h"

#include <cstddef>
#include <string>
#include <vector>

/// The entry point every package exports under this plain name.
using TWFRegisterFunction = void (*)(bool registerPages);
inline constexpr const char* kWFRegisterSymbol = "WFRegister";
/// Optional: what a host shows for the package in its list of plug-ins.
using TWFDescriptionFunction = const char* (*)();
inline constexpr const char* kWFDescriptionSymbol = "WFPackageDescription";

/// Optional: the bytes of a resource the package carries (a bitmap named by an action's type ID
/// is a whole .bmp file), or nullptr when it has none of that name.
using TWFResourceFunction = const unsigned char* (*)(const char* name, std::size_t* size);
inline constexpr const char* kWFResourceSymbol = "WFPackageResource";

/// A loaded package: its file and the description it gives (empty when it gives none).
struct WF_API TWFLoadedPlugin {
    std::string path;
    std::string description;
};

/// Loads a package by path, finds its WFRegister and calls it once with RegisterPages.
/// A package already loaded is not registered twice, except that one loaded without pages registers
/// again when pages are asked for. False with a reason when the file
/// cannot be loaded or exports no entry point.
WF_API bool WFLoadPlugin(const std::string& path, bool registerPages, std::string& error);

/// The shared libraries in a folder, sorted by name; empty when the folder does not exist.
WF_API std::vector<std::string> WFListPlugins(const std::string& directory);

/// The packages loaded so far, in load order.
WF_API std::vector<TWFLoadedPlugin> WFLoadedPlugins();

/// The bytes of the named resource from the first loaded package that has one; empty when none has.
WF_API std::string WFFindPackageResource(const std::string& name);
