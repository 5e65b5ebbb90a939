#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

enum class TRunnerCommand { Help, Version, Run, Validate, Resave, Actions, Plugins, Options };

/// Everything the wfbuild command line can say, parsed and checked.
struct TRunnerArguments {
    TRunnerCommand command = TRunnerCommand::Help;
    /// For help: the command asked about; empty for the program's help.
    std::string helpTopic;
    std::string project;
    std::string configDir;
    /// --set NAME=VALUE, in the order given.
    std::vector<std::pair<std::string, std::string>> variables;
    std::string logFile;
    std::string junitFile;
    /// resave --output
    std::string outputFile;
    bool dryRun = false;
    bool printVariables = false;
    bool noDefaultPlugins = false;
    /// resave: write even though the warnings name values that the file will lose.
    bool dropUnknown = false;
    std::optional<std::int64_t> timeoutSeconds;
    std::optional<std::int64_t> cleanupTimeoutSeconds;
    std::vector<std::string> plugins;
    /// options: "show" or "set"; set names SECTION.KEY and VALUE.
    std::string optionsVerb = "show";
    std::string optionsSection;
    std::string optionsKey;
    std::string optionsValue;
};

/// Parses the arguments after the program name. False with a message naming the word that is
/// wrong; `command` is then set as far as it was recognised, for the usage hint.
bool parseRunnerCommandLine(const std::vector<std::string>& arguments, TRunnerArguments& result, std::string& error);

/// The help of the program (empty topic) or of one command; empty for an unknown topic.
std::string runnerHelpText(std::string_view topic);

/// The command's name as typed ("run"); empty for help and version.
std::string_view runnerCommandName(TRunnerCommand command);

/// One line telling the user where to read how to use the command.
std::string runnerUsageHint(TRunnerCommand command);
