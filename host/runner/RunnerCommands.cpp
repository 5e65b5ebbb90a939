#include "RunnerCommands.h"

#include "BuildRunner.h"
#include "ConsoleLog.h"
#include "Interrupts.h"
#include "RunnerCommandLine.h"
#include "RunnerPlugins.h"

#include "WFFiles.h"
#include "WFIniFile.h"
#include "WFPluginLoader.h"
#include "WFProject.h"
#include "WFServices.h"
#include "WFVariables.h"

#include <algorithm>
#include <exception>
#include <filesystem>
#include <ostream>
#include <string>
#include <string_view>

namespace {

/// A field of a tab-separated listing as text that cannot break the listing or the terminal: a
/// backslash, tab, line break, escape or other control character comes out as a C escape.
std::string listingField(std::string_view text)
{
    static const char* const kHex = "0123456789abcdef";
    std::string result;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        switch (c) {
        case '\\': result += "\\\\"; break;
        case '\t': result += "\\t"; break;
        case '\n': result += "\\n"; break;
        case '\r': result += "\\r"; break;
        default:
            if (byte < 0x20 || byte == 0x7f)
                result += std::string("\\x") + kHex[byte >> 4] + kHex[byte & 15];
            else
                result += c;
        }
    }
    return result;
}

class TCommandContext {
public:
    TCommandContext(const TRunnerArguments& arguments, std::ostream& out, std::ostream& err)
        : args(arguments), out(out), err(err)
    {
    }

    int fail(const std::string& message, int status = kExitUsage) const
    {
        err << "wfbuild: " << message << std::endl;
        problems.push_back(message);
        return status;
    }

    bool loadPlugins() const
    {
        std::string error;
        if (loadRunnerPlugins(!args.noDefaultPlugins, args.plugins, error))
            return true;
        fail(error);
        return false;
    }

    void useConfigDirectory() const
    {
        if (!args.configDir.empty())
            SetWFConfigDirectory(args.configDir);
    }

    /// Loads options.ini into the options the plug-ins registered.
    bool loadOptions() const
    {
        useConfigDirectory();
        std::string error;
        if (WFOptionsServices().Load(GetWFOptionsFileName(), error))
            return true;
        fail("cannot read the options: " + error);
        return false;
    }

    /// Reads the project, printing every diagnostic; false on errors. hadWarnings tells whether
    /// any were printed; with it, what a save would lose (comments) is among them.
    bool readProject(TWFProject& project, bool* hadWarnings = nullptr) const
    {
        std::vector<TWFProjectDiagnostic> diagnostics;
        std::string text;
        const bool ok = ReadProjectFile(args.project, project, diagnostics, &text);
        if (ok && hadWarnings) {
            const auto lost = ProjectMarkupLostOnSave(text, args.project);
            diagnostics.insert(diagnostics.end(), lost.begin(), lost.end());
        }
        for (const auto& diagnostic : diagnostics) {
            err << diagnostic.ToString() << std::endl;
            if (diagnostic.isError)
                problems.push_back(diagnostic.ToString());
        }
        if (hadWarnings)
            *hadWarnings = std::any_of(diagnostics.begin(), diagnostics.end(), [](const auto& d) { return !d.isError; });
        if (!ok)
            fail("the project \"" + args.project + "\" could not be read; nothing was done.");
        return ok;
    }

    /// What run and validate share: the plug-ins, the options, the project and its variables
    /// with the --set values on top.
    bool prepareBuild(TWFProject& project, TWFBuildVariables& variables) const
    {
        if (!loadPlugins() || !loadOptions() || !readProject(project))
            return false;
        project.DefineVariables(variables);
        for (const auto& [name, value] : args.variables)
            variables.Set(name, TWFVariant(value));
        return true;
    }

    std::string projectDirectory() const
    {
        return std::filesystem::absolute(args.project).lexically_normal().parent_path().string();
    }

    /// The report's suite for this project, without cases.
    TJUnitSuite reportSuite(const std::string& timestamp) const
    {
        return {std::filesystem::path(args.project).filename().string(), timestamp, junitHostname(), {}, {}};
    }

    /// Writes the --junit report, if asked for, with each case's class name in the project's
    /// name, so that several projects of one job stay apart.
    bool writeReport(TJUnitSuite suite, std::string& error) const
    {
        if (args.junitFile.empty())
            return true;
        std::string prefix = std::filesystem::path(args.project).stem().string();
        // A dot separates packages in a class name.
        std::replace(prefix.begin(), prefix.end(), '.', '_');
        for (auto& c : suite.cases)
            c.className = prefix + "." + c.className;
        return writeFileAtomically(args.junitFile, renderJUnitReport(suite), error);
    }

