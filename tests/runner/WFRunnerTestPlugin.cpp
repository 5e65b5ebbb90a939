// A package for wfbuild's end-to-end tests. Its action runs the test program (or any program
// named in Program) so that a project can make an action pass, fail, print in chunks, hang,
// be refused by validation or fail to build its command line, and its options give
// `wfbuild options` something to show. Variables are set with the host's basic actions.
#include "WFAction.h"
#include "WFOptions.h"
#include "WFServices.h"

#include <cstdlib>
#include <sstream>

namespace {

enum TTestMode { tmRun, tmFailValidation, tmFailCommandLine };
enum TTestLevel { lvLow, lvMedium, lvHigh };

class TTestRunAction final : public TWFExecuteAbstractAction {
public:
    TTestRunAction()
    {
        LogOutput = true;
        UseExitCode = true;
        PublishString("Program", &m_program);
        PublishString("Arguments", &m_arguments);
        PublishString("Environment", &m_environment);
        PublishEnum("Mode", {"tmRun", "tmFailValidation", "tmFailCommandLine"}, &m_mode);
    }

    std::string GetActionName() const override { return "Test Run"; }

    bool Validate(IWFActionValidationError& errors) override
    {
        bool ok = TWFExecuteAbstractAction::Validate(errors);
        if (m_program.empty()) {
            errors.AddError("Program", "No program has been given.");
            ok = false;
        }
        if (m_mode == tmFailValidation) {
            errors.AddError("Test Options", "The action was set to fail validation.");
            ok = false;
        }
        return ok;
    }

    std::string GetExecutable() override { return m_program; }

    bool GetCommandLine(ICommandLineBuilder& builder) override
    {
        if (m_mode == tmFailCommandLine) {
            SendMessage("Error: The action was set to fail its command line.");
            return false;
        }
        std::string arguments;
        if (!TryExpandExpression("Arguments", m_arguments, arguments, false))
            return false;
        if (!arguments.empty())
            builder.AddArgument(arguments, "", akPlain);
        return true;
    }

    void BeforeExecute(ICommandLineBuilder& builder) override
    {
        SendMessage("Command Line: " + builder.GetCommandLineText());
    }

    /// The NAME=VALUE lines of Environment hold for the program this action starts alone.
    bool Execute() override
    {
        std::vector<std::string> names;
        std::istringstream lines(m_environment);
        for (std::string line; std::getline(lines, line);) {
            if (const auto eq = line.find('='); eq != std::string::npos && eq > 0) {
                names.push_back(line.substr(0, eq));
                ::setenv(names.back().c_str(), line.c_str() + eq + 1, 1);
            }
        }
        const bool ok = TWFExecuteAbstractAction::Execute();
        for (const auto& name : names)
            ::unsetenv(name.c_str());
        return ok;
    }

private:
    std::string m_program = WF_TESTAPP_PATH;
    std::string m_arguments;
    std::string m_environment;
    TTestMode m_mode = tmRun;
};

class TTestOptions final : public TWFOptionsObject {
public:
    TTestOptions()
    {
        PublishString("Greeting", &m_greeting);
        PublishBoolean("Verbose", &m_verbose);
        PublishEnum("Level", {"lvLow", "lvMedium", "lvHigh"}, &m_level);
    }

    void SaveOptions(IWFOptionsWriter& writer) override
    {
        for (const auto& property : Properties())
            writer.WriteString(property.name, GetPropertyText(property.name));
    }
    void LoadOptions(IWFOptionsReader& reader) override
    {
        // A stored value this version cannot read leaves the default in place.
        for (const auto& property : Properties())
            SetPropertyText(property.name, reader.ReadString(property.name, GetPropertyText(property.name)));
    }
    std::string GetName() const override { return "Testing"; }
    std::string GetCategory() const override { return "Tests"; }
    std::string GetOptionKey() const override { return "Testing"; }

private:
    std::string m_greeting = "hello";
    bool m_verbose = false;
    TTestLevel m_level = lvLow;
};

} // namespace

extern "C" __attribute__((visibility("default"))) void WFRegister(bool /*registerPages*/)
{
    const TWFOptionsClass options{"TTestOptions", [] { return std::unique_ptr<TWFOptionsObject>(std::make_unique<TTestOptions>()); }};
    WFOptionsServices().RegisterOptionsClass(options, "TEST_LOGO");
    WFScriptingServices().RegisterFunction("TestOptions", "TTestOptions", {}, [] {
        return WFScriptingServices().ObjectToVariant(WFOptionsServices().FindOptions("Tests", "Testing"));
    });
    WFActionServices().RegisterAction("Test Run", "Testing", WFActionClassOf<TTestRunAction>("TTestRunAction"), "TEST_RUN");
}

extern "C" __attribute__((visibility("default"))) const char* WFPackageDescription()
{
    return "Wrenfield 3.x test Support";
}
