#include "WFOptionsServices.h"

#include "WFFiles.h"
#include "WFIniFile.h"
#include "WFNamedList.h"

namespace {

class TIniSectionReader final : public IWFOptionsReader {
public:
    explicit TIniSectionReader(TWFIniKeys values) : m_values(std::move(values)) {}
    std::string ReadString(const std::string& name, const std::string& defaultValue) override
    {
        const auto* found = findNamed(m_values, name, [](const auto& pair) -> const auto& { return pair.first; });
        return found ? found->second : defaultValue;
    }

private:
    TWFIniKeys m_values;
};

/// Writes what an options object saves into its section of the document, in place; keys it
/// does not write this time, comments and foreign sections stay as they are.
class TIniSectionWriter final : public IWFOptionsWriter {
public:
    TIniSectionWriter(TWFIniDocument& document, std::string section) : m_document(document), m_section(std::move(section)) {}
    void WriteString(const std::string& name, const std::string& value) override
    {
        std::string error;
        if (!checkIniEntry(m_section, name, value, error)) {
            if (m_error.empty())
                m_error = error;
            return;
        }
        m_document.Set(m_section, name, value);
    }
    const std::string& error() const { return m_error; }

private:
    TWFIniDocument& m_document;
    std::string m_section;
    std::string m_error;
};

} // namespace

void TWFOptionsServices::RegisterOptionsClass(const TWFOptionsClass& optionsClass, const std::string& iconResourceName)
{
    TEntry entry{optionsClass, iconResourceName, optionsClass.create ? optionsClass.create() : nullptr, {}};
    if (entry.instance && !m_loadedFrom.empty()) {
        TIniSectionReader reader(TWFIniFile(m_loadedFrom).ReadSection(entry.instance->GetOptionKey()));
        entry.instance->LoadOptions(reader);
        entry.instance->SetModified(false);
    }
    replaceOrAppend(m_entries, optionsClass.className, [](const TEntry& e) -> const std::string& { return e.optionsClass.className; },
                    std::move(entry));
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
    const auto* found = findNamed(m_entries, className, [](const TEntry& e) -> const std::string& { return e.optionsClass.className; });
    return found ? found->pages : std::vector<TWFPageClass>{};
}

std::vector<TWFPageClass> TWFOptionsServices::PagesFor(const TWFOptionsObject& options) const
{
    for (const auto& entry : m_entries)
        if (entry.instance.get() == &options)
            return entry.pages;
    return {};
}

bool TWFOptionsServices::Load(const std::string& iniPath, std::string& error)
{
    std::string bytes;
    if (fileExists(iniPath) && !readWholeFile(iniPath, bytes, error))
        return false;
    m_loadedFrom = iniPath;
    const TWFIniDocument document(bytes);
    for (auto& entry : m_entries) {
        if (!entry.instance)
            continue;
        TIniSectionReader reader(document.Section(entry.instance->GetOptionKey()));
        entry.instance->LoadOptions(reader);
        entry.instance->SetModified(false);
    }
    return true;
}

bool TWFOptionsServices::Save(const std::string& iniPath, std::string& error)
{
    const bool saved = updateIniFile(iniPath, [this](TWFIniDocument& document, std::string& reason) {
        for (auto& entry : m_entries) {
            if (!entry.instance)
                continue;
            TIniSectionWriter writer(document, entry.instance->GetOptionKey());
            entry.instance->SaveOptions(writer);
            if (!writer.error().empty()) {
                reason = entry.instance->GetOptionKey() + ": " + writer.error();
                return false;
            }
        }
        return true;
    }, error);
    if (!saved)
        return false;
    for (auto& entry : m_entries)
        if (entry.instance)
            entry.instance->SetModified(false);
    return true;
}

bool TWFOptionsServices::SetOption(const std::string& iniPath, TWFOptionsObject& options, const std::string& property,
                                   const std::string& value, std::string& error)
{
    const std::string section = options.GetOptionKey();
    return updateIniFile(iniPath, [&](TWFIniDocument& document, std::string& reason) {
        TIniSectionReader reader(document.Section(section));
        options.LoadOptions(reader);
        if (!options.SetPropertyText(property, value, &reason))
            return false;
        TIniSectionWriter writer(document, section);
        options.SaveOptions(writer);
        reason = writer.error();
        options.SetModified(false);
        return reason.empty();
    }, error);
}

void TWFOptionsServices::Clear()
{
    m_entries.clear();
    m_loadedFrom.clear();
}

TWFOptionsServices& WFOptionsServices()
{
    static TWFOptionsServices services;
    return services;
}
