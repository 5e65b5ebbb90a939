#pragma once

#include "WFActionPage.h"

#include <string>
#include <vector>

/// The page of each basic action: its class name and the action class it edits.
struct TWFBasicActionPageRow {
    std::string actionClassName;
    TWFPageClass page;
};
const std::vector<TWFBasicActionPageRow>& WFBasicActionPages();

/// Binds each basic action to its page with the host.
void WFRegisterBasicActionPages();
