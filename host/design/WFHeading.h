#pragma once

class QLabel;
class QWidget;

/// Sizes a section heading's label to its text and lays its bevel line from 8 pixels right of the
/// label to the page's right edge (x = 497). Run again whenever the caption changes.
void WFPlaceHeadingBevel(QLabel* label, QWidget* bevel);
