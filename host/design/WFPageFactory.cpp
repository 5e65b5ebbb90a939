#include "WFPageFactory.h"

#include "WFFrame.h"

#include <QWidget>

std::unique_ptr<QWidget> WFCreatePage(const TWFPageClass& pageClass, QWidget* parent, std::string& error)
{
    if (!pageClass.create) {
        error = "page " + pageClass.className + " is not available: its package was loaded without pages";
        return nullptr;
    }
    std::unique_ptr<QWidget> page(pageClass.create(parent));
    if (!page) {
        error = "page " + pageClass.className + " could not be made";
        return nullptr;
    }
    // Hosts and tests find pages and controls by name; a page must carry its class name.
    if (page->objectName().toStdString() != pageClass.className || (!WFActionPageOf(page.get()) && !WFOptionsPageOf(page.get()))) {
        error = "page " + pageClass.className + " made a widget named \"" + page->objectName().toStdString() +
                "\" that is no page of that class";
        return nullptr;
    }
    return page;
}
