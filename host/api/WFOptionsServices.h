#pragma once

#include "WFActionPage.h"
#include "WFExport.h"
#include "WFOptions.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

struct WF_API TWFOptionsClass {
    std::string className;
    std::function<std::unique_ptr<TWFOptionsObject>()> create;
};

/// The registered options objects: one live instance each, loaded from and saved to
/// `options.ini` in the configuration directory.
class WF_API TWFOptionsServices {
public:
    /// Creates the live instance and loads it from the store when one has been opened.
    void RegisterOptionsClass(const TWFOptionsClass& optionsClass, const std::string& iconResourceName);
    void RegisterOptionsPages(const TWFOptionsClass& optionsClass, const std::vector<TWFPageClass>& pages);
    /// The live instance registered under category and name, or nullptr.
    TWFOptionsObject* FindOptions(const std::string& category, const std::string& name) const;
    std::vector<TWFOptionsObject*> AllOptions() const;
    std::string IconOf(const TWFOptionsObject& options) const;
    std::vector<TWFPageClass> PagesOf(const std::string& className) const;
    /// The pages registered for the class of a live instance.
    std::vector<TWFPageClass> PagesFor(const TWFOptionsObject& options) const;

    /// Loads every live instance from `options.ini` (a missing file is an empty store).
    /// False with a reason when the file exists but cannot be read.
    bool Load(const std::string& iniPath, std::string& error);
    /// Writes every live instance into `options.ini` under the file's lock, atomically, changing
    /// only the keys the options write: comments, other keys and foreign sections stay. False
    /// with a reason on failure (also for a key or value the file cannot hold); the old file is intact.
    bool Save(const std::string& iniPath, std::string& error);
    /// Sets one property (by the name Properties() gives) of a live instance and writes its
    /// section, under the file's lock: the section is read afresh first, so a concurrent change
    /// of another option stays. False with a reason (a value the property's type refuses, a
    /// store that cannot be written); the old file is then intact.
    bool SetOption(const std::string& iniPath, TWFOptionsObject& options, const std::string& property,
                   const std::string& value, std::string& error);
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

WF_API TWFOptionsServices& WFOptionsServices();
