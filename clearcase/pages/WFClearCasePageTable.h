#pragma once

#include <vector>

class QWidget;

/// A page class of the package and how to make one.
struct TClearCasePageMaker {
    const char* className;
    QWidget* (*make)(QWidget* parent);
};

/// The property pages of one action class, in tab order.
struct TClearCaseActionPagesRow {
    const char* actionClassName;
    std::vector<TClearCasePageMaker> pages;
};

/// Every action's pages: the package's one table of them, in the order they are registered.
const std::vector<TClearCaseActionPagesRow>& ClearCaseActionPages();
/// The options page.
const TClearCasePageMaker& ClearCaseOptionsPage();
/// Every page class the package has, each once: the action pages and the options page.
std::vector<TClearCasePageMaker> ClearCasePageMakers();
/// A new page of the named class, or nullptr for a class the package has no page of.
QWidget* ClearCaseCreatePage(const char* className, QWidget* parent);
/// Registers the options page and every action's pages with the host.
void ClearCaseRegisterPages();
