#include "WFFiles.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

std::string resolveLinks(const std::string& path)
{
    std::string current = path;
    // As many hops as the kernel follows before it gives up with ELOOP.
    for (int hop = 0; hop < 40; ++hop) {
        struct stat info {};
        if (::lstat(current.c_str(), &info) != 0 || !S_ISLNK(info.st_mode))
            return current;
        std::string target(static_cast<std::size_t>(info.st_size > 0 ? info.st_size : 4096) + 1, '\0');
        const ssize_t n = ::readlink(current.c_str(), target.data(), target.size());
        if (n < 0)
            return current;
        target.resize(static_cast<std::size_t>(n));
        current = target.front() == '/' ? target : parentDirectory(current) + "/" + target;
    }
    return current;
}

bool sameFile(const std::string& first, const std::string& second)
{
    struct stat a {};
    struct stat b {};
    return ::stat(first.c_str(), &a) == 0 && ::stat(second.c_str(), &b) == 0 && a.st_dev == b.st_dev
        && a.st_ino == b.st_ino;
}

bool writeFileAtomically(const std::string& requestedPath, std::string_view bytes, std::string& error)
{
    // Written by hand: QSaveFile committed a short write (a full disk or file-size limit) as
    // success, leaving a truncated file in place of the old one.
    const auto fail = [&](const std::string& what, int code) {
        error = "cannot write \"" + requestedPath + "\": " + what + ": " + std::strerror(code);
        return false;
    };
    // Renaming over a link would replace the link and leave the file it names stale.
    const std::string path = resolveLinks(requestedPath);
    struct stat existing {};
    const bool exists = ::stat(path.c_str(), &existing) == 0;
    // A checked-in file in a snapshot view is read-only; replacing it by rename would succeed
    // behind the version control's back. Root passes access(), so the mode bits decide too.
    if (exists && (::access(path.c_str(), W_OK) != 0 || (existing.st_mode & 0222) == 0))
        return fail("the file is read-only", EACCES);
    std::string temporary = path + ".XXXXXX";
    const int fd = ::mkostemp(temporary.data(), O_CLOEXEC);
    if (fd < 0)
        return fail("cannot create a temporary file beside it", errno);
    const mode_t mode = exists ? (existing.st_mode & 07777) : 0644;
    ::fchmod(fd, mode);
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t n = ::write(fd, bytes.data() + done, bytes.size() - done);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0) {
            const int code = n < 0 ? errno : ENOSPC;
            ::close(fd);
            ::unlink(temporary.c_str());
            return fail("writing failed", code);
        }
        done += static_cast<std::size_t>(n);
    }
    if (::fsync(fd) != 0 || ::close(fd) != 0) {
        const int code = errno;
        ::unlink(temporary.c_str());
        return fail("writing failed", code);
    }
    if (::rename(temporary.c_str(), path.c_str()) != 0) {
        const int code = errno;
        ::unlink(temporary.c_str());
        return fail("cannot replace it", code);
    }
    return true;
}

bool writeFileCreatingFolder(const std::string& path, std::string_view bytes, std::string& error)
{
    const std::string folder = parentDirectory(resolveLinks(path));
    if (!makeDirectories(folder)) {
        error = "cannot write \"" + path + "\": cannot create the folder \"" + folder + "\": " + std::strerror(errno);
        return false;
    }
    return writeFileAtomically(path, bytes, error);
}

bool readWholeFile(const std::string& path, std::string& bytes, std::string& error)
{
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) {
        error = "cannot read \"" + path + "\": " + std::strerror(errno);
        return false;
    }
    std::string result;
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            // A folder opens but does not read: EISDIR names it plainly.
            error = "cannot read \"" + path + "\": " + std::strerror(errno);
            ::close(fd);
            return false;
        }
        if (n == 0)
            break;
        result.append(buffer, static_cast<std::size_t>(n));
    }
    ::close(fd);
    bytes = std::move(result);
    return true;
}

bool fileExists(const std::string& path)
{
    struct stat info {};
    return !path.empty() && ::stat(path.c_str(), &info) == 0 && S_ISREG(info.st_mode);
}

bool directoryExists(const std::string& path)
{
    struct stat info {};
    return !path.empty() && ::stat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode);
}

std::string parentDirectory(const std::string& path)
{
    const auto slash = path.find_last_of('/');
    if (slash == std::string::npos)
        return ".";
    if (slash == 0)
        return "/";
    return path.substr(0, slash);
}

bool makeDirectories(const std::string& path)
{
    if (path.empty() || directoryExists(path))
        return !path.empty();
    const std::string parent = parentDirectory(path);
    if (parent != path && parent != "." && !directoryExists(parent) && !makeDirectories(parent))
        return false;
    return ::mkdir(path.c_str(), 0777) == 0 || errno == EEXIST;
}

TWFFileLock::TWFFileLock(const std::string& path)
{
    const std::string lockPath = resolveLinks(path) + ".lock";
    if (!makeDirectories(parentDirectory(lockPath))) {
        m_error = "cannot lock \"" + path + "\": cannot create its folder: " + std::strerror(errno);
        return;
    }
    m_fd = ::open(lockPath.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    if (m_fd < 0) {
        m_error = "cannot lock \"" + path + "\": " + std::strerror(errno);
        return;
    }
    int result = 0;
    while ((result = ::flock(m_fd, LOCK_EX)) != 0 && errno == EINTR) {
    }
    if (result != 0) {
        m_error = "cannot lock \"" + path + "\": " + std::strerror(errno);
        ::close(m_fd);
        m_fd = -1;
    }
}

TWFFileLock::~TWFFileLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}
