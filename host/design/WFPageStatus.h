#pragma once

class QString;
class QWidget;

/// Shows a short note at the foot of the page (or dialog) that holds `control`, e.g. why a
/// look-up found nothing; an empty text hides it. The note is the page's label "lblPageStatus".
void WFSetPageStatus(QWidget* control, const QString& text);
