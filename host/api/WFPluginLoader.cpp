#include "WFPluginLoader.h"

#include "WFLog.h"
#include "WFReplaceableFactory.h"

#include <QDir>
#include <QFileInfo>
#include <QLibrary>

#include <dlfcn.h>
#include <elf.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <exception>
#include <filesystem>
#include <iterator>
#include <mutex>

namespace {

#if __SIZEOF_POINTER__ == 8
using TElfHeader = Elf64_Ehdr;
using TElfSegment = Elf64_Phdr;
constexpr unsigned char kNativeClass = ELFCLASS64;
#else
using TElfHeader = Elf32_Ehdr;
using TElfSegment = Elf32_Phdr;
constexpr unsigned char kNativeClass = ELFCLASS32;
#endif

/// A library file read whole: what WFCheckLibraryFile judged and what identifies it by content.
struct TLibraryFile {
    std::string reason;
    std::string bytes;
};

std::string readAll(int fd, std::size_t size, std::string& reason)
{
    std::string bytes(size, '\0');
    std::size_t done = 0;
    while (done < size) {
        const ssize_t got = ::read(fd, bytes.data() + done, size - done);
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0) {
            reason = got < 0 ? std::strerror(errno) : "the file shrank while it was read";
            return {};
        }
        done += static_cast<std::size_t>(got);
    }
    return bytes;
}

/// The ELF header, program headers and loadable segments lie within the file: mapping a library
/// whose segments run past its end ends the process with SIGBUS at the first touch.
std::string checkElf(const std::string& bytes)
{
    if (bytes.size() < EI_NIDENT || std::memcmp(bytes.data(), ELFMAG, SELFMAG) != 0)
        return "not a shared library (no ELF header)";
    if (static_cast<unsigned char>(bytes[EI_CLASS]) != kNativeClass)
        return kNativeClass == ELFCLASS64 ? "built for a 32-bit system" : "built for a 64-bit system";
    if (bytes.size() < sizeof(TElfHeader))
        return "truncated: " + std::to_string(bytes.size()) + " bytes hold no whole ELF header";
    TElfHeader header;
    std::memcpy(&header, bytes.data(), sizeof header);
    if (header.e_type != ET_DYN)
        return "not a shared library (ELF type " + std::to_string(header.e_type) + ")";
    if (header.e_phentsize != sizeof(TElfSegment))
        return "malformed ELF header (program header size " + std::to_string(header.e_phentsize) + ")";
    const auto size = static_cast<std::uint64_t>(bytes.size());
    const std::uint64_t headersEnd = std::uint64_t(header.e_phoff) + std::uint64_t(header.e_phnum) * header.e_phentsize;
    if (header.e_phoff > size || headersEnd > size)
        return "truncated: its program headers end at byte " + std::to_string(headersEnd) + " of " + std::to_string(size);
    for (unsigned i = 0; i < header.e_phnum; ++i) {
        TElfSegment segment;
        std::memcpy(&segment, bytes.data() + header.e_phoff + i * sizeof segment, sizeof segment);
        const std::uint64_t end = std::uint64_t(segment.p_offset) + segment.p_filesz;
        if (segment.p_type == PT_LOAD && (segment.p_offset > size || end > size))
            return "truncated: segment " + std::to_string(i) + " ends at byte " + std::to_string(end) + " of " +
                   std::to_string(size);
    }
    return {};
}

TLibraryFile readLibraryFile(const std::string& path)
{
    TLibraryFile file;
    struct stat info {};
    if (::lstat(path.c_str(), &info) != 0) {
        file.reason = "no such file";
        return file;
    }
    if (S_ISLNK(info.st_mode) && ::stat(path.c_str(), &info) != 0) {
        std::error_code ec;
        file.reason = "dangling link to " + std::filesystem::read_symlink(path, ec).string();
        return file;
    }
    if (!S_ISREG(info.st_mode)) {
        file.reason = "not a regular file";
        return file;
    }
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        file.reason = std::strerror(errno);
        return file;
    }
    file.bytes = readAll(fd, static_cast<std::size_t>(info.st_size), file.reason);
    ::close(fd);
    if (file.reason.empty())
        file.reason = checkElf(file.bytes);
    return file;
}

/// Names the package whose WFRegister is running, for a crash report; set before the call.
char g_registering[4096];

void reportCrash(int signal)
{
    const char* parts[] = {program_invocation_short_name, ": plug-in ", g_registering, " crashed in WFRegister (",
                           strsignal(signal), ")\n"};
    for (const char* part : parts)
        if (::write(STDERR_FILENO, part, std::strlen(part)) < 0)
            break;
    ::signal(signal, SIG_DFL);
    ::raise(signal);
}

