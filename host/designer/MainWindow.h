#pragma once

#include "DesignerIcons.h"

#include <QElapsedTimer>
#include <QMainWindow>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QSettings;
class QTimer;
class QTreeView;
class QTreeWidget;
class QTreeWidgetItem;
class TDesignerDocument;
class TLogPane;
class TProjectModel;
class TRunController;
class TCustomWFAction;
class TWFActionHost;
struct TActionValidation;
class TWFBuildVariables;

/// The designer's window: the catalogue on the left, the project's actions in the middle, the
/// build log and the validation results below.
class TMainWindow final : public QMainWindow {
    Q_OBJECT
public:
    /// settingsFile: the designer's own settings (window geometry, recent files).
    explicit TMainWindow(const QString& settingsFile, QWidget* parent = nullptr);
    ~TMainWindow() override;

    // What the menus do, reachable by tests as a user's choices are.
    bool openProject(const QString& path);
    bool saveProject();
    bool saveProjectAs(const QString& path);
    void newProject();
    /// Adds a new action of the type before `row` (-1: after the current row, at the end when
    /// none is current) once the user accepted it in its dialog; false when cancelled.
    bool addCatalogueAction(const QString& typeId, int row = -1);
    /// Opens the action dialog on a row, on the tab named `page` when given; true when accepted.
    bool editAction(int row, const QString& page = {});
    void editVariables();
    void editOptions();
    /// Starts a run from action `first` (0: the whole project).
    bool runProject(int first, bool dryRun);
    void stopRun();
    /// Lists the errors of every enabled action; the count of actions that are not valid.
    int validateProject();
    void cutSelection();
    void copySelection();
    void duplicateSelection();
    void paste();
    void removeSelection();
    void moveSelection(int delta);
    void setSelectionEnabled(bool enabled);
    void showAbout();

    TDesignerDocument& document() { return *m_document; }
    TProjectModel& model() { return *m_model; }
    TRunController& runner() { return *m_runner; }
    QTreeView* projectView() const { return m_projectView; }
    QTreeWidget* catalogue() const { return m_catalogue; }
    QLineEdit* catalogueFilter() const { return m_filter; }
    TLogPane* log() const { return m_log; }
    QTreeWidget* problems() const { return m_problems; }
    QStringList recentFiles() const;
    bool isRunning() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void createActions();
    void createCatalogue();
    void createDocks();
    void fillCatalogue();
    void filterCatalogue(const QString& text);
    void updateTitle();
    void updateActions();
    void addRecentFile(const QString& path);
    void fillRecentMenu();
    bool maybeSave();
    enum class TSaveChoice { Overwrite, Elsewhere, Stop };
    /// Before the open file is replaced: asks when it changed on disk since (reload, overwrite
    /// or save elsewhere) or holds what saving loses (overwrite or save elsewhere).
    TSaveChoice confirmSavingOver();
    std::vector<int> selectedRows() const;
    int currentRow() const;
    void selectRow(int row);
    void selectRows(const std::vector<int>& rows, int current);
    /// Where Open and Save As start: the project's folder, else the last project's.
    QString projectFolder() const;
    /// The action dialog on a copy of action; the edited action when the user accepted.
    std::unique_ptr<TCustomWFAction> runActionDialog(const TCustomWFAction& action, const QString& page);
    void showRunProgress();
    /// Validates the project as a run would and marks each row's validity; onInvalid hears of
    /// each action that is not valid. The count of enabled actions checked, -1 when the project
    /// cannot be read.
    int checkValidity(const std::function<void(const TActionValidation&, int row)>& onInvalid);
    void appendLog(const QString& text, bool isError);
    void runFinished(int status);
    void showActionHelp();
    void openProblem(QTreeWidgetItem* item);
    /// What validation runs with, as `wfbuild validate` gives it: the project's variables and folder.
    TWFActionHost validationHost(TWFBuildVariables& variables) const;

    QSettings* m_settings;
    TDesignerDocument* m_document;
    TProjectModel* m_model;
    TRunController* m_runner;
    QTreeView* m_projectView = nullptr;
    QTreeWidget* m_catalogue = nullptr;
    QLineEdit* m_filter = nullptr;
    TLogPane* m_log = nullptr;
    QTreeWidget* m_problems = nullptr;
    QLabel* m_runLabel = nullptr;
    QTimer* m_clock = nullptr;
    QElapsedTimer m_runTime;
    QTimer* m_validityTimer = nullptr;
    /// How far the run is: the running row, actions started of those to run, then the clean-up's.
    struct TProgress {
        int row = -1;
        int started = 0;
        int total = 0;
        int cleanupStarted = 0;
        int cleanupTotal = 0;
        QElapsedTimer actionTime;
    } m_progress;
    std::vector<int> m_keptSelection;
    int m_keptCurrent = -1;
    QMenu* m_recentMenu = nullptr;

    QAction* m_save = nullptr;
    QAction* m_cut = nullptr;
    QAction* m_copy = nullptr;
    QAction* m_duplicate = nullptr;
    QAction* m_paste = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_moveUp = nullptr;
    QAction* m_moveDown = nullptr;
    QAction* m_enable = nullptr;
    QAction* m_disable = nullptr;
    QAction* m_properties = nullptr;
    QAction* m_run = nullptr;
    QAction* m_runFrom = nullptr;
    QAction* m_dryRun = nullptr;
    QAction* m_stop = nullptr;
    QAction* m_validate = nullptr;
};
