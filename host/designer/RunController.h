#pragma once

#include "DesignerIcons.h"

#include <QObject>
#include <QString>

#include <memory>
#include <string>

class QThread;

/// Runs a project with wfbuild's run loop and log on a worker thread, so the window stays
/// responsive; the run works on its own copy of the project, made when it starts.
class TRunController final : public QObject {
    Q_OBJECT
public:
    explicit TRunController(QObject* parent = nullptr);
    ~TRunController() override;

    /// Starts a run of the project text from action `first` (from 0; the ones before it are left
    /// out). projectPath names the project's folder, where actions that need no folder run.
    /// False with a reason when a run is going or the text is no project.
    bool start(const std::string& projectText, const QString& projectPath, int first, bool dryRun, QString& error);
    /// Ends the running program with everything it started; no further action starts.
    void stop();
    bool isRunning() const { return m_run != nullptr; }

signals:
    void actionStarted(int row);
    void actionFinished(int row, TRunStatus status, double seconds, const QString& message);
    /// One line of the build log; isError for the program's standard error and the run's failures.
    void logLine(const QString& text, bool isError);
    /// 0 every action succeeded, 1 one failed, 130 stopped.
    void finished(int status);

private:
    struct TRun;
    void post(std::function<void()> call);
    void onThreadFinished();

    std::unique_ptr<TRun> m_run;
};
