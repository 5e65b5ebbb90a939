#pragma once

#include "WFExport.h"

#include <string>
#include <string_view>

/// Replaces a file's contents in one step: the bytes go to a temporary file beside it, which
/// is renamed over the target only when complete. On failure the old file is untouched.
/// A symbolic link is written through to the file it names, and a file without write
/// permission is refused rather than replaced.
WF_API bool writeFileAtomically(const std::string& path, std::string_view bytes, std::string& error);

/// writeFileAtomically after creating the file's folder and its missing parents.
WF_API bool writeFileCreatingFolder(const std::string& path, std::string_view bytes, std::string& error);

/// Reads a whole regular file of at most `limit` bytes. False with a reason when it cannot be
/// read, is no regular file (a FIFO would block, a device never end) or holds more.
WF_API bool readWholeFile(const std::string& path, std::string& bytes, std::string& error,
                          std::size_t limit = static_cast<std::size_t>(-1));

WF_API bool fileExists(const std::string& path);
WF_API bool directoryExists(const std::string& path);
/// The folder part of a path ("." for a bare name).
WF_API std::string parentDirectory(const std::string& path);
/// Creates a folder and its missing parents; true when it exists afterwards.
WF_API bool makeDirectories(const std::string& path);
/// The file a path finally names, following symbolic links (also one whose target does not
/// exist yet); the path itself when it is no link.
WF_API std::string resolveLinks(const std::string& path);
/// True when both paths name the same existing file.
WF_API bool sameFile(const std::string& first, const std::string& second);

/// An exclusive advisory lock beside a file (`PATH.lock`), held for the object's life, so
/// that read-modify-write cycles of several processes on one file do not lose each other's
/// changes. Writers replace the file by renaming, so the lock cannot live on the file itself.
class WF_API TWFFileLock {
public:
    /// Waits for the lock; with waitSeconds >= 0 at most that long, then fails naming the
    /// process that holds it.
    explicit TWFFileLock(const std::string& path, int waitSeconds = -1);
    ~TWFFileLock();
    TWFFileLock(const TWFFileLock&) = delete;
    TWFFileLock& operator=(const TWFFileLock&) = delete;

    /// False with the reason in error() when the lock could not be taken.
    bool locked() const { return m_fd >= 0; }
    const std::string& error() const { return m_error; }

private:
    int m_fd = -1;
    std::string m_error;
};
