// The designer driven as a user drives it: menus, the catalogue, the project list, the action
// and options dialogs, runs with their log and statuses.
#include "DesignerTestSupport.h"

#include "ActionDialog.h"
#include "DesignerCommandLine.h"
#include "DesignerDocument.h"
#include "LogPane.h"
#include "MainWindow.h"
#include "ProjectModel.h"
#include "RunController.h"
#include "VariablesDialog.h"

#include "ProgramRun.h"
#include "RowName.h"
#include "WFTestSupport.h"

#include "WFBrowse.h"
#include "WFFrame.h"
#include "WFIniFile.h"
#include "WFProcess.h"
#include "WFServices.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTest>
#include <QTextBrowser>
#include <QTreeView>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include <signal.h>
#include <algorithm>
#include <filesystem>
#include <map>

#include <sys/stat.h>

using namespace designertest;

namespace {

std::string examplePath(const std::string& name)
{
    return std::string(WF_EXAMPLES_DIR) + "/" + name;
}

std::string projectText(TMainWindow& window)
{
    return WriteProjectText(window.document().project());
}

std::string property(TMainWindow& window, int row, const std::string& name)
{
    return window.document().project().actions.at(row)->GetPropertyText(name);
}

void selectRows(TMainWindow& w, const std::vector<int>& rows)
{
    w.projectView()->setFocus();
    w.projectView()->selectionModel()->clearSelection();
    w.projectView()->setCurrentIndex(w.model().index(rows.front(), 0));
    for (int row : rows)
        w.projectView()->selectionModel()->select(w.model().index(row, 0), QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

/// The open help viewer's page; closing every viewer, so the next look finds only a new one.
QUrl takeHelpPage()
{
    QUrl shown;
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->objectName() == "helpViewer" && top->isVisible()) {
            const auto* browser = top->findChild<QTextBrowser*>("helpBrowser");
            shown = browser->toPlainText().isEmpty() ? QUrl("empty:") : browser->source();
            top->close();
        }
    return shown;
}

class DesignerWindow : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_startFolder = QDir::currentPath();
        designertest::loadPackages();
        SetWFConfigDirectory(m_config.path());
        window = std::make_unique<TMainWindow>(QString::fromStdString(m_config.file("wfdesigner.ini")));
        window->show();
        QObject::connect(&window->runner(), &TRunController::finished, [this](int status) { finished = status; });
    }
    void TearDown() override
    {
        window->document().undoStack().setClean();
        window.reset();
        SetWFConfigDirectory("");
        // A run moves into its project's folder, which this test's temporary folder may have been.
        QDir::setCurrent(m_startFolder);
    }

    /// A copy of an example, opened.
    void openExample(const std::string& name)
    {
        const std::string copy = m_config.write(name, wftest::readFile(examplePath(name)));
        ASSERT_TRUE(window->openProject(QString::fromStdString(copy)));
    }
    std::string writeProject(const std::string& name, const std::string& actions, const std::string& variables = "",
                             const std::string& cleanup = "")
    {
        return m_config.write(name, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<wfproject version=\"2\">\n  <variables>" +
                                        variables + "</variables>\n  <actions>\n" + actions + "  </actions>\n  <cleanup>\n" +
                                        cleanup + "  </cleanup>\n</wfproject>\n");
    }

    QString m_startFolder;
    wftest::TempDir m_config;
    std::unique_ptr<TMainWindow> window;
    /// The exit status of the window's last run; -1 until one ends.
    int finished = -1;
};

// --- the command line ---------------------------------------------------------------------

/// What the arguments parse to, or the error they give.
std::string parsed(const std::vector<std::string>& arguments)
{
    TDesignerArguments args;
    std::string error;
    if (!parseDesignerCommandLine(arguments, args, error))
        return "error: " + error;
    std::string plugins;
    for (const std::string& plugin : args.plugins)
        plugins += " plugin=" + plugin;
    return "project=" + args.project + " config=" + args.configDir + plugins + (args.help ? " help" : "");
}

TEST(DesignerCommandLine, Parses)
{
    const std::vector<std::pair<std::vector<std::string>, std::string>> rows = {
        {{"p.wfp", "--config-dir", "cfg", "--plugin", "a.so", "--plugin", "b.so"}, "project=p.wfp config=cfg plugin=a.so plugin=b.so"},
        {{"-h"}, "project= config= help"},
        {{"--config-dir"}, "error: --config-dir needs a value"},
        {{"--plugin", ""}, "error: --plugin needs a value"},
        {{"a.wfp", "b.wfp"}, "error: only one project can be opened, not also \"b.wfp\""}};
    for (const auto& [arguments, expected] : rows)
        EXPECT_EQ(parsed(arguments), expected);
}

TEST(DesignerProgram, HelpAndVersionNeedNoDisplay)
{
    struct Row {
        std::string argument;
        std::string piece;
        int status;
    };
    for (const Row& row : {Row{"--help", "Usage: wfdesigner [PROJECT.wfp]", 0}, Row{"--version", "wfdesigner 3.", 0},
                           Row{"--bogus", "unknown option", 2}}) {
        wftest::ProgramRequest request;
        request.program = WFDESIGNER_PATH;
        request.arguments = {row.argument};
        // No platform that could open a window: the answer must come before one is needed.
        request.environment = {{"QT_QPA_PLATFORM", "none-such"}, {"DISPLAY", ""}};
        const auto run = wftest::runProgram(request);
        EXPECT_EQ(run.status, row.status) << row.argument << run.err;
        EXPECT_NE((run.out + run.err).find(row.piece), std::string::npos) << row.argument << ": " << run.out << run.err;
    }
}

