#pragma once

#include <span>

class QWidget;

/// A page class of the package and how to make one.
struct TClearCasePageMaker {
    const char* className;
    QWidget* (*make)(QWidget* parent);
};

/// Every page class the package has: the action pages and the options page.
std::span<const TClearCasePageMaker> ClearCasePageMakers();
/// A new page of the named class, or nullptr for a class the package has no page of.
QWidget* ClearCaseCreatePage(const char* className, QWidget* parent);
