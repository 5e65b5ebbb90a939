#include "MainWindow.h"

#include "ActionDialog.h"
#include "DesignerDocument.h"
#include "DialogPages.h"
#include "LogPane.h"
#include "HelpViewer.h"
#include "OptionsDialog.h"
#include "ProjectModel.h"
#include "RunController.h"
#include "VariablesDialog.h"

#include "BuildRunner.h"

#include "WFAction.h"
#include "WFBrowse.h"
#include "WFFiles.h"
#include "WFPluginLoader.h"
#include "WFServices.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QDir>
#include <QDockWidget>
#include <QFileInfo>
#include <QFontDatabase>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSettings>
#include <QStatusBar>
#include <QStyle>
#include <QTextBlock>
#include <QTimer>
#include <QToolBar>
#include <QTreeView>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace {

constexpr int kTypeIdRole = Qt::UserRole + 1;
constexpr int kRowRole = Qt::UserRole + 2;
constexpr int kLocationRole = Qt::UserRole + 3;
constexpr int kMaxRecentFiles = 8;

/// The catalogue: a drag carries the type ID of the action to add.
class TCatalogueTree final : public QTreeWidget {
public:
    using QTreeWidget::QTreeWidget;

protected:
    QStringList mimeTypes() const override { return {kActionTypeMime}; }
    QMimeData* mimeData(const QList<QTreeWidgetItem*>& items) const override
    {
        if (items.isEmpty() || items.first()->data(0, kTypeIdRole).isNull())
            return nullptr;
        auto* data = new QMimeData;
        data->setData(kActionTypeMime, items.first()->data(0, kTypeIdRole).toString().toUtf8());
        return data;
    }
};

QString projectFilter()
{
    return QObject::tr("Wrenfield projects (*.wfp)|*.wfp|All files|*");
}

} // namespace

TMainWindow::TMainWindow(const QString& settingsFile, QWidget* parent)
    : QMainWindow(parent), m_settings(new QSettings(settingsFile, QSettings::IniFormat, this)),
      m_document(new TDesignerDocument(this)), m_model(new TProjectModel(*m_document, this)),
      m_runner(new TRunController(this))
{
    setObjectName("mainWindow");
    setWindowIcon(QIcon::fromTheme("wfdesigner", packageIcon("CC_LOGO")));

    m_projectView = new QTreeView;
    m_projectView->setObjectName("projectView");
    m_projectView->setModel(m_model);
    m_projectView->setRootIsDecorated(false);
    m_projectView->setUniformRowHeights(true);
    m_projectView->setAlternatingRowColors(true);
    m_projectView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_projectView->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_projectView->setDragDropMode(QAbstractItemView::DragDrop);
    m_projectView->setDefaultDropAction(Qt::MoveAction);
    m_projectView->setDropIndicatorShown(true);
    m_projectView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_projectView->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_projectView->header()->setStretchLastSection(false);
    m_projectView->header()->setSectionResizeMode(TProjectModel::ActionColumn, QHeaderView::Stretch);
    m_projectView->header()->setSectionResizeMode(TProjectModel::ValidColumn, QHeaderView::ResizeToContents);
    m_projectView->header()->resizeSection(TProjectModel::StatusColumn, 110);
    m_projectView->header()->resizeSection(TProjectModel::TimeColumn, 70);
    setCentralWidget(m_projectView);
    connect(m_projectView, &QTreeView::doubleClicked, this, [this](const QModelIndex& index) { editAction(index.row()); });
    m_projectView->installEventFilter(this);

    createCatalogue();
    createDocks();
    createActions();

    m_runLabel = new QLabel;
    m_runLabel->setObjectName("runLabel");
    statusBar()->addPermanentWidget(m_runLabel);
    m_clock = new QTimer(this);
    m_clock->setInterval(200);
    connect(m_clock, &QTimer::timeout, this, &TMainWindow::showRunProgress);
    // Validity follows every change, once the edits of one moment are done.
    m_validityTimer = new QTimer(this);
    m_validityTimer->setSingleShot(true);
    m_validityTimer->setInterval(150);
    connect(m_validityTimer, &QTimer::timeout, this, [this] { checkValidity(nullptr); });
    connect(m_document, &TDesignerDocument::projectChanged, m_validityTimer, qOverload<>(&QTimer::start));

    connect(m_document, &TDesignerDocument::pathChanged, this, &TMainWindow::updateTitle);
    connect(&m_document->undoStack(), &QUndoStack::cleanChanged, this, &TMainWindow::updateTitle);
    connect(m_document, &TDesignerDocument::projectChanged, this, &TMainWindow::updateActions);
    connect(m_projectView->selectionModel(), &QItemSelectionModel::selectionChanged, this, &TMainWindow::updateActions);
    // A change rebuilds the list; undo, redo and edits keep the rows the user had selected.
    connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this, [this] {
        m_keptSelection = selectedRows();
        m_keptCurrent = m_projectView->currentIndex().row();
    });
    connect(m_model, &QAbstractItemModel::modelReset, this, [this] {
        connect(m_projectView->selectionModel(), &QItemSelectionModel::selectionChanged, this, &TMainWindow::updateActions,
                Qt::UniqueConnection);
        selectRows(m_keptSelection, m_keptCurrent);
    });
    connect(m_model, &TProjectModel::typeDropped, this, [this](int row, const QString& typeId) { addCatalogueAction(typeId, row); });
    connect(m_model, &TProjectModel::rowDropped, this, &TMainWindow::selectRow);

    connect(m_runner, &TRunController::logLine, this, &TMainWindow::appendLog);
    connect(m_runner, &TRunController::actionStarted, this, [this](int row) {
        m_model->setRunState(row, TRunStatus::Running, 0);
        m_progress.row = row;
        ++(row < m_document->cleanupHeadingRow() ? m_progress.started : m_progress.cleanupStarted);
        m_progress.actionTime.start();
        showRunProgress();
    });
    connect(m_runner, &TRunController::actionFinished, this,
            [this](int row, TRunStatus status, double seconds, const QString&) {
                m_model->setRunState(row, status, status == TRunStatus::Skipped ? -1 : seconds);
                if (row == m_progress.row)
                    m_progress.row = -1;
            });
    connect(m_runner, &TRunController::finished, this, &TMainWindow::runFinished);

    // The project's variables are what the pages offer as variable names.
    WFDesignApplicationServices().variableNamesProvider = [this] {
        std::vector<std::string> names;
        for (const auto& variable : m_document->project().variables)
            names.push_back(variable.name);
        return names;
    };
    WFDesignApplicationServices().variablesProvider = [this] {
        TWFBuildVariables variables;
        m_document->project().DefineVariables(variables);
        return variables;
    };

    resize(1100, 720);
    restoreGeometry(m_settings->value("window/geometry").toByteArray());
    restoreState(m_settings->value("window/state").toByteArray());
    fillRecentMenu();
    updateTitle();
    updateActions();
}

