// A package for wfbuild's end-to-end tests. Its actions run the test program (or any program
// named in Program) so that a project can make an action pass, fail, print in chunks, hang,
// be refused by validation or fail to build its command line, and its options give
// `wfbuild options` something to show.
#include "WFAction.h"
#include "WFOptions.h"
#include "WFServices.h"

#include <cstdlib>
#include <optional>
#include <utility>

namespace {

enum TTestMode { tmRun, tmFailValidation, tmFailCommandLine };
enum TTestLevel { lvLow, lvMedium, lvHigh };

/// Sets NAME=VALUE lines in the environment for a scope, so the program started inside it
/// inherits them; the old values come back at the end.
class TScopedEnvironment {
public:
    explicit TScopedEnvironment(const std::string& lines)
    {
        std::size_t start = 0;
        while (start <= lines.size()) {
            auto end = lines.find_first_of("\r\n", start);
            if (end == std::string::npos)
                end = lines.size();
            const std::string line = lines.substr(start, end - start);
            start = end + 1;
            const auto eq = line.find('=');
            if (eq == std::string::npos || eq == 0)
                continue;
            const std::string name = line.substr(0, eq);
            const char* old = std::getenv(name.c_str());
            m_saved.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
            ::setenv(name.c_str(), line.c_str() + eq + 1, 1);
        }
    }
    ~TScopedEnvironment()
    {
        for (auto it = m_saved.rbegin(); it != m_saved.rend(); ++it) {
            if (it->second)
                ::setenv(it->first.c_str(), it->second->c_str(), 1);
            else
                ::unsetenv(it->first.c_str());
        }
    }
    TScopedEnvironment(const TScopedEnvironment&) = delete;
    TScopedEnvironment& operator=(const TScopedEnvironment&) = delete;

private:
    std::vector<std::pair<std::string, std::optional<std::string>>> m_saved;
};

class TTestRunAction final : public TWFExecuteAbstractAction {
public:
    TTestRunAction()
    {
        LogOutput = true;
        UseExitCode = true;
        PublishString("Program", [this] { return m_program; }, [this](const std::string& v) { m_program = v; });
        PublishString("Arguments", [this] { return m_arguments; }, [this](const std::string& v) { m_arguments = v; });
        PublishString("Environment", [this] { return m_environment; }, [this](const std::string& v) { m_environment = v; });
        PublishEnum("Mode", {"tmRun", "tmFailValidation", "tmFailCommandLine"}, &m_mode);
        PublishBoolean("LogCommandLine", [this] { return m_logCommandLine; }, [this](bool v) { m_logCommandLine = v; });
        PublishString("OutputVariable", [this] { return m_outputVariable; },
                      [this](const std::string& v) { m_outputVariable = v; });
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
        if (m_logCommandLine)
            SendMessage("Command Line: " + builder.GetCommandLineText());
    }

    bool Execute() override
    {
        KeepOutputLines = !m_outputVariable.empty();
        TScopedEnvironment environment(m_environment);
        return TWFExecuteAbstractAction::Execute();
    }

    void OnProcessOutput(const std::vector<std::string>& lines) override
    {
        std::string text;
        for (const auto& line : lines)
            text += (text.empty() ? "" : "\n") + line;
        SetVariable(m_outputVariable, TWFVariant(text));
    }

private:
    std::string m_program = WF_TESTAPP_PATH;
    std::string m_arguments;
    std::string m_environment;
    TTestMode m_mode = tmRun;
    bool m_logCommandLine = true;
    std::string m_outputVariable;
};

/// Sets a build variable without running anything.
class TTestSetVariableAction final : public TCustomWFAction {
public:
    TTestSetVariableAction()
    {
        PublishString("Name", [this] { return m_name; }, [this](const std::string& v) { m_name = v; });
        PublishString("Value", [this] { return m_value; }, [this](const std::string& v) { m_value = v; });
    }

    std::string GetActionName() const override { return "Test Set Variable"; }

    bool Validate(IWFActionValidationError& errors) override
    {
        if (!m_name.empty())
            return true;
        errors.AddError("Variable", "No variable name has been given.");
        return false;
    }

    bool Execute() override
    {
        std::string value;
        if (!TryExpandExpression("Value", m_value, value, false))
            return false;
        SetVariable(m_name, TWFVariant(value));
        SendMessage("Set " + m_name + " to \"" + value + "\"");
        return true;
    }

private:
    std::string m_name;
    std::string m_value;
};

class TTestOptions final : public TWFOptionsObject {
public:
    TTestOptions()
    {
        PublishString("Greeting", [this] { return m_greeting; }, [this](const std::string& v) { m_greeting = v; });
        PublishBoolean("Verbose", [this] { return m_verbose; }, [this](bool v) { m_verbose = v; });
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
    WFActionServices().RegisterAction("Test Set Variable", "Testing",
                                      WFActionClassOf<TTestSetVariableAction>("TTestSetVariableAction"), "TEST_SETVAR");
}

extern "C" __attribute__((visibility("default"))) const char* WFPackageDescription()
{
    return "Wrenfield 3.x test Support";
}
