#include "DesignerDocument.h"

#include "WFAction.h"
#include "WFServices.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <iterator>

#include <sys/stat.h>

namespace {

/// Project texts before and after a change; the first redo is the change already made.
class TProjectChange final : public QUndoCommand {
public:
    TProjectChange(TDesignerDocument& document, const QString& label, std::string before, std::string after)
        : QUndoCommand(label), m_document(document), m_before(std::move(before)), m_after(std::move(after))
    {
    }
    void undo() override { m_document.restore(m_before); }
    void redo() override
    {
        if (m_done)
            m_document.restore(m_after);
        m_done = true;
    }

private:
    TDesignerDocument& m_document;
    std::string m_before;
    std::string m_after;
    bool m_done = false;
};

QString joinDiagnostics(const std::vector<TWFProjectDiagnostic>& diagnostics, bool errors)
{
    QStringList lines;
    for (const auto& diagnostic : diagnostics)
        if (diagnostic.isError == errors)
            lines << QString::fromStdString(diagnostic.ToString());
    return lines.join('\n');
}

using TActionList = std::vector<std::unique_ptr<TCustomWFAction>>;

/// Runs edit on the project's rows as one list, the clean-up heading as a null entry that
/// edit leaves in place, so that a change may cross from one section into the other.
void editRows(TWFProject& project, const std::function<void(TActionList&)>& edit)
{
    TActionList rows = std::move(project.actions);
    rows.push_back(nullptr);
    std::move(project.cleanupActions.begin(), project.cleanupActions.end(), std::back_inserter(rows));
    edit(rows);
    const auto heading = std::find(rows.begin(), rows.end(), nullptr);
    project.actions.assign(std::make_move_iterator(rows.begin()), std::make_move_iterator(heading));
    project.cleanupActions.assign(std::make_move_iterator(heading + 1), std::make_move_iterator(rows.end()));
}

} // namespace

std::unique_ptr<TCustomWFAction> cloneAction(const TCustomWFAction& action)
{
    auto copy = WFActionServices().CreateAction(action.GetActionTypeID());
    if (!copy)
        return nullptr;
    copy->SetDescription(action.GetDescription());
    copy->SetEnabled(action.GetEnabled());
    copy->SetContinueOnFailure(action.GetContinueOnFailure());
    for (const auto& property : action.Properties())
        copy->SetPropertyText(property.name, action.GetPropertyText(property.name));
    return copy;
}

TDesignerDocument::TDesignerDocument(QObject* parent) : QObject(parent) {}

TDesignerDocument::~TDesignerDocument() = default;

void TDesignerDocument::newProject()
{
    m_undo.clear();
    m_project = TWFProject();
    m_path.clear();
    m_lostOnSave.clear();
    m_stamp = {};
    emit pathChanged();
    emit projectChanged();
}

bool TDesignerDocument::open(const QString& path, QString& error, QString& warnings)
{
    TWFProject project;
    std::vector<TWFProjectDiagnostic> diagnostics;
    std::string text;
    // The stamp is taken before reading: a change made while reading is noticed at the save.
    const TFileStamp stamp = stampOf(path);
    if (!ReadProjectFile(path.toStdString(), project, diagnostics, &text)) {
        error = joinDiagnostics(diagnostics, true);
        if (error.isEmpty())
            error = path + ": the project could not be read";
        return false;
    }
    const auto lost = ProjectMarkupLostOnSave(text, path.toStdString());
    diagnostics.insert(diagnostics.end(), lost.begin(), lost.end());
    warnings = joinDiagnostics(diagnostics, false);
    m_undo.clear();
    m_project = std::move(project);
    m_path = QFileInfo(path).absoluteFilePath();
    m_lostOnSave = warnings;
    m_stamp = stamp;
    emit pathChanged();
    emit projectChanged();
    return true;
}

bool TDesignerDocument::saveAs(const QString& path, QString& error)
{
    std::string reason;
    if (!WriteProjectFile(path.toStdString(), m_project, reason)) {
        error = QString::fromStdString(reason);
        return false;
    }
    m_path = QFileInfo(path).absoluteFilePath();
    m_lostOnSave.clear();
    m_stamp = stampOf(m_path);
    m_undo.setClean();
    emit pathChanged();
    return true;
}

bool TDesignerDocument::changedOnDisk() const
{
    return !m_path.isEmpty() && !(stampOf(m_path) == m_stamp);
}

