#pragma once

class QLabel;
class QWidget;

/// The look every page of the package shares: decorative images beside section headings, and
/// headings whose bevel ends at the page's right edge.
void ClearCaseSetHeadingImage(QLabel* image);
void ClearCaseSetSectionImage(QLabel* image);
/// Sizes the heading and lays its bevel, and gives both the pages' help context.
void ClearCasePlaceHeading(QLabel* label, QWidget* bevel);

/// The help context of headings, icons and bevels.
inline constexpr int kClearCaseHeadingHelpContext = 2400;

class QAbstractButton;
/// Checks or unchecks a radio button of an exclusive group; unchecking the checked one leaves
/// its whole group unchecked, which an exclusive group alone does not allow.
void ClearCaseSetChecked(QAbstractButton* button, bool checked);

#include <QStringList>
#include <string>
/// A query's result (lines ended by CR LF) as list items.
QStringList ClearCaseLines(const std::string& queryResult);

class TWFComboBox;
/// Fills a VOB list from cleartool unless it already holds VOBs (a first item that is not
/// blank), so that a page asks for the VOBs once.
void ClearCaseFillVOBsOnce(TWFComboBox* list);
