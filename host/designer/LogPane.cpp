#include "LogPane.h"
#include "QuietTeardown.h"

#include "WFBrowse.h"
#include "WFFiles.h"

#include <QAction>
#include <QCheckBox>
#include <QFileInfo>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QPlainTextDocumentLayout>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QStyle>
#include <QTextBlock>
#include <QTextDocument>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>
#include <memory>

namespace {

/// How long lines gather before they are shown together.
constexpr int kBatchMs = 50;
/// Read-only, yet the keyboard moves a cursor: Ctrl+Home, Ctrl+End, Page Up/Down, Shift to select.
constexpr Qt::TextInteractionFlags kInteraction = Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard;

QTextCharFormat formatOf(TLogLineKind kind)
{
    QTextCharFormat format;
    if (kind != TLogLineKind::Output)
        format.setForeground(QColor(190, 30, 30));
    if (kind == TLogLineKind::Failure)
        format.setFontWeight(QFont::Bold);
    return format;
}

bool atEnd(const QScrollBar* bar)
{
    return bar->value() >= bar->maximum() - 2;
}

/// An empty document still has one block; a block that holds a line knows its number.
bool hasLines(const QTextDocument* document)
{
    return document->firstBlock().userState() >= 0;
}

} // namespace

TLogLineKind logLineKind(const QString& text, bool fromStandardError)
{
    if (fromStandardError)
        return TLogLineKind::Error;
    return text.startsWith(QLatin1String("Action Failed: ")) || text.startsWith(QLatin1String("Error: "))
        ? TLogLineKind::Failure
        : TLogLineKind::Output;
}

TLogPane::TLogPane(QWidget* parent, int maxLines) : QWidget(parent), m_maxLines(maxLines)
{
    m_all = createDocument();
    m_errors = createDocument();
    m_view = new QPlainTextEdit;
    m_view->setObjectName("logView");
    m_view->setDocument(m_all);
    m_view->setReadOnly(true);
    m_view->setTextInteractionFlags(kInteraction);
    m_view->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    m_view->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_view->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_view, &QWidget::customContextMenuRequested, this, &TLogPane::showContextMenu);
    // Scrolling, resizing and new lines all repaint: the highlights follow what is visible.
    connect(m_view, &QPlainTextEdit::updateRequest, this, &TLogPane::updateHighlights);

    m_batch = new QTimer(this);
    m_batch->setSingleShot(true);
    m_batch->setInterval(kBatchMs);
    connect(m_batch, &QTimer::timeout, this, &TLogPane::flush);

    createFindBar();
    createActions();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addWidget(m_findBar);
}

TLogPane::~TLogPane()
{
    // The view repaints and the find box reports its text as they go.
    disconnectChildrenFrom(*this);
}

QTextDocument* TLogPane::createDocument()
{
    auto* document = new QTextDocument(this);
    document->setDocumentLayout(new QPlainTextDocumentLayout(document));
    document->setUndoRedoEnabled(false);
    document->setMaximumBlockCount(m_maxLines);
    document->setDefaultFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return document;
}

