#include "WFServices.h"

#include "WFAction.h"
#include "WFFiles.h"
#include "WFIniFile.h"

#include <algorithm>
#include <map>

void TWFActionServices::RegisterAction(const std::string& displayName, const std::string& category,
                                       const TWFActionClass& actionClass, const std::string& actionTypeId)
{
    for (auto& entry : m_catalogue) {
        if (entry.typeId == actionTypeId) {
            entry = {displayName, category, actionTypeId, actionClass};
            return;
        }
    }
    m_catalogue.push_back({displayName, category, actionTypeId, actionClass});
}

void TWFActionServices::RegisterActionPages(const TWFActionClass& actionClass, const std::vector<TWFPageClass>& pages)
{
    for (auto& [name, list] : m_pages) {
        if (name == actionClass.className) {
            list = pages;
            return;
        }
    }
    m_pages.emplace_back(actionClass.className, pages);
}

const TWFCatalogueEntry* TWFActionServices::Find(const std::string& actionTypeId) const
{
    for (const auto& entry : m_catalogue)
        if (entry.typeId == actionTypeId)
            return &entry;
    return nullptr;
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
    for (const auto& [name, list] : m_pages)
        if (name == className)
            return list;
    return {};
}

void TWFActionServices::Clear()
{
    m_catalogue.clear();
    m_pages.clear();
}

namespace {

class TIniSectionReader final : public IWFOptionsReader {
public:
    explicit TIniSectionReader(std::vector<std::pair<std::string, std::string>> values) : m_values(std::move(values)) {}
    std::string ReadString(const std::string& name, const std::string& defaultValue) override
    {
        for (const auto& [key, value] : m_values)
            if (key == name)
                return value;
        return defaultValue;
    }

private:
    std::vector<std::pair<std::string, std::string>> m_values;
};

/// Collects what an options object writes, keeping keys it does not write this time.
class TIniSectionWriter final : public IWFOptionsWriter {
public:
    explicit TIniSectionWriter(std::vector<std::pair<std::string, std::string>> values) : m_values(std::move(values)) {}
    void WriteString(const std::string& name, const std::string& value) override
    {
        for (auto& [key, stored] : m_values) {
            if (key == name) {
                stored = value;
                return;
            }
        }
        m_values.emplace_back(name, value);
    }
    const std::vector<std::pair<std::string, std::string>>& values() const { return m_values; }

private:
    std::vector<std::pair<std::string, std::string>> m_values;
};

} // namespace

void TWFOptionsServices::RegisterOptionsClass(const TWFOptionsClass& optionsClass, const std::string& iconResourceName)
{
    TEntry entry{optionsClass, iconResourceName, optionsClass.create ? optionsClass.create() : nullptr, {}};
    if (entry.instance && !m_loadedFrom.empty()) {
        TWFIniFile ini(m_loadedFrom);
        TIniSectionReader reader(ini.ReadSection(entry.instance->GetOptionKey()));
        entry.instance->LoadOptions(reader);
        entry.instance->SetModified(false);
    }
    for (auto& existing : m_entries) {
        if (existing.optionsClass.className == optionsClass.className) {
            existing = std::move(entry);
            return;
        }
    }
    m_entries.push_back(std::move(entry));
}

void TWFOptionsServices::RegisterOptionsPages(const TWFOptionsClass& optionsClass, const std::vector<TWFPageClass>& pages)
{
    for (auto& entry : m_entries)
        if (entry.optionsClass.className == optionsClass.className)
            entry.pages = pages;
}

TWFOptionsObject* TWFOptionsServices::FindOptions(const std::string& category, const std::string& name) const
{
    for (const auto& entry : m_entries)
        if (entry.instance && entry.instance->GetCategory() == category && entry.instance->GetName() == name)
            return entry.instance.get();
    return nullptr;
}

std::vector<TWFOptionsObject*> TWFOptionsServices::AllOptions() const
{
    std::vector<TWFOptionsObject*> result;
    for (const auto& entry : m_entries)
        if (entry.instance)
            result.push_back(entry.instance.get());
    return result;
}

std::string TWFOptionsServices::IconOf(const TWFOptionsObject& options) const
{
    for (const auto& entry : m_entries)
        if (entry.instance.get() == &options)
            return entry.icon;
    return {};
}

std::vector<TWFPageClass> TWFOptionsServices::PagesOf(const std::string& className) const
{
    for (const auto& entry : m_entries)
        if (entry.optionsClass.className == className)
            return entry.pages;
    return {};
}

