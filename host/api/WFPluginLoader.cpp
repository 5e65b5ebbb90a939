#include "WFPluginLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <algorithm>
#include <mutex>
#include <set>

namespace {

std::mutex& loadedMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::set<std::string>& loaded()
{
    static std::set<std::string> paths;
    return paths;
}

} // namespace

bool WFLoadPlugin(const std::string& path, bool registerPages, std::string& error)
{
    const QFileInfo info(QString::fromStdString(path));
    if (!info.exists()) {
        error = "plug-in \"" + path + "\" does not exist";
        return false;
    }
    const std::string canonical = info.canonicalFilePath().toStdString();
    {
        std::lock_guard lock(loadedMutex());
        if (loaded().count(canonical))
            return true;
    }
    // Packages stay loaded for the life of the process: their actions outlive any scope here.
    QLibrary library(QString::fromStdString(canonical));
    // Binding every symbol now turns a package built against a different runtime into a load
    // error here, instead of the host dying at the first call of a missing function.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load()) {
        error = "cannot load plug-in \"" + path + "\": " + library.errorString().toStdString();
        return false;
    }
    auto entry = reinterpret_cast<TWFRegisterFunction>(library.resolve(kWFRegisterSymbol));
    if (!entry) {
        error = "plug-in \"" + path + "\" exports no " + kWFRegisterSymbol + " entry point";
        return false;
    }
    {
        std::lock_guard lock(loadedMutex());
        loaded().insert(canonical);
    }
    entry(registerPages);
    return true;
}

std::vector<std::string> WFListPlugins(const std::string& directory)
{
    std::vector<std::string> result;
    const QDir dir(QString::fromStdString(directory));
    if (!dir.exists())
        return result;
    const QStringList entries = dir.entryList(QDir::Files | QDir::Readable, QDir::Name);
    for (const auto& name : entries)
        if (QLibrary::isLibrary(name))
            result.push_back(dir.filePath(name).toStdString());
    return result;
}
