#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class TClearCaseEditViewPathForm;
}

/// Edits one view-extended path name; browsing is offered only for a path that exists, as a
/// folder or a file according to what the path named when the editor opened.
class TClearCaseEditViewPathForm : public QDialog {
    Q_OBJECT
public:
    explicit TClearCaseEditViewPathForm(QWidget* parent = nullptr);
    ~TClearCaseEditViewPathForm() override;

    void SetPathName(const std::string& path);
    std::string GetPathName() const;

private:
    std::unique_ptr<Ui::TClearCaseEditViewPathForm> ui;

    void txtExternalPathButtonClick();

    bool m_isDirectory = false;
};
