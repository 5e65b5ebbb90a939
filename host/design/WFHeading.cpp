#include "WFHeading.h"

#include "WFFrame.h"

#include <QLabel>

#include <algorithm>

void WFPlaceHeadingBevel(QLabel* label, QWidget* bevel)
{
    label->adjustSize();
    const int left = label->x() + label->width() + 8;
    bevel->setGeometry(left, bevel->y(), std::max(0, kWFPageRightEdge - left), bevel->height());
}
