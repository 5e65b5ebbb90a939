#include "WFDesignBrowse.h"

#include "WFBrowse.h"

#include <QApplication>
#include <QFileDialog>

namespace {

QString text(const std::string& value)
{
    return QString::fromStdString(value);
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
        QFileDialog dialog(QApplication::activeWindow(), text(request.title), text(request.initialDir));
        if (!request.filter.empty())
            dialog.setNameFilter(text(request.filter));
        dialog.setDefaultSuffix(text(request.defaultExtension));
        dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
        dialog.setFileMode(request.save || !request.mustExist ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
        if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
            return false;
        file = dialog.selectedFiles().front().toStdString();
        return true;
    });
}
