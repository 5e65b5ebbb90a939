#include "FakeCleartool.h"

#include "WFServices.h"

#include <stdexcept>

namespace wftest {

FakeCleartool::FakeCleartool()
    : m_folder(m_temp.path() + "/bin")
    , m_program(installFakeProgram(m_folder, cleartoolExecutableName()))
    , m_record(m_temp.file("record.txt"))
    , m_responsesFile(m_temp.write("responses.txt", ""))
    , m_recordEnv("WF_FAKE_RECORD", m_record)
    , m_responsesEnv("WF_FAKE_RESPONSES", m_responsesFile)
    , m_configEnv("WF_CONFIG_DIR", m_temp.path())
{
    WFOptionsServices().Clear();
    RegisterOptions();
    if (!ClearCaseOptions())
        throw std::runtime_error("RegisterOptions left no ClearCase options");
    options().SetClearToolPath(m_program);
}

FakeCleartool::~FakeCleartool()
{
    WFOptionsServices().Clear();
}

void FakeCleartool::respond(const std::string& arguments, const std::string& output, int exitCode)
{
    m_responses += ">>> " + std::to_string(exitCode) + " " + arguments + "\n" + output;
    if (!output.empty() && output.back() != '\n')
        m_responses += "\n";
    m_temp.write("responses.txt", m_responses);
}

std::vector<std::string> FakeCleartool::calls() const
{
    std::vector<std::string> result;
    for (const auto& invocation : invocations()) {
        std::string joined;
        for (const auto& arg : invocation.args)
            joined += (joined.empty() ? "" : " ") + arg;
        result.push_back(invocation.cwd + "|" + joined);
    }
    return result;
}

IWFClearCaseOptions& FakeCleartool::options() const
{
    return *ClearCaseOptions();
}

} // namespace wftest
