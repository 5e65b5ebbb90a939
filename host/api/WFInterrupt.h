#pragma once

#include "WFExport.h"

#include <atomic>
#include <string>

#include <sys/types.h>

/// A run's request to stop, made when the user interrupts it. While a scope is alive on a
/// thread, programs started there are stopped with everything they started within a tenth of a
/// second once `request` is set, no further program starts there, and waits that are not
/// programs (openInterruptibly) give up. Other threads (the designer's queries) are untouched.
class WF_API TWFStopScope {
public:
    explicit TWFStopScope(const std::atomic<bool>& request);
    ~TWFStopScope();
    TWFStopScope(const TWFStopScope&) = delete;
    TWFStopScope& operator=(const TWFStopScope&) = delete;

private:
    const std::atomic<bool>* m_previous;
};
/// Whether the run on the calling thread was asked to stop; false outside a run.
WF_API bool WFStopRequested();

/// Opens a file as open(2) does, always close-on-exec. Opening a FIFO for writing waits for a
/// reader, which may never come: the wait polls instead of blocking, so a stop request ends it.
/// -1 with a reason in error when the file cannot be opened or the wait was stopped.
WF_API int openInterruptibly(const std::string& path, int flags, mode_t mode, std::string& error);
