#pragma once

#include <string>
#include <vector>

/// What wfdesigner was started with.
struct TDesignerArguments {
    std::string project;
    std::string configDir;
    std::vector<std::string> plugins;
    /// Load only the --plugin packages, not those beside the program.
    bool noDefaultPlugins = false;
    bool help = false;
    bool version = false;
};

/// Parses the arguments after the program name; false with a reason naming the bad one.
/// Needs no display, so --help and --version work on a headless machine.
bool parseDesignerCommandLine(const std::vector<std::string>& arguments, TDesignerArguments& args, std::string& error);

/// The text --help prints.
std::string designerHelpText();
