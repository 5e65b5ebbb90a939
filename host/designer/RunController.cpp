#include "RunController.h"

#include "BuildRunner.h"
#include "ConsoleLog.h"

#include "WFLineSplitter.h"
#include "WFProject.h"
#include "WFVariables.h"

#include <QDir>
#include <QFileInfo>
#include <QThread>

#include <algorithm>
#include <functional>
#include <ostream>
#include <streambuf>
#include <string_view>

namespace {

/// A stream buffer that hands over each complete line, cut as the runner cuts program output.
class TLineBuffer final : public std::streambuf {
public:
    explicit TLineBuffer(std::function<void(const std::string&)> onLine)
        : m_emit([onLine = std::move(onLine)](std::string_view line) { onLine(std::string(line)); })
    {
    }
    ~TLineBuffer() override { m_splitter.finish(m_emit); }

protected:
    int_type overflow(int_type c) override
    {
        if (c != traits_type::eof()) {
            const char byte = static_cast<char>(c);
            m_splitter.add(std::string_view(&byte, 1), m_emit);
        }
        return traits_type::not_eof(c);
    }
    std::streamsize xsputn(const char* text, std::streamsize count) override
    {
        m_splitter.add(std::string_view(text, static_cast<std::size_t>(count)), m_emit);
        return count;
    }

private:
    TWFLineSplitter::LineFunction m_emit;
    TWFLineSplitter m_splitter;
};

TRunStatus statusOf(const TJUnitCase& result)
{
    if (result.stopped)
        return TRunStatus::Stopped;
    switch (result.outcome) {
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
    const int heading = static_cast<int>(run->project.actions.size());
    first = std::clamp(first, 0, heading);
    run->project.actions.erase(run->project.actions.begin(), run->project.actions.begin() + first);
    run->first = first;
    run->project.DefineVariables(run->variables);
    run->settings.projectDirectory =
        projectPath.isEmpty() ? QDir::currentPath().toStdString() : QFileInfo(projectPath).absolutePath().toStdString();
    run->settings.dryRun = dryRun;
    run->settings.timeoutSeconds = run->project.timeoutSeconds;
    run->settings.cleanupTimeoutSeconds =
        run->project.cleanupTimeoutSeconds.value_or(TRunSettings::kDefaultCleanupTimeoutSeconds);
    // The runner counts the actions run, then the clean-up actions; the list has the heading between.
    const auto rowOf = [first, heading](std::size_t index) {
        const int ran = heading - first;
        const int i = static_cast<int>(index);
        return i < ran ? first + i : heading + 1 + (i - ran);
    };
    run->runner.SetWatcher({[this, rowOf](std::size_t index) {
                                post([this, row = rowOf(index)] { emit actionStarted(row); });
                            },
                            [this, rowOf](std::size_t index, const TJUnitCase& result) {
                                post([this, row = rowOf(index), status = statusOf(result),
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
