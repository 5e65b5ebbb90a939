#pragma once

#include <QDialog>

#include <utility>
#include <vector>

class IWFOptionsPage;
class QTabWidget;
class TWFOptionsObject;

/// Every registered options page as a tab. The pages read the live options when the dialog
/// opens; OK writes them back and saves options.ini in the configuration folder, changing only
/// the keys the options write. Cancel leaves options and file as they were.
class TOptionsDialog final : public QDialog {
    Q_OBJECT
public:
    explicit TOptionsDialog(QWidget* parent = nullptr);
    ~TOptionsDialog() override;

    QTabWidget* tabs() const { return m_tabs; }
    void accept() override;

private:
    QTabWidget* m_tabs;
    std::vector<std::pair<IWFOptionsPage*, TWFOptionsObject*>> m_pages;
};
