#pragma once

#include <QRadioButton>
#include <QStringList>

#include <string>

class QAbstractButton;
class QLabel;
class QWidget;
class TWFComboBox;

/// The look every page of the package shares: the package's logo on each section heading of the
/// page (and of the sub-frames in it) and as the page's section image (none: nullptr), all with
/// the headings' help context.
void ClearCaseDecoratePage(QWidget* page, QLabel* sectionImage);

/// The help context of headings, icons and bevels.
inline constexpr int kClearCaseHeadingHelpContext = 2400;

/// Checks or unchecks a radio button of an exclusive group; unchecking the checked one leaves
/// its whole group unchecked, which an exclusive group alone does not allow.
void ClearCaseSetChecked(QAbstractButton* button, bool checked);

/// A query's result (lines ended by CR LF) as list items.
QStringList ClearCaseLines(const std::string& queryResult);

/// One look-up of a page: the values it passes to cleartool (names, folders) expanded with the
/// project's variables, and its result as list items; when that is empty the page's status
/// says why, otherwise the status is cleared.
class TClearCaseLookUp {
public:
    /// `control`: the list being filled, which finds the page.
    explicit TClearCaseLookUp(QWidget* control) : m_control(control) {}
    /// The value as a run would see it; as typed when it cannot be expanded (the reason is kept).
    std::string expand(const QString& value);
    QStringList lines(const std::string& queryResult);

private:
    QWidget* m_control;
    std::string m_problem;
};

/// Fills a VOB list from cleartool unless it already holds VOBs, so that only the first
/// drop-down asks.
void ClearCaseFillVOBListOnce(TWFComboBox* list);
/// Fills a list with the names of the types of `kind` (e.g. "attype") in the VOB; with no
/// VOB the list stays as it is.
void ClearCaseFillTypeList(TWFComboBox* list, const char* kind, const QString& vob);

/// A radio button whose caption wraps onto further lines within its width, for captions longer
/// than a page is wide. Its text stays the caption as given; its height follows its width.
class TClearCaseWrappingRadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /// Where the caption starts: the indicator and its spacing.
    int captionLeft() const;
};
