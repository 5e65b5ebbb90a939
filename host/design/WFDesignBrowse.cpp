#include "WFDesignBrowse.h"

#include "WFBrowse.h"

#include <QApplication>
#include <QFileDialog>
#include <QRegularExpression>

namespace {

QString text(const std::string& value)
{
    return QString::fromStdString(value);
}

/// Qt's name filters for a request's filter: "Text Files (*.txt)|*.txt|All Files|*" gives
/// "Text Files (*.txt)" and "All Files (*)"; a description without its patterns gets them added.
QStringList nameFilters(const std::string& filter)
{
    QString all = text(filter);
#ifndef _WIN32
    // "*.*" means every file on Windows; elsewhere it would hide names without a dot (config_spec).
    static const QRegularExpression anyName(QStringLiteral("(^|[\\s(;|])\\*\\.\\*(?=$|[\\s);|])"));
    all.replace(anyName, QStringLiteral("\\1*"));
#endif
    const QStringList parts = all.split('|');
    if (parts.size() < 2)
        return parts;
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString patterns = QString(parts[i + 1]).replace(';', ' ');
        filters << (parts[i].contains('(') ? parts[i] : parts[i] + " (" + patterns + ")");
    }
    return filters;
}

bool browseForFiles(const TWFBrowseFileRequest& request, bool several, std::vector<std::string>& files)
{
    QFileDialog dialog(QApplication::activeWindow(), text(request.title), text(request.initialDir));
    if (!request.filter.empty())
        dialog.setNameFilters(nameFilters(request.filter));
    if (!request.fileName.empty())
        dialog.selectFile(text(request.fileName));
    dialog.setDefaultSuffix(text(request.defaultExtension));
    dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(several ? QFileDialog::ExistingFiles
                       : request.save || !request.mustExist ? QFileDialog::AnyFile
                                                            : QFileDialog::ExistingFile);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return false;
    files.clear();
    for (const QString& file : dialog.selectedFiles())
        files.push_back(file.toStdString());
    return true;
}

} // namespace

void WFInstallDialogBrowsers()
{
    SetWFBrowseForDirectoryHook([](const std::string& initialDir, std::string& dir, const std::string& caption) {
        const QString chosen = QFileDialog::getExistingDirectory(QApplication::activeWindow(), text(caption), text(initialDir));
        if (chosen.isEmpty())
            return false;
        dir = chosen.toStdString();
        return true;
    });
    SetWFBrowseForFileHook([](const TWFBrowseFileRequest& request, std::string& file) {
        std::vector<std::string> files;
        if (!browseForFiles(request, false, files))
            return false;
        file = files.front();
        return true;
    });
    SetWFBrowseForFilesHook([](const TWFBrowseFileRequest& request, std::vector<std::string>& files) {
        return browseForFiles(request, true, files);
    });
}
