#pragma once

#include <string>

#include <sys/types.h>

/// A host-wide request to stop, made when the user interrupts a run. Running programs are
/// stopped with everything they started within a tenth of a second, no further program
/// starts, and waits that are not programs (openInterruptibly) give up. Safe from any thread.
void WFRequestStop();
bool WFStopRequested();
/// Lets programs start again, for a host that runs more than one build.
void WFClearStopRequest();

/// Opens a file as open(2) does, always close-on-exec. Opening a FIFO for writing waits for a
/// reader, which may never come: the wait polls instead of blocking, so a stop request ends it.
/// -1 with a reason in error when the file cannot be opened or the wait was stopped.
int openInterruptibly(const std::string& path, int flags, mode_t mode, std::string& error);
