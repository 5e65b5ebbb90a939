#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class TClearCaseEditExtendedPathNameForm;
}

/// Edits one extended path name as an element and a selector joined by "@@"; both lists are
/// filled from cleartool, in the view context folder, when they drop down.
class TClearCaseEditExtendedPathNameForm : public QDialog {
    Q_OBJECT
public:
    explicit TClearCaseEditExtendedPathNameForm(QWidget* parent = nullptr);
    ~TClearCaseEditExtendedPathNameForm() override;

    /// The folder the drop-down queries run in.
    void SetViewContext(const std::string& folder);
    /// Splits at the first "@@"; a path without one is all element.
    void SetPathName(const std::string& path);
    /// The element alone when no selector is given.
    std::string GetPathName() const;

private:
    std::unique_ptr<Ui::TClearCaseEditExtendedPathNameForm> ui;

    void txtElementDropDown();
    void txtSelectorDropDown();

    std::string m_viewContext;
};
