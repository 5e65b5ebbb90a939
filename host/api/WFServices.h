#pragma once

#include "WFOptions.h"
#include "WFVariant.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

class TCustomWFAction;

/// A class of actions as the host knows it: its name and how to make one.
struct TWFActionClass {
    std::string className;
    std::function<std::unique_ptr<TCustomWFAction>()> create;
};

template <typename T>
TWFActionClass WFActionClassOf(std::string className)
{
    return {std::move(className), [] { return std::unique_ptr<TCustomWFAction>(std::make_unique<T>()); }};
}

/// A property page class, by name. The design-time part of a host turns names into frames.
struct TWFPageClass {
    std::string className;
};

struct TWFCatalogueEntry {
    std::string displayName;
    std::string category;
    std::string typeId;
    TWFActionClass actionClass;
};

/// The action catalogue, in registration order.
class TWFActionServices {
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

struct TWFOptionsClass {
    std::string className;
    std::function<std::unique_ptr<TWFOptionsObject>()> create;
};

/// The registered options objects: one live instance each, loaded from and saved to
/// `options.ini` in the configuration directory.
class TWFOptionsServices {
public:
    /// Creates the live instance and loads it from the store when one has been opened.
    void RegisterOptionsClass(const TWFOptionsClass& optionsClass, const std::string& iconResourceName);
    void RegisterOptionsPages(const TWFOptionsClass& optionsClass, const std::vector<TWFPageClass>& pages);
    /// The live instance registered under category and name, or nullptr.
    TWFOptionsObject* FindOptions(const std::string& category, const std::string& name) const;
    std::vector<TWFOptionsObject*> AllOptions() const;
    std::string IconOf(const TWFOptionsObject& options) const;
    std::vector<TWFPageClass> PagesOf(const std::string& className) const;

    /// Loads every live instance from `options.ini` (a missing file is an empty store).
    /// False with a reason when the file exists but cannot be read.
    bool Load(const std::string& iniPath, std::string& error);
    /// Writes every live instance into `options.ini`, keeping sections that belong to no
    /// registered options, atomically. False with a reason on failure; the old file is intact.
    bool Save(const std::string& iniPath, std::string& error);
    void Clear();

private:
    struct TEntry {
        TWFOptionsClass optionsClass;
        std::string icon;
        std::unique_ptr<TWFOptionsObject> instance;
        std::vector<TWFPageClass> pages;
    };
    std::vector<TEntry> m_entries;
    std::string m_loadedFrom;
};

/// Global functions and enumerations for expressions and scripts.
class TWFScriptingServices {
public:
    using TRoutine = std::function<TWFVariant()>;

    TWFVariant ObjectToVariant(TZTXMLObject* object) const { return TWFVariant::FromObject(object); }
    /// Registers a function without arguments; `%Name().Property%` reads a property of the
    /// object it returns, `%Name()%` its text. The reserved argument is for the host's use.
    void RegisterFunction(const std::string& name, const std::string& resultType,
                          const std::vector<std::string>& valueTypes, TRoutine routine, void* reserved = nullptr);
    void RegisterEnumeration(const std::string& name, const std::vector<std::string>& members);

    bool HasFunction(const std::string& name) const;
    /// Calls a function and reads a property of its result (empty property: the result's
    /// text). False with a reason for an unknown function or property.
    bool Evaluate(const std::string& function, const std::string& property, std::string& text,
                  std::string& error) const;
    const std::vector<std::pair<std::string, std::vector<std::string>>>& Enumerations() const { return m_enumerations; }
    void Clear();

private:
    std::vector<std::pair<std::string, TRoutine>> m_functions;
    std::vector<std::pair<std::string, std::vector<std::string>>> m_enumerations;
};

/// Design-time services: what the open project holds.
class TWFDesignApplicationServices {
public:
    std::function<std::vector<std::string>()> variableNamesProvider;
    /// The names of the open project's build variables.
    std::vector<std::string> GetVariableNames() const { return variableNamesProvider ? variableNamesProvider() : std::vector<std::string>{}; }
};

TWFActionServices& WFActionServices();
TWFOptionsServices& WFOptionsServices();
TWFScriptingServices& WFScriptingServices();
TWFDesignApplicationServices& WFDesignApplicationServices();