TMainWindow::~TMainWindow()
{
    WFDesignApplicationServices().variableNamesProvider = nullptr;
    WFDesignApplicationServices().variablesProvider = nullptr;
}

void TMainWindow::createCatalogue()
{
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(4, 4, 4, 4);
    m_filter = new QLineEdit;
    m_filter->setObjectName("catalogueFilter");
    m_filter->setPlaceholderText(tr("Type to filter actions"));
    m_filter->setClearButtonEnabled(true);
    m_catalogue = new TCatalogueTree;
    m_catalogue->setObjectName("catalogue");
    m_catalogue->setHeaderHidden(true);
    m_catalogue->setDragEnabled(true);
    m_catalogue->setDragDropMode(QAbstractItemView::DragOnly);
    m_catalogue->setIconSize(QSize(16, 16));
    layout->addWidget(m_filter);
    layout->addWidget(m_catalogue, 1);
    auto* dock = new QDockWidget(tr("Actions"), this);
    dock->setObjectName("catalogueDock");
    dock->setWidget(panel);
    dock->setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    addDockWidget(Qt::LeftDockWidgetArea, dock);
    connect(m_filter, &QLineEdit::textChanged, this, &TMainWindow::filterCatalogue);
    connect(m_catalogue, &QTreeWidget::itemDoubleClicked, this, [this](QTreeWidgetItem* item) {
        if (const QVariant typeId = item->data(0, kTypeIdRole); !typeId.isNull())
            addCatalogueAction(typeId.toString());
    });
    fillCatalogue();
}

void TMainWindow::fillCatalogue()
{
    m_catalogue->clear();
    QHash<QString, QTreeWidgetItem*> categories;
    for (const auto& entry : WFActionServices().Catalogue()) {
        const QString category = QString::fromStdString(entry.category);
        QTreeWidgetItem*& parent = categories[category];
        if (!parent) {
            parent = new QTreeWidgetItem(m_catalogue, {category});
            parent->setFlags(Qt::ItemIsEnabled);
            QFont bold = parent->font(0);
            bold.setBold(true);
            parent->setFont(0, bold);
        }
        auto* item = new QTreeWidgetItem(parent, {QString::fromStdString(entry.displayName)});
        item->setIcon(0, packageIcon(entry.typeId));
        item->setData(0, kTypeIdRole, QString::fromStdString(entry.typeId));
        item->setToolTip(0, QString::fromStdString(entry.typeId));
        item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled);
    }
    m_catalogue->expandAll();
    // Wide enough for the longest name, so no entry is cut short.
    if (auto* dock = findChild<QDockWidget*>("catalogueDock")) {
        int widest = 0;
        for (QTreeWidgetItemIterator it(m_catalogue); *it; ++it)
            widest = std::max(widest, m_catalogue->fontMetrics().horizontalAdvance((*it)->text(0))
                                          + ((*it)->parent() ? m_catalogue->indentation() : 0));
        const int width = widest + m_catalogue->iconSize().width() + m_catalogue->indentation()
            + m_catalogue->verticalScrollBar()->sizeHint().width() + 2 * m_catalogue->frameWidth() + 24;
        resizeDocks({dock}, {std::max(width, 240)}, Qt::Horizontal);
    }
}

void TMainWindow::filterCatalogue(const QString& text)
{
    for (int c = 0; c < m_catalogue->topLevelItemCount(); ++c) {
        QTreeWidgetItem* category = m_catalogue->topLevelItem(c);
        const bool categoryMatches = category->text(0).contains(text, Qt::CaseInsensitive);
        int shown = 0;
        for (int i = 0; i < category->childCount(); ++i) {
            QTreeWidgetItem* item = category->child(i);
            const bool show = text.isEmpty() || categoryMatches || item->text(0).contains(text, Qt::CaseInsensitive)
                || item->data(0, kTypeIdRole).toString().contains(text, Qt::CaseInsensitive);
            item->setHidden(!show);
            shown += show ? 1 : 0;
        }
        category->setHidden(shown == 0);
    }
}