TEST(DesignerProgram, ExitsCleanlyAfterAPageAskedClearCase)
{
    // A fresh process, as the designer starts: the package's query session is made before the
    // host has started any program.
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    wftest::TempDir dir;
    const std::string ini =
        dir.write("options.ini", std::string("[ClearCase]\nCleartoolPath=") + CLEARTOOL_PATH + "\nInstallationType=ClearCase\n");
    wftest::ScopedEnv home("CCSIM_HOME", dir.file("sim"));
    EXPECT_EXIT(
        {
            designertest::loadPackages();
            std::string error;
            WFOptionsServices().Load(ini, error);
            const auto action = WFActionServices().CreateAction("CC_MKLBTYPE");
            std::unique_ptr<QWidget> page(WFActionServices().PagesOf("TClearCaseMkLbTypeAction").at(0).create(nullptr));
            dynamic_cast<TFrame&>(*page).ReadActionData(*action);
            page->findChild<QComboBox*>("txtVOBSelector")->showPopup();
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

// --- package icons -----------------------------------------------------------------------

TEST(PackageIcons, ComeFromThePackagesBitmapsWithTheirKeyColourTransparent)
{
    designertest::loadPackages();
    // What a name no package carries gets.
    const QImage placeholder = packageIcon("NO_SUCH_RESOURCE").pixmap(16, 16).toImage();
    // An action of each package.
    for (const std::string name : {"CC_CHECKOUT", "WF_LOGMESSAGE"}) {
        const QImage icon = packageIcon(name).pixmap(16, 16).toImage();
        EXPECT_EQ(icon.size(), QSize(16, 16)) << name;
        EXPECT_NE(icon, placeholder) << name;
        // The bottom-left pixel's colour is the bitmap's background: see-through in the icon.
        EXPECT_EQ(icon.pixelColor(0, 15).alpha(), 0) << name;
        EXPECT_TRUE(std::any_of(icon.constBits(), icon.constBits() + icon.sizeInBytes(), [](uchar b) { return b != 0; }))
            << name;
    }
}

// The basic actions' pages come from their own page library.
TEST(BasicActionsDialog, ShowsEachActionsOwnPageBeforeGeneral)
{
    designertest::loadPackages();
    // The message and variable pages are seen in the project edits and the validation test.
    for (const auto& [typeId, caption] : {std::pair{"WF_WRITETEXTFILE", "File"}, std::pair{"WF_RUNPROGRAM", "Program"}}) {
        const auto action = WFActionServices().CreateAction(typeId);
        ASSERT_TRUE(action) << typeId;
        TActionDialog dialog(*action);
        ASSERT_EQ(dialog.tabs()->count(), 2) << typeId;
        EXPECT_EQ(dialog.tabs()->tabText(0).toStdString(), caption) << typeId;
    }
}

// --- projects, catalogue, pages, undo, save ----------------------------------------------

TEST_F(DesignerWindow, AddsACheckOutFromTheCatalogueEditsItOnItsPagesAndSavesIt)
{
    openExample("release.wfp");
    const std::size_t before = window->document().project().actions.size();
    selectRows(*window, {0});

    // Typing filters the catalogue down to the one action.
    QTest::keyClicks(window->catalogueFilter(), "check out");
    QStringList visible;
    for (auto* item : window->catalogue()->findItems("*", Qt::MatchWildcard | Qt::MatchRecursive))
        if (!item->isHidden() && item->parent() && !item->parent()->isHidden())
            visible << item->text(0);
    EXPECT_EQ(visible, QStringList{"ClearCase Check Out"});
    QTreeWidgetItem* item = window->catalogue()->findItems("ClearCase Check Out", Qt::MatchExactly | Qt::MatchRecursive).value(0);
    ASSERT_NE(item, nullptr);
    EXPECT_FALSE(item->icon(0).isNull());
    // The catalogue is as wide as its longest name.
    const QTreeWidget* catalogue = window->catalogue();
    EXPECT_GE(catalogue->viewport()->width(), catalogue->fontMetrics().horizontalAdvance("ClearCase Apply Attribute (Objects)")
                                                  + 2 * catalogue->indentation() + catalogue->iconSize().width());

    // Adding opens the new action's dialog at once; what it holds is what the pages showed.
    QString validation;
    // The pages in their registered order, then the host's tab. Without a cleartool in the
    // options the action is not valid; the user keeps it anyway.
    answerDialog({look([](QWidget* dialog) {
                      EXPECT_EQ(tabTexts(dialog), (QStringList{"Pathnames", "Extended Pathnames", "Checkout Options", "Comment", "General"}));
                  }),
                  onTab("Comment"), clickOn("btnComment"), typeInto("txtComment", "nightly build"), onTab("General"),
                  typeInto("txtDescription", "Check out for the nightly"), answerBox("btnKeep", &validation), pressOk});
    const QRect rect = window->catalogue()->visualItemRect(item);
    QTest::mouseClick(window->catalogue()->viewport(), Qt::LeftButton, {}, rect.center());
    QTest::mouseDClick(window->catalogue()->viewport(), Qt::LeftButton, {}, rect.center());
    ASSERT_EQ(window->document().project().actions.size(), before + 1);
    EXPECT_EQ(window->windowTitle().toStdString(), "release.wfp* - Wrenfield Designer");
    EXPECT_TRUE(validation.contains("Options: The path to cleartool.exe has not been specified")) << validation.toStdString();
    EXPECT_EQ(property(*window, 1, "Comment"), "nightly build");
    EXPECT_EQ(window->document().project().actions[1]->GetDescription(), "Check out for the nightly");
    // A description hides the action's name in the list; the tooltip still gives its type.
    EXPECT_EQ(window->model().data(window->model().index(1, 0), Qt::ToolTipRole).toString(), "ClearCase Check Out (CC_CHECKOUT)");

    // Added and edited is one step (undone and redone with the project edits); Cancel adds nothing.
    answerDialog({pressCancel});
    EXPECT_FALSE(window->addCatalogueAction("CC_CHECKOUT"));
    EXPECT_EQ(window->document().project().actions.size(), before + 1);
    EXPECT_EQ(window->document().undoStack().count(), 1);

    ASSERT_TRUE(window->saveProject());
    EXPECT_EQ(window->windowTitle().toStdString(), "release.wfp - Wrenfield Designer");
    const std::string saved = wftest::readFile(window->document().path().toStdString());
    EXPECT_NE(saved.find("<property name=\"Comment\">nightly build</property>"), std::string::npos) << saved;
    // Not every platform theme binds Save As; it starts in the project's folder.
    EXPECT_EQ(window->findChild<QAction*>("actionSaveAs")->shortcut(), QKeySequence("Ctrl+Shift+S"));
    std::string asked;
    SetWFBrowseForFileHook([&](const TWFBrowseFileRequest& request, std::string&) {
        asked = request.initialDir;
        return false;
    });
    window->findChild<QAction*>("actionSaveAs")->trigger();
    SetWFBrowseForFileHook(nullptr);
    EXPECT_EQ(asked, m_config.path());
}

/// An action of a project file, its properties given as (name, value) pairs.
std::string actionXml(const std::string& type, const std::string& description,
                      const std::vector<std::pair<std::string, std::string>>& properties = {}, bool enabled = true)
{
    std::string xml = "    <action type=\"" + type + "\" description=\"" + description + "\" enabled=\"" +
        (enabled ? "True" : "False") + "\">\n";
    for (const auto& [name, value] : properties)
        xml += "      <property name=\"" + name + "\">" + value + "</property>\n";
    return xml + "    </action>\n";
}

/// The project list as the user reads it: each action's description, or its type when it has
/// none, "-" before a disabled one, and "|" for the clean-up heading.
std::string listing(TMainWindow& w)
{
    std::string text;
    for (int row = 0; row < w.model().rowCount(); ++row) {
        const TCustomWFAction* action = w.document().actionAt(row);
        text += text.empty() ? "" : " ";
        if (!action)
            text += "|";
        else
            text += (action->GetEnabled() ? "" : "-") +
                (action->GetDescription().empty() ? action->GetActionTypeID() : action->GetDescription());
    }
    return text;
}

std::vector<int> selectedRowsOf(TMainWindow& w)
{
    std::vector<int> rows;
    for (const auto& index : w.projectView()->selectionModel()->selectedRows())
        rows.push_back(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

/// A user's step in the project list.
using Edit = std::function<void(TMainWindow&)>;
Edit pick(std::vector<int> rows)
{
    return [rows](TMainWindow& w) { selectRows(w, rows); };
}
Edit menu(const char* action)
{
    return [action](TMainWindow& w) { w.findChild<QAction*>(action)->trigger(); };
}

/// One edit of the project list: the user's steps, the list afterwards (nullptr: unchanged) and
/// the rows then selected (when given).
struct EditRow {
    const char* name;
    std::vector<Edit> steps;
    const char* listed;
    std::vector<int> selected = {};
    Edit check = {};
};

WF_ROW_PRINTER(EditRow)

class ProjectEdits : public DesignerWindow, public ::testing::WithParamInterface<EditRow> {};

TEST_P(ProjectEdits, EachIsOneStepToUndoAndRedo)
{
    const EditRow& row = GetParam();
    const std::string cleanup = actionXml("CC_UNCHECKOUT", "x") + actionXml("CC_UNLOCK_OBJ", "y");
    ASSERT_TRUE(window->openProject(QString::fromStdString(writeProject(
        "edits.wfp",
        actionXml("CC_UPDATE", "a") + actionXml("CC_FINDCHECKOUTS", "b") + actionXml("WF_LOGMESSAGE", "c") +
            actionXml("CC_CHECKOUT", "d", {{"PathNameStorageString", "src/a.c&#13;&#10;"}}),
        "<variable name=\"VIEW\" type=\"string\" value=\"\"/>", cleanup))));
    const std::string original = projectText(*window);
    for (const Edit& step : row.steps)
        step(*window);
    const std::string edited = projectText(*window);
    ASSERT_NE(edited, original) << "the edit changed nothing";
    if (row.listed) {
        EXPECT_EQ(listing(*window), row.listed);
    }
    if (!row.selected.empty()) {
        EXPECT_EQ(selectedRowsOf(*window), row.selected);
    }
    if (row.check)
        row.check(*window);
    EXPECT_TRUE(window->document().isModified());
    const std::vector<int> selected = selectedRowsOf(*window);
    window->findChild<QAction*>("actionUndo")->trigger();
    EXPECT_EQ(projectText(*window), original);
    if (!selected.empty() && selected.back() < window->model().rowCount()) {
        EXPECT_FALSE(selectedRowsOf(*window).empty()) << "undo dropped the selection";
    }
    EXPECT_FALSE(window->document().isModified());
    window->findChild<QAction*>("actionRedo")->trigger();
    EXPECT_EQ(projectText(*window), edited);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ProjectEdits,
    ::testing::Values(
        EditRow{"move down", {pick({0}), menu("actionMoveDown")}, "b a c d | x y", {1}},
        EditRow{"untick the enabled box",
                {[](TMainWindow& w) { w.model().setData(w.model().index(2, 0), Qt::Unchecked, Qt::CheckStateRole); }},
                "a b -c d | x y"},
        EditRow{"disable from the menu", {pick({3}), menu("actionDisable")}, "a b c -d | x y"},
        EditRow{"drag from the catalogue",
                {[](TMainWindow& w) {
                     // OK in the new action's dialog, keeping it although it is not valid yet.
                     answerDialog({answerBox("btnKeep"), pressOk});
                     QMimeData data;
                     data.setData(kActionTypeMime, "CC_LOCK");
                     w.model().dropMimeData(&data, Qt::CopyAction, 2, 0, {});
                     waitFor([&] { return w.model().rowCount() == 8; });
                 }},
                "a b CC_LOCK c d | x y"},
        EditRow{"drag an action onto the clean-up heading",
                {[](TMainWindow& w) {
                    std::unique_ptr<QMimeData> data(w.model().mimeData({w.model().index(0, 0)}));
                    w.model().dropMimeData(data.get(), Qt::MoveAction, -1, 0, w.model().index(4, 0));
                }},
                "b c d | a x y", {4}},
        EditRow{"move the first clean-up action up into the actions", {pick({5}), menu("actionMoveUp")}, "a b c d x | y", {4}},
        EditRow{"cut", {pick({1}), menu("actionCut")}, "a c d | x y", {},
                [](TMainWindow&) { EXPECT_TRUE(QApplication::clipboard()->text().contains("CC_FINDCHECKOUTS")); }},
        EditRow{"duplicate two rows below the last and select the copies", {pick({0, 2}), menu("actionDuplicate")},
                "a b c a c d | x y", {3, 4}},
        // Greyed where it would change nothing.
        EditRow{"space switches every selected row, clean-up ones too",
                {pick({2, 3, 6}), [](TMainWindow& w) { QTest::keyClick(w.projectView(), Qt::Key_Space); }}, "a b -c -d | x -y",
                {2, 3, 6},
                [](TMainWindow& w) {
                    EXPECT_FALSE(w.findChild<QAction*>("actionDisable")->isEnabled());
                    EXPECT_TRUE(w.findChild<QAction*>("actionEnable")->isEnabled());
                }},
        EditRow{"copy an action and a clean-up action and paste them among the actions",
                {pick({3, 6}), menu("actionCopy"), pick({0}), menu("actionPaste")}, "a d y b c d | x y", {},
                [](TMainWindow& w) { EXPECT_EQ(property(w, 1, "PathNameStorageString"), property(w, 5, "PathNameStorageString")); }},
        EditRow{"remove an action and a clean-up action but never the heading", {pick({1, 4, 5}), menu("actionRemove")},
                "a c d | y", {},
                [](TMainWindow& w) { EXPECT_EQ(w.model().data(w.model().index(3, 0), Qt::DisplayRole).toString(), "When the build fails"); }},
        EditRow{"continue on failure from the General tab",
                {[](TMainWindow& w) {
                    answerDialog({seeTab("Message"), onTab("General"), clickOn("boxContinueOnFailure"), pressOk});
                    w.editAction(2);
                }},
                nullptr, {},
                [](TMainWindow& w) { EXPECT_TRUE(w.document().project().actions[2]->GetContinueOnFailure()); }},
        EditRow{"edit the variables",
                {[](TMainWindow& w) {
                    answerDialog({clickOn("btnAddVariable"), look([](QWidget* dialog) {
                                      auto* table = dialog->findChild<QTableWidget*>("variablesTable");
                                      table->item(table->rowCount() - 1, 0)->setText("TARGET");
                                      table->item(table->rowCount() - 1, 2)->setText("release");
                                  }),
                                  pressOk});
                    w.editVariables();
                }},
                nullptr, {},
                [](TMainWindow&) {
                    EXPECT_EQ(WFDesignApplicationServices().GetVariableNames(), (std::vector<std::string>{"VIEW", "TARGET"}));
                }}),
    [](const auto& info) { return wftest::rowName(info.param.name); });

TEST_F(DesignerWindow, VariableRowsThatCannotBeKeptAreNamed)
{
    // The variables, and a piece of the problem they make ("": none).
    for (const auto& [variables, piece] : std::vector<std::pair<std::vector<TWFProjectVariable>, std::string>>{
             {{{"A", "string", "x"}, {"B", "integer", "12"}, {"C", "boolean", "true"}}, ""},
             {{{"", "string", "x"}}, "Row 1: a variable needs a name."},
             {{{"A", "string", ""}, {"a", "string", ""}}, "Row 2: \"a\" is defined twice."},
             {{{"N", "integer", "twelve"}}, "Row 1: \"twelve\" is no integer value."},
             {{{"F", "boolean", "yes"}}, "\"yes\" is no boolean value."}}) {
        const QString problem = TVariablesDialog::problemOf(variables);
        EXPECT_EQ(problem.isEmpty(), piece.empty()) << problem.toStdString();
        EXPECT_TRUE(problem.contains(QString::fromStdString(piece))) << problem.toStdString();
    }
}

TEST_F(DesignerWindow, AProjectThatFailsToLoadIsNamedWithItsPlaceAndOpensNothing)
{
    openExample("locks.wfp");
    const QString openPath = window->document().path();
    const std::string openText = projectText(*window);
    const std::string cut = m_config.write("cut.wfp", "<?xml version=\"1.0\"?>\n<wfproject version=\"1\">\n  <actions>\n    <action type=\"CC_CHECKOUT\"\n");
    // Nobody writes to a FIFO: opening it for reading would wait for ever.
    const std::string fifo = m_config.file("fifo.wfp");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    for (const auto& [path, piece] : {std::pair{cut, cut + ":5:"}, std::pair{fifo, std::string("it is a FIFO, not a regular file")}}) {
        QString message;
        answerNextBox("OK", &message);
        EXPECT_FALSE(window->openProject(QString::fromStdString(path)));
        EXPECT_TRUE(message.contains(QString::fromStdString(path)) && message.contains(QString::fromStdString(piece))) << message.toStdString();
        EXPECT_EQ(window->document().path(), openPath);
        EXPECT_EQ(projectText(*window), openText);
    }
}

TEST_F(DesignerWindow, RecentFilesAndClosingWithUnsavedChanges)
{
    openExample("locks.wfp");
    openExample("ucm.wfp");
    EXPECT_EQ(window->recentFiles(), (QStringList{window->document().path(), QString::fromStdString(m_config.file("locks.wfp"))}));
    // Another window (the next start) sees the same list.
    TMainWindow second(QString::fromStdString(m_config.file("wfdesigner.ini")));
    EXPECT_EQ(second.recentFiles(), window->recentFiles());

    selectRows(*window, {0});
    window->findChild<QAction*>("actionRemove")->trigger();
    answerNextBox("Cancel");
    EXPECT_FALSE(window->close());
    answerNextBox("Discard");
    EXPECT_TRUE(window->close());
}

// --- saving over the open file --------------------------------------------------------------

struct SaveOverRow {
    const char* name;
    bool comment;         // the opened file holds an XML comment
    bool outsideChange;   // another program rewrites the file after it was opened
    const char* box;      // the question the save asks; nullptr: none
    const char* answer;   // the button clicked in it
    const char* fileHolds;  // afterwards: "opened", "outside" or "designer" (the designer's project)
    bool savedElsewhere;
};

WF_ROW_PRINTER(SaveOverRow)

class SavingOver : public DesignerWindow, public ::testing::WithParamInterface<SaveOverRow> {};

TEST_P(SavingOver, AsksBeforeLosingCommentsOrAChangeMadeOnDisk)
{
    const SaveOverRow& row = GetParam();
    std::string opened = wftest::readFile(examplePath("locks.wfp"));
    if (row.comment)
        opened.insert(opened.find("<variables>"), "<!-- IMPORTANT -->\n  ");
    const std::string path = m_config.write("p.wfp", opened);
    if (row.comment)
        answerNextBox("OK");
    ASSERT_TRUE(window->openProject(QString::fromStdString(path)));
    const std::string outside = wftest::readFile(examplePath("ucm.wfp"));
    if (row.outsideChange)
        m_config.write("p.wfp", outside);
    selectRows(*window, {0});
    window->findChild<QAction*>("actionRemove")->trigger();
    const std::string designer = projectText(*window);

    const std::string elsewhere = m_config.file("elsewhere.wfp");
    SetWFBrowseForFileHook([&](const TWFBrowseFileRequest&, std::string& file) {
        file = elsewhere;
        return true;
    });
    QString asked;
    if (row.box)
        answerNextBox(row.answer, &asked);
    window->findChild<QAction*>("actionSave")->trigger();
    SetWFBrowseForFileHook(nullptr);

    if (row.box) {
        EXPECT_TRUE(asked.startsWith(QString(row.box) + ": " + QString::fromStdString(path))) << asked.toStdString();
        if (row.comment) {
            EXPECT_TRUE(asked.contains("<!-- IMPORTANT -->")) << asked.toStdString();
        }
    }
    const std::map<std::string, std::string> texts{{"opened", opened}, {"outside", outside}, {"designer", designer}};
    EXPECT_EQ(wftest::readFile(path), texts.at(row.fileHolds));
    EXPECT_EQ(std::filesystem::exists(elsewhere), row.savedElsewhere);
    if (row.savedElsewhere) {
        EXPECT_EQ(wftest::readFile(elsewhere), designer);
    }
    if (row.answer == std::string("btnReload")) {
        EXPECT_FALSE(window->document().isModified());
        TWFProject reloaded;
        std::vector<TWFProjectDiagnostic> diagnostics;
        ASSERT_TRUE(ReadProjectText(outside, path, reloaded, diagnostics));
        EXPECT_EQ(projectText(*window), WriteProjectText(reloaded));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SavingOver,
    ::testing::Values(
        SaveOverRow{"nothingToLose", false, false, nullptr, "", "designer", false},
        SaveOverRow{"commentsCancelled", true, false, "lossOnSave", "Cancel", "opened", false},
        SaveOverRow{"commentsOverwritten", true, false, "lossOnSave", "btnOverwrite", "designer", false},
        SaveOverRow{"commentsKeptBySavingElsewhere", true, false, "lossOnSave", "btnSaveElsewhere", "opened", true},
        SaveOverRow{"outsideChangeReloaded", false, true, "changedOnDisk", "btnReload", "outside", false},
        SaveOverRow{"outsideChangeOverwritten", false, true, "changedOnDisk", "btnOverwrite", "designer", false},
        SaveOverRow{"outsideChangeKeptBySavingElsewhere", false, true, "changedOnDisk", "btnSaveElsewhere", "outside", true},
        SaveOverRow{"outsideChangeCancelled", false, true, "changedOnDisk", "Cancel", "outside", false}),
    [](const auto& info) { return wftest::rowName(info.param.name); });

// --- the action dialog ---------------------------------------------------------------------

TEST_F(DesignerWindow, ActionDialogFitsItsPagesLetsThemGrowAndRemembersItsSize)
{
    openExample("release.wfp");
    const int row = 14; // the baseline (UCM_MAKEBL): pages of several heights
    QSize chosen;
    whenModal([&](QWidget* dialog) {
        auto* tabs = dialog->findChild<QTabWidget*>();
        for (int i = 0; i < tabs->count(); ++i) {
            auto* area = qobject_cast<QScrollArea*>(tabs->widget(i));
            if (!area)
                continue;
            tabs->setCurrentIndex(i);
            QApplication::processEvents();
            EXPECT_FALSE(area->verticalScrollBar()->isVisible()) << tabs->tabText(i).toStdString();
            EXPECT_FALSE(area->horizontalScrollBar()->isVisible()) << tabs->tabText(i).toStdString();
        }
        tabs->setCurrentIndex(0);
        auto* area = qobject_cast<QScrollArea*>(tabs->widget(0));
        const QSize before = area->widget()->size();
        dialog->resize(dialog->size() + QSize(300, 200));
        QApplication::processEvents();
        EXPECT_EQ(area->widget()->size(), before + QSize(300, 200));
        // Smaller than the page, the page scrolls instead of squeezing its controls.
        dialog->resize(200, 200);
        QApplication::processEvents();
        EXPECT_TRUE(area->verticalScrollBar()->isVisible());
        EXPECT_EQ(area->widget()->size().expandedTo(area->widget()->minimumSizeHint()), area->widget()->size());
        dialog->resize(700, 500);
        chosen = dialog->size();
        take(dialog, pressCancel);
    });
    EXPECT_FALSE(window->editAction(row));
    QSize reopened;
    answerDialog({look([&](QWidget* dialog) { reopened = dialog->size(); }), pressCancel});
    EXPECT_FALSE(window->editAction(row));
    EXPECT_EQ(reopened, chosen);
}

TEST_F(DesignerWindow, ValidationErrorsSendTheUserBackToTheirPage)
{
    ASSERT_TRUE(window->openProject(QString::fromStdString(writeProject("t.wfp", actionXml("WF_SETVARIABLE", "", {{"VariableName", ""}})))));
    // The list marks the action without being asked; the run's status stays the run's.
    ASSERT_TRUE(waitFor([&] { return !window->model().validation(0).isEmpty(); }));
    EXPECT_EQ(window->model().validation(0), QStringList{"Variable: No variable name has been given."});
    EXPECT_EQ(window->projectView()->currentIndex().row(), 0) << "the first action is selected on open";
    ASSERT_EQ(window->validateProject(), 1);
    EXPECT_EQ(window->statusBar()->currentMessage(), "1 of 1 enabled actions is not valid.");
    QTreeWidgetItem* error = window->problems()->topLevelItem(0)->child(0);
    EXPECT_EQ(error->text(0), "Variable");
    EXPECT_EQ(error->text(1), "No variable name has been given.");
    EXPECT_EQ(window->model().runStatus(0), TRunStatus::None);

    // The page offers the project's variables as it reads the action.
    bool readWhileShown = false;
    WFDesignApplicationServices().variableNamesProvider = [&] {
        readWhileShown = window->findChild<QDialog*>("actionDialog")->isVisible();
        return std::vector<std::string>{};
    };
    // Double-clicking the error opens the action on the page it names; OK with the error
    // still there offers to go back, which keeps the dialog open on that page.
    QString asked;
    answerDialog({seeTab("Variable"), seeText("commandPreview", "Variable: No variable name has been given."), onTab("General"),
                  answerBox("btnGoBack", &asked), pressOk,
                  look([](QWidget* dialog) {
                      QTest::qWait(50);
                      EXPECT_TRUE(dialog->isVisible());
                  }),
                  seeTab("Variable"), typeInto("cmbVariableName", "FIXED"), pressOk});
    const QRect rect = window->problems()->visualItemRect(error);
    QTest::mouseClick(window->problems()->viewport(), Qt::LeftButton, {}, rect.center());
    QTest::mouseDClick(window->problems()->viewport(), Qt::LeftButton, {}, rect.center());
    EXPECT_TRUE(readWhileShown) << "the page read the action before the dialog showed";
    EXPECT_FALSE(asked.isEmpty()) << "OK with the error still there asked nothing";
    EXPECT_EQ(property(*window, 0, "VariableName"), "FIXED");
    EXPECT_TRUE(waitFor([&] { return window->model().validation(0).isEmpty(); }));
    EXPECT_EQ(window->validateProject(), 0);
}

TEST_F(DesignerWindow, TheDialogShowsTheCommandLineWithTheProjectsVariablesAsTheUserEditsAndPicksSeveralFilesAndF1ShowsItsHelp)
{
    ASSERT_TRUE(window->openProject(QString::fromStdString(writeProject(
        "p.wfp", actionXml("CC_CHECKOUT", "", {{"PathNameStorageString", "src/a.c&#13;&#10;"}, {"ViewContextPath", "%VIEW%"}}),
        "<variable name=\"VIEW\" type=\"string\" value=\"" + m_config.path() + "\"/>"))));
    std::string error;
    m_config.write("options.ini", "[ClearCase]\nCleartoolPath=" + std::filesystem::path(CLEARTOOL_PATH).parent_path().string() + "\n");
    ASSERT_TRUE(WFOptionsServices().Load(GetWFOptionsFileName(), error)) << error;
    QStringList previews;
    whenModal([&](QWidget* dialog) {
        auto* preview = dialog->findChild<QPlainTextEdit*>("commandPreview");
        ASSERT_TRUE(waitFor([&] { return !preview->toPlainText().isEmpty(); }, 3000));
        previews << preview->toPlainText();
        for (const Step& step : {onTab("Comment"), clickOn("btnComment"), typeInto("txtComment", "edited")})
            take(dialog, step);
        EXPECT_TRUE(waitFor([&] { return preview->toPlainText() != previews.front(); }));
        previews << preview->toPlainText();
        // Add > File takes several files in one pick, and the preview follows the list.
        SetWFBrowseForFilesHook([](const TWFBrowseFileRequest&, std::vector<std::string>& files) {
            files = {"/v/one.c", "/v/two.c"};
            return true;
        });
        dialog->findChild<QAction*>("menuFile")->trigger();
        SetWFBrowseForFilesHook(nullptr);
        EXPECT_TRUE(waitFor([&] { return preview->toPlainText().contains("\"/v/one.c\" \"/v/two.c\""); }))
            << preview->toPlainText().toStdString();
        QTest::keyClick(dialog, Qt::Key_F1);
        EXPECT_EQ(takeHelpPage().fragment(), "4460");
        take(dialog, pressCancel);
    });
    const std::string before = projectText(*window);
    EXPECT_FALSE(window->editAction(0));
    EXPECT_EQ(projectText(*window), before) << "Cancel kept an edit";
    ASSERT_EQ(previews.size(), 2);
    const QStringList lines = previews[0].split('\n');
    ASSERT_EQ(lines.size(), 2) << previews[0].toStdString();
    EXPECT_TRUE(lines[0].startsWith("Command Line: checkout")) << previews[0].toStdString();
    EXPECT_EQ(lines[1], "Starting Directory: " + QString::fromStdString(m_config.path()));
    EXPECT_TRUE(previews[1].contains("-c \"edited\"")) << previews[1].toStdString();
    WFOptionsServices().Load(m_config.file("none.ini"), error);
}

// --- options -----------------------------------------------------------------------------

// Keeping the rest of the file is the options services' own.
TEST_F(DesignerWindow, OptionsPagesWriteOptionsIniOnOkOnly)
{
    const std::string original = "[ClearCase]\nDefaultView=/views/old\n";
    std::string error;
    for (const bool accept : {false, true}) {
        const std::string ini = m_config.write("options.ini", original);
        ASSERT_TRUE(WFOptionsServices().Load(GetWFOptionsFileName(), error)) << error;
        answerDialog({seeTab("ClearCase Options"), seeText("editDefaultView", "/views/old"), typeInto("editDefaultView", "/views/new"),
                      accept ? pressOk : pressCancel});
        window->editOptions();
        const std::string written = wftest::readFile(ini);
        EXPECT_TRUE(accept ? written.find("DefaultView=/views/new") != std::string::npos : written == original) << written;
    }
    WFOptionsServices().Load(m_config.file("none.ini"), error);
}

// --- help and about ------------------------------------------------------------------------

TEST_F(DesignerWindow, F1InTheListOpensThePackageHelpAtTheActionsTopicAndAboutListsThePackages)
{
    openExample("release.wfp");
    for (const auto& [row, topic] : {std::pair{0, "4440"}, std::pair{4, "4460"}}) {
        selectRows(*window, {row});
        window->findChild<QAction*>("actionHelp")->trigger();
        const QUrl page = takeHelpPage();
        EXPECT_EQ(page.fragment(), QString(topic));
        EXPECT_TRUE(page.path().endsWith("ClearCase.html")) << page.toString().toStdString();
    }

    QString about;
    answerNextBox("OK", &about);
    window->showAbout();
    EXPECT_TRUE(about.contains("WF30ClearCase.so")) << about.toStdString();
    EXPECT_TRUE(about.contains("Wrenfield 3.x clearcase Support")) << about.toStdString();
    EXPECT_TRUE(about.contains("WFBasicActions.so")) << about.toStdString();
}

// --- running -------------------------------------------------------------------------------

/// The run state of every action row, the clean-up heading left out.
std::vector<TRunStatus> statuses(TMainWindow& w)
{
    std::vector<TRunStatus> result;
    for (int row = 0; row < w.model().rowCount(); ++row)
        if (w.document().actionAt(row))
            result.push_back(w.model().runStatus(row));
    return result;
}

QStringList logLines(TMainWindow& w, bool errorsOnly)
{
    w.log()->setErrorsOnly(errorsOnly);
    const QString text = w.log()->view()->toPlainText();
    return text.isEmpty() ? QStringList() : text.split('\n');
}

std::string runProgramAction(const std::string& arguments, const std::string& description = "program")
{
    return actionXml("WF_RUNPROGRAM", description, {{"Program", "sh"}, {"Arguments", arguments}});
}

std::string logAction(const std::string& text, bool enabled = true)
{
    return actionXml("WF_LOGMESSAGE", "say", {{"Text", text}}, enabled);
}

struct RunRow {
    const char* name;
    std::string actions;
    int first;
    bool dryRun;
    int status;
    std::vector<TRunStatus> statuses;
    QStringList logHolds;
    QStringList logLacks;
    QStringList errorLines;
    std::string cleanup = {};
};

WF_ROW_PRINTER(RunRow)

class ProjectRuns : public DesignerWindow, public ::testing::WithParamInterface<RunRow> {};

TEST_P(ProjectRuns, ShowStatusesAndTheLog)
{
    const RunRow& row = GetParam();
    ASSERT_TRUE(window->openProject(QString::fromStdString(writeProject("run.wfp", row.actions, "", row.cleanup))));
    ASSERT_TRUE(window->runProject(row.first, row.dryRun));
    EXPECT_FALSE(window->findChild<QAction*>("actionRun")->isEnabled());
    ASSERT_TRUE(waitFor([&] { return finished >= 0; }));
    EXPECT_EQ(finished, row.status);
    EXPECT_EQ(statuses(*window), row.statuses);
    const QString log = logLines(*window, false).join('\n');
    for (const QString& piece : row.logHolds)
        EXPECT_TRUE(log.contains(piece)) << "log lacks " << piece.toStdString() << ":\n" << log.toStdString();
    for (const QString& piece : row.logLacks)
        EXPECT_FALSE(log.contains(piece)) << "log holds " << piece.toStdString() << ":\n" << log.toStdString();
    EXPECT_EQ(logLines(*window, true), row.errorLines) << log.toStdString();
    EXPECT_TRUE(window->findChild<QAction*>("actionRun")->isEnabled());
}

using S = TRunStatus;
INSTANTIATE_TEST_SUITE_P(
    Rows, ProjectRuns,
    ::testing::Values(
        RunRow{"a disabled action is skipped and success runs no clean-up", logAction("off", false) + logAction("on"), 0, false, 0,
               {S::Skipped, S::Succeeded, S::None}, {"on", "1 disabled"}, {"Clean-up", "undo"}, {}, logAction("undo")},
        RunRow{"a dry run starts no program", runProgramAction("-c \"echo ran\""), 0, true, 0,
               {S::Succeeded}, {"Dry run succeeded"}, {"ran\n"}, {}},
        RunRow{"from the selected action", logAction("before") + logAction("after"), 1, false, 0,
               {S::None, S::Succeeded}, {"after", "[1/1]"}, {"before"}, {}},
        RunRow{"a failure marks standard error, stops the run and runs the clean-up, each whatever the one before did",
               runProgramAction("-c \"echo oops &gt;&amp;2; exit 3\"", "compile") + logAction("never"), 0, false, 1,
               {S::Failed, S::Skipped, S::Failed, S::Skipped, S::Succeeded},
               {"=== Clean-up (the build failed at action 1): 2 actions ===", "[clean-up 3/3]",
                "undo after 1 Run Program compile: exit code 3"},
               {"never"},
               {"oops", "Action Failed: the program ended with exit code 3.", "Action 1 (Run Program: compile) failed: exit code 3",
                "Action Failed: the program ended with exit code 4.", "Clean-up action 1 (Run Program: undo) failed: exit code 4",
                "Clean-up: 2 actions run, 1 failed."},
               runProgramAction("-c \"exit 4\"", "undo") + logAction("off", false)
                   + logAction("undo after %FAILED_ACTION% %FAILED_ACTION_NAME% %FAILED_ACTION_DESCRIPTION%: %FAILURE%")}),
    [](const auto& info) { return wftest::rowName(info.param.name); });

TEST_F(DesignerWindow, StopEndsTheHangingProgramAndWhatItStarted)
{
    const std::string pidFile = m_config.file("child.pid");
    ASSERT_TRUE(window->openProject(QString::fromStdString(writeProject(
        "hang.wfp", runProgramAction("-c \"sleep 600 &amp; echo $! &gt; " + pidFile + "; wait\"", "hang") + logAction("after")))));
    ASSERT_TRUE(window->runProject(0, false));
    ASSERT_TRUE(waitFor([&] { return std::filesystem::exists(pidFile) && std::filesystem::file_size(pidFile) > 0; }));
    EXPECT_TRUE(waitFor([&] { return window->model().runStatus(0) == TRunStatus::Running; }, 2000))
        << static_cast<int>(window->model().runStatus(0));
    // The window answers while the program runs; the running action's time counts.
    QTest::qWait(500);
    EXPECT_TRUE(window->findChild<QLabel*>("runLabel")->text().startsWith("Running 1/2")) << window->findChild<QLabel*>("runLabel")->text().toStdString();
    EXPECT_FALSE(window->model().data(window->model().index(0, TProjectModel::TimeColumn), Qt::DisplayRole).toString().isEmpty());
    const pid_t child = std::stoi(wftest::readFile(pidFile));
    window->findChild<QAction*>("actionStop")->trigger();
    ASSERT_TRUE(waitFor([&] { return finished >= 0; }, 5000));
    EXPECT_EQ(finished, 130);
    EXPECT_EQ(statuses(*window), (std::vector<TRunStatus>{S::Stopped, S::Skipped}));
    EXPECT_TRUE(waitFor([&] { return ::kill(child, 0) != 0; }, 3000)) << "the program's own child still runs";
    EXPECT_TRUE(window->findChild<QLabel*>("runLabel")->text().startsWith("Stopped"));
    // The stop ended that run only: a design-time query starts its own program as before.
    const auto query = CreateWFProcess();
    query->SetExecutable("/bin/echo");
    query->SetParameters("answered");
    query->SetCollectOutput(true);
    ASSERT_TRUE(query->Execute()) << query->GetErrorText();
    EXPECT_EQ(query->GetOutputLines(), std::vector<std::string>{"answered"});
}

} // namespace
