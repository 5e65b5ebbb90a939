#include "WFFrame.h"

TFrame::TFrame(QWidget* parent) : QFrame(parent) {}

void TFrame::InitFrame(void*) {}

void TFrame::InitPage(TCustomWFAction&) {}

void TFrame::OnPageActivate() {}

void TFrame::OnPageDeActivate() {}

IWFActionPage* WFActionPageOf(QWidget* widget)
{
    return dynamic_cast<IWFActionPage*>(widget);
}

IWFOptionsPage* WFOptionsPageOf(QWidget* widget)
{
    return dynamic_cast<IWFOptionsPage*>(widget);
}
