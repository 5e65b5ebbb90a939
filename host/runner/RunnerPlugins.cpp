#include "RunnerPlugins.h"

#include "WFPluginLoader.h"

#include <filesystem>
#include <system_error>

std::string executableDirectory()
{
    std::error_code ec;
    const auto self = std::filesystem::read_symlink("/proc/self/exe", ec);
    return ec ? std::string(".") : self.parent_path().string();
}

std::vector<std::string> defaultPluginFolders(const std::string& executableDirectory)
{
    const std::filesystem::path base(executableDirectory);
    return {(base / "plugins").lexically_normal().string(),
            (base / ".." / "lib" / "wrenfield" / "plugins").lexically_normal().string()};
}

bool loadRunnerPlugins(bool withDefaults, const std::vector<std::string>& extra, std::string& error, bool registerPages)
{
    std::vector<std::string> paths;
    if (withDefaults)
        for (const auto& folder : defaultPluginFolders(executableDirectory()))
            for (auto& path : WFListPlugins(folder))
                paths.push_back(std::move(path));
    paths.insert(paths.end(), extra.begin(), extra.end());
    for (const auto& path : paths) {
        // The loader's reasons name the file.
        if (!WFLoadPlugin(path, registerPages, error))
            return false;
    }
    return true;
}
