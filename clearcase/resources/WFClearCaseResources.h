#pragma once

#include "core/WFClearCaseExport.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

/// One resource compiled into the package.
struct TWFClearCaseResource {
    const char* name;
    const unsigned char* data;
    std::size_t size;
};

/// The compiled-in resources, generated from the package's resource files at build time;
/// ended by an entry whose name is nullptr.
extern WF_CC_API const TWFClearCaseResource WFClearCaseResourceTable[];

/// The bytes of the named resource (a bitmap is a whole .bmp file); empty when there is none.
WF_CC_API std::span<const unsigned char> WFClearCaseFindResource(std::string_view name);
/// The names of all resources, sorted.
WF_CC_API std::vector<std::string> WFClearCaseResourceNames();
