// The designer's smoke run: examples/release.wfp against a fresh simulator store, every action
// must succeed; screenshots of the main window, an action dialog, the options dialog, a run
// in progress and the log searched go to the folder given. Exit status 0 only when the run was
// all green.
#include "ActionDialog.h"
#include "ClearCaseWorld.h"
#include "DesignerApp.h"
#include "DesignerDocument.h"
#include "LogPane.h"
#include "MainWindow.h"
#include "OptionsDialog.h"
#include "ProjectModel.h"
#include "RunController.h"
#include "WFTestSupport.h"

#include "WFDesignHost.h"
#include "WFIniFile.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QLineEdit>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QStyleFactory>
#include <QTabWidget>
#include <QTest>
#include <QTextBlock>
#include <QTimer>
#include <QTreeView>

#include <filesystem>
#include <fstream>
#include <iostream>

namespace {

bool save(QWidget* widget, const QString& folder, const QString& name, bool settle = true)
{
    if (settle)
        QTest::qWait(150);
    const QString path = QDir(folder).filePath(name);
    if (!widget->grab().save(path)) {
        std::cerr << "cannot write " << path.toStdString() << "\n";
        return false;
    }
    std::cout << "wrote " << path.toStdString() << "\n";
    return true;
}

/// A run stopped while its program hangs: the action shows "Stopped", the ones after it "Skipped".
bool stoppedRun(TMainWindow& window, const std::string& dir, const QString& folder)
{
    const std::string project = dir + "/stopped.wfp";
    std::ofstream(project) << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<wfproject version=\"1\">\n  <actions>\n"
                              "    <action type=\"WF_LOGMESSAGE\" description=\"Start\" enabled=\"True\">\n"
                              "      <property name=\"Text\">starting the long test</property>\n    </action>\n"
                              "    <action type=\"WF_RUNPROGRAM\" description=\"Long test suite\" enabled=\"True\">\n"
                              "      <property name=\"Program\">sleep</property>\n      <property name=\"Arguments\">60</property>\n"
                              "    </action>\n"
                              "    <action type=\"WF_LOGMESSAGE\" description=\"Report\" enabled=\"True\">\n"
                              "      <property name=\"Text\">done</property>\n    </action>\n  </actions>\n</wfproject>\n";
    if (!window.openProject(QString::fromStdString(project)))
        return false;
    int status = -1;
    const auto connection = QObject::connect(&window.runner(), &TRunController::finished, [&](int result) { status = result; });
    if (!window.runProject(0, false))
        return false;
    QElapsedTimer timer;
    timer.start();
    while (window.model().runStatus(1) != TRunStatus::Running && timer.elapsed() < 10000)
        QTest::qWait(20);
    QTest::qWait(1200);
    window.stopRun();
    while (status < 0 && timer.elapsed() < 20000)
        QTest::qWait(20);
    QObject::disconnect(connection);
    window.projectView()->setCurrentIndex(window.model().index(1, 0));
    return status == 130 && window.model().runStatus(1) == TRunStatus::Stopped && save(&window, folder, "stopped-run.png");
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    QApplication::setApplicationVersion(WF_VERSION);
    if (argc != 2) {
        std::cerr << "usage: wf_designer_screenshots OUTPUT-FOLDER\n";
        return 2;
    }
    // Absolute: a run moves into the project's folder.
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    QDir().mkpath(folder);

    e2e::ClearCaseWorld world;
    world.enter();
    WFInstallDesignHooks();
    TDesignerArguments args;
    args.configDir = world.configDir();
    args.noDefaultPlugins = true;
    args.plugins = {WF_CLEARCASE_PLUGIN, WF_BASICACTIONS_PLUGIN};
    QString error;
    if (!prepareDesigner(args, error)) {
        std::cerr << error.toStdString() << "\n";
        return 1;
    }

    TMainWindow window(designerSettingsFile());
    window.resize(1180, 760);
    window.show();
    const std::string project = world.dir() + "/release.wfp";
    std::filesystem::copy_file(std::string(WF_EXAMPLES_DIR) + "/release.wfp", project);
    if (!window.openProject(QString::fromStdString(project)))
        return 1;
    auto variables = window.document().project().variables;
    for (auto& variable : variables)
        if (variable.name == "VIEW")
            variable.value = world.view();
    window.document().setVariables(variables);
    window.saveProject();
    window.projectView()->setCurrentIndex(window.model().index(4, 0));

    bool ok = true;
    {
        TActionDialog dialog(*window.document().project().actions[4], &window);
        dialog.showPage("Comment");
        dialog.show();
        ok = save(&dialog, folder, "action-dialog.png") && ok;
    }
    // Dialogs as the window opens them, with the project's variables: the label action's command
    // line as the build will run it (%VOB% and %VIEW% expanded), and a host action's own page.
    const auto shootDialog = [&](int row, const QString& name) {
        QTimer::singleShot(800, [&, name] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
                ok = save(dialog, folder, name) && ok;
                dialog->reject();
            } else {
                ok = false;
            }
        });
        window.editAction(row);
    };
    shootDialog(9, "command-line-preview.png");
    shootDialog(6, "basic-action-page.png");
    {
        TOptionsDialog dialog(&window);
        dialog.show();
        ok = save(&dialog, folder, "options-dialog.png") && ok;
    }

    bool grabbed = false;
    int status = -1;
    QObject::connect(&window.runner(), &TRunController::actionFinished, [&](int row, TRunStatus, double, const QString&) {
        if (row == 8 && !grabbed) {
            grabbed = true;
            ok = save(&window, folder, "run-in-progress.png", false) && ok;
        }
    });
    QObject::connect(&window.runner(), &TRunController::finished, [&](int result) { status = result; });
    if (!window.runProject(0, false))
        return 1;
    QElapsedTimer timer;
    timer.start();
    while (status < 0 && timer.elapsed() < 120000)
        QTest::qWait(20);
    // The clean-up section stays idle after a build that succeeded.
    for (int row = 0; row < window.document().cleanupHeadingRow(); ++row)
        if (window.model().runStatus(row) != TRunStatus::Succeeded) {
            std::cerr << "action " << row + 1 << " did not succeed\n";
            ok = false;
        }
    window.log()->flush();
    const QString log = window.log()->view()->toPlainText();
    for (const char* piece : {"Command Line: checkout -reserved -c \"Stamp build 1\" -nquery", "Build succeeded: 17 actions run."})
        if (!log.contains(piece)) {
            std::cerr << "the log lacks " << piece << "\n";
            ok = false;
        }
    // Choosing an action that ran takes the log to its section.
    window.projectView()->setCurrentIndex(window.model().index(0, 0));
    window.projectView()->setCurrentIndex(window.model().index(4, 0));
    if (!window.log()->view()->textCursor().block().text().startsWith("[5/17] ")) {
        std::cerr << "choosing action 5 did not show its log section\n";
        ok = false;
    }
    ok = save(&window, folder, "main-window.png") && ok;
    // The log searched, with the selected action's section at the top.
    window.log()->scrollToSection(4);
    window.log()->openFind();
    QTest::keyClicks(window.findChild<QLineEdit*>("logFindText"), "release");
    ok = save(&window, folder, "log-search.png") && ok;
    std::cout << (status == 0 && ok ? "smoke run: every action succeeded\n" : "smoke run FAILED\n");
    window.document().undoStack().setClean();
    return status == 0 && ok && stoppedRun(window, world.dir(), folder) ? 0 : 1;
}
