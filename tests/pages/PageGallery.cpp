// wf_page_gallery: renders every property page, bound to a sample action, and every editor to
// a PNG, for the documentation and for looking at pages as a user sees them. Run under Xvfb (or
// the offscreen platform):  wf_page_gallery OUTPUT_DIR [CLASS...]
#include "pages/WFClearCasePageTable.h"
#include "PageGallery.h"
#include "shell/WFClearCaseRegistration.h"
#include "WFFrame.h"
#include "WFPageFactory.h"

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QTabBar>
#include <QTabWidget>

#include <cstdio>
#include <memory>
#include <set>
#include <string>

namespace {

/// The first action of the catalogue that shows the page, made as the host makes it.
std::unique_ptr<TClearCaseBaseAction> sampleActionFor(const std::string& pageClass)
{
    for (const auto& row : ClearCaseActionPages())
        for (const auto& page : row.pages)
            if (page.className == pageClass)
                if (const auto* catalogueRow = ClearCaseFindClass(row.actionClassName)) {
                    auto action = ClearCaseCreateAction(*catalogueRow);
                    wfgallery::fillSample(*action);
                    return action;
                }
    return nullptr;
}

/// Binds the page to sample data; its tab caption, or empty with a reason.
QString bindSample(const TClearCasePageMaker& maker, QWidget* page, std::unique_ptr<TClearCaseBaseAction>& action,
                   std::string& error)
{
    if (IWFActionPage* actionPage = WFActionPageOf(page)) {
        action = sampleActionFor(maker.className);
        if (!action) {
            error = std::string("no action shows ") + maker.className;
            return {};
        }
        actionPage->InitFrame(page);
        actionPage->InitPage(*action);
        actionPage->ReadActionData(*action);
        return QString::fromStdString(actionPage->PageName());
    }
    if (IWFOptionsPage* optionsPage = WFOptionsPageOf(page)) {
        optionsPage->InitPage(nullptr);
        wfgallery::readSampleOptions(*optionsPage);
        return QString::fromStdString(optionsPage->GetPageName());
    }
    error = std::string(maker.className) + " is no page";
    return {};
}

/// The page as it sits in a host's tab, at the width pages are laid out for.
bool renderPage(const TClearCasePageMaker& maker, const QString& file, std::string& error)
{
    QTabWidget tabs;
    std::unique_ptr<QWidget> page = WFCreatePage({maker.className, maker.make}, nullptr, error);
    if (!page)
        return false;
    std::unique_ptr<TClearCaseBaseAction> action;
    const QString caption = bindSample(maker, page.get(), action, error);
    if (caption.isEmpty())
        return false;
    const int height = page->minimumHeight();
    tabs.addTab(page.release(), caption);
    tabs.show();
    tabs.resize(kWFPageWidth + 8, height + tabs.tabBar()->sizeHint().height() + 12);
    QApplication::processEvents();
    return tabs.grab().save(file);
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 2 || arguments[1] == "--help") {
        std::printf("usage: wf_page_gallery OUTPUT_DIR [CLASS...]\n"
                    "Writes CLASS.png of every property page and editor (or of those named) into OUTPUT_DIR.\n");
        return arguments.size() < 2 ? 2 : 0;
    }
    const QDir out(arguments[1]);
    if (!QDir().mkpath(out.path())) {
        std::fprintf(stderr, "wf_page_gallery: cannot create %s\n", qPrintable(out.path()));
        return 1;
    }
    const std::set<QString> only(arguments.begin() + 2, arguments.end());
    const auto wanted = [&](const char* name) { return only.empty() || only.count(QString(name)); };
    wfgallery::prepareSampleWorld();
    int failures = 0;
    int written = 0;
    for (const auto& maker : ClearCasePageMakers()) {
        if (!wanted(maker.className))
            continue;
        std::string error;
        const QString file = out.filePath(QString(maker.className) + ".png");
        if (!renderPage(maker, file, error)) {
            std::fprintf(stderr, "wf_page_gallery: %s: %s\n", maker.className, error.empty() ? "cannot write the image" : error.c_str());
            ++failures;
        } else {
            ++written;
        }
    }
    for (const auto& editor : wfgallery::editors()) {
        if (!wanted(editor.className))
            continue;
        std::unique_ptr<QWidget> widget(editor.make());
        widget->show();
        widget->adjustSize();
        QApplication::processEvents();
        if (!widget->grab().save(out.filePath(QString(editor.className) + ".png"))) {
            std::fprintf(stderr, "wf_page_gallery: %s: cannot write the image\n", editor.className);
            ++failures;
        } else {
            ++written;
        }
    }
    std::printf("wf_page_gallery: %d images written to %s\n", written, qPrintable(out.path()));
    return failures ? 1 : 0;
}
