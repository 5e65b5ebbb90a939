#include "RunnerCommandLine.h"

#include "WFProcess.h"
#include "WFVariables.h"

#include <algorithm>
#include <functional>

namespace {

struct TCommandName {
    std::string_view name;
    TRunnerCommand command;
};

constexpr TCommandName kCommands[] = {
    {"run", TRunnerCommand::Run},         {"validate", TRunnerCommand::Validate},
    {"resave", TRunnerCommand::Resave},   {"actions", TRunnerCommand::Actions},
    {"options", TRunnerCommand::Options}, {"plugins", TRunnerCommand::Plugins},
    {"help", TRunnerCommand::Help},
};

using TApply = std::function<bool(TRunnerArguments&, const std::string& value, std::string& error)>;

/// One option: its spelling, whether it takes a value, the commands that accept it.
struct TOptionRule {
    std::string_view name;
    bool takesValue;
    std::vector<TRunnerCommand> commands;
    TApply apply;
};

bool parseTimeLimitOption(const std::string& option, const std::string& v, std::optional<std::int64_t>& target,
                          std::string& error)
{
    std::int64_t seconds = 0;
    switch (parseTimeLimitSeconds(v, seconds)) {
    case TWFTimeLimitParse::Ok:
        target = seconds;
        return true;
    case TWFTimeLimitParse::TooLong:
        error = option + " " + v + " is longer than the longest time limit, " + std::to_string(kWFMaxTimeLimitSeconds)
            + " seconds (30 days)";
        return false;
    case TWFTimeLimitParse::NotSeconds:
        break;
    }
    return error = option + " expects a whole number of seconds, got \"" + v + "\"", false;
}

const std::vector<TOptionRule>& optionTable()
{
    using C = TRunnerCommand;
    static const std::vector<TOptionRule> table = {
        {"--config-dir", true, {C::Run, C::Validate, C::Options},
         [](TRunnerArguments& a, const std::string& v, std::string& error) {
             if (v.empty())
                 return error = "--config-dir needs a folder", false;
             a.configDir = v;
             return true;
         }},
        {"--set", true, {C::Run, C::Validate},
         [](TRunnerArguments& a, const std::string& v, std::string& error) {
             const auto eq = v.find('=');
             if (eq == std::string::npos || eq == 0)
                 return error = "--set expects NAME=VALUE, got \"" + v + "\"", false;
             if (const std::string problem = variableNameProblem(v.substr(0, eq)); !problem.empty())
                 return error = "--set " + v + ": " + problem, false;
             a.variables.emplace_back(v.substr(0, eq), v.substr(eq + 1));
             return true;
         }},
        {"--log", true, {C::Run},
         [](TRunnerArguments& a, const std::string& v, std::string&) { return a.logFile = v, true; }},
        {"--junit", true, {C::Run},
         [](TRunnerArguments& a, const std::string& v, std::string&) { return a.junitFile = v, true; }},
        {"--dry-run", false, {C::Run},
         [](TRunnerArguments& a, const std::string&, std::string&) { return a.dryRun = true, true; }},
        {"--print-variables", false, {C::Run},
         [](TRunnerArguments& a, const std::string&, std::string&) { return a.printVariables = true, true; }},
        {"--timeout", true, {C::Run},
         [](TRunnerArguments& a, const std::string& v, std::string& error) {
             return parseTimeLimitOption("--timeout", v, a.timeoutSeconds, error);
         }},
        {"--cleanup-timeout", true, {C::Run},
         [](TRunnerArguments& a, const std::string& v, std::string& error) {
             return parseTimeLimitOption("--cleanup-timeout", v, a.cleanupTimeoutSeconds, error);
         }},
        {"--output", true, {C::Resave},
         [](TRunnerArguments& a, const std::string& v, std::string&) { return a.outputFile = v, true; }},
        {"--drop-unknown", false, {C::Resave},
         [](TRunnerArguments& a, const std::string&, std::string&) { return a.dropUnknown = true, true; }},
        {"--plugin", true, {C::Run, C::Validate, C::Resave, C::Actions, C::Plugins, C::Options},
         [](TRunnerArguments& a, const std::string& v, std::string&) { return a.plugins.push_back(v), true; }},
        {"--no-default-plugins", false, {C::Run, C::Validate, C::Resave, C::Actions, C::Plugins, C::Options},
         [](TRunnerArguments& a, const std::string&, std::string&) { return a.noDefaultPlugins = true, true; }},
    };
    return table;
}

bool takesPositionals(TRunnerArguments& a, const std::vector<std::string>& words, std::string& error)
{
    const auto expectCount = [&](std::size_t lowest, std::size_t highest, const char* what) {
        if (words.size() < lowest)
            return error = std::string("missing ") + what, false;
        if (words.size() > highest)
            return error = "unexpected argument \"" + words[highest] + "\"", false;
        return true;
    };
    switch (a.command) {
    case TRunnerCommand::Run:
    case TRunnerCommand::Validate:
    case TRunnerCommand::Resave:
        if (!expectCount(1, 1, "the project file (PROJECT.wfp)"))
            return false;
        a.project = words[0];
        if (a.project.empty())
            return error = "the project file name is empty", false;
        return true;
    case TRunnerCommand::Actions:
    case TRunnerCommand::Plugins:
    case TRunnerCommand::Version:
        return expectCount(0, 0, "");
    case TRunnerCommand::Help:
        if (!expectCount(0, 1, ""))
            return false;
        a.helpTopic = words.empty() ? "" : words[0];
        if (!a.helpTopic.empty() && runnerHelpText(a.helpTopic).empty())
            return error = "no help on \"" + a.helpTopic + "\": it is not a command", false;
        return true;
    case TRunnerCommand::Options:
        if (words.empty() || words[0] == "show") {
            a.optionsVerb = "show";
            return expectCount(0, 1, "");
        }
        if (words[0] != "set")
            return error = "options takes \"show\" or \"set\", not \"" + words[0] + "\"", false;
        a.optionsVerb = "set";
        if (!expectCount(3, 3, "SECTION.KEY and VALUE after \"options set\""))
            return false;
        {
            const auto dot = words[1].find('.');
            if (dot == std::string::npos || dot == 0 || dot + 1 == words[1].size())
                return error = "options set expects SECTION.KEY, got \"" + words[1] + "\"", false;
            a.optionsSection = words[1].substr(0, dot);
            a.optionsKey = words[1].substr(dot + 1);
        }
        a.optionsValue = words[2];
        if (a.optionsValue.find_first_of("\r\n") != std::string::npos)
            return error = "an option value must fit on one line", false;
        return true;
    }
    return true;
}

} // namespace

