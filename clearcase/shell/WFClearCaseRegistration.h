#pragma once

#include "resources/WFClearCaseResources.h"
#include "WFServices.h"

#include <string>
#include <vector>

/// One action of the catalogue. The type ID also names the action's bitmap resource
/// (WFClearCaseFindResource).
struct TClearCaseCatalogueRow {
    std::string typeId;
    TWFActionClass actionClass;
    int helpTopic;
};

/// The property pages of one action class, in tab order, by page class name.
struct TClearCasePagesRow {
    std::string actionClassName;
    std::vector<TWFPageClass> pages;
};

/// The 24 actions in catalogue order.
const std::vector<TClearCaseCatalogueRow>& ClearCaseCatalogue();
/// Every action's pages, in the order they are registered.
const std::vector<TClearCasePagesRow>& ClearCaseActionPages();

/// Registers the options, the catalogue and, for a design-time host, the options and action
/// pages. The body of the package's exported WFRegister.
void ClearCaseRegister(bool registerPages);

/// The package as the host lists it.
std::string WFClearCasePackageDescription();
/// The help file shared by every action; topics are the catalogue's.
std::string WFClearCaseHelpFileName();
/// The help topic of an action type; 0 for a type the package does not have.
int WFClearCaseHelpTopic(const std::string& typeId);