void TMainWindow::createDocks()
{
    m_log = new TLogPane;
    m_log->setObjectName("buildLog");
    // One section per action run; choosing an action in the list shows its section.
    connect(m_runner, &TRunController::actionStarted, m_log, [this](int row) {
        m_log->beginSection(row, m_model->index(row, TProjectModel::ActionColumn).data().toString());
    });
    connect(m_projectView->selectionModel(), &QItemSelectionModel::currentRowChanged, m_log,
            [this](const QModelIndex& current) { m_log->scrollToSection(current.row()); });
    auto* logDock = new QDockWidget(tr("Build Log"), this);
    logDock->setObjectName("logDock");
    logDock->setWidget(m_log);
    addDockWidget(Qt::BottomDockWidgetArea, logDock);

    m_problems = new QTreeWidget;
    m_problems->setObjectName("problems");
    m_problems->setHeaderLabels({tr("Action / Where"), tr("Problem")});
    m_problems->setRootIsDecorated(true);
    auto* problemsDock = new QDockWidget(tr("Validation"), this);
    problemsDock->setObjectName("problemsDock");
    problemsDock->setWidget(m_problems);
    addDockWidget(Qt::BottomDockWidgetArea, problemsDock);
    tabifyDockWidget(logDock, problemsDock);
    logDock->raise();
    connect(m_problems, &QTreeWidget::itemDoubleClicked, this, &TMainWindow::openProblem);
}

