#pragma once

#include <QString>

#include <string>

class QWidget;

/// What a dialog shows where a registered page cannot be made: says so, and why, instead of
/// leaving a hole. `consequence` tells what still works without the page.
QWidget* unavailablePage(const std::string& reason, const QString& consequence);
