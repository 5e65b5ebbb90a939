#pragma once

#include <QRadioButton>
#include <QStringList>

#include <initializer_list>
#include <string>
#include <utility>

class QAbstractButton;
class QLabel;
class QWidget;
class TWFComboBox;

/// The look every page of the package shares: decorative images beside section headings, and
/// headings whose bevel ends at the page's right edge.
void ClearCaseSetHeadingImage(QLabel* image);
void ClearCaseSetSectionImage(QLabel* image);
/// Sizes the heading and lays its bevel, and gives both the pages' help context.
void ClearCasePlaceHeading(QLabel* label, QWidget* bevel);

/// Decorates a page's headings: the section image, the small image of each heading, and each
/// heading label with its bevel.
void ClearCaseDecorateHeadings(QLabel* sectionImage, std::initializer_list<QLabel*> headingImages,
                               std::initializer_list<std::pair<QLabel*, QWidget*>> headings);

/// The help context of headings, icons and bevels.
inline constexpr int kClearCaseHeadingHelpContext = 2400;

/// Checks or unchecks a radio button of an exclusive group; unchecking the checked one leaves
/// its whole group unchecked, which an exclusive group alone does not allow.
void ClearCaseSetChecked(QAbstractButton* button, bool checked);

/// A query's result (lines ended by CR LF) as list items.
QStringList ClearCaseLines(const std::string& queryResult);

/// Fills a VOB list from cleartool unless it already holds VOBs, so that only the first
/// drop-down asks.
void ClearCaseFillVOBListOnce(TWFComboBox* list);
/// Fills a list with the names of the types of `kind` (e.g. "attype") in the VOB; with no
/// VOB the list stays as it is.
void ClearCaseFillTypeList(TWFComboBox* list, const char* kind, const QString& vob);

/// A radio button whose caption wraps onto further lines within its width, for captions longer
/// than a page is wide. Its text stays the caption as given.
class TClearCaseWrappingRadioButton : public QRadioButton {
public:
    using QRadioButton::QRadioButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};
