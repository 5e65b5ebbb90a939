#include "pages/WFClearCaseObjectSelectorFrame.h"
#include "ui_WFClearCaseObjectSelectorFrame.h"

#include "actions/WFClearCaseBaseAction.h"
#include "environment/WFClearCaseStringList.h"
#include "pages/WFClearCaseObjectSelectorEditForm.h"
#include "pages/WFClearCasePageLook.h"

#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QSignalBlocker>

#include <memory>

namespace {

/// The "Add" button's glyph: a plus sign.
QIcon addGlyph()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.fillRect(7, 3, 3, 11, QColor(0, 128, 0));
    painter.fillRect(3, 7, 11, 3, QColor(0, 128, 0));
    return QIcon(pixmap);
}

} // namespace

TClearCaseObjectSelectorFrame::TClearCaseObjectSelectorFrame(QWidget* parent)
    : TFrame(parent), ui(std::make_unique<Ui::TClearCaseObjectSelectorFrame>())
{
    ui->setupUi(this);
    ClearCaseDecoratePage(this, ui->Image2);
    ui->btnAdd->setIcon(addGlyph());
    ui->listObjects->installEventFilter(this);
    connect(ui->btnAdd, &QPushButton::clicked, this, &TClearCaseObjectSelectorFrame::btnAddClick);
    connect(ui->btnEdit, &QPushButton::clicked, this, &TClearCaseObjectSelectorFrame::btnEditClick);
    connect(ui->btnRemove, &QPushButton::clicked, this, &TClearCaseObjectSelectorFrame::btnRemoveClick);
    // The page changes the list only with this signal blocked, so the buttons follow the user's
    // choice of a line alone.
    connect(ui->listObjects, &QListWidget::itemSelectionChanged, this, &TClearCaseObjectSelectorFrame::listObjectsClick);
    connect(ui->listObjects, &QListWidget::itemDoubleClicked, this, &TClearCaseObjectSelectorFrame::listObjectsDblClick);
}

TClearCaseObjectSelectorFrame::~TClearCaseObjectSelectorFrame() = default;

std::string TClearCaseObjectSelectorFrame::PageName() const
{
    return "Objects";
}

void TClearCaseObjectSelectorFrame::ReadActionData(TCustomWFAction& action)
{
    const auto& base = narrow<TClearCaseBaseAction>(action);
    const QSignalBlocker quiet(ui->listObjects);
    ui->listObjects->clear();
    for (const auto& selector : base.GetObjectSelectors())
        ui->listObjects->addItem(QString::fromStdString(selector));
}

void TClearCaseObjectSelectorFrame::WriteActionData(TCustomWFAction& action)
{
    auto& base = narrow<TClearCaseBaseAction>(action);
    std::vector<std::string> selectors;
    for (int row = 0; row < ui->listObjects->count(); ++row)
        selectors.push_back(ui->listObjects->item(row)->text().toStdString());
    // Stored as one text, so a line break pasted into a selector makes two lines, as it will
    // when the project is read back.
    base.SetObjectsStorageString(stringListText(selectors));
}

int TClearCaseObjectSelectorFrame::selectedRow() const
{
    const QList<QListWidgetItem*> selected = ui->listObjects->selectedItems();
    return selected.isEmpty() ? -1 : ui->listObjects->row(selected.front());
}

void TClearCaseObjectSelectorFrame::btnAddClick()
{
    TClearCaseObjectSelectorEditForm editor(this);
    if (editor.exec() != QDialog::Accepted)
        return;
    const QSignalBlocker quiet(ui->listObjects);
    ui->listObjects->addItem(QString::fromStdString(editor.GetObjectSelector()));
}

void TClearCaseObjectSelectorFrame::btnEditClick()
{
    // Removing a line leaves the buttons enabled with no line selected: there is nothing to edit.
    const int row = selectedRow();
    if (row < 0)
        return;
    TClearCaseObjectSelectorEditForm editor(this);
    editor.SetObjectSelector(ui->listObjects->item(row)->text().toStdString());
    if (editor.exec() != QDialog::Accepted)
        return;
    const QSignalBlocker quiet(ui->listObjects);
    ui->listObjects->item(row)->setText(QString::fromStdString(editor.GetObjectSelector()));
}

void TClearCaseObjectSelectorFrame::btnRemoveClick()
{
    const int row = selectedRow();
    if (row < 0)
        return;
    // The buttons keep their state: they are refreshed only when the user chooses a line.
    const QSignalBlocker quiet(ui->listObjects);
    std::unique_ptr<QListWidgetItem> removed(ui->listObjects->takeItem(row));
    ui->listObjects->clearSelection();
}

void TClearCaseObjectSelectorFrame::listObjectsClick()
{
    ui->btnEdit->setEnabled(selectedRow() >= 0);
    ui->btnRemove->setEnabled(ui->btnEdit->isEnabled());
}

void TClearCaseObjectSelectorFrame::listObjectsDblClick()
{
    btnEditClick();
}

bool TClearCaseObjectSelectorFrame::eventFilter(QObject* watched, QEvent* event)
{
    // listObjectsKeyDown
    if (watched == ui->listObjects && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if ((key == Qt::Key_Delete || key == Qt::Key_Backspace) && selectedRow() >= 0) {
            btnRemoveClick();
            return true;
        }
    }
    return TFrame::eventFilter(watched, event);
}
