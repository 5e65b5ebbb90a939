#include "WFFiles.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <cstring>
#include <thread>

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

namespace {

const char* kindOfFile(mode_t mode)
{
    if (S_ISDIR(mode))
        return "a folder";
    if (S_ISFIFO(mode))
        return "a FIFO";
    if (S_ISCHR(mode) || S_ISBLK(mode))
        return "a device";
    if (S_ISSOCK(mode))
        return "a socket";
    return "something else";
}

} // namespace

bool readWholeFile(const std::string& path, std::string& bytes, std::string& error, std::size_t limit)
{
    const auto fail = [&](const std::string& why) {
        error = "cannot read \"" + path + "\": " + why;
        return false;
    };
    // Without O_NONBLOCK, opening a FIFO waits for a writer that may never come.
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (fd < 0)
        return fail(std::strerror(errno));
    struct stat info {};
    if (::fstat(fd, &info) != 0) {
        const int code = errno;
        ::close(fd);
        return fail(std::strerror(code));
    }
    if (!S_ISREG(info.st_mode)) {
        ::close(fd);
        return fail(std::string("it is ") + kindOfFile(info.st_mode) + ", not a regular file");
    }
    const auto tooLarge = [&] {
        ::close(fd);
        return fail("it holds more than " + std::to_string(limit) + " bytes, the limit for such a file");
    };
    if (static_cast<unsigned long long>(info.st_size) > limit)
        return tooLarge();
    std::string result;
    char buffer[64 * 1024];
    for (;;) {
        const ssize_t n = ::read(fd, buffer, sizeof buffer);
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0) {
            const int code = errno;
            ::close(fd);
            return fail(std::strerror(code));
        }
        if (n == 0)
            break;
        // The size can grow while the file is read (a log being written): the bound holds anyway.
        if (result.size() + static_cast<std::size_t>(n) > limit)
            return tooLarge();
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

TWFFileLock::TWFFileLock(const std::string& path, int waitSeconds)
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
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(std::max(waitSeconds, 0));
    int code = 0;
    for (;;) {
        if (::flock(m_fd, waitSeconds < 0 ? LOCK_EX : LOCK_EX | LOCK_NB) == 0) {
            code = 0;
            break;
        }
        code = errno;
        if (code == EINTR)
            continue;
        if (code != EWOULDBLOCK || std::chrono::steady_clock::now() >= deadline)
            break;
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    }
    if (code != 0) {
        std::string holder;
        if (code == EWOULDBLOCK) {
            std::string owner;
            std::string ignored;
            if (readWholeFile(lockPath, owner, ignored, 4096) && !owner.empty())
                holder = owner.substr(0, owner.find('\n'));
            m_error = "cannot lock \"" + path + "\": " + (holder.empty() ? "another process" : holder)
                + " still holds it after " + std::to_string(waitSeconds) + " s";
        } else {
            m_error = "cannot lock \"" + path + "\": " + std::strerror(code);
        }
        ::close(m_fd);
        m_fd = -1;
        return;
    }
    // Who holds the lock, for the message of whoever waits for it.
    std::string owner = "process " + std::to_string(::getpid());
    char name[4096] = {};
    if (const ssize_t n = ::readlink("/proc/self/exe", name, sizeof name - 1); n > 0)
        owner += " (" + std::string(name, static_cast<std::size_t>(n)) + ")";
    owner += "\n";
    if (::ftruncate(m_fd, 0) != 0 || ::pwrite(m_fd, owner.data(), owner.size(), 0) < 0) {
        // Only a courtesy to a waiting program: the lock itself is held.
    }
}

TWFFileLock::~TWFFileLock()
{
    if (m_fd >= 0)
        ::close(m_fd);
}
