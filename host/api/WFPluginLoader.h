#pragma once

#include "WFExport.h"

#include <cstddef>
#include <functional>
#include <memory>
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
/// again when pages are asked for; the same file under a second name is loaded once, with a
/// warning. The file is checked before it is mapped (a truncated library would crash the host).
/// False with "cannot load PATH: reason" when the file cannot be loaded, exports no entry point, or
/// its WFRegister throws; a crash inside WFRegister names the package on standard error.
WF_API bool WFLoadPlugin(const std::string& path, bool registerPages, std::string& error);

/// The shared libraries in a folder, sorted by name; empty when the folder does not exist.
WF_API std::vector<std::string> WFListPlugins(const std::string& directory);

/// The packages loaded so far, in load order.
WF_API std::vector<TWFLoadedPlugin> WFLoadedPlugins();

/// The bytes of the named resource from the first loaded package that has one; empty when none has.
WF_API std::string WFFindPackageResource(const std::string& name);

/// Why the file cannot be a shared library this host can map (not a regular file, a dangling
/// link, not ELF, another architecture, truncated headers or segments); empty when it can.
WF_API std::string WFCheckLibraryFile(const std::string& path);

/// Libraries a package carries beside itself (its page library), loaded with the checks plug-ins
/// get. Replaceable, so that a test can stand in for the file system.
class WF_API IWFCompanionLibraries {
public:
    virtual ~IWFCompanionLibraries() = default;
    /// The address of `symbol` in the library at `relativePath` from the folder of the package
    /// that holds `anchor` (any function of the calling package). nullptr when the library cannot
    /// be loaded or lacks the symbol; the reason goes to the host's warnings (WFWarning).
    virtual void* Resolve(const void* anchor, const std::string& relativePath, const std::string& symbol) = 0;
};
WF_API std::shared_ptr<IWFCompanionLibraries> WFCompanionLibraries();
using TWFCompanionLibrariesFactory = std::function<std::shared_ptr<IWFCompanionLibraries>()>;
/// Replaces the service; an empty function restores the real one. Returns the previous factory.
WF_API TWFCompanionLibrariesFactory SetWFCompanionLibrariesFactory(TWFCompanionLibrariesFactory factory);
