#pragma once

#include "WFActionPage.h"
#include "WFExport.h"

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

class TCustomWFAction;

/// A class of actions as the host knows it: its name and how to make one.
struct WF_API TWFActionClass {
    std::string className;
    std::function<std::unique_ptr<TCustomWFAction>()> create;
};

template <typename T>
TWFActionClass WFActionClassOf(std::string className)
{
    return {std::move(className), [] { return std::unique_ptr<TCustomWFAction>(std::make_unique<T>()); }};
}

struct WF_API TWFCatalogueEntry {
    std::string displayName;
    std::string category;
    std::string typeId;
    TWFActionClass actionClass;
};

/// The action catalogue, in registration order.
class WF_API TWFActionServices {
public:
    void RegisterAction(const std::string& displayName, const std::string& category, const TWFActionClass& actionClass,
                        const std::string& actionTypeId);
    void RegisterActionPages(const TWFActionClass& actionClass, const std::vector<TWFPageClass>& pages);

    const std::vector<TWFCatalogueEntry>& Catalogue() const { return m_catalogue; }
    const TWFCatalogueEntry* Find(const std::string& actionTypeId) const;
    /// A new action of the type, with its type ID bound; nullptr for an unknown type.
    std::unique_ptr<TCustomWFAction> CreateAction(const std::string& actionTypeId) const;
    /// The pages registered for a class, in tab order; empty when none were.
    std::vector<TWFPageClass> PagesOf(const std::string& className) const;
    void Clear();

private:
    std::vector<TWFCatalogueEntry> m_catalogue;
    std::vector<std::pair<std::string, std::vector<TWFPageClass>>> m_pages;
};

WF_API TWFActionServices& WFActionServices();
