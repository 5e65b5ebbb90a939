#pragma once

#include "ui_WFClearCaseEditViewPathForm.h"

#include <QDialog>

#include <string>

/// Edits one view-extended path name; browsing is offered only for a path that exists, as a
/// folder or a file according to what the path named when the editor opened.
class TClearCaseEditViewPathForm : public QDialog {
    Q_OBJECT
public:
    explicit TClearCaseEditViewPathForm(QWidget* parent = nullptr);

    void SetPathName(const std::string& path);
    std::string GetPathName() const;

    Ui::TClearCaseEditViewPathForm ui;

private:
    void txtExternalPathButtonClick();

    bool m_isDirectory = false;
};