void TLogPane::createFindBar()
{
    m_findBar = new QWidget;
    m_findBar->setObjectName("logFindBar");
    m_findText = new QLineEdit;
    m_findText->setObjectName("logFindText");
    m_findText->setPlaceholderText(tr("Find in the log"));
    m_findText->setClearButtonEnabled(true);
    m_matchCase = new QCheckBox(tr("Match &case"));
    m_matchCase->setObjectName("logFindMatchCase");
    m_findCount = new QLabel;
    m_findCount->setObjectName("logFindCount");
    const auto button = [this](const char* name, Qt::ArrowType arrow, const QString& tip) {
        auto* tool = new QToolButton;
        tool->setObjectName(name);
        tool->setAutoRaise(true);
        tool->setArrowType(arrow);
        tool->setToolTip(tip);
        return tool;
    };
    QToolButton* previous = button("logFindPrevious", Qt::UpArrow, tr("Previous match (Shift+F3)"));
    QToolButton* next = button("logFindNext", Qt::DownArrow, tr("Next match (F3)"));
    QToolButton* close = button("logFindClose", Qt::NoArrow, tr("Close (Esc)"));
    close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));

    auto* layout = new QHBoxLayout(m_findBar);
    layout->setContentsMargins(4, 2, 4, 2);
    layout->addWidget(new QLabel(tr("Find:")));
    layout->addWidget(m_findText, 1);
    layout->addWidget(previous);
    layout->addWidget(next);
    layout->addWidget(m_matchCase);
    layout->addWidget(m_findCount);
    layout->addWidget(close);
    m_findBar->hide();

    connect(m_findText, &QLineEdit::textChanged, this, &TLogPane::searchAgain);
    connect(m_matchCase, &QCheckBox::toggled, this, &TLogPane::searchAgain);
    connect(m_findText, &QLineEdit::returnPressed, this,
            [this] { findAgain(!(QGuiApplication::keyboardModifiers() & Qt::ShiftModifier)); });
    connect(previous, &QToolButton::clicked, this, [this] { findAgain(false); });
    connect(next, &QToolButton::clicked, this, [this] { findAgain(true); });
    connect(close, &QToolButton::clicked, this, &TLogPane::closeFind);
}

void TLogPane::createActions()
{
    struct TCommand {
        QAction** action;
        QString text;
        const char* name;
        QKeySequence key;
        std::function<void()> handler;
    };
    const TCommand commands[] = {
        {&m_find, tr("&Find..."), "actionLogFind", QKeySequence::Find, [this] { openFind(); }},
        {&m_findNext, tr("Find &Next"), "actionLogFindNext", QKeySequence(Qt::Key_F3), [this] { findAgain(true); }},
        {&m_findPrevious, tr("Find &Previous"), "actionLogFindPrevious", QKeySequence(Qt::SHIFT | Qt::Key_F3),
         [this] { findAgain(false); }},
        {&m_closeFind, tr("Close Find"), "actionLogCloseFind", {}, [this] { closeFind(); }},
        {&m_saveAs, tr("&Save Log As..."), "actionLogSaveAs", {}, [this] { saveAsChosenFile(); }},
        {&m_clear, tr("C&lear"), "actionLogClear", {}, [this] { clear(); }},
        {&m_wrap, tr("&Wrap Lines"), "actionLogWrap", {}, {}},
        {&m_errorsOnly, tr("Show Only &Errors"), "actionLogErrorsOnly", {}, {}},
    };
    for (const TCommand& command : commands) {
        QAction* action = new QAction(command.text, this);
        action->setObjectName(command.name);
        action->setShortcut(command.key);
        // Only while the log has the focus: the window's own keys stay as they are elsewhere.
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        if (command.handler)
            connect(action, &QAction::triggered, this, command.handler);
        addAction(action);
        *command.action = action;
    }
    m_wrap->setCheckable(true);
    m_errorsOnly->setCheckable(true);
    connect(m_wrap, &QAction::toggled, this,
            [this](bool on) { m_view->setLineWrapMode(on ? QPlainTextEdit::WidgetWidth : QPlainTextEdit::NoWrap); });
    connect(m_errorsOnly, &QAction::toggled, this, [this](bool on) { showDocument(on ? m_errors : m_all); });
}

void TLogPane::appendLine(const QString& text, TLogLineKind kind)
{
    // A break inside would make blocks of its own and put the line numbering out of step.
    static const QRegularExpression breaks(QStringLiteral("\r\n|[\r\n\u2029]"));
    if (text.contains(breaks)) {
        for (const QString& part : text.split(breaks))
            m_pending.push_back({part, kind});
    } else {
        m_pending.push_back({text, kind});
    }
    if (!m_batch->isActive())
        m_batch->start();
}

void TLogPane::beginSection(int index, const QString& name)
{
    m_sections.push_back({index, name, m_lines + static_cast<int>(m_pending.size())});
}

QTextDocument* TLogPane::shown() const
{
    return m_view->document();
}