std::string_view runnerCommandName(TRunnerCommand command)
{
    for (const auto& entry : kCommands)
        if (entry.command == command && command != TRunnerCommand::Help)
            return entry.name;
    return {};
}

bool parseRunnerCommandLine(const std::vector<std::string>& arguments, TRunnerArguments& result, std::string& error)
{
    result = TRunnerArguments();
    if (arguments.empty())
        return error = "no command given", false;
    const std::string& first = arguments[0];
    if (first == "--help" || first == "-h" || first == "--version") {
        result.command = first == "--version" ? TRunnerCommand::Version : TRunnerCommand::Help;
        if (arguments.size() > 1)
            return error = "unexpected argument \"" + arguments[1] + "\"", false;
        return true;
    }
    const auto* named = std::find_if(std::begin(kCommands), std::end(kCommands), [&](const auto& c) { return c.name == first; });
    if (named == std::end(kCommands))
        return error = (first.rfind('-', 0) == 0 ? "unknown option \"" : "unknown command \"") + first + "\"", false;
    result.command = named->command;

    std::vector<std::string> words;
    bool optionsEnded = false;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        const std::string& word = arguments[i];
        if (optionsEnded || word.size() < 2 || word[0] != '-') {
            words.push_back(word);
            continue;
        }
        if (word == "--") {
            optionsEnded = true;
            continue;
        }
        if (word == "--help" || word == "-h") {
            result.helpTopic = std::string(runnerCommandName(result.command));
            result.command = TRunnerCommand::Help;
            return true;
        }
        const auto eq = word.find('=');
        const std::string name = word.substr(0, eq);
        const auto& table = optionTable();
        const auto rule = std::find_if(table.begin(), table.end(), [&](const auto& s) { return s.name == name; });
        const bool accepted = rule != table.end()
            && std::find(rule->commands.begin(), rule->commands.end(), result.command) != rule->commands.end();
        if (!accepted) {
            error = "unknown option \"" + name + "\"";
            if (result.command != TRunnerCommand::Help)
                error += " for \"" + first + "\"";
            return false;
        }
        std::string value;
        if (rule->takesValue) {
            if (eq != std::string::npos) {
                value = word.substr(eq + 1);
            } else if (i + 1 < arguments.size()) {
                value = arguments[++i];
            } else {
                return error = "option " + name + " needs a value", false;
            }
        } else if (eq != std::string::npos) {
            return error = "option " + name + " takes no value", false;
        }
        if (!rule->apply(result, value, error))
            return false;
    }
    return takesPositionals(result, words, error);
}

std::string runnerUsageHint(TRunnerCommand command)
{
    const std::string_view name = runnerCommandName(command);
    if (name.empty())
        return "Try 'wfbuild --help'.";
    return "Try 'wfbuild help " + std::string(name) + "'.";
}