void TMainWindow::createActions()
{
    QAction* newAction = nullptr;
    QAction* open = nullptr;
    QAction* saveAs = nullptr;
    QAction* exit = nullptr;
    QAction* variables = nullptr;
    QAction* selectAll = nullptr;
    QAction* options = nullptr;
    QAction* help = nullptr;
    QAction* about = nullptr;
    // The undo stack makes its own actions, which keep their texts in step with the next step.
    QAction* undo = m_document->undoStack().createUndoAction(this, tr("&Undo"));
    QAction* redo = m_document->undoStack().createRedoAction(this, tr("&Redo"));

    /// One command: where the window keeps it, its text, object name, shortcut, icon and handler.
    struct TCommand {
        QAction** action;
        QString text;
        const char* name;
        QKeySequence key;
        QStyle::StandardPixmap icon;
        std::function<void()> handler;
    };
    constexpr auto noIcon = QStyle::SP_CustomBase;
    const TCommand commands[] = {
        {&newAction, tr("&New"), "actionNew", QKeySequence::New, QStyle::SP_FileIcon, [this] {
             if (maybeSave())
                 newProject();
         }},
        {&open, tr("&Open..."), "actionOpen", QKeySequence::Open, QStyle::SP_DialogOpenButton, [this] {
             if (!maybeSave())
                 return;
             TWFBrowseFileRequest request{tr("Open Project").toStdString(), projectFilter().toStdString(),
                                          projectFolder().toStdString(), "wfp", true, false, {}};
             if (std::string path; WFBrowseForFile(request, path))
                 openProject(QString::fromStdString(path));
         }},
        {&m_save, tr("&Save"), "actionSave", QKeySequence::Save, QStyle::SP_DialogSaveButton, [this] { saveProject(); }},
        // Not every platform theme binds Save As; build engineers expect Ctrl+Shift+S everywhere.
        {&saveAs, tr("Save &As..."), "actionSaveAs", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), noIcon,
         [this] { saveProjectAs({}); }},
        {&exit, tr("E&xit"), "actionExit", QKeySequence::Quit, noIcon, [this] { close(); }},
        {&undo, {}, "actionUndo", QKeySequence::Undo, QStyle::SP_ArrowBack, {}},
        {&redo, {}, "actionRedo", QKeySequence::Redo, QStyle::SP_ArrowForward, {}},
        {&m_cut, tr("Cu&t"), "actionCut", QKeySequence::Cut, noIcon, [this] { cutSelection(); }},
        {&m_copy, tr("&Copy"), "actionCopy", QKeySequence::Copy, noIcon, [this] { copySelection(); }},
        {&m_paste, tr("&Paste"), "actionPaste", QKeySequence::Paste, noIcon, [this] { paste(); }},
        {&m_duplicate, tr("D&uplicate"), "actionDuplicate", QKeySequence(Qt::CTRL | Qt::Key_D), noIcon,
         [this] { duplicateSelection(); }},
        {&selectAll, tr("Select &All"), "actionSelectAll", QKeySequence::SelectAll, noIcon, [this] { m_projectView->selectAll(); }},
        {&m_remove, tr("Re&move"), "actionRemove", QKeySequence::Delete, QStyle::SP_TrashIcon, [this] { removeSelection(); }},
        {&m_moveUp, tr("Move &Up"), "actionMoveUp", QKeySequence(Qt::CTRL | Qt::Key_Up), QStyle::SP_ArrowUp,
         [this] { moveSelection(-1); }},
        {&m_moveDown, tr("Move &Down"), "actionMoveDown", QKeySequence(Qt::CTRL | Qt::Key_Down), QStyle::SP_ArrowDown,
         [this] { moveSelection(1); }},
        {&m_enable, tr("&Enable"), "actionEnable", QKeySequence(Qt::CTRL | Qt::Key_E), noIcon, [this] { setSelectionEnabled(true); }},
        {&m_disable, tr("D&isable"), "actionDisable", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E), noIcon,
         [this] { setSelectionEnabled(false); }},
        {&m_properties, tr("&Properties..."), "actionProperties", QKeySequence(Qt::Key_Return),
         QStyle::SP_FileDialogDetailedView, [this] { editAction(currentRow()); }},
        {&variables, tr("&Variables..."), "actionVariables", QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_V), noIcon,
         [this] { editVariables(); }},
        {&m_run, tr("&Run"), "actionRun", QKeySequence(Qt::Key_F9), QStyle::SP_MediaPlay, [this] { runProject(0, false); }},
        {&m_runFrom, tr("Run &From Selected Action"), "actionRunFrom", QKeySequence(Qt::SHIFT | Qt::Key_F9),
         QStyle::SP_MediaSeekForward, [this] { runProject(std::max(currentRow(), 0), false); }},
        {&m_dryRun, tr("&Dry Run (start no programs)"), "actionDryRun", {}, noIcon, [this] { runProject(0, true); }},
        {&m_stop, tr("&Stop"), "actionStop", QKeySequence(Qt::CTRL | Qt::Key_Period), QStyle::SP_MediaStop, [this] { stopRun(); }},
        {&m_validate, tr("&Validate"), "actionValidate", QKeySequence(Qt::CTRL | Qt::Key_T), QStyle::SP_DialogApplyButton,
         [this] { validateProject(); }},
        {&options, tr("&Options..."), "actionOptions", {}, QStyle::SP_ComputerIcon, [this] { editOptions(); }},
        {&help, tr("Action &Help"), "actionHelp", QKeySequence(Qt::Key_F1), QStyle::SP_DialogHelpButton, [this] { showActionHelp(); }},
        {&about, tr("&About..."), "actionAbout", {}, noIcon, [this] { showAbout(); }},
    };
    for (const TCommand& command : commands) {
        QAction*& action = *command.action;
        if (command.handler) {
            action = new QAction(command.text, this);
            connect(action, &QAction::triggered, this, command.handler);
        }
        action->setObjectName(command.name);
        if (!command.key.isEmpty())
            action->setShortcut(command.key);
        if (command.icon != noIcon)
            action->setIcon(style()->standardIcon(command.icon));
    }

    // Menus and the tool bar in order; nullptr is a separator.
    m_recentMenu = new QMenu(tr("Open &Recent"), this);
    const std::pair<QString, std::vector<QAction*>> menus[] = {
        {tr("&File"), {newAction, open, m_recentMenu->menuAction(), m_save, saveAs, nullptr, exit}},
        {tr("&Edit"), {undo, redo, nullptr, m_cut, m_copy, m_paste, m_duplicate, m_remove, selectAll, nullptr, m_moveUp,
                       m_moveDown, m_enable, m_disable, nullptr, m_properties, variables}},
        {tr("&Project"), {m_run, m_runFrom, m_dryRun, m_stop, nullptr, m_validate}},
        {tr("&Tools"), {options}},
        {tr("&Help"), {help, about}},
    };
    const auto fill = [](QWidget* widget, const std::vector<QAction*>& actions) {
        for (QAction* action : actions) {
            if (action) {
                widget->addAction(action);
            } else if (auto* menu = qobject_cast<QMenu*>(widget)) {
                menu->addSeparator();
            } else if (auto* bar = qobject_cast<QToolBar*>(widget)) {
                bar->addSeparator();
            }
        }
    };
    for (const auto& [title, actions] : menus)
        fill(menuBar()->addMenu(title), actions);
    QToolBar* bar = addToolBar(tr("Main"));
    bar->setObjectName("mainToolBar");
    bar->setIconSize(QSize(16, 16));
    fill(bar, {newAction, open, m_save, nullptr, undo, redo, nullptr, m_moveUp, m_moveDown, m_remove, m_properties, nullptr,
               m_run, m_runFrom, m_stop, m_validate});
    m_projectView->addActions(
        {m_properties, m_cut, m_copy, m_paste, m_duplicate, m_remove, m_moveUp, m_moveDown, m_enable, m_disable});
    // Keys that edit the project act on the list only: in the log, Ctrl+C copies text and Delete
    // or Enter must not remove or open the selected actions.
    m_projectView->addAction(selectAll);
    for (QAction* action : {m_properties, m_cut, m_copy, m_paste, m_duplicate, m_remove, selectAll})
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
}

void TMainWindow::updateTitle()
{
    const QString name = m_document->path().isEmpty() ? tr("Untitled") : QFileInfo(m_document->path()).fileName();
    setWindowFilePath(m_document->path());
    setWindowTitle(QStringLiteral("%1%2 - Wrenfield Designer").arg(name, m_document->isModified() ? "*" : ""));
}

