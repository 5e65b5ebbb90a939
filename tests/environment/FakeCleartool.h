#pragma once

#include "environment/WFClearCaseOptions.h"
#include "WFTestSupport.h"

#include <string>
#include <vector>

namespace wftest {

/// A cleartool stand-in in a fresh folder, named by freshly registered ClearCase options. It
/// records every start and answers from the responses given to it. The folder is also the
/// configuration folder (WF_CONFIG_DIR) while the fake lives.
class FakeCleartool {
public:
    FakeCleartool();
    ~FakeCleartool();
    FakeCleartool(const FakeCleartool&) = delete;
    FakeCleartool& operator=(const FakeCleartool&) = delete;

    /// Answers the argument list `arguments` (blank-joined argv) with `output` and `exitCode`.
    void respond(const std::string& arguments, const std::string& output, int exitCode = 0);
    std::vector<Invocation> invocations() const { return readInvocations(m_record); }
    /// Every start as "cwd|arg arg ...", for comparing whole sequences at once.
    std::vector<std::string> calls() const;

    const TempDir& temp() const { return m_temp; }
    const std::string& folder() const { return m_folder; }
    const std::string& program() const { return m_program; }
    IWFClearCaseOptions& options() const;

private:
    TempDir m_temp;
    std::string m_folder;
    std::string m_program;
    std::string m_record;
    std::string m_responsesFile;
    std::string m_responses;
    ScopedEnv m_recordEnv;
    ScopedEnv m_responsesEnv;
    ScopedEnv m_configEnv;
};

} // namespace wftest
