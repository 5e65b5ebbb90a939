#include "actions/WFClearCaseGetConfigSpecAction.h"

#include "WFInterrupt.h"

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

/// A file opened for writing from its first byte without truncating it, closed on destruction.
class TClearCaseGetConfigSpecAction::TOutputFile {
public:
    /// A FIFO nobody reads would block the open: an interrupt still ends the wait.
    explicit TOutputFile(const std::string& path) : m_fd(openInterruptibly(path, O_WRONLY | O_CREAT, 0666, m_error)) {}
    ~TOutputFile()
    {
        if (m_fd >= 0)
            ::close(m_fd);
    }
    TOutputFile(const TOutputFile&) = delete;
    TOutputFile& operator=(const TOutputFile&) = delete;

    bool isOpen() const { return m_fd >= 0; }

    /// Writes every byte; false on the first error.
    bool write(const std::string& data)
    {
        std::size_t done = 0;
        while (done < data.size()) {
            const ssize_t n = ::write(m_fd, data.data() + done, data.size() - done);
            if (n < 0 && errno == EINTR)
                continue;
            if (n <= 0)
                return false;
            done += static_cast<std::size_t>(n);
        }
        return true;
    }

private:
    std::string m_error;
    int m_fd;
};

TClearCaseGetConfigSpecAction::TClearCaseGetConfigSpecAction()
{
    PublishViewContextPath();
    PublishUseDefaultViewContext();
    PublishBoolean("OutputToFile", &m_outputToFile);
    PublishString("OutputFilePath", &m_outputFilePath);
}

TClearCaseGetConfigSpecAction::~TClearCaseGetConfigSpecAction() = default;

void TClearCaseGetConfigSpecAction::AfterGetCommandLine()
{
    TClearCaseBaseAction::AfterGetCommandLine();
    m_outputFile.reset();
    // A dry run (validation, a preview) starts no program and writes nothing: opening the file
    // would create it, in whatever folder the checking process happens to be.
    const TWFActionHost* host = GetHost();
    if (!m_outputToFile || (host && host->dryRun))
        return;
    // The path is used as stored, without expansion. An existing file is not truncated: old
    // bytes beyond the new text stay, as the system has always done.
    auto file = std::make_unique<TOutputFile>(m_outputFilePath);
    if (!file->isOpen()) {
        SendMessage("An error occured trying to open the file \"" + m_outputFilePath + "\" for writing");
        return;
    }
    m_outputFile = std::move(file);
}

void TClearCaseGetConfigSpecAction::OnStdOutData(IWFProcess& process, const std::string& data)
{
    TClearCaseBaseAction::OnStdOutData(process, data);
    if (!m_outputToFile || !m_outputFile)
        return;
    if (!m_outputFile->write(data)) {
        SendMessage("An error occured whilst writing to the file. The file could not be written.");
        m_outputFile.reset();
    }
}

bool TClearCaseGetConfigSpecAction::InterpretResult(int exitCode)
{
    if (m_outputToFile)
        m_outputFile.reset();
    return TClearCaseBaseAction::InterpretResult(exitCode);
}