TDesignerDocument::TFileStamp TDesignerDocument::stampOf(const QString& path)
{
    // A rename over the file (how wfbuild and editors save) changes the inode; a write in
    // place changes the size or the modification time, kept to the nanosecond.
    struct stat info {};
    if (::stat(QFile::encodeName(path).constData(), &info) != 0)
        return {};
    return {true, static_cast<unsigned long long>(info.st_dev), static_cast<unsigned long long>(info.st_ino),
            static_cast<long long>(info.st_size),
            static_cast<long long>(info.st_mtim.tv_sec) * 1000000000LL + info.st_mtim.tv_nsec};
}

void TDesignerDocument::change(const QString& label, const std::function<void(TWFProject&)>& edit)
{
    std::string before = WriteProjectText(m_project);
    edit(m_project);
    std::string after = WriteProjectText(m_project);
    if (before == after)
        return;
    m_undo.push(new TProjectChange(*this, label, std::move(before), std::move(after)));
    emit projectChanged();
}

int TDesignerDocument::rowCount() const
{
    return static_cast<int>(m_project.actions.size() + 1 + m_project.cleanupActions.size());
}

TCustomWFAction* TDesignerDocument::actionAt(int row) const
{
    const int heading = cleanupHeadingRow();
    if (row < 0 || row >= rowCount() || row == heading)
        return nullptr;
    return row < heading ? m_project.actions[row].get() : m_project.cleanupActions[row - heading - 1].get();
}

void TDesignerDocument::insertActions(int row, std::vector<std::unique_ptr<TCustomWFAction>> actions, const QString& label)
{
    if (actions.empty())
        return;
    change(label, [&](TWFProject& project) {
        editRows(project, [&](TActionList& rows) {
            const auto at = std::clamp<std::size_t>(static_cast<std::size_t>(std::max(row, 0)), 0, rows.size());
            rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(at), std::make_move_iterator(actions.begin()),
                        std::make_move_iterator(actions.end()));
        });
    });
}

void TDesignerDocument::removeActions(std::vector<int> rows, const QString& label)
{
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    std::erase_if(rows, [this](int row) { return !actionAt(row); });
    const QString text = !label.isEmpty() ? label : rows.size() == 1 ? tr("Remove action") : tr("Remove %1 actions").arg(rows.size());
    change(text, [&](TWFProject& project) {
        editRows(project, [&](TActionList& list) {
            for (auto it = rows.rbegin(); it != rows.rend(); ++it)
                list.erase(list.begin() + *it);
        });
    });
}

void TDesignerDocument::moveAction(int from, int to)
{
    if (!actionAt(from) || to < 0 || to >= rowCount() || from == to)
        return;
    change(tr("Move action"), [&](TWFProject& project) {
        editRows(project, [&](TActionList& rows) {
            auto moved = std::move(rows[from]);
            rows.erase(rows.begin() + from);
            rows.insert(rows.begin() + to, std::move(moved));
        });
    });
}

void TDesignerDocument::replaceAction(int row, std::unique_ptr<TCustomWFAction> action)
{
    if (!actionAt(row) || !action)
        return;
    change(tr("Edit action"), [&](TWFProject& project) { editRows(project, [&](TActionList& rows) { rows[row] = std::move(action); }); });
}

void TDesignerDocument::setEnabled(const std::vector<int>& rows, bool enabled)
{
    change(enabled ? tr("Enable") : tr("Disable"), [&](TWFProject&) {
        for (const int row : rows)
            if (TCustomWFAction* action = actionAt(row))
                action->SetEnabled(enabled);
    });
}

void TDesignerDocument::setVariables(std::vector<TWFProjectVariable> variables)
{
    change(tr("Edit variables"), [&](TWFProject& project) { project.variables = std::move(variables); });
}

std::string TDesignerDocument::actionsText(const std::vector<int>& rows) const
{
    TWFProject selection;
    for (const int row : rows)
        if (const TCustomWFAction* action = actionAt(row))
            if (auto copy = cloneAction(*action))
                selection.actions.push_back(std::move(copy));
    return WriteProjectText(selection);
}

bool TDesignerDocument::actionsFromText(const std::string& text, std::vector<std::unique_ptr<TCustomWFAction>>& actions,
                                        QString& error)
{
    TWFProject project;
    std::vector<TWFProjectDiagnostic> diagnostics;
    if (!ReadProjectText(text, "clipboard", project, diagnostics)) {
        error = joinDiagnostics(diagnostics, true);
        return false;
    }
    actions = std::move(project.actions);
    return true;
}

void TDesignerDocument::restore(const std::string& text)
{
    TWFProject project;
    std::vector<TWFProjectDiagnostic> diagnostics;
    // The text was written from a project of registered actions: it reads back.
    if (ReadProjectText(text, m_path.toStdString(), project, diagnostics))
        m_project = std::move(project);
    emit projectChanged();
}