bool TWFOptionsServices::Load(const std::string& iniPath, std::string& error)
{
    std::string bytes;
    if (fileExists(iniPath) && !readWholeFile(iniPath, bytes, error))
        return false;
    m_loadedFrom = iniPath;
    const auto sections = parseIniSections(bytes);
    for (auto& entry : m_entries) {
        if (!entry.instance)
            continue;
        std::vector<std::pair<std::string, std::string>> values;
        for (const auto& [name, keys] : sections)
            if (name == entry.instance->GetOptionKey())
                values = keys;
        TIniSectionReader reader(values);
        entry.instance->LoadOptions(reader);
        entry.instance->SetModified(false);
    }
    return true;
}

bool TWFOptionsServices::Save(const std::string& iniPath, std::string& error)
{
    std::string bytes;
    if (fileExists(iniPath) && !readWholeFile(iniPath, bytes, error))
        return false;
    auto sections = parseIniSections(bytes);
    for (auto& entry : m_entries) {
        if (!entry.instance)
            continue;
        const std::string key = entry.instance->GetOptionKey();
        auto found = std::find_if(sections.begin(), sections.end(), [&](const auto& s) { return s.first == key; });
        if (found == sections.end()) {
            sections.emplace_back(key, std::vector<std::pair<std::string, std::string>>{});
            found = std::prev(sections.end());
        }
        TIniSectionWriter writer(found->second);
        entry.instance->SaveOptions(writer);
        found->second = writer.values();
    }
    const std::string out = formatIniSections(sections);
    const std::string folder = parentDirectory(iniPath);
    if (!directoryExists(folder) && !makeDirectories(folder)) {
        error = "cannot create the configuration folder \"" + folder + "\"";
        return false;
    }
    if (!writeFileAtomically(iniPath, out, error))
        return false;
    for (auto& entry : m_entries)
        if (entry.instance)
            entry.instance->SetModified(false);
    return true;
}

void TWFOptionsServices::Clear()
{
    m_entries.clear();
    m_loadedFrom.clear();
}

void TWFScriptingServices::RegisterFunction(const std::string& name, const std::string& /*resultType*/,
                                            const std::vector<std::string>& /*valueTypes*/, TRoutine routine,
                                            void* /*reserved*/)
{
    for (auto& [existing, stored] : m_functions) {
        if (existing == name) {
            stored = std::move(routine);
            return;
        }
    }
    m_functions.emplace_back(name, std::move(routine));
}

void TWFScriptingServices::RegisterEnumeration(const std::string& name, const std::vector<std::string>& members)
{
    for (auto& [existing, stored] : m_enumerations) {
        if (existing == name) {
            stored = members;
            return;
        }
    }
    m_enumerations.emplace_back(name, members);
}

bool TWFScriptingServices::HasFunction(const std::string& name) const
{
    return std::any_of(m_functions.begin(), m_functions.end(), [&](const auto& f) { return f.first == name; });
}

bool TWFScriptingServices::Evaluate(const std::string& function, const std::string& property, std::string& text,
                                    std::string& error) const
{
    const auto found = std::find_if(m_functions.begin(), m_functions.end(), [&](const auto& f) { return f.first == function; });
    if (found == m_functions.end() || !found->second) {
        error = "unknown function \"" + function + "()\"";
        return false;
    }
    const TWFVariant value = found->second();
    if (property.empty()) {
        text = value.toString();
        return true;
    }
    TZTXMLObject* object = value.toObject();
    if (!object) {
        error = "\"" + function + "()\" returned no object to read \"" + property + "\" from";
        return false;
    }
    if (!object->FindProperty(property)) {
        error = "\"" + function + "()\" has no property \"" + property + "\"";
        return false;
    }
    text = object->GetPropertyText(property);
    return true;
}

void TWFScriptingServices::Clear()
{
    m_functions.clear();
    m_enumerations.clear();
}

TWFActionServices& WFActionServices()
{
    static TWFActionServices services;
    return services;
}

TWFOptionsServices& WFOptionsServices()
{
    static TWFOptionsServices services;
    return services;
}

TWFScriptingServices& WFScriptingServices()
{
    static TWFScriptingServices services;
    return services;
}

TWFDesignApplicationServices& WFDesignApplicationServices()
{
    static TWFDesignApplicationServices services;
    return services;
}
