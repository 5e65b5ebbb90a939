#include "RowName.h"
#include "RunnerCommandLine.h"

#include <gtest/gtest.h>

namespace {

/// The parsed arguments in one line, so a row states all of them at once.
std::string describe(const TRunnerArguments& a)
{
    std::string text = std::string(runnerCommandName(a.command));
    if (a.command == TRunnerCommand::Help)
        text = "help[" + a.helpTopic + "]";
    if (a.command == TRunnerCommand::Version)
        text = "version";
    const auto add = [&](const std::string& field) { text += " " + field; };
    for (const auto& [field, value] : {std::pair<std::string, std::string>{"project=", a.project}, {"config=", a.configDir},
                                       {"log=", a.logFile}, {"junit=", a.junitFile}, {"output=", a.outputFile}}) {
        if (!value.empty())
            add(field + value);
    }
    for (const auto& [name, value] : a.variables)
        add("set:" + name + "=" + value);
    for (const auto& [flag, on] : {std::pair{"dry-run", a.dryRun}, {"print-variables", a.printVariables},
                                   {"no-default-plugins", a.noDefaultPlugins}, {"drop-unknown", a.dropUnknown}}) {
        if (on)
            add(flag);
    }
    if (a.timeoutSeconds)
        add("timeout=" + std::to_string(*a.timeoutSeconds));
    if (a.cleanupTimeoutSeconds)
        add("cleanup-timeout=" + std::to_string(*a.cleanupTimeoutSeconds));
    for (const auto& plugin : a.plugins)
        add("plugin=" + plugin);
    if (a.command == TRunnerCommand::Options)
        add(a.optionsVerb + (a.optionsVerb == "set" ? " [" + a.optionsSection + "][" + a.optionsKey + "]=" + a.optionsValue : ""));
    return text;
}

struct ParseCase {
    std::vector<std::string> arguments;
    /// describe() of the result, or "error: " and the message.
    std::string expected;
};
WF_ROW_PRINTER_AS(ParseCase, wftest::rowName(row.arguments))

class ParseRunnerCommandLine : public ::testing::TestWithParam<ParseCase> {};

TEST_P(ParseRunnerCommandLine, Parses)
{
    TRunnerArguments result;
    std::string error;
    const bool ok = parseRunnerCommandLine(GetParam().arguments, result, error);
    EXPECT_EQ(ok ? describe(result) : "error: " + error, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ParseRunnerCommandLine,
    ::testing::Values(
        ParseCase{{"run", "p.wfp"}, "run project=p.wfp"},
        ParseCase{{"run", "--dry-run", "p.wfp", "--set", "A=1", "--set=B=x=y", "--log", "l", "--junit=j.xml",
                   "--print-variables", "--timeout", "0", "--plugin", "a.so", "--plugin=b.so", "--config-dir", "c"},
                  "run project=p.wfp config=c log=l junit=j.xml set:A=1 set:B=x=y dry-run print-variables timeout=0 "
                  "plugin=a.so plugin=b.so"},
        ParseCase{{"run", "--", "-odd.wfp"}, "run project=-odd.wfp"},
        ParseCase{{"run", "p.wfp", "-"}, "error: unexpected argument \"-\""},
        ParseCase{{"validate"}, "error: missing the project file (PROJECT.wfp)"},
        ParseCase{{"validate", ""}, "error: the project file name is empty"},
        ParseCase{{"run", "p.wfp", "--log"}, "error: option --log needs a value"},
        ParseCase{{"options", "set", "Testing.Level"}, "error: missing SECTION.KEY and VALUE after \"options set\""},
        ParseCase{{"run", "p.wfp", "--timeout", "-1"}, "error: --timeout expects a whole number of seconds, got \"-1\""},
        ParseCase{{"run", "p.wfp", "--timeout", "5s"}, "error: --timeout expects a whole number of seconds, got \"5s\""},
        ParseCase{{"run", "p.wfp", "--timeout", "2592000"}, "run project=p.wfp timeout=2592000"},
        ParseCase{{"run", "p.wfp", "--cleanup-timeout", "0"}, "run project=p.wfp cleanup-timeout=0"},
        ParseCase{{"run", "p.wfp", "--timeout", "4294968"},
                  "error: --timeout 4294968 is longer than the longest time limit, 2592000 seconds (30 days)"},
        ParseCase{{"run", "p.wfp", "--timeout", "99999999999999999999"},
                  "error: --timeout 99999999999999999999 is longer than the longest time limit, 2592000 seconds (30 days)"},
        ParseCase{{"run", "p.wfp", "--set", "NOEQUALS"}, "error: --set expects NAME=VALUE, got \"NOEQUALS\""},
        ParseCase{{"run", "p.wfp", "--set", "A B=1"},
                  "error: --set A B=1: \"A B\" cannot name a variable: %NAME% expressions cannot reach a name holding "
                  "a blank, a control character or %"},
        ParseCase{{"run", "p.wfp", "--set", "%A%=1"},
                  "error: --set %A%=1: \"%A%\" cannot name a variable: %NAME% expressions cannot reach a name holding "
                  "a blank, a control character or %"},
        ParseCase{{"run", "p.wfp", "--dry-run=yes"}, "error: option --dry-run takes no value"},
        ParseCase{{"run", "p.wfp", "--config-dir="}, "error: --config-dir needs a folder"},
        ParseCase{{"validate", "p.wfp", "--set", "A=", "--no-default-plugins"}, "validate project=p.wfp set:A= no-default-plugins"},
        ParseCase{{"validate", "p.wfp", "--log", "x"}, "error: unknown option \"--log\" for \"validate\""},
        ParseCase{{"resave", "p.wfp", "--output", "o.wfp", "--drop-unknown"}, "resave project=p.wfp output=o.wfp drop-unknown"},
        ParseCase{{"actions"}, "actions"},
        ParseCase{{"actions", "extra"}, "error: unexpected argument \"extra\""},
        ParseCase{{"options"}, "options show"},
        ParseCase{{"options", "show", "--config-dir", "c"}, "options config=c show"},
        ParseCase{{"options", "set", "A.B.C", "/opt/x y"}, "options set [A][B.C]=/opt/x y"},
        ParseCase{{"options", "set", ".Key", "v"}, "error: options set expects SECTION.KEY, got \".Key\""},
        ParseCase{{"options", "set", "Section.", "v"}, "error: options set expects SECTION.KEY, got \"Section.\""},
        ParseCase{{"options", "set", "A.B", "two\nlines"}, "error: an option value must fit on one line"},
        ParseCase{{"options", "clear"}, "error: options takes \"show\" or \"set\", not \"clear\""},
        ParseCase{{"options", "show", "more"}, "error: unexpected argument \"more\""},
        ParseCase{{"help"}, "help[]"},
        ParseCase{{"help", "resave"}, "help[resave]"},
        ParseCase{{"resave", "-h"}, "help[resave]"},
        ParseCase{{"options", "--help"}, "help[options]"},
        ParseCase{{"-h"}, "help[]"},
        ParseCase{{"--version"}, "version"},
        ParseCase{{"--version", "run"}, "error: unexpected argument \"run\""},
        ParseCase{{"--verbose"}, "error: unknown option \"--verbose\""},
        ParseCase{{"build"}, "error: unknown command \"build\""},
        ParseCase{{}, "error: no command given"}),
    // Some rows differ in punctuation alone, so the row's number keeps the names apart.
    [](const auto& info) { return "Row" + std::to_string(info.index) + "_" + wftest::rowName(info.param.arguments); });

TEST(RunnerHelp, EveryCommandHasHelpNamingItsUsage)
{
    for (const char* command : {"run", "validate", "resave", "actions", "options", "help"})
        EXPECT_EQ(runnerHelpText(command).rfind(std::string("Usage: wfbuild ") + command, 0), 0u) << command;
    EXPECT_EQ(runnerHelpText("nonsense"), "");
}

} // namespace
