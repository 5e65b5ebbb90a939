#include "RunnerCommands.h"

#include <cerrno>
#include <iostream>

#include <fcntl.h>
#include <signal.h>
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
    // A reader of our output that goes away, or a log that reaches the file size limit, must
    // not kill wfbuild with its programs still running: the write fails and is reported.
    ::signal(SIGPIPE, SIG_IGN);
    ::signal(SIGXFSZ, SIG_IGN);
    // wfbuild writes through iostreams only; unsynchronised they buffer without stdio's locks.
    std::ios::sync_with_stdio(false);
    int status = runWfbuild(std::vector<std::string>(argv + 1, argv + argc), std::cout, std::cerr);
    if (!std::cout.flush()) {
        std::cerr << "wfbuild: standard output could not be written (its reader went away or its disk is full)"
                  << std::endl;
        if (status == kExitSuccess || status == kExitFailed)
            status = kExitUsage;
    }
    return status;
}
