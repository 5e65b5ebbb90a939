#include "DesignerCommandLine.h"

bool parseDesignerCommandLine(const std::vector<std::string>& arguments, TDesignerArguments& args, std::string& error)
{
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string& arg = arguments[i];
        const auto value = [&](std::string& target) {
            if (i + 1 >= arguments.size() || arguments[i + 1].empty()) {
                error = arg + " needs a value";
                return false;
            }
            target = arguments[++i];
            return true;
        };
        if (arg == "-h" || arg == "--help") {
            args.help = true;
        } else if (arg == "--version") {
            args.version = true;
        } else if (arg == "--config-dir") {
            if (!value(args.configDir))
                return false;
        } else if (arg == "--plugin") {
            std::string path;
            if (!value(path))
                return false;
            args.plugins.push_back(path);
        } else if (arg == "--no-default-plugins") {
            args.noDefaultPlugins = true;
        } else if (arg.size() > 1 && arg[0] == '-') {
            error = "unknown option \"" + arg + "\"";
            return false;
        } else if (!args.project.empty()) {
            error = "only one project can be opened, not also \"" + arg + "\"";
            return false;
        } else {
            args.project = arg;
        }
    }
    return true;
}

std::string designerHelpText()
{
    return "Usage: wfdesigner [PROJECT.wfp] [--config-dir DIR] [--plugin PATH]...\n"
           "Edit, validate and run Wrenfield build projects.\n"
           "\n"
           "  PROJECT.wfp           the project to open\n"
           "  --config-dir DIR      the configuration folder (options.ini, user.ini, the designer's\n"
           "                        settings); default $WF_CONFIG_DIR, else ~/.config/wrenfield\n"
           "  --plugin PATH         load this package too (repeatable)\n"
           "  --no-default-plugins  load only the --plugin packages\n"
           "  -h, --help            this text\n"
           "  --version             the version\n";
}