int TLogPane::appendPending(QTextDocument* document, bool errorsOnly)
{
    QTextCursor cursor(document);
    cursor.movePosition(QTextCursor::End);
    cursor.beginEditBlock();
    bool first = !hasLines(document);
    int added = 0;
    int line = m_lines;
    for (const TPendingLine& pending : m_pending) {
        const int number = line++;
        if (errorsOnly && pending.kind == TLogLineKind::Output)
            continue;
        if (!first)
            cursor.insertBlock(QTextBlockFormat(), QTextCharFormat());
        first = false;
        cursor.insertText(pending.text, formatOf(pending.kind));
        // Each block knows its line, so sections and places carry over between the two views.
        cursor.block().setUserState(number);
        ++added;
    }
    // The document drops the oldest blocks beyond its cap here, at the end of the edit.
    cursor.endEditBlock();
    return added;
}

void TLogPane::flush()
{
    m_batch->stop();
    if (m_pending.empty())
        return;
    if (m_pending.size() > static_cast<std::size_t>(m_maxLines)) {
        const auto skipped = m_pending.size() - static_cast<std::size_t>(m_maxLines);
        m_pending.erase(m_pending.begin(), m_pending.begin() + static_cast<std::ptrdiff_t>(skipped));
        m_lines += static_cast<int>(skipped);
    }
    QScrollBar* bar = m_view->verticalScrollBar();
    const bool following = atEnd(bar);
    QTextDocument* document = shown();
    const int before = hasLines(document) ? document->blockCount() : 0;
    const int addedAll = appendPending(m_all, false);
    const int addedErrors = appendPending(m_errors, true);
    m_lines += addedAll;
    m_pending.clear();

    const int added = document == m_all ? addedAll : addedErrors;
    if (added > 0 && !m_findText->text().isEmpty() && !m_findBar->isHidden()) {
        // The matches in the lines the cap dropped go, the others move up with their lines.
        const int dropped = before + added - document->blockCount();
        const auto kept = std::lower_bound(m_matches.begin(), m_matches.end(), TMatch{dropped, 0});
        const int gone = static_cast<int>(kept - m_matches.begin());
        m_matches.erase(m_matches.begin(), kept);
        for (TMatch& match : m_matches)
            match.block -= dropped;
        m_current = m_current < gone ? -1 : m_current - gone;
        collectMatches(std::max(before - dropped, 0));
        updateFindStatus();
        m_highlighted = {-1, -1};
    }
    if (following)
        bar->setValue(bar->maximum());
    updateHighlights();
}

QTextBlock TLogPane::blockAtOrAfter(const QTextDocument* document, int line) const
{
    if (!hasLines(document))
        return {};
    int low = 0;
    int high = document->blockCount();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (document->findBlockByNumber(middle).userState() < line)
            low = middle + 1;
        else
            high = middle;
    }
    return document->findBlockByNumber(low);
}

void TLogPane::showAtTop(const QTextBlock& block)
{
    m_view->setTextCursor(QTextCursor(block));
    m_view->verticalScrollBar()->setValue(block.firstLineNumber());
}

bool TLogPane::scrollToSection(int index)
{
    flush();
    const auto section = std::find_if(m_sections.rbegin(), m_sections.rend(),
                                      [index](const TSection& s) { return s.index == index; });
    if (section == m_sections.rend())
        return false;
    const int end = section == m_sections.rbegin() ? m_lines : std::prev(section)->firstLine;
    const QTextBlock block = blockAtOrAfter(shown(), section->firstLine);
    if (!block.isValid() || block.userState() >= end)
        return false;
    showAtTop(block);
    return true;
}

void TLogPane::showDocument(QTextDocument* document)
{
    flush();
    if (shown() == document)
        return;
    // The same place in the other view: the line at the top, or the end when following it.
    const bool following = atEnd(m_view->verticalScrollBar());
    const int topLine = std::max(m_view->cursorForPosition(QPoint(0, 0)).block().userState(), 0);
    m_view->setExtraSelections({});
    m_view->setDocument(document);
    m_view->setTextInteractionFlags(kInteraction);
    const QTextBlock top = blockAtOrAfter(document, topLine);
    if (following || !top.isValid())
        m_view->verticalScrollBar()->setValue(m_view->verticalScrollBar()->maximum());
    else
        showAtTop(top);
    m_matches.clear();
    m_current = -1;
    collectMatches(0);
    updateFindStatus();
    m_highlighted = {-1, -1};
    updateHighlights();
}

