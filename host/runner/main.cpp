#include "RunnerCommands.h"

#include <iostream>

#include <signal.h>

int main(int argc, char** argv)
{
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
