#pragma once

#include "WFFrame.h"

class QAbstractButton;
class TWFHeading;
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
    void bindPathList(TWFHeading* heading, QListWidget* list, QAbstractButton* add, QAbstractButton* edit,
                      QAbstractButton* rem);
    /// Appends the action's name, without its leading "ClearCase ", in lower case to the
    /// heading. Reading a frame twice appends it twice: the host reads each frame once.
    void completeHeading(const TCustomWFAction& action);
    /// Replaces the heading; its line still ends at the page's right edge.
    void setHeading(const QString& caption);
    /// The selected line, or -1.
    int selectedRow() const;

    virtual void addButtonClick() = 0;
    virtual void editButtonClick() = 0;
    virtual void remButtonClick() = 0;
    virtual void pathsListBoxMouseMove(const QPoint& position);
    /// The list box got another width (the page grew or shrank).
    virtual void pathsListBoxResize();

    void pathsListBoxClick();
    void pathsListBoxDblClick();
    void pathsListBoxKeyDown(int key);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    TWFHeading* m_heading = nullptr;
    QListWidget* m_list = nullptr;
    QAbstractButton* m_edit = nullptr;
    QAbstractButton* m_remove = nullptr;
};
