#pragma once

#include "WFFrame.h"

class QAbstractButton;
class QLabel;
class QListWidget;

/// What the two path-name pages share: a heading completed with the action's name, and a list
/// box edited through Add, Edit and Remove, where Edit and Remove follow the selection as the
/// user last clicked or keyed it.
class TClearCasePathListFrame : public TFrame {
    Q_OBJECT
public:
    using TFrame::TFrame;

protected:
    /// Connects the list box and the three buttons to the handlers below; call after setupUi.
    void bindPathList(QLabel* heading, QWidget* bevel, QListWidget* list, QAbstractButton* add, QAbstractButton* edit,
                      QAbstractButton* rem);
    /// Appends the action's name, without its leading "ClearCase ", in lower case to the
    /// heading. Reading a frame twice appends it twice: the host reads each frame once.
    void completeHeading(const TCustomWFAction& action);
    /// Replaces the heading and keeps its bevel ending at the page's right edge.
    void setHeading(const QString& caption);
    /// The selected line, or -1.
    int selectedRow() const;

    virtual void addButtonClick() = 0;
    virtual void editButtonClick() = 0;
    virtual void remButtonClick() = 0;
    virtual void pathsListBoxMouseMove(const QPoint& position);

    void pathsListBoxClick();
    void pathsListBoxDblClick();
    void pathsListBoxKeyDown(int key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QLabel* m_heading = nullptr;
    QWidget* m_bevel = nullptr;
    QListWidget* m_list = nullptr;
    QAbstractButton* m_edit = nullptr;
    QAbstractButton* m_remove = nullptr;
};
