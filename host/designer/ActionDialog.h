#pragma once

#include "WFAction.h"

#include <QDialog>

#include <memory>
#include <vector>

class IWFActionPage;
class QCheckBox;
class QLineEdit;
class QPlainTextEdit;
class QTabWidget;
class QTimer;

/// Edits a copy of an action on the pages its package registered, in their order, and the
/// host's General tab. The pages read the copy once the dialog is open and write it back on OK;
/// the action given is never touched, so Cancel changes nothing. Below the pages, the command
/// line a dry run would show for the action as edited, or why it would not run.
class TActionDialog final : public QDialog {
    Q_OBJECT
public:
    /// validationHost: what Validate sees on OK (the project's variables and folder); a bare host when null.
    TActionDialog(const TCustomWFAction& action, QWidget* parent = nullptr, TWFActionHost* validationHost = nullptr);
    ~TActionDialog() override;

    /// The edited copy, after the dialog was accepted.
    std::unique_ptr<TCustomWFAction> takeResult() { return std::move(m_result); }
    /// Shows the tab whose caption is `caption` ("General" for the host's own); false when none is.
    bool showPage(const QString& caption);
    QTabWidget* tabs() const { return m_tabs; }
    QPlainTextEdit* preview() const { return m_preview; }
    /// Reads the action into the pages, once; the dialog does it when it is first shown.
    void fillPages();

    void accept() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void showHelp();
    void watchEdits(QWidget* root);
    /// A copy of the action with what the pages show written into it.
    std::unique_ptr<TCustomWFAction> editedAction();
    TWFActionHost host() const;
    void updatePreview();

    std::unique_ptr<TCustomWFAction> m_action;
    std::unique_ptr<TCustomWFAction> m_result;
    TWFActionHost* m_validationHost;
    QTabWidget* m_tabs;
    QLineEdit* m_description;
    QCheckBox* m_enabled;
    QCheckBox* m_continueOnFailure;
    QPlainTextEdit* m_preview;
    QTimer* m_previewTimer;
    bool m_filled = false;
    std::vector<IWFActionPage*> m_pages;
    int m_activePage = -1;
};