std::string runnerHelpText(std::string_view topic)
{
    static const std::string pluginOptions =
        "  --plugin PATH          also load this plug-in (repeatable)\n"
        "  --no-default-plugins   do not load the plug-ins installed next to wfbuild\n";
    if (topic.empty())
        return "Usage: wfbuild COMMAND [OPTIONS]\n"
               "\n"
               "Runs Wrenfield build projects (.wfp files) without the designer.\n"
               "\n"
               "Commands:\n"
               "  run PROJECT.wfp        run the project's enabled actions in order\n"
               "  validate PROJECT.wfp   check every enabled action without running anything\n"
               "  resave PROJECT.wfp     write the project back in canonical form\n"
               "  actions                list the action types the plug-ins provide\n"
               "  plugins                list the loaded plug-ins with their descriptions\n"
               "  options                show or change the stored options\n"
               "  help [COMMAND]         show this help, or the help of a command\n"
               "\n"
               "Options:\n"
               "  -h, --help             show help (after a command: that command's help)\n"
               "  --version              show the version\n"
               "\n"
               "Plug-ins are loaded from the 'plugins' folder next to wfbuild, from\n"
               "../lib/wrenfield/plugins relative to it, and from every --plugin PATH.\n"
               "\n"
               "Exit status: 0 success, 1 an action failed or is invalid, 2 usage, configuration\n"
               "or project error, 130 interrupted.\n";
    if (topic == "run")
        return "Usage: wfbuild run PROJECT.wfp [OPTIONS]\n"
               "\n"
               "Runs the enabled actions of the project in order and stops at the first one\n"
               "that fails (unless it is marked to continue on failure). When the build fails\n"
               "or is interrupted, the project's clean-up actions run next, each whatever the\n"
               "one before did; a second interrupt ends them. Actions whose program needs no\n"
               "particular folder run in the project file's folder.\n"
               "\n"
               "Options:\n"
               "  --config-dir DIR       read options.ini from DIR instead of the default\n"
               "                         ($WF_CONFIG_DIR, $XDG_CONFIG_HOME/wrenfield, ~/.config/wrenfield)\n"
               "  --set NAME=VALUE       set a build variable (string); repeatable, overrides the project\n"
               "  --log FILE             also write the build log to FILE, exactly as sent\n"
               "  --junit FILE           write a JUnit XML report, one test case per action\n"
               "  --dry-run              prepare every action, log its command line, start nothing\n"
               "  --print-variables      print the build variables as JSON, last line of the output\n"
               "  --timeout SECONDS      stop any action's program after SECONDS (0: no limit);\n"
               "                         default: the project's timeout, else no limit\n"
               "  --cleanup-timeout SECONDS\n"
               "                         after an interrupt, stop the clean-up actions after\n"
               "                         SECONDS (0: no limit); default: the project's, else 60\n"
               + pluginOptions
               + "\n"
                 "Exit status: 0 all actions succeeded, 1 an action failed, 2 usage, configuration\n"
                 "or project error, 130 interrupted (Ctrl-C); the running program is stopped first.\n";
    if (topic == "validate")
        return "Usage: wfbuild validate PROJECT.wfp [OPTIONS]\n"
               "\n"
               "Reads the project and checks every enabled action and clean-up action as a run\n"
               "would, without starting anything. Prints each problem with the action and the\n"
               "place to fix it.\n"
               "\n"
               "Options:\n"
               "  --config-dir DIR       read options.ini from DIR\n"
               "  --set NAME=VALUE       set a build variable (repeatable)\n"
               + pluginOptions
               + "\n"
                 "Exit status: 0 all valid, 1 an action is invalid, 2 the project cannot be read.\n";
    if (topic == "resave")
        return "Usage: wfbuild resave PROJECT.wfp [OPTIONS]\n"
               "\n"
               "Reads the project and writes it back in canonical form (properties in each\n"
               "action's order). A project with errors is refused and left as it is.\n"
               "\n"
               "Options:\n"
               "  --output FILE          write to FILE instead of over the project\n"
               "  --drop-unknown         write even when properties that no action persists would be lost\n"
               + pluginOptions
               + "\n"
                 "Exit status: 0 written, 2 the project has errors or cannot be written.\n";
    if (topic == "actions")
        return "Usage: wfbuild actions [OPTIONS]\n"
               "\n"
               "Lists the action types of the loaded plug-ins in registration order, one per\n"
               "line: type ID, display name and category, separated by tabs.\n"
               "\n"
               "Options:\n"
               + pluginOptions;
    if (topic == "plugins")
        return "Usage: wfbuild plugins [OPTIONS]\n"
               "\n"
               "Lists the loaded plug-ins in load order, one per line: the plug-in's file and\n"
               "the description it gives (empty when it gives none), separated by a tab.\n"
               "\n"
               "Options:\n"
               + pluginOptions;
    if (topic == "options")
        return "Usage: wfbuild options [OPTIONS] [show]\n"
               "       wfbuild options [OPTIONS] set SECTION.KEY VALUE\n"
               "\n"
               "show: prints every option of the loaded plug-ins as Section.Name=value.\n"
               "set:  sets the option Section.Name that show prints to VALUE and stores it\n"
               "      in options.ini, leaving everything else in the file as it was.\n"
               "\n"
               "Options:\n"
               "  --config-dir DIR       use options.ini in DIR\n"
               + pluginOptions;
    if (topic == "help")
        return "Usage: wfbuild help [COMMAND]\n"
               "\n"
               "Shows the help of wfbuild, or of one command.\n";
    return {};
}
