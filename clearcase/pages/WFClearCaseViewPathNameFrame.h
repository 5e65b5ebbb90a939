#pragma once

#include "pages/WFClearCasePathListFrame.h"

#include <QStringList>
#include <memory>

namespace Ui {
class TClearCaseViewPathNameFrame;
}

/// The action's view-extended path names: each line shows its path shortened to fit, with the
/// full path as hint while the mouse is over it.
class TClearCaseViewPathNameFrame : public TClearCasePathListFrame {
    Q_OBJECT
public:
    explicit TClearCaseViewPathNameFrame(QWidget* parent = nullptr);
    ~TClearCaseViewPathNameFrame() override;

    void InitFrame(void* owner) override;
    void ReadActionData(TCustomWFAction& action) override;
    /// Writes the full paths; the shortened lines are never read back.
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

    /// The path with leading folders replaced by an ellipsis, so that it fits the list box.
    QString Abbreviated(const QString& path) const;

protected:
    void addButtonClick() override;
    void editButtonClick() override;
    void remButtonClick() override;
    void pathsListBoxMouseMove(const QPoint& position) override;
    /// Shortens every line again to the list box's new width.
    void pathsListBoxResize() override;

private:
    std::unique_ptr<Ui::TClearCaseViewPathNameFrame> ui;

    void menuDirClick();
    void menuFileClick();
    void appendPath(const QString& path);

    /// The full path behind each line of the list box, index for index.
    QStringList m_fullPaths;
};
