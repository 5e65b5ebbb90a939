#pragma once

#include <QIcon>
#include <QString>

/// Where an action stands in the current or last run.
enum class TRunStatus { None, Waiting, Running, Succeeded, Failed, Stopped, Skipped };

/// The 16x16 bitmap a package carries under the name (an action's type ID, an options icon);
/// a plain placeholder when no loaded package has it.
QIcon packageIcon(const std::string& resourceName);
/// A small coloured mark per run status; null for None.
QIcon statusIcon(TRunStatus status);
QString statusText(TRunStatus status);