void TMainWindow::updateActions()
{
    const bool running = m_runner->isRunning();
    const bool selected = !selectedRows().empty();
    const bool hasActions = !m_document->project().actions.empty();
    for (QAction* action : {m_cut, m_copy, m_duplicate, m_remove, m_moveUp, m_moveDown, m_properties})
        action->setEnabled(selected && !running);
    // Greyed when they would change nothing.
    bool anyEnabled = false;
    bool anyDisabled = false;
    for (int row : selectedRows())
        if (const TCustomWFAction* action = m_document->actionAt(row))
            (action->GetEnabled() ? anyEnabled : anyDisabled) = true;
    m_enable->setEnabled(anyDisabled && !running);
    m_disable->setEnabled(anyEnabled && !running);
    m_paste->setEnabled(!running);
    m_run->setEnabled(hasActions && !running);
    m_runFrom->setEnabled(selected && !running);
    m_dryRun->setEnabled(hasActions && !running);
    m_validate->setEnabled(hasActions && !running);
    m_stop->setEnabled(running);
    m_projectView->setDragEnabled(!running);
    m_projectView->setAcceptDrops(!running);
}

std::vector<int> TMainWindow::selectedRows() const
{
    std::vector<int> rows;
    if (!m_projectView->selectionModel())
        return rows;
    for (const auto& index : m_projectView->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

int TMainWindow::currentRow() const
{
    const auto rows = selectedRows();
    if (!rows.empty())
        return rows.front();
    return m_projectView->currentIndex().isValid() ? m_projectView->currentIndex().row() : -1;
}

void TMainWindow::selectRow(int row)
{
    if (row < 0 || row >= m_model->rowCount())
        return;
    const QModelIndex index = m_model->index(row, 0);
    m_projectView->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void TMainWindow::selectRows(const std::vector<int>& rows, int current)
{
    const int count = m_model->rowCount();
    QItemSelection selection;
    for (int row : rows)
        if (row < count)
            selection.select(m_model->index(row, 0), m_model->index(row, TProjectModel::ColumnCount - 1));
    if (current >= count)
        current = count - 1;
    if (current >= 0)
        m_projectView->selectionModel()->setCurrentIndex(m_model->index(current, 0), QItemSelectionModel::NoUpdate);
    m_projectView->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
}

bool TMainWindow::eventFilter(QObject* watched, QEvent* event)
{
    // Space switches every selected action, not only the one under the cursor.
    if (watched == m_projectView && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space && static_cast<QKeyEvent*>(event)->modifiers() == Qt::NoModifier) {
        const TCustomWFAction* current = m_document->actionAt(currentRow());
        if (current && !m_runner->isRunning())
            setSelectionEnabled(!current->GetEnabled());
        return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void TMainWindow::newProject()
{
    m_document->newProject();
    m_log->clear();
    m_problems->clear();
}

bool TMainWindow::openProject(const QString& path)
{
    QString error;
    QString warnings;
    if (!m_document->open(path, error, warnings)) {
        QMessageBox::critical(this, tr("Cannot open the project"), error);
        return false;
    }
    if (!warnings.isEmpty())
        QMessageBox::warning(this, tr("Project opened with warnings"),
                             tr("These were ignored and will not be saved:\n%1").arg(warnings));
    m_log->clear();
    m_problems->clear();
    addRecentFile(m_document->path());
    statusBar()->showMessage(tr("Opened %1").arg(m_document->path()), 5000);
    selectRow(0);
    return true;
}

bool TMainWindow::saveProject()
{
    return saveProjectAs(m_document->path());
}

bool TMainWindow::saveProjectAs(const QString& path)
{
    QString target = path;
    if (target.isEmpty()) {
        TWFBrowseFileRequest request{tr("Save Project As").toStdString(), projectFilter().toStdString(), projectFolder().toStdString(),
                                     "wfp", false, true, QFileInfo(m_document->path()).fileName().toStdString()};
        std::string chosen;
        if (!WFBrowseForFile(request, chosen))
            return false;
        target = QString::fromStdString(chosen);
        if (QFileInfo(target).suffix().isEmpty())
            target += ".wfp";
    }
    const QString& open = m_document->path();
    if (!open.isEmpty()
        && (QFileInfo(target).absoluteFilePath() == open || sameFile(target.toStdString(), open.toStdString()))) {
        switch (confirmSavingOver()) {
        case TSaveChoice::Overwrite:
            break;
        case TSaveChoice::Elsewhere:
            return saveProjectAs({});
        case TSaveChoice::Stop:
            return false;
        }
    }
    QString error;
    if (!m_document->saveAs(target, error)) {
        QMessageBox::critical(this, tr("Cannot save the project"), error);
        return false;
    }
    addRecentFile(m_document->path());
    statusBar()->showMessage(tr("Saved %1").arg(m_document->path()), 5000);
    return true;
}

TMainWindow::TSaveChoice TMainWindow::confirmSavingOver()
{
    const QString path = m_document->path();
    const auto ask = [&](const char* name, const QString& title, const QString& text, bool offerReload) {
        QMessageBox box(QMessageBox::Warning, title, text, QMessageBox::Cancel, this);
        box.setObjectName(name);
        QAbstractButton* reload = nullptr;
        if (offerReload) {
            reload = box.addButton(tr("&Reload"), QMessageBox::DestructiveRole);
            reload->setObjectName("btnReload");
        }
        QAbstractButton* overwrite = box.addButton(tr("&Overwrite"), QMessageBox::AcceptRole);
        overwrite->setObjectName("btnOverwrite");
        QPushButton* elsewhere = box.addButton(tr("Save &Elsewhere..."), QMessageBox::ActionRole);
        elsewhere->setObjectName("btnSaveElsewhere");
        box.setDefaultButton(elsewhere);
        box.exec();
        const QAbstractButton* clicked = box.clickedButton();
        if (clicked && clicked == reload) {
            openProject(path);
            return TSaveChoice::Stop;
        }
        return clicked == overwrite ? TSaveChoice::Overwrite
            : clicked == elsewhere  ? TSaveChoice::Elsewhere
                                    : TSaveChoice::Stop;
    };
    if (m_document->changedOnDisk())
        return ask("changedOnDisk", tr("Changed on disk"),
                   tr("%1 was changed on disk after it was opened here.\n\nReload it (the changes made here are "
                      "lost), overwrite it (the changes made on disk are lost), or save the project elsewhere?")
                       .arg(path),
                   true);
    if (!m_document->lostOnSave().isEmpty())
        return ask("lossOnSave", tr("Saving loses part of the file"),
                   tr("%1 holds what the designer cannot keep:\n%2\n\nOverwrite it all the same, or save the "
                      "project elsewhere?")
                       .arg(path, m_document->lostOnSave()),
                   false);
    return TSaveChoice::Overwrite;
}

QString TMainWindow::projectFolder() const
{
    // Never the folder a page browsed last: the project's own, else the last project's.
    QString path = m_document->path();
    if (path.isEmpty() && !recentFiles().isEmpty())
        path = recentFiles().front();
    return path.isEmpty() ? QDir::homePath() : QFileInfo(path).absolutePath();
}

bool TMainWindow::maybeSave()
{
    if (!m_document->isModified())
        return true;
    QMessageBox box(QMessageBox::Question, tr("Unsaved changes"),
                    tr("The project has changes that are not saved. Save them?"),
                    QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, this);
    box.setObjectName("unsavedChanges");
    box.setDefaultButton(QMessageBox::Save);
    switch (box.exec()) {
    case QMessageBox::Save:
        return saveProject();
    case QMessageBox::Discard:
        return true;
    default:
        return false;
    }
}

void TMainWindow::closeEvent(QCloseEvent* event)
{
    if (m_runner->isRunning()) {
        if (QMessageBox::question(this, tr("A run is going on"), tr("Stop the run and close?")) != QMessageBox::Yes) {
            event->ignore();
            return;
        }
        m_runner->stop();
    }
    if (!maybeSave()) {
        event->ignore();
        return;
    }
    m_settings->setValue("window/geometry", saveGeometry());
    m_settings->setValue("window/state", saveState());
    event->accept();
}

QStringList TMainWindow::recentFiles() const
{
    return m_settings->value("recentFiles").toStringList();
}

void TMainWindow::addRecentFile(const QString& path)
{
    QStringList files = recentFiles();
    files.removeAll(path);
    files.prepend(path);
    while (files.size() > kMaxRecentFiles)
        files.removeLast();
    m_settings->setValue("recentFiles", files);
    fillRecentMenu();
}

void TMainWindow::fillRecentMenu()
{
    m_recentMenu->clear();
    const QStringList files = recentFiles();
    for (int i = 0; i < files.size(); ++i) {
        QAction* action = m_recentMenu->addAction(QStringLiteral("&%1 %2").arg(i + 1).arg(files[i]));
        connect(action, &QAction::triggered, this, [this, path = files[i]] {
            if (maybeSave())
                openProject(path);
        });
    }
    m_recentMenu->setEnabled(!files.isEmpty());
}

bool TMainWindow::addCatalogueAction(const QString& typeId, int row)
{
    auto action = WFActionServices().CreateAction(typeId.toStdString());
    if (!action || m_runner->isRunning())
        return false;
    if (row < 0)
        row = currentRow() < 0 ? m_document->cleanupHeadingRow() : currentRow() + 1;
    // What is stored is what the pages showed: a new action is added through its dialog, and
    // Cancel adds nothing.
    auto edited = runActionDialog(*action, {});
    if (!edited)
        return false;
    std::vector<std::unique_ptr<TCustomWFAction>> actions;
    actions.push_back(std::move(edited));
    m_document->insertActions(row, std::move(actions), tr("Add action"));
    selectRow(row);
    return true;
}

bool TMainWindow::editAction(int row, const QString& page)
{
    if (!m_document->actionAt(row) || m_runner->isRunning())
        return false;
    auto edited = runActionDialog(*m_document->actionAt(row), page);
    if (!edited)
        return false;
    m_document->replaceAction(row, std::move(edited));
    selectRow(row);
    return true;
}

std::unique_ptr<TCustomWFAction> TMainWindow::runActionDialog(const TCustomWFAction& action, const QString& page)
{
    TWFBuildVariables variables;
    m_document->project().DefineVariables(variables);
    TWFActionHost host = validationHost(variables);
    TActionDialog dialog(action, this, &host);
    const TDialogSize size(dialog, *m_settings, "actionDialog/size");
    if (!page.isEmpty())
        dialog.showPage(page);
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
    return dialog.takeResult();
}

void TMainWindow::editVariables()
{
    TVariablesDialog dialog(m_document->project().variables, this);
    if (dialog.exec() == QDialog::Accepted)
        m_document->setVariables(dialog.variables());
}

void TMainWindow::editOptions()
{
    TOptionsDialog dialog(this);
    const TDialogSize size(dialog, *m_settings, "optionsDialog/size");
    dialog.exec();
}

void TMainWindow::copySelection()
{
    const auto rows = selectedRows();
    if (rows.empty())
        return;
    auto* data = new QMimeData;
    const QByteArray text = QByteArray::fromStdString(m_document->actionsText(rows));
    data->setData("application/x-wrenfield-project", text);
    data->setText(QString::fromUtf8(text));
    QApplication::clipboard()->setMimeData(data);
}

void TMainWindow::cutSelection()
{
    const auto rows = selectedRows();
    copySelection();
    if (!rows.empty())
        m_document->removeActions(rows, tr("Cut"));
    if (!rows.empty())
        selectRow(std::min(rows.front(), m_model->rowCount() - 1));
}

void TMainWindow::duplicateSelection()
{
    std::vector<int> rows;
    for (int row : selectedRows())
        if (m_document->actionAt(row))
            rows.push_back(row);
    if (rows.empty())
        return;
    std::vector<std::unique_ptr<TCustomWFAction>> actions;
    QString error;
    if (!TDesignerDocument::actionsFromText(m_document->actionsText(rows), actions, error))
        return;
    // The copies go below the last selected action, in its section, and become the selection.
    const int at = rows.back() + 1;
    const int count = static_cast<int>(actions.size());
    m_document->insertActions(at, std::move(actions), count == 1 ? tr("Duplicate action") : tr("Duplicate %1 actions").arg(count));
    std::vector<int> copies;
    for (int i = 0; i < count; ++i)
        copies.push_back(at + i);
    selectRows(copies, at);
}

void TMainWindow::paste()
{
    const QMimeData* data = QApplication::clipboard()->mimeData();
    if (!data)
        return;
    const QByteArray text = data->hasFormat("application/x-wrenfield-project") ? data->data("application/x-wrenfield-project")
                                                                               : data->text().toUtf8();
    std::vector<std::unique_ptr<TCustomWFAction>> actions;
    QString error;
    if (!TDesignerDocument::actionsFromText(text.toStdString(), actions, error) || actions.empty()) {
        statusBar()->showMessage(tr("The clipboard holds no actions."), 5000);
        return;
    }
    const int row = currentRow() < 0 ? m_document->cleanupHeadingRow() : currentRow() + 1;
    const int count = static_cast<int>(actions.size());
    m_document->insertActions(row, std::move(actions), count == 1 ? tr("Paste action") : tr("Paste %1 actions").arg(count));
    selectRow(row);
}

void TMainWindow::removeSelection()
{
    const auto rows = selectedRows();
    if (rows.empty())
        return;
    m_document->removeActions(rows);
    selectRow(std::min(rows.front(), m_model->rowCount() - 1));
}

void TMainWindow::moveSelection(int delta)
{
    const int row = currentRow();
    const int target = row + delta;
    if (row < 0 || target < 0 || target >= m_model->rowCount())
        return;
    m_document->moveAction(row, target);
    selectRow(target);
}

void TMainWindow::setSelectionEnabled(bool enabled)
{
    m_document->setEnabled(selectedRows(), enabled);
}

bool TMainWindow::isRunning() const
{
    return m_runner->isRunning();
}

bool TMainWindow::runProject(int first, bool dryRun)
{
    // Clean-up actions run only after a failure of the actions above them.
    if (m_runner->isRunning() || first >= m_document->cleanupHeadingRow())
        return false;
    m_log->clear();
    m_model->clearRunState();
    for (int row = first; row < m_document->cleanupHeadingRow(); ++row)
        m_model->setRunState(row, TRunStatus::Waiting);
    QString error;
    if (!m_runner->start(WriteProjectText(m_document->project()), m_document->path(), first, dryRun, error)) {
        QMessageBox::critical(this, tr("Cannot run"), error);
        m_model->clearRunState();
        return false;
    }
    m_progress = {};
    for (int row = first; row < m_document->cleanupHeadingRow(); ++row)
        m_progress.total += m_document->actionAt(row)->GetEnabled() ? 1 : 0;
    for (int row = m_document->cleanupHeadingRow() + 1; row < m_model->rowCount(); ++row)
        m_progress.cleanupTotal += m_document->actionAt(row)->GetEnabled() ? 1 : 0;
    m_runTime.start();
    m_clock->start();
    showRunProgress();
    updateActions();
    return true;
}

void TMainWindow::showRunProgress()
{
    const QString seconds = QString::number(m_runTime.elapsed() / 1000.0, 'f', 1);
    if (m_progress.cleanupStarted > 0)
        m_runLabel->setText(tr("Cleaning up %1/%2 (%3 s)").arg(m_progress.cleanupStarted).arg(m_progress.cleanupTotal).arg(seconds));
    else
        m_runLabel->setText(tr("Running %1/%2 (%3 s)").arg(m_progress.started).arg(m_progress.total).arg(seconds));
    // The running action's time counts up as it runs.
    if (m_progress.row >= 0)
        m_model->setRunState(m_progress.row, TRunStatus::Running, m_progress.actionTime.elapsed() / 1000.0);
}

void TMainWindow::stopRun()
{
    if (m_runner->isRunning()) {
        m_runLabel->setText(tr("Stopping..."));
        m_runner->stop();
    }
}

void TMainWindow::runFinished(int status)
{
    m_clock->stop();
    m_progress.row = -1;
    const QString seconds = QString::number(m_runTime.elapsed() / 1000.0, 'f', 1);
    const QString outcome = status == 0 ? tr("Succeeded") : status == 130 ? tr("Stopped") : tr("Failed");
    m_runLabel->setText(tr("%1 in %2 s").arg(outcome, seconds));
    // Anything that never started (after a failure or a stop) is not waiting any longer.
    for (int row = 0; row < m_model->rowCount(); ++row)
        if (m_model->runStatus(row) == TRunStatus::Waiting || m_model->runStatus(row) == TRunStatus::Running)
            m_model->setRunState(row, TRunStatus::Skipped);
    updateActions();
}

void TMainWindow::appendLog(const QString& text, bool isError)
{
    m_log->appendLine(text, logLineKind(text, isError));
}

int TMainWindow::validateProject()
{
    m_problems->clear();
    int invalid = 0;
    const int checked = checkValidity([&](const TActionValidation& action, int row) {
        ++invalid;
        const QString title = (action.cleanup ? tr("Clean-up action %1 (%2)") : tr("Action %1 (%2)"))
                                  .arg(action.index + 1)
                                  .arg(QString::fromStdString(action.title));
        auto* parent = new QTreeWidgetItem(m_problems, {title});
        parent->setIcon(0, QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning));
        parent->setData(0, kRowRole, row);
        for (const auto& error : action.errors) {
            auto* item = new QTreeWidgetItem(parent, {QString::fromStdString(error.location), QString::fromStdString(error.message)});
            item->setData(0, kRowRole, row);
            item->setData(0, kLocationRole, QString::fromStdString(error.location));
        }
    });
    if (checked < 0)
        return -1;
    const QString summary = !invalid ? tr("All %1 enabled actions are valid.").arg(checked)
        : invalid == 1               ? tr("1 of %1 enabled actions is not valid.").arg(checked)
                                     : tr("%1 of %2 enabled actions are not valid.").arg(invalid).arg(checked);
    statusBar()->showMessage(summary, 10000);
    if (!invalid) {
        auto* item = new QTreeWidgetItem(m_problems, {summary});
        item->setFirstColumnSpanned(true);
    }
    m_problems->expandAll();
    m_problems->resizeColumnToContents(0);
    if (auto* dock = findChild<QDockWidget*>("problemsDock"))
        dock->raise();
    return invalid;
}

int TMainWindow::checkValidity(const std::function<void(const TActionValidation&, int row)>& onInvalid)
{
    m_validityTimer->stop();
    TWFProject project;
    std::vector<TWFProjectDiagnostic> diagnostics;
    // Validation sees what a run would: the project as it would be saved.
    if (!ReadProjectText(WriteProjectText(m_document->project()), m_document->path().toStdString(), project, diagnostics))
        return -1;
    TWFBuildVariables variables;
    project.DefineVariables(variables);
    TWFActionHost host = validationHost(variables);
    std::vector<QStringList> errors(static_cast<std::size_t>(m_model->rowCount()));
    const std::size_t checked = ::validateProject(project, host, [&](const TActionValidation& action) {
        const int row = static_cast<int>(action.index) + (action.cleanup ? m_document->cleanupHeadingRow() + 1 : 0);
        for (const auto& error : action.errors)
            errors.at(row) << QString::fromStdString(error.ToString());
        if (onInvalid)
            onInvalid(action, row);
    });
    for (int row = 0; row < m_model->rowCount(); ++row)
        m_model->setValidation(row, errors[row]);
    return static_cast<int>(checked);
}

TWFActionHost TMainWindow::validationHost(TWFBuildVariables& variables) const
{
    TWFActionHost host;
    host.variables = &variables;
    host.defaultStartingDir = m_document->path().isEmpty() ? QDir::currentPath().toStdString()
                                                           : QFileInfo(m_document->path()).absolutePath().toStdString();
    host.functions = WFScriptingServices().Resolver();
    return host;
}

void TMainWindow::openProblem(QTreeWidgetItem* item)
{
    const QVariant row = item->data(0, kRowRole);
    if (row.isNull())
        return;
    editAction(row.toInt(), item->data(0, kLocationRole).toString());
}

void TMainWindow::showActionHelp()
{
    const int row = currentRow();
    if (row < 0) {
        statusBar()->showMessage(tr("Select an action to see its help."), 5000);
        return;
    }
    if (const TCustomWFAction* action = m_document->actionAt(row))
        ::showActionHelp(*action, this);
}

void TMainWindow::showAbout()
{
    QString packages;
    for (const auto& plugin : WFLoadedPlugins())
        packages += QStringLiteral("<li><b>%1</b><br>%2</li>")
                        .arg(QFileInfo(QString::fromStdString(plugin.path)).fileName().toHtmlEscaped(),
                             QString::fromStdString(plugin.description.empty() ? "(no description)" : plugin.description).toHtmlEscaped());
    QMessageBox box(QMessageBox::Information, tr("About Wrenfield Designer"),
                    tr("<h3>Wrenfield Designer %1</h3><p>Edit, validate and run build projects.</p>"
                       "<p>Loaded packages:</p><ul>%2</ul>")
                        .arg(QApplication::applicationVersion(), packages.isEmpty() ? tr("<li>none</li>") : packages),
                    QMessageBox::Ok, this);
    box.setObjectName("aboutBox");
    box.exec();
}
