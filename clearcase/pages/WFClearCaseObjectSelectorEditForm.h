#pragma once

#include <QDialog>

#include <memory>
#include <string>

namespace Ui {
class TClearCaseObjectSelectorEditForm;
}

/// Composes one object selector from a type, a name and a VOB, or takes it as a free string;
/// the two views follow each other while the user edits either.
class TClearCaseObjectSelectorEditForm : public QDialog {
    Q_OBJECT
public:
    explicit TClearCaseObjectSelectorEditForm(QWidget* parent = nullptr);
    ~TClearCaseObjectSelectorEditForm() override;

    /// Shows the selector and its parts, then composes the string again from the parts (which
    /// drops the colon of a prefix the type list does not know).
    void SetObjectSelector(const std::string& text);
    std::string GetObjectSelector() const;

    /// Remembers, on every close, which field the user worked in last.
    void done(int result) override;

protected:
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::unique_ptr<Ui::TClearCaseObjectSelectorEditForm> ui;

    void cmbObjectTypeNameChange();
    void txtObjectNameChange();
    void txtVOBChange();
    void txtObjectSelectorChange();
    void txtObjectNameDropDown();
    void txtVOBDropDown();
    /// Composes the string from the chosen type, the name and the VOB.
    void UpdateObjectSelector();

    /// True while the user works in the free string field.
    bool m_usingCustomObjectSelector = false;
};