    /// A run that could not start still replaces the report, with one case naming the problem,
    /// so that a report never speaks of an earlier run. Returns the usage status.
    int reportNotRun(const std::string& timestamp) const
    {
        if (args.junitFile.empty() || sameFile(args.junitFile, args.project))
            return kExitUsage;
        TJUnitSuite suite = reportSuite(timestamp);
        TJUnitCase problem{"0 Project", "wfbuild", 0, TJUnitCase::Outcome::Error, {}, {}, {}};
        problem.message = problems.empty() ? "the run could not start" : problems.front();
        for (const auto& line : problems)
            problem.log += line + "\n";
        suite.cases.push_back(std::move(problem));
        if (std::string error; !writeReport(std::move(suite), error))
            err << "wfbuild: cannot write the JUnit report: " << error << std::endl;
        return kExitUsage;
    }

    const TRunnerArguments& args;
    std::ostream& out;
    std::ostream& err;
    /// Every error printed so far, for the report of a run that could not start.
    mutable std::vector<std::string> problems;
};

int commandRun(const TCommandContext& c)
{
    const std::string timestamp = junitTimestamp();
    TWFProject project;
    TWFBuildVariables variables;
    if (!c.prepareBuild(project, variables))
        return c.reportNotRun(timestamp);
    for (const auto& [option, path] : {std::pair{"--log", c.args.logFile}, std::pair{"--junit", c.args.junitFile}})
        if (!path.empty() && sameFile(path, c.args.project)) {
            c.fail(std::string(option) + " " + path + " names the project itself; nothing was run.");
            return c.reportNotRun(timestamp);
        }
    TConsoleLog log(c.out, c.err);
    if (std::string error; !c.args.logFile.empty() && !log.OpenLogFile(c.args.logFile, error)) {
        c.fail(error);
        return c.reportNotRun(timestamp);
    }

    TRunSettings settings;
    settings.projectDirectory = c.projectDirectory();
    settings.dryRun = c.args.dryRun;
    settings.timeoutSeconds = c.args.timeoutSeconds.value_or(project.timeoutSeconds);
    settings.cleanupTimeoutSeconds = c.args.cleanupTimeoutSeconds.value_or(
        project.cleanupTimeoutSeconds.value_or(TRunSettings::kDefaultCleanupTimeoutSeconds));

    TBuildRunner runner(log, c.out, c.err);
    int status = kExitSuccess;
    {
        TInterruptWatcher watcher([&runner](int) { runner.Interrupt(); });
        status = runner.Run(project, variables, settings);
    }
    TJUnitSuite suite = c.reportSuite(timestamp);
    for (const auto& [name, value] : variables.All())
        suite.properties.emplace_back(name, value.toString());
    suite.cases = runner.Cases();
    if (std::string error; !c.writeReport(std::move(suite), error))
        log.NoteWriteFailure("cannot write the JUnit report: " + error);
    log.Flush();
    runner.ReportSuccess();
    if (c.args.printVariables)
        c.out << variables.ToJson() << std::endl;
    log.Flush();
    if (!log.WriteFailure().empty()) {
        // Whatever the actions did, the record of the run is incomplete: the run cannot pass.
        c.fail(log.WriteFailure());
        if (status != kExitInterrupted)
            status = kExitUsage;
    }
    return status;
}

int commandValidate(const TCommandContext& c)
{
    TWFProject project;
    TWFBuildVariables variables;
    if (!c.prepareBuild(project, variables))
        return kExitUsage;
    TConsoleLog log(c.out, c.err);
    TWFActionHost host;
    host.log = &log;
    host.variables = &variables;
    host.defaultStartingDir = c.projectDirectory();
    host.functions = WFScriptingServices().Resolver();

    std::size_t invalid = 0;
    const std::size_t checked = validateProject(project, host, [&](const TActionValidation& action) {
        ++invalid;
        for (const auto& error : action.errors)
            c.out << (action.cleanup ? "Clean-up action " : "Action ") << action.index + 1 << " (" << action.title << "): " << error.ToString() << std::endl;
    });
    if (invalid) {
        c.out << c.args.project << ": " << invalid << " of " << checked << " enabled actions are not valid." << std::endl;
        return kExitFailed;
    }
    c.out << c.args.project << ": all " << checked << " enabled actions are valid." << std::endl;
    return kExitSuccess;
}

