#include "RunnerCommands.h"

#include <cerrno>
#include <iostream>

#include <fcntl.h>
#include <unistd.h>

namespace {

/// A caller that closed a standard descriptor (`>&-`) would have the next file opened take
/// its number: the log file would become standard output and receive every line twice. Each
/// missing one is filled with /dev/null before anything is opened.
void ensureStandardDescriptors()
{
    for (int fd = 0; fd <= 2; ++fd) {
        if (::fcntl(fd, F_GETFD) != -1 || errno != EBADF)
            continue;
        // open() returns the lowest free number, which is this one.
        if (::open("/dev/null", fd == 0 ? O_RDONLY : O_WRONLY) != fd)
            ::_exit(kExitUsage);
    }
}

} // namespace

int main(int argc, char** argv)
{
    ensureStandardDescriptors();
    // wfbuild writes through iostreams only; unsynchronised they buffer without stdio's locks.
    std::ios::sync_with_stdio(false);
    return runWfbuild(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
}
