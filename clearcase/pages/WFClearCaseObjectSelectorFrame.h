#pragma once

#include "WFFrame.h"

#include <memory>

namespace Ui {
class TClearCaseObjectSelectorFrame;
}

/// The object selectors an action works on, one per line, each composed in the editor.
class TClearCaseObjectSelectorFrame : public TFrame {
    Q_OBJECT
public:
    explicit TClearCaseObjectSelectorFrame(QWidget* parent = nullptr);
    ~TClearCaseObjectSelectorFrame() override;

    void ReadActionData(TCustomWFAction& action) override;
    void WriteActionData(TCustomWFAction& action) override;
    std::string PageName() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::TClearCaseObjectSelectorFrame> ui;

    void btnAddClick();
    void btnEditClick();
    void btnRemoveClick();
    void listObjectsClick();
    void listObjectsDblClick();
    /// The selected line's row, or -1.
    int selectedRow() const;
};
