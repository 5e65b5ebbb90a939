#pragma once

#include <QFrame>

#include <memory>
#include <string>

class TClearCaseBaseAction;

namespace Ui {
class TClearCaseViewContextSubFrame;
}

/// The view a page's action works in, and where the page's own queries run. Part of other
/// pages, never a page of its own.
class TClearCaseViewContextSubFrame : public QFrame {
    Q_OBJECT
public:
    explicit TClearCaseViewContextSubFrame(QWidget* parent = nullptr);
    ~TClearCaseViewContextSubFrame() override;

    std::string GetCaption() const;
    /// Sets the heading; its line still ends at the page's right edge.
    void SetCaption(const std::string& text);
    /// Shows the path, caret at its end, with the path as hint.
    void SetPathName(const std::string& path);
    /// The folder the page's queries run in: the default view of the options when that is
    /// chosen, else the path typed.
    std::string GetContextPath() const;

    /// A blank custom view is never shown as chosen: it opens on the default view.
    void ReadActionData(TClearCaseBaseAction& action);
    /// The path is kept even when the default view is chosen.
    void WriteActionData(TClearCaseBaseAction& action);

signals:
    /// The user chose another view or typed another path (also when code sets the path).
    void contextChanged();

private:
    std::unique_ptr<Ui::TClearCaseViewContextSubFrame> ui;

    void txtViewPathButtonClick();

    std::string m_pathName;
};