int commandResave(const TCommandContext& c)
{
    if (!c.loadPlugins())
        return kExitUsage;
    TWFProject project;
    bool hadWarnings = false;
    if (!c.readProject(project, &hadWarnings))
        return kExitUsage;
    if (hadWarnings && !c.args.dropUnknown)
        return c.fail("resaving would lose what the warnings above name; nothing was written"
                      " (--drop-unknown accepts the loss).");
    const std::string target = c.args.outputFile.empty() ? c.args.project : c.args.outputFile;
    std::string error;
    if (!WriteProjectFile(target, project, error))
        return c.fail(error);
    c.out << "Wrote " << target << std::endl;
    return kExitSuccess;
}

int commandActions(const TCommandContext& c)
{
    if (!c.loadPlugins())
        return kExitUsage;
    for (const auto& entry : WFActionServices().Catalogue())
        c.out << listingField(entry.typeId) << '\t' << listingField(entry.displayName) << '\t' << listingField(entry.category) << '\n';
    c.out.flush();
    return kExitSuccess;
}

int commandPlugins(const TCommandContext& c)
{
    if (!c.loadPlugins())
        return kExitUsage;
    for (const auto& plugin : WFLoadedPlugins())
        c.out << listingField(plugin.path) << '\t' << listingField(plugin.description) << '\n';
    c.out.flush();
    return kExitSuccess;
}

/// "Section.Name" of every option, as `options show` prints them.
std::string optionNames(const TWFOptionsObject& options)
{
    std::string names;
    for (const auto& property : options.Properties())
        names += (names.empty() ? "" : ", ") + options.GetOptionKey() + "." + property.name;
    return names;
}

int commandOptionsSet(const TCommandContext& c)
{
    const std::string& section = c.args.optionsSection;
    const std::string& name = c.args.optionsKey;
    const std::string option = section + "." + name;
    const auto all = WFOptionsServices().AllOptions();
    const auto owner = std::find_if(all.begin(), all.end(), [&](auto* o) { return o->GetOptionKey() == section; });
    if (owner == all.end()) {
        std::string sections;
        for (const auto* options : all)
            sections += (sections.empty() ? "" : ", ") + options->GetOptionKey();
        return c.fail("there is no option " + option + ": no loaded plug-in has options named " + section
                      + " (options of: " + (sections.empty() ? "none" : sections) + "); nothing was written.");
    }
    if (!(*owner)->FindProperty(name))
        return c.fail("there is no option " + option + " (the options are " + optionNames(**owner)
                      + ", as `wfbuild options show` prints them); nothing was written.");
    const std::string path = GetWFOptionsFileName();
    std::string error;
    if (!WFOptionsServices().SetOption(path, **owner, name, c.args.optionsValue, error))
        return c.fail(option + ": " + error + "; nothing was written.");
    c.out << "Set " << option << " in " << path << std::endl;
    return kExitSuccess;
}

int commandOptions(const TCommandContext& c)
{
    if (!c.loadPlugins() || !c.loadOptions())
        return kExitUsage;
    if (c.args.optionsVerb == "set")
        return commandOptionsSet(c);
    for (const auto* options : WFOptionsServices().AllOptions())
        for (const auto& property : options->Properties())
            c.out << options->GetOptionKey() << '.' << property.name << '=' << options->GetPropertyText(property.name)
                  << '\n';
    c.out.flush();
    return kExitSuccess;
}

} // namespace

int runWfbuild(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& err)
{
    TRunnerArguments args;
    std::string error;
    if (!parseRunnerCommandLine(arguments, args, error)) {
        err << "wfbuild: " << error << "\n" << runnerUsageHint(args.command) << std::endl;
        return kExitUsage;
    }
    const TCommandContext context(args, out, err);
    try {
        switch (args.command) {
        case TRunnerCommand::Help:
            out << runnerHelpText(args.helpTopic) << std::flush;
            return kExitSuccess;
        case TRunnerCommand::Version:
            out << "wfbuild " << WF_VERSION << std::endl;
            return kExitSuccess;
        case TRunnerCommand::Run:
            return commandRun(context);
        case TRunnerCommand::Validate:
            return commandValidate(context);
        case TRunnerCommand::Resave:
            return commandResave(context);
        case TRunnerCommand::Actions:
            return commandActions(context);
        case TRunnerCommand::Plugins:
            return commandPlugins(context);
        case TRunnerCommand::Options:
            return commandOptions(context);
        }
    } catch (const std::exception& e) {
        return context.fail(std::string("unexpected error: ") + e.what());
    }
    return kExitUsage;
}
