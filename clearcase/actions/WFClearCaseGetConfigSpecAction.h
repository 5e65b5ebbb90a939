#pragma once

#include "core/WFClearCaseExport.h"
#include "actions/WFClearCaseBaseAction.h"

#include <memory>
#include <string>

/// "ClearCase Get Config Spec": cleartool catcs, its output optionally copied into a file.
class WF_CC_API TClearCaseGetConfigSpecAction : public TClearCaseBaseAction {
public:
    TClearCaseGetConfigSpecAction();
    ~TClearCaseGetConfigSpecAction() override;

    std::string GetCommand() override { return "catcs"; }
    /// Opens the output file (an existing one without truncating it); a failure is logged
    /// and the command runs without a file.
    void AfterGetCommandLine() override;
    /// The host's handling, then the data appended to the file byte for byte.
    void OnStdOutData(IWFProcess& process, const std::string& data) override;
    /// Closes the file, then the host's interpretation of the exit code.
    bool InterpretResult(int exitCode) override;

    bool GetOutputToFile() const { return m_outputToFile; }
    void SetOutputToFile(bool value) { m_outputToFile = value; }
    std::string GetOutputFilePath() const { return m_outputFilePath; }
    void SetOutputFilePath(const std::string& value) { m_outputFilePath = value; }

private:
    class TOutputFile;

    bool m_outputToFile = false;
    std::string m_outputFilePath;
    /// Open only between the command-line step and the interpretation of the result.
    std::unique_ptr<TOutputFile> m_outputFile;
};