/// Calls a package's WFRegister; a crash is reported with the package's name before the process
/// dies of it, an exception becomes the reason the load failed.
bool callRegister(TWFRegisterFunction entry, bool registerPages, const std::string& path, std::string& reason)
{
    constexpr int kSignals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};
    struct sigaction report {}, previous[std::size(kSignals)];
    report.sa_handler = reportCrash;
    report.sa_flags = SA_RESETHAND;
    std::snprintf(g_registering, sizeof g_registering, "%s", path.c_str());
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        sigaction(kSignals[i], &report, &previous[i]);
    bool ok = true;
    try {
        entry(registerPages);
    } catch (const std::exception& exception) {
        reason = std::string("WFRegister failed: ") + exception.what();
        ok = false;
    } catch (...) {
        reason = "WFRegister failed with an exception";
        ok = false;
    }
    for (std::size_t i = 0; i < std::size(kSignals); ++i)
        sigaction(kSignals[i], &previous[i], nullptr);
    return ok;
}

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
    /// The file's contents, by which a copy under another name is known.
    std::size_t contentHash;
    std::size_t size;
};

std::vector<TRegistration>& registrations()
{
    static std::vector<TRegistration> list;
    return list;
}

TRegistration* findRegistration(const std::string& canonical, const std::string& bytes)
{
    const std::size_t hash = std::hash<std::string>{}(bytes);
    for (auto& registration : registrations())
        if (registration.path == canonical || (registration.size == bytes.size() && registration.contentHash == hash))
            return &registration;
    return nullptr;
}

} // namespace

bool WFLoadPlugin(const std::string& path, bool registerPages, std::string& error)
{
    const TLibraryFile file = readLibraryFile(path);
    if (!file.reason.empty()) {
        error = "cannot load " + path + ": " + file.reason;
        return false;
    }
    const std::string canonical = QFileInfo(QString::fromStdString(path)).canonicalFilePath().toStdString();
    TWFRegisterFunction again = nullptr;
    {
        std::lock_guard lock(loadedMutex());
        if (TRegistration* registration = findRegistration(canonical, file.bytes)) {
            if (registration->path != canonical)
                WFWarning(path + " is the same plug-in as " + registration->path + ": loaded once");
            // A package loaded by a headless part of the host registers its pages when a
            // design-time part asks for them later.
            if (!registerPages || registration->pages)
                return true;
            registration->pages = true;
            again = registration->entry;
        }
    }
    if (again) {
        if (!callRegister(again, true, path, error)) {
            error = "cannot load " + path + ": " + error;
            return false;
        }
        return true;
    }
    // Packages stay loaded for the life of the process: their actions outlive any scope here.
    QLibrary library(QString::fromStdString(canonical));
    // Binding every symbol now turns a package built against a different runtime into a load
    // error here, instead of the host dying at the first call of a missing function.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    if (!library.load()) {
        error = "cannot load " + path + ": " + library.errorString().toStdString();
        return false;
    }
    auto entry = reinterpret_cast<TWFRegisterFunction>(library.resolve(kWFRegisterSymbol));
    if (!entry) {
        error = "cannot load " + path + ": it exports no " + kWFRegisterSymbol + " entry point";
        return false;
    }
    if (!callRegister(entry, registerPages, path, error)) {
        error = "cannot load " + path + ": " + error;
        return false;
    }
    const auto describe = reinterpret_cast<TWFDescriptionFunction>(library.resolve(kWFDescriptionSymbol));
    const char* description = describe ? describe() : nullptr;
    std::lock_guard lock(loadedMutex());
    loaded().push_back({canonical, description ? description : ""});
    registrations().push_back({canonical, entry, registerPages,
                               reinterpret_cast<TWFResourceFunction>(library.resolve(kWFResourceSymbol)),
                               std::hash<std::string>{}(file.bytes), file.bytes.size()});
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
    // Broken links count (QDir::System), so that loading them reports them instead of skipping.
    const QStringList entries = dir.entryList(QDir::Files | QDir::System, QDir::Name);
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

std::string WFCheckLibraryFile(const std::string& path)
{
    return readLibraryFile(path).reason;
}

namespace {

class TCompanionLibraries final : public IWFCompanionLibraries {
public:
    void* Resolve(const void* anchor, const std::string& relativePath, const std::string& symbol) override
    {
        Dl_info self{};
        if (!dladdr(anchor, &self) || !self.dli_fname) {
            WFWarning("cannot load " + relativePath + ": the package that asks for it is not a loaded library");
            return nullptr;
        }
        const std::string path = (std::filesystem::path(self.dli_fname).parent_path() / relativePath).string();
        if (const std::string reason = WFCheckLibraryFile(path); !reason.empty()) {
            WFWarning("cannot load " + path + ": " + reason);
            return nullptr;
        }
        // Kept loaded for the life of the process, as packages are.
        void* library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
        if (!library) {
            WFWarning("cannot load " + path + ": " + dlerror());
            return nullptr;
        }
        void* address = dlsym(library, symbol.c_str());
        if (!address)
            WFWarning("cannot load " + path + ": it exports no " + symbol);
        return address;
    }
};

TWFReplaceableFactory<IWFCompanionLibraries, TCompanionLibraries>& companionFactory()
{
    static TWFReplaceableFactory<IWFCompanionLibraries, TCompanionLibraries> instance;
    return instance;
}

} // namespace

std::shared_ptr<IWFCompanionLibraries> WFCompanionLibraries()
{
    return companionFactory().create();
}

TWFCompanionLibrariesFactory SetWFCompanionLibrariesFactory(TWFCompanionLibrariesFactory factory)
{
    return companionFactory().replace(std::move(factory));
}
