#pragma once

#include <QString>
#include <QWidget>

#include <utility>
#include <vector>

class QAction;
class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QTextBlock;
class QTextDocument;
class QTimer;

/// What a line of the build log is; "show only errors" keeps Error and Failure lines.
enum class TLogLineKind { Output, Error, Failure };

/// The kind of a line a run sends: standard error (where the runner also notes a failed
/// action) is an Error; the host's failure messages arrive with the standard output and are
/// known by how they open ("Action Failed: ", "Error: ").
TLogLineKind logLineKind(const QString& text, bool fromStandardError);

/// The designer's build log: a read-only text the keyboard moves through, with a find bar
/// (Ctrl+F, F3 / Shift+F3, every match highlighted), one section per action, a view of the
/// errors alone, and clear, save as and wrap in its context menu. Lines are shown in batches,
/// so a program that floods the log does not hold up the window; the oldest lines go beyond
/// a cap.
class TLogPane final : public QWidget {
    Q_OBJECT
public:
    /// maxLines: how many lines the log keeps; the oldest go first.
    explicit TLogPane(QWidget* parent = nullptr, int maxLines = 200000);
    ~TLogPane() override;

    /// Adds a line; it is shown with the next batch (or at once by anything that reads the log).
    void appendLine(const QString& text, TLogLineKind kind);
    /// The lines added from now on belong to action `index` (its row) until the next section.
    void beginSection(int index, const QString& name);
    /// Scrolls the section's first shown line to the top; false when it shows none (the action
    /// did not run, its lines went beyond the cap, or it has no errors while only errors show).
    bool scrollToSection(int index);
    void clear();
    /// Writes every line, also those hidden by "show only errors", atomically: a failure leaves
    /// the old file as it was. False with a reason that names the file.
    bool saveTo(const QString& path, QString& error);
    void setErrorsOnly(bool on);
    void setWrap(bool on);
    /// Opens the find bar with the selected text, or the last search, ready to type.
    void openFind();
    void closeFind();
    /// Selects the next (or previous) match in what is shown, wrapping around; false for none.
    bool findAgain(bool forward);
    /// Shows the lines of the batch under way now.
    void flush();

    QPlainTextEdit* view() const { return m_view; }

private:
    struct TPendingLine {
        QString text;
        TLogLineKind kind;
    };
    struct TSection {
        int index;
        QString name;
        int firstLine;
    };
    /// A match of the search: block of the shown document and column.
    struct TMatch {
        int block;
        int column;
        bool operator<(const TMatch& other) const
        {
            return block != other.block ? block < other.block : column < other.column;
        }
    };

    void createActions();
    void createFindBar();
    QTextDocument* createDocument();
    QTextDocument* shown() const;
    /// Shows all lines or the errors alone, at the same place.
    void showDocument(QTextDocument* document);
    /// Appends the pending lines to a document; how many it took.
    int appendPending(QTextDocument* document, bool errorsOnly);
    /// The first block of a document whose line (its number since the log was cleared) is at
    /// least `line`; invalid when there is none.
    QTextBlock blockAtOrAfter(const QTextDocument* document, int line) const;
    void showAtTop(const QTextBlock& block);
    void showContextMenu(const QPoint& position);
    void saveAsChosenFile();

    void searchAgain();
    void collectMatches(int fromBlock);
    bool selectMatchFrom(int position, bool forward, bool skipCurrent);
    void selectMatch(int match);
    void updateFindStatus();
    void updateHighlights();

    const int m_maxLines;
    QPlainTextEdit* m_view = nullptr;
    QTextDocument* m_all = nullptr;
    QTextDocument* m_errors = nullptr;
    QTimer* m_batch = nullptr;
    std::vector<TPendingLine> m_pending;
    std::vector<TSection> m_sections;
    /// Lines added since the log was cleared; each block holds its number as its user state.
    int m_lines = 0;

    QWidget* m_findBar = nullptr;
    QLineEdit* m_findText = nullptr;
    QCheckBox* m_matchCase = nullptr;
    QLabel* m_findCount = nullptr;
    std::vector<TMatch> m_matches;
    int m_current = -1;
    /// The blocks the highlights were made for; {-1, -1} when they must be made again.
    std::pair<int, int> m_highlighted{-1, -1};
    QString m_lastFolder;

    QAction* m_find = nullptr;
    QAction* m_findNext = nullptr;
    QAction* m_findPrevious = nullptr;
    QAction* m_closeFind = nullptr;
    QAction* m_clear = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_wrap = nullptr;
    QAction* m_errorsOnly = nullptr;
};
