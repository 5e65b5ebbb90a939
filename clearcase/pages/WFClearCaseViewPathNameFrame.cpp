#include "pages/WFClearCaseViewPathNameFrame.h"
#include "ui_WFClearCaseViewPathNameFrame.h"

#include "actions/WFClearCaseBaseAction.h"
#include "environment/WFClearCaseIniFile.h"
#include "pages/WFClearCaseEditViewPathForm.h"
#include "pages/WFClearCasePageLook.h"
#include "WFBrowse.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPixmap>
#include <QPolygon>

#include <algorithm>
#include <memory>

namespace {

/// Room the list box's frame and item margins take from its width.
constexpr int kListTextMargin = 12;

bool isSeparator(QChar c)
{
    return c == '/' || c == '\\';
}

qsizetype lastSeparator(const QString& path)
{
    return std::max(path.lastIndexOf('/'), path.lastIndexOf('\\'));
}

qsizetype firstSeparator(const QString& path)
{
    for (qsizetype i = 0; i < path.size(); ++i)
        if (isSeparator(path[i]))
            return i;
    return -1;
}

/// The root a shortened path keeps: a drive ("C:\"), a share's leading separators or "/".
qsizetype rootLength(const QString& path)
{
    if (path.size() >= 2 && path[1] == ':')
        return path.size() > 2 && isSeparator(path[2]) ? 3 : 2;
    qsizetype length = 0;
    while (length < path.size() && isSeparator(path[length]))
        ++length;
    return length;
}

/// Drops leading folders, one at a time, in favour of "...", until the path fits; the file
/// name is kept, elided itself only when it cannot fit on its own.
QString minimizedPath(const QString& path, const QFontMetrics& metrics, int width)
{
    if (metrics.horizontalAdvance(path) <= width)
        return path;
    const qsizetype last = lastSeparator(path);
    if (last < 0)
        return metrics.elidedText(path, Qt::ElideMiddle, width);
    const qsizetype root = std::min(rootLength(path), last);
    const QString head = path.left(root);
    const QChar separator = path[last];
    const QString name = path.mid(last + 1);
    QString folders = path.mid(root, last - root);
    for (;;) {
        const QString candidate = head + "..." + separator + (folders.isEmpty() ? QString() : folders + separator) + name;
        if (metrics.horizontalAdvance(candidate) <= width)
            return candidate;
        if (folders.isEmpty())
            break;
        const qsizetype cut = firstSeparator(folders);
        folders = cut < 0 ? QString() : folders.mid(cut + 1);
    }
    const QString bare = QString("...") + separator + name;
    if (metrics.horizontalAdvance(bare) <= width)
        return bare;
    return metrics.elidedText(name, Qt::ElideMiddle, width);
}

/// The folder of a file: the path without its last component, roots kept whole.
std::string folderOf(const QString& file)
{
    const qsizetype last = lastSeparator(file);
    if (last < 0)
        return {};
    return file.left(std::max(last, rootLength(file))).toStdString();
}

/// The arrow beside "Add" that says it opens a menu.
QIcon dropGlyph(const QColor& colour)
{
    QPixmap pixmap(8, 5);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawPolygon(QPolygon({QPoint(0, 0), QPoint(8, 0), QPoint(4, 5)}));
    return QIcon(pixmap);
}

} // namespace

TClearCaseViewPathNameFrame::TClearCaseViewPathNameFrame(QWidget* parent)
    : TClearCasePathListFrame(parent), ui(std::make_unique<Ui::TClearCaseViewPathNameFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    ui->addButton->setIcon(dropGlyph(palette().color(QPalette::ButtonText)));
    bindPathList(ui->headingTxtHeading, ui->pathsListBox, ui->addButton, ui->editButton, ui->remButton);
    connect(ui->menuDir, &QAction::triggered, this, &TClearCaseViewPathNameFrame::menuDirClick);
    connect(ui->menuFile, &QAction::triggered, this, &TClearCaseViewPathNameFrame::menuFileClick);
}

