#pragma once

#include "WFActionPage.h"

#include <QFrame>

#include <typeinfo>

/// The left edge of a page's right margin: headings end here.
inline constexpr int kWFPageRightEdge = 497;
/// The width a page is laid out for.
inline constexpr int kWFPageWidth = 505;

/// The base of every action page: a frame whose controls come from the Qt Designer layout named
/// after the page's unit. InitFrame, InitPage and the activation calls do nothing unless a page
/// needs them.
class TFrame : public QFrame, public IWFActionPage {
    Q_OBJECT
public:
    explicit TFrame(QWidget* parent = nullptr);

    void InitFrame(void* owner) override;
    void InitPage(TCustomWFAction& action) override;
    void OnPageActivate() override;
    void OnPageDeActivate() override;

protected:
    /// The action as the class a page edits. A page bound to another class is a programming
    /// fault: std::bad_cast.
    template <typename T>
    static T& narrow(TCustomWFAction& action)
    {
        return dynamic_cast<T&>(action);
    }
};

/// The page an action-page widget is, or nullptr.
IWFActionPage* WFActionPageOf(QWidget* widget);
/// The options page an options-page widget is, or nullptr.
IWFOptionsPage* WFOptionsPageOf(QWidget* widget);
