#include "WFActionServices.h"

#include "WFAction.h"
#include "WFNamedList.h"

void TWFActionServices::RegisterAction(const std::string& displayName, const std::string& category,
                                       const TWFActionClass& actionClass, const std::string& actionTypeId)
{
    replaceOrAppend(m_catalogue, actionTypeId, [](const auto& entry) -> const auto& { return entry.typeId; },
                    TWFCatalogueEntry{displayName, category, actionTypeId, actionClass});
}

void TWFActionServices::RegisterActionPages(const TWFActionClass& actionClass, const std::vector<TWFPageClass>& pages)
{
    setNamed(m_pages, actionClass.className, pages);
}

const TWFCatalogueEntry* TWFActionServices::Find(const std::string& actionTypeId) const
{
    return findNamed(m_catalogue, actionTypeId, [](const auto& entry) -> const auto& { return entry.typeId; });
}

std::unique_ptr<TCustomWFAction> TWFActionServices::CreateAction(const std::string& actionTypeId) const
{
    const auto* entry = Find(actionTypeId);
    if (!entry || !entry->actionClass.create)
        return nullptr;
    auto action = entry->actionClass.create();
    if (action)
        action->SetActionTypeID(actionTypeId);
    return action;
}

std::vector<TWFPageClass> TWFActionServices::PagesOf(const std::string& className) const
{
    const auto* found = findNamed(m_pages, className, [](const auto& pair) -> const auto& { return pair.first; });
    return found ? found->second : std::vector<TWFPageClass>{};
}

void TWFActionServices::Clear()
{
    m_catalogue.clear();
    m_pages.clear();
}

TWFActionServices& WFActionServices()
{
    static TWFActionServices services;
    return services;
}
