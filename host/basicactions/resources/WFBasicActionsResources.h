#pragma once

#include <cstddef>

/// One bitmap compiled into the basic actions' package.
struct TWFBasicActionsResource {
    const char* name;
    const unsigned char* data;
    std::size_t size;
};

/// Generated from the .bmp files beside this header at build time; ended by a nullptr name.
extern const TWFBasicActionsResource WFBasicActionsResourceTable[];
