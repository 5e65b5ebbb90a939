#include "WFPluginLoader.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <algorithm>
#include <mutex>

namespace {

std::mutex& loadedMutex()
{
    static std::mutex mutex;
    return mutex;
}

std::vector<TWFLoadedPlugin>& loaded()
{
    static std::vector<TWFLoadedPlugin> plugins;
    return plugins;
}

/// Per loaded package: its entry point and whether it has registered its pages.
struct TRegistration {
    std::string path;
    TWFRegisterFunction entry;
    bool pages;
    TWFResourceFunction resources;
};

std::vector<TRegistration>& registrations()
{
    static std::vector<TRegistration> list;
    return list;
}

TRegistration* findRegistration(const std::string& canonical)
{
    for (auto& registration : registrations())
        if (registration.path == canonical)
            return &registration;
    return nullptr;
}

} // namespace

bool WFLoadPlugin(const std::string& path, bool registerPages, std::string& error)
{
    const QFileInfo info(QString::fromStdString(path));
    if (!info.exists()) {
        error = "plug-in \"" + path + "\" does not exist";
        return false;
    }
    // Mapping a FIFO or a device would wait or fail obscurely: only a file is a plug-in.
    if (!info.isFile()) {
        error = "cannot load plug-in \"" + path + "\": it is not a regular file";
        return false;
    }
    const std::string canonical = info.canonicalFilePath().toStdString();
    TWFRegisterFunction again = nullptr;
    {
        std::lock_guard lock(loadedMutex());
        if (TRegistration* registration = findRegistration(canonical)) {
            // A package loaded by a headless part of the host registers its pages when a
            // design-time part asks for them later.
            if (!registerPages || registration->pages)
                return true;
            registration->pages = true;
            again = registration->entry;
        }
    }
    if (again) {
        again(true);
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
    const auto describe = reinterpret_cast<TWFDescriptionFunction>(library.resolve(kWFDescriptionSymbol));
    const char* description = describe ? describe() : nullptr;
    {
        std::lock_guard lock(loadedMutex());
        loaded().push_back({canonical, description ? description : ""});
        registrations().push_back({canonical, entry, registerPages,
                                   reinterpret_cast<TWFResourceFunction>(library.resolve(kWFResourceSymbol))});
    }
    entry(registerPages);
    return true;
}

std::vector<TWFLoadedPlugin> WFLoadedPlugins()
{
    std::lock_guard lock(loadedMutex());
    return loaded();
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

std::string WFFindPackageResource(const std::string& name)
{
    std::vector<TWFResourceFunction> sources;
    {
        std::lock_guard lock(loadedMutex());
        for (const auto& registration : registrations())
            if (registration.resources)
                sources.push_back(registration.resources);
    }
    for (const auto source : sources) {
        std::size_t size = 0;
        if (const unsigned char* data = source(name.c_str(), &size); data && size)
            return std::string(reinterpret_cast<const char*>(data), size);
    }
    return {};
}