TClearCaseViewPathNameFrame::~TClearCaseViewPathNameFrame() = default;

void TClearCaseViewPathNameFrame::InitFrame(void*)
{
    m_fullPaths.clear();
}

std::string TClearCaseViewPathNameFrame::PageName() const
{
    return "Pathnames";
}

void TClearCaseViewPathNameFrame::ReadActionData(TCustomWFAction& action)
{
    auto& base = narrow<TClearCaseBaseAction>(action);
    m_fullPaths.clear();
    for (const auto& path : base.GetViewPathNames())
        m_fullPaths << QString::fromStdString(path);
    ui->pathsListBox->clear();
    for (const QString& path : m_fullPaths)
        ui->pathsListBox->addItem(Abbreviated(path));
    completeHeading(action);
}

void TClearCaseViewPathNameFrame::WriteActionData(TCustomWFAction& action)
{
    std::vector<std::string> paths;
    for (const QString& path : m_fullPaths)
        paths.push_back(path.toStdString());
    narrow<TClearCaseBaseAction>(action).SetViewPathNames(std::move(paths));
}

QString TClearCaseViewPathNameFrame::Abbreviated(const QString& path) const
{
    return minimizedPath(path, QFontMetrics(ui->pathsListBox->font()), ui->pathsListBox->width() - kListTextMargin);
}

void TClearCaseViewPathNameFrame::pathsListBoxResize()
{
    for (int row = 0; row < ui->pathsListBox->count() && row < m_fullPaths.size(); ++row)
        ui->pathsListBox->item(row)->setText(Abbreviated(m_fullPaths[row]));
}

void TClearCaseViewPathNameFrame::appendPath(const QString& path)
{
    m_fullPaths << path;
    ui->pathsListBox->addItem(Abbreviated(path));
}

void TClearCaseViewPathNameFrame::addButtonClick()
{
    ui->PopupMenu1->popup(ui->addButton->mapToGlobal(QPoint(0, ui->addButton->height())));
}

void TClearCaseViewPathNameFrame::menuDirClick()
{
    std::string chosen;
    if (!WFBrowseForDirectory(CCGetLastViewDirectory(), chosen, "Select Directory"))
        return;
    appendPath(QString::fromStdString(chosen));
    CCSetLastViewDirectory(chosen);
}

void TClearCaseViewPathNameFrame::menuFileClick()
{
    TWFBrowseFileRequest request;
    request.title = "Select File";
    request.initialDir = CCGetLastViewDirectory();
    std::vector<std::string> chosen;
    if (!WFBrowseForFiles(request, chosen))
        return;
    for (const std::string& file : chosen)
        appendPath(QString::fromStdString(file));
    CCSetLastViewDirectory(folderOf(QString::fromStdString(chosen.back())));
}

void TClearCaseViewPathNameFrame::editButtonClick()
{
    const int row = selectedRow();
    if (row < 0)
        return;
    TClearCaseEditViewPathForm form(window());
    form.SetPathName(m_fullPaths[row].toStdString());
    if (form.exec() != QDialog::Accepted)
        return;
    m_fullPaths[row] = QString::fromStdString(form.GetPathName());
    ui->pathsListBox->item(row)->setText(Abbreviated(m_fullPaths[row]));
}

void TClearCaseViewPathNameFrame::remButtonClick()
{
    const int row = selectedRow();
    if (row < 0)
        return;
    m_fullPaths.removeAt(row);
    const std::unique_ptr<QListWidgetItem> removed(ui->pathsListBox->takeItem(row));
    // Nothing is selected after a removal; Edit and Remove catch up on the next click or key.
    ui->pathsListBox->setCurrentItem(nullptr);
}

void TClearCaseViewPathNameFrame::pathsListBoxMouseMove(const QPoint& position)
{
    const QListWidgetItem* item = ui->pathsListBox->itemAt(position);
    const int row = item ? ui->pathsListBox->row(item) : -1;
    ui->pathsListBox->setToolTip(row >= 0 && row < m_fullPaths.size() ? m_fullPaths[row] : QString());
}
