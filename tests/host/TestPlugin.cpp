// A package as small as can be: one action that runs a program named by a property.
#include "WFAction.h"
#include "WFServices.h"

namespace {

class TEchoAction final : public TWFExecuteAbstractAction {
public:
    TEchoAction()
    {
        LogOutput = true;
        UseExitCode = true;
        PublishString("Program", [this] { return m_program; }, [this](const std::string& v) { m_program = v; });
        PublishString("Arguments", [this] { return m_arguments; }, [this](const std::string& v) { m_arguments = v; });
    }
    std::string GetActionName() const override { return "Echo"; }
    std::string GetExecutable() override { return m_program; }
    bool GetCommandLine(ICommandLineBuilder& builder) override
    {
        std::string expanded;
        if (!TryExpandExpression("Arguments", m_arguments, expanded, false))
            return false;
        builder.AddArgument(expanded, "", akPlain);
        return true;
    }

private:
    std::string m_program;
    std::string m_arguments;
};

} // namespace

extern "C" __attribute__((visibility("default"))) void WFRegister(bool registerPages)
{
    WFActionServices().RegisterAction("Echo", "Test", WFActionClassOf<TEchoAction>("TEchoAction"), "T_ECHO");
    if (registerPages)
        WFActionServices().RegisterActionPages(WFActionClassOf<TEchoAction>("TEchoAction"), {{"TEchoFrame", {}}});
}
