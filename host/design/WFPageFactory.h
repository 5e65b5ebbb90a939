#pragma once

#include "WFActionPage.h"

#include <memory>
#include <string>

class QWidget;

/// A page class of a package's table: `create` makes a T.
template <typename T>
QWidget* WFMakePage(QWidget* parent)
{
    return new T(parent);
}

/// Makes a page of the class under `parent`: nullptr with a reason when the class has no
/// factory or makes a widget that is not the class it names. The caller owns the page until it
/// hands it to a parent.
std::unique_ptr<QWidget> WFCreatePage(const TWFPageClass& pageClass, QWidget* parent, std::string& error);
