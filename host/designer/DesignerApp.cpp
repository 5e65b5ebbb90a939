#include "DesignerApp.h"

#include "MainWindow.h"

#include "RunnerPlugins.h"

#include "WFDesignHost.h"
#include "WFIniFile.h"
#include "WFServices.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>

#include <iostream>

bool prepareDesigner(const TDesignerArguments& args, QString& error)
{
    if (!args.configDir.empty())
        SetWFConfigDirectory(args.configDir);
    std::string reason;
    if (!loadRunnerPlugins(!args.noDefaultPlugins, args.plugins, reason, true)) {
        error = QString::fromStdString(reason);
        return false;
    }
    if (!WFOptionsServices().Load(GetWFOptionsFileName(), reason)) {
        error = QObject::tr("cannot read the options: %1").arg(QString::fromStdString(reason));
        return false;
    }
    return true;
}

QString designerSettingsFile()
{
    return QDir(QString::fromStdString(WFConfigDirectory())).filePath("wfdesigner.ini");
}

int runDesigner(int argc, char** argv)
{
    TDesignerArguments args;
    std::string error;
    if (!parseDesignerCommandLine(std::vector<std::string>(argv + 1, argv + argc), args, error)) {
        std::cerr << "wfdesigner: " << error << "\nTry 'wfdesigner --help'." << std::endl;
        return 2;
    }
    if (args.help) {
        std::cout << designerHelpText() << std::flush;
        return 0;
    }
    if (args.version) {
        std::cout << "wfdesigner " << WF_VERSION << std::endl;
        return 0;
    }

    QApplication application(argc, argv);
    QApplication::setApplicationName("wfdesigner");
    QApplication::setApplicationDisplayName("Wrenfield Designer");
    QApplication::setApplicationVersion(WF_VERSION);
    WFInstallDesignHooks();
    QString problem;
    if (!prepareDesigner(args, problem)) {
        QMessageBox::critical(nullptr, QObject::tr("Wrenfield Designer"), problem);
        return 2;
    }
    TMainWindow window(designerSettingsFile());
    window.show();
    if (!args.project.empty())
        window.openProject(QString::fromStdString(args.project));
    return application.exec();
}
