#pragma once

#include "WFProject.h"

#include <QObject>
#include <QString>
#include <QUndoStack>

#include <functional>
#include <memory>
#include <string>
#include <vector>

class TCustomWFAction;

/// A copy of an action made through the catalogue: same type, description, enabled state and
/// property values. nullptr when its type is no longer registered.
std::unique_ptr<TCustomWFAction> cloneAction(const TCustomWFAction& action);

/// The open project with its file and history. Every change goes through the undo stack as a
/// pair of canonical project texts, so undo restores exactly what the file would hold.
class TDesignerDocument : public QObject {
    Q_OBJECT
public:
    explicit TDesignerDocument(QObject* parent = nullptr);
    ~TDesignerDocument() override;

    const TWFProject& project() const { return m_project; }
    /// Empty for a project never saved.
    const QString& path() const { return m_path; }
    bool isModified() const { return !m_undo.isClean(); }
    QUndoStack& undoStack() { return m_undo; }

    void newProject();
    /// Reads a project file. On errors nothing changes and error holds every diagnostic
    /// (file:line:column). warnings receives what was reported and ignored, and what saving
    /// over the file would lose (its XML comments).
    bool open(const QString& path, QString& error, QString& warnings);
    /// Writes atomically in canonical form; the document then takes that path.
    bool saveAs(const QString& path, QString& error);

    /// What saving over path() would lose that the file holds (the warnings of open); empty
    /// once the document has been saved.
    const QString& lostOnSave() const { return m_lostOnSave; }
    /// Whether the file at path() is no longer the one opened or last saved here (another
    /// program wrote, replaced or removed it).
    bool changedOnDisk() const;
    /// The project list's rows: the actions, one heading row that opens the clean-up section
    /// ("When the build fails"), then the clean-up actions. Rows below are counted this way.
    int rowCount() const;
    int cleanupHeadingRow() const { return static_cast<int>(m_project.actions.size()); }
    /// The action of a row; nullptr for the heading and for rows out of range.
    TCustomWFAction* actionAt(int row) const;

    /// One undoable change of the project, made by `edit` on the live project.
    void change(const QString& label, const std::function<void(TWFProject&)>& edit);
    /// Inserts before a row; at the heading row, at the end of the actions.
    void insertActions(int row, std::vector<std::unique_ptr<TCustomWFAction>> actions, const QString& label);
    /// label names the undo step; "Remove action" when empty.
    void removeActions(std::vector<int> rows, const QString& label = {});
    void moveAction(int from, int to);
    void replaceAction(int row, std::unique_ptr<TCustomWFAction> action);
    void setEnabled(const std::vector<int>& rows, bool enabled);
    void setVariables(std::vector<TWFProjectVariable> variables);

    /// The selected actions as project text (the clipboard's form) and back.
    std::string actionsText(const std::vector<int>& rows) const;
    /// Reads actions from project text; false with a reason when it is no project.
    static bool actionsFromText(const std::string& text, std::vector<std::unique_ptr<TCustomWFAction>>& actions,
                                QString& error);

    /// Replaces the live project with a canonical text (the undo stack's restore step).
    void restore(const std::string& text);

signals:
    /// The project's actions or variables changed (also by undo and redo and on open).
    void projectChanged();
    void pathChanged();

private:
    /// What tells one version of a file from another without reading it.
    struct TFileStamp {
        bool exists = false;
        unsigned long long device = 0;
        unsigned long long inode = 0;
        long long size = 0;
        long long modifiedNs = 0;
        bool operator==(const TFileStamp&) const = default;
    };
    static TFileStamp stampOf(const QString& path);

    TWFProject m_project;
    QString m_path;
    QString m_lostOnSave;
    TFileStamp m_stamp;
    QUndoStack m_undo;
};
