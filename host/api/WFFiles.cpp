#include "WFFiles.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

bool writeFileAtomically(const std::string& path, std::string_view bytes, std::string& error)
{
    // Written by hand: QSaveFile committed a short write (a full disk or file-size limit) as
    // success, leaving a truncated file in place of the old one.
    const auto fail = [&](const std::string& what, int code) {
        error = "cannot write \"" + path + "\": " + what + ": " + std::strerror(code);
        return false;
    };
    std::string temporary = path + ".XXXXXX";
    const int fd = ::mkstemp(temporary.data());
    if (fd < 0)
        return fail("cannot create a temporary file beside it", errno);
    struct stat existing {};
    const mode_t mode = ::stat(path.c_str(), &existing) == 0 ? (existing.st_mode & 07777) : 0644;
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
