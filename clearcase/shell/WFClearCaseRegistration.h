#pragma once

#include "actions/WFClearCaseBaseAction.h"
#include "resources/WFClearCaseResources.h"
#include "WFServices.h"

#include <memory>
#include <span>
#include <string>
#include <vector>

/// One action of the catalogue: what users and the host know it by, and how to make one. The
/// type ID also names the action's bitmap resource (WFClearCaseFindResource).
struct TClearCaseCatalogueRow {
    TClearCaseActionIdentity identity;
    std::unique_ptr<TClearCaseBaseAction> (*make)();
};

/// The category every action of the package is listed under.
inline constexpr const char* kClearCaseCategory = "ClearCase";

/// The 24 actions in catalogue order.
std::span<const TClearCaseCatalogueRow> ClearCaseCatalogue();
/// The row of an action class, by class name; nullptr for a class the catalogue does not list.
const TClearCaseCatalogueRow* ClearCaseFindClass(const std::string& className);
/// A new action of the row's class, bound to the row and its type ID.
std::unique_ptr<TClearCaseBaseAction> ClearCaseCreateAction(const TClearCaseCatalogueRow& row);
/// The page library's one entry point: registers the options page and every action's pages. The
/// pages live in a library of their own so that a headless host never loads a widget library.
using TClearCasePagesEntry = void (*)();
inline constexpr const char* kClearCasePagesEntrySymbol = "WFClearCaseRegisterPages";
/// The page library's file, relative to the folder of the plug-in.
inline constexpr const char* kClearCasePageLibrary = "clearcase/WF30ClearCasePages.so";

/// Registers the options, the catalogue and, for a design-time host, the options and action
/// pages. The body of the package's exported WFRegister.
void ClearCaseRegister(bool registerPages);

/// The package as the host lists it.
std::string WFClearCasePackageDescription();
/// The help file shared by every action; topics are the catalogue's.
std::string WFClearCaseHelpFileName();
/// The help topic of an action type; 0 for a type the package does not have.
int WFClearCaseHelpTopic(const std::string& typeId);
