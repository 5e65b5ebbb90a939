#include "RunController.h"

#include "BuildRunner.h"
#include "ConsoleLog.h"

#include "WFProject.h"
#include "WFVariables.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <functional>
#include <ostream>
#include <streambuf>

namespace {

/// A stream buffer that hands over each complete line.
class TLineBuffer final : public std::streambuf {
public:
    explicit TLineBuffer(std::function<void(const std::string&)> onLine) : m_onLine(std::move(onLine)) {}
    ~TLineBuffer() override
    {
        if (!m_line.empty())
            m_onLine(m_line);
    }

protected:
    int_type overflow(int_type c) override
    {
        if (c != traits_type::eof())
            put(static_cast<char>(c));
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        for (std::streamsize i = 0; i < count; ++i)
            put(text[i]);
        return count;
    }

private:
    void put(char c)
    {
        if (c == '\n') {
            m_onLine(m_line);
            m_line.clear();
        } else {
            m_line += c;
        }
    }

    std::function<void(const std::string&)> m_onLine;
    std::string m_line;
};

TRunStatus statusOf(TJUnitCase::Outcome outcome)
{
    switch (outcome) {
    case TJUnitCase::Outcome::Passed:
        return TRunStatus::Succeeded;
    case TJUnitCase::Outcome::Failed:
    case TJUnitCase::Outcome::Error:
        return TRunStatus::Failed;
    case TJUnitCase::Outcome::Skipped:
        return TRunStatus::Skipped;
    }
    return TRunStatus::None;
}

} // namespace

struct TRunController::TRun {
    TRun(TRunController& owner)
        : outBuffer([&owner](const std::string& line) { owner.post([&owner, text = QString::fromStdString(line)] { emit owner.logLine(text, false); }); }),
          errBuffer([&owner](const std::string& line) { owner.post([&owner, text = QString::fromStdString(line)] { emit owner.logLine(text, true); }); }),
          out(&outBuffer), err(&errBuffer), log(out, err), runner(log, out, err)
    {
    }
    TLineBuffer outBuffer;
    TLineBuffer errBuffer;
    std::ostream out;
    std::ostream err;
    TConsoleLog log;
    TBuildRunner runner;
    TWFProject project;
    TWFBuildVariables variables;
    TRunSettings settings;
    int first = 0;
    int status = 0;
    QThread* thread = nullptr;
};

TRunController::TRunController(QObject* parent) : QObject(parent) {}

TRunController::~TRunController()
{
    if (m_run) {
        m_run->runner.Interrupt();
        m_run->thread->wait();
    }
}

void TRunController::post(std::function<void()> call)
{
    QMetaObject::invokeMethod(this, std::move(call), Qt::QueuedConnection);
}

bool TRunController::start(const std::string& projectText, const QString& projectPath, int first, bool dryRun, QString& error)
{
    if (m_run) {
        error = tr("A run is going on.");
        return false;
    }
    auto run = std::make_unique<TRun>(*this);
    std::vector<TWFProjectDiagnostic> diagnostics;
    if (!ReadProjectText(projectText, projectPath.toStdString(), run->project, diagnostics)) {
        error = diagnostics.empty() ? tr("The project cannot be run.") : QString::fromStdString(diagnostics.front().ToString());
        return false;
    }
    first = std::clamp(first, 0, static_cast<int>(run->project.actions.size()));
    run->project.actions.erase(run->project.actions.begin(), run->project.actions.begin() + first);
    run->first = first;
    run->project.DefineVariables(run->variables);
    run->settings.projectDirectory =
        projectPath.isEmpty() ? QDir::currentPath().toStdString() : QFileInfo(projectPath).absolutePath().toStdString();
    run->settings.dryRun = dryRun;
    run->settings.timeoutSeconds = run->project.timeoutSeconds;
    run->runner.SetWatcher({[this, first](std::size_t index) {
                                post([this, row = first + static_cast<int>(index)] { emit actionStarted(row); });
                            },
                            [this, first](std::size_t index, const TJUnitCase& result) {
                                post([this, row = first + static_cast<int>(index), status = statusOf(result.outcome),
                                      seconds = result.seconds, message = QString::fromStdString(result.message)] {
                                    emit actionFinished(row, status, seconds, message);
                                });
                            }});
    // Relative paths in actions (an output file) mean what they mean to `wfbuild run` started in
    // the project's folder, not wherever the designer was started.
    QDir::setCurrent(QString::fromStdString(run->settings.projectDirectory));
    TRun* raw = run.get();
    run->thread = QThread::create([raw] {
        raw->status = raw->runner.Run(raw->project, raw->variables, raw->settings);
        raw->log.Flush();
        raw->runner.ReportSuccess();
        raw->out.flush();
        raw->err.flush();
    });
    connect(run->thread, &QThread::finished, this, &TRunController::onThreadFinished);
    m_run = std::move(run);
    m_run->thread->start();
    return true;
}

void TRunController::stop()
{
    if (m_run)
        m_run->runner.Interrupt();
}

void TRunController::onThreadFinished()
{
    if (!m_run)
        return;
    const int status = m_run->status;
    m_run->thread->deleteLater();
    // The buffers hand over what is left; those lines are queued before the end is told.
    m_run.reset();
    post([this, status] { emit finished(status); });
}
