#pragma once

#include "DesignerCommandLine.h"

#include <QString>

/// Takes the configuration folder, loads the packages with their pages (as wfbuild loads them,
/// from beside the program and each --plugin) and the options from options.ini. False with
/// a reason naming what failed.
bool prepareDesigner(const TDesignerArguments& args, QString& error);

/// The designer's settings file in the configuration folder.
QString designerSettingsFile();

/// The whole program; parses the arguments before any window system is touched, so --help and
/// --version work without a display.
int runDesigner(int argc, char** argv);
