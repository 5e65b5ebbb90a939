#include "HelpViewer.h"

#include "WFAction.h"
#include "WFPluginLoader.h"

#include <QFileInfo>
#include <QMessageBox>
#include <QPointer>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

QString helpFileOf(const TCustomWFAction& action)
{
    QString name = QString::fromStdString(action.GetQuickHelpFilename());
    if (name.isEmpty())
        return {};
    name.replace('\\', '/');
    const QString fileName = QFileInfo(name).fileName();
    // "Plugins/X.html" means the folder of the packages: look beside each loaded one.
    for (const auto& plugin : WFLoadedPlugins()) {
        const QString folder = QFileInfo(QString::fromStdString(plugin.path)).absolutePath();
        for (const QString& candidate : {folder + "/" + fileName, folder + "/../" + name})
            if (QFileInfo(candidate).isFile())
                return QFileInfo(candidate).canonicalFilePath();
    }
    return {};
}

THelpViewer::THelpViewer(QWidget* parent) : QDialog(parent), m_browser(new QTextBrowser(this))
{
    setObjectName("helpViewer");
    setWindowTitle(tr("Help"));
    m_browser->setObjectName("helpBrowser");
    m_browser->setOpenExternalLinks(true);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_browser);
    resize(720, 560);
}

void THelpViewer::showTopic(const QString& file, int topic)
{
    QUrl url = QUrl::fromLocalFile(file);
    if (topic > 0)
        url.setFragment(QString::number(topic));
    m_browser->setSource(url);
    if (topic > 0)
        m_browser->scrollToAnchor(QString::number(topic));
    show();
    raise();
}

void showActionHelp(const TCustomWFAction& action, QWidget* parent)
{
    const QString file = helpFileOf(action);
    if (file.isEmpty()) {
        QMessageBox::information(parent, QObject::tr("Help"), QObject::tr("This action has no help file."));
        return;
    }
    static QPointer<THelpViewer> viewer;
    if (!viewer) {
        viewer = new THelpViewer(nullptr);
        viewer->setAttribute(Qt::WA_DeleteOnClose);
    }
    viewer->showTopic(file, action.GetHelpTopicID());
}