void TLogPane::clear()
{
    m_batch->stop();
    m_pending.clear();
    m_sections.clear();
    m_matches.clear();
    m_current = -1;
    m_view->setExtraSelections({});
    m_all->clear();
    m_errors->clear();
    m_lines = 0;
    updateFindStatus();
    m_highlighted = {-1, -1};
    updateHighlights();
}

bool TLogPane::saveTo(const QString& path, QString& error)
{
    flush();
    const QString text = m_lines == 0 ? QString() : m_all->toPlainText() + '\n';
    std::string reason;
    if (writeFileAtomically(path.toStdString(), text.toStdString(), reason))
        return true;
    error = QString::fromStdString(reason);
    return false;
}

void TLogPane::saveAsChosenFile()
{
    const TWFBrowseFileRequest request{tr("Save Build Log").toStdString(), "Log files (*.log)|*.log|All files|*",
                                       m_lastFolder.toStdString(), "log", false, true, "build.log"};
    std::string chosen;
    if (!WFBrowseForFile(request, chosen))
        return;
    const QString path = QString::fromStdString(chosen);
    m_lastFolder = QFileInfo(path).absolutePath();
    if (QString error; !saveTo(path, error))
        QMessageBox::critical(this, tr("Cannot save the build log"), error);
}

void TLogPane::setErrorsOnly(bool on)
{
    flush();
    m_errorsOnly->setChecked(on);
}

void TLogPane::setWrap(bool on)
{
    m_wrap->setChecked(on);
}

void TLogPane::showContextMenu(const QPoint& position)
{
    // Copy and Select All first, as every text offers them.
    const std::unique_ptr<QMenu> menu(m_view->createStandardContextMenu(position));
    menu->addSeparator();
    menu->addActions({m_find, m_findNext, m_findPrevious});
    menu->addSeparator();
    menu->addActions({m_wrap, m_errorsOnly});
    menu->addSeparator();
    menu->addActions({m_saveAs, m_clear});
    menu->exec(m_view->viewport()->mapToGlobal(position));
}

void TLogPane::openFind()
{
    flush();
    const QString selected = m_view->textCursor().selectedText();
    if (!selected.isEmpty() && !selected.contains(QChar::ParagraphSeparator)) {
        const QSignalBlocker blocker(m_findText);
        m_findText->setText(selected);
    }
    m_findBar->show();
    // Esc is the bar's only while it is open; a shortcut merely disabled would still take the key.
    m_closeFind->setShortcut(Qt::Key_Escape);
    searchAgain();
    m_findText->setFocus();
    m_findText->selectAll();
}

void TLogPane::closeFind()
{
    m_findBar->hide();
    m_closeFind->setShortcut({});
    m_matches.clear();
    m_current = -1;
    m_highlighted = {-1, -1};
    updateHighlights();
    m_view->setFocus();
}

void TLogPane::searchAgain()
{
    flush();
    m_matches.clear();
    m_current = -1;
    collectMatches(0);
    // As the text grows, the match under the cursor stays the one selected.
    if (!m_matches.empty())
        selectMatchFrom(m_view->textCursor().selectionStart(), true, false);
    updateFindStatus();
    m_highlighted = {-1, -1};
    updateHighlights();
}

void TLogPane::collectMatches(int fromBlock)
{
    const QString needle = m_findText->text();
    if (needle.isEmpty() || m_findBar->isHidden() || !hasLines(shown()))
        return;
    const Qt::CaseSensitivity sensitivity = m_matchCase->isChecked() ? Qt::CaseSensitive : Qt::CaseInsensitive;
    int number = fromBlock;
    for (QTextBlock block = shown()->findBlockByNumber(fromBlock); block.isValid(); block = block.next(), ++number) {
        const QString text = block.text();
        for (auto at = text.indexOf(needle, 0, sensitivity); at >= 0; at = text.indexOf(needle, at + needle.size(), sensitivity))
            m_matches.push_back({number, static_cast<int>(at)});
    }
}

