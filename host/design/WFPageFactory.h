#pragma once

#include "WFActionPage.h"

#include <string>

class QWidget;

/// A page class of a package's table: `create` makes a T.
template <typename T>
QWidget* WFMakePage(QWidget* parent)
{
    return new T(parent);
}

/// Makes a page of the class under `parent`: nullptr with a reason when the class has no
/// factory or makes a widget that is not the class it names.
QWidget* WFCreatePage(const TWFPageClass& pageClass, QWidget* parent, std::string& error);
