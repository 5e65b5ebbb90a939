#pragma once

/// Exit statuses of wfbuild.
enum : int {
    kExitSuccess = 0,
    /// An action failed.
    kExitFailed = 1,
    /// Usage, configuration, project or output error (a log, report or console write that failed).
    kExitUsage = 2,
    kExitInterrupted = 130,
};