bool TLogPane::findAgain(bool forward)
{
    if (m_findBar->isHidden()) {
        openFind();
        return m_current >= 0;
    }
    flush();
    return selectMatchFrom(m_view->textCursor().selectionStart(), forward, true);
}

bool TLogPane::selectMatchFrom(int position, bool forward, bool skipCurrent)
{
    if (m_matches.empty()) {
        updateFindStatus();
        return false;
    }
    const QTextBlock block = shown()->findBlock(position);
    const TMatch here{block.blockNumber(), position - block.position()};
    const auto count = static_cast<int>(m_matches.size());
    int match = 0;
    if (forward) {
        const auto next = skipCurrent ? std::upper_bound(m_matches.begin(), m_matches.end(), here)
                                      : std::lower_bound(m_matches.begin(), m_matches.end(), here);
        match = next == m_matches.end() ? 0 : static_cast<int>(next - m_matches.begin());
    } else {
        const auto next = std::lower_bound(m_matches.begin(), m_matches.end(), here);
        match = next == m_matches.begin() ? count - 1 : static_cast<int>(next - m_matches.begin()) - 1;
    }
    selectMatch(match);
    return true;
}

void TLogPane::selectMatch(int match)
{
    m_current = match;
    const TMatch& at = m_matches[static_cast<std::size_t>(match)];
    QTextCursor cursor(shown()->findBlockByNumber(at.block));
    cursor.setPosition(cursor.position() + at.column);
    cursor.setPosition(cursor.position() + static_cast<int>(m_findText->text().size()), QTextCursor::KeepAnchor);
    m_view->setTextCursor(cursor);
    updateFindStatus();
    m_highlighted = {-1, -1};
    updateHighlights();
}

void TLogPane::updateFindStatus()
{
    const auto count = static_cast<int>(m_matches.size());
    if (m_findText->text().isEmpty())
        m_findCount->clear();
    else if (count == 0)
        m_findCount->setText(tr("No matches"));
    else if (m_current < 0)
        m_findCount->setText(count == 1 ? tr("1 match") : tr("%1 matches").arg(count));
    else
        m_findCount->setText(tr("%1 of %2").arg(m_current + 1).arg(count));
}

void TLogPane::updateHighlights()
{
    if (m_matches.empty()) {
        if (!m_view->extraSelections().isEmpty()) {
            const QSignalBlocker blocker(m_view);
            m_view->setExtraSelections({});
        }
        return;
    }
    // Only the lines in sight: a search that matches half of a long log stays quick.
    const int top = m_view->cursorForPosition(QPoint(0, 0)).blockNumber();
    const int bottom = m_view->cursorForPosition(QPoint(0, m_view->viewport()->height())).blockNumber();
    if (m_highlighted == std::pair{top, bottom})
        return;
    m_highlighted = {top, bottom};
    const auto length = static_cast<int>(m_findText->text().size());
    QList<QTextEdit::ExtraSelection> selections;
    for (auto it = std::lower_bound(m_matches.begin(), m_matches.end(), TMatch{top, 0});
         it != m_matches.end() && it->block <= bottom; ++it) {
        QTextEdit::ExtraSelection selection;
        selection.cursor = QTextCursor(shown()->findBlockByNumber(it->block));
        selection.cursor.setPosition(selection.cursor.position() + it->column);
        selection.cursor.setPosition(selection.cursor.position() + length, QTextCursor::KeepAnchor);
        const bool current = it - m_matches.begin() == m_current;
        selection.format.setBackground(current ? QColor(255, 150, 50) : QColor(255, 230, 110));
        selections.push_back(selection);
    }
    // Setting them repaints, which would call this again at once.
    const QSignalBlocker blocker(m_view);
    m_view->setExtraSelections(selections);
}
