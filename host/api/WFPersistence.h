#pragma once

#include "WFExport.h"
#include "WFVariant.h"

#include <functional>
#include <string>
#include <type_traits>
#include <vector>

enum class TWFPropertyType { String, Boolean, Integer, Enumeration };

/// One persisted property: its storage name, type and accessors. Enumerations are held
/// as their ordinal and persisted by member name.
struct WF_API TWFPropertyInfo {
    std::string name;
    TWFPropertyType type = TWFPropertyType::String;
    std::vector<std::string> enumMembers;
    std::function<TWFVariant()> get;
    std::function<void(const TWFVariant&)> set;
    /// A string that may hold several lines: a page edits it in a memo.
    bool multiLine = false;
};

/// Reads persisted properties by name. Booleans and enumerations come back in their stored
/// text form; the object converts them.
class WF_API IZTXMLReader {
public:
    virtual ~IZTXMLReader() = default;
    /// The stored text of a property, or false when the store does not hold it.
    virtual bool ReadValue(const std::string& name, std::string& value) const = 0;
};

class WF_API IZTXMLWriter {
public:
    virtual ~IZTXMLWriter() = default;
    virtual void WriteValue(const std::string& name, const std::string& value) = 0;
};

/// Why a stored property could not be applied.
struct WF_API TWFPropertyError {
    std::string property;
    std::string message;
};

/// Persistence root: a registry of named, typed properties in declaration order.
class WF_API TZTXMLObject {
public:
    TZTXMLObject() = default;
    virtual ~TZTXMLObject() = default;
    TZTXMLObject(const TZTXMLObject&) = delete;
    TZTXMLObject& operator=(const TZTXMLObject&) = delete;

    /// Applies every property the reader holds; returns the values it could not apply
    /// (a bad Boolean or enumeration member). Unknown stored names are the reader's concern.
    virtual std::vector<TWFPropertyError> ReadState(const IZTXMLReader& reader);
    /// Writes every property in persistence order: Booleans "True"/"False", enumerations by
    /// member name, strings and integers as text.
    virtual void WriteState(IZTXMLWriter& writer) const;

    const std::vector<TWFPropertyInfo>& Properties() const { return m_properties; }
    const TWFPropertyInfo* FindProperty(const std::string& name) const;

    /// Typed access by name, for pages, scripts and the host.
    TWFVariant GetPropertyValue(const std::string& name) const;
    bool SetPropertyValue(const std::string& name, const TWFVariant& value);
    /// The persisted text form of a property (member name for enumerations).
    std::string GetPropertyText(const std::string& name) const;
    /// Sets a property from its persisted text form; false with a reason when the text does
    /// not fit the property's type.
    bool SetPropertyText(const std::string& name, const std::string& text, std::string* error = nullptr);

protected:
    void publish(TWFPropertyInfo info);
    /// Declares a property. Declaring a name again keeps its first position (a class that
    /// publishes an inherited property again does not move it). The accessors are wrapped
    /// once, here: a lambda that holds only `this` or a field's address is stored without
    /// allocating, which matters when a project of thousands of actions is read.
    template <typename Get, typename Set>
    void PublishString(const std::string& name, Get get, Set set)
    {
        publish({name, TWFPropertyType::String, {}, [get] { return TWFVariant(std::string(get())); },
                 [set](const TWFVariant& value) { set(value.toString()); }});
    }
    template <typename Get, typename Set>
    void PublishBoolean(const std::string& name, Get get, Set set)
    {
        publish({name, TWFPropertyType::Boolean, {}, [get] { return TWFVariant(static_cast<bool>(get())); },
                 [set](const TWFVariant& value) { set(value.toBoolean()); }});
    }
    template <typename Get, typename Set>
    void PublishInteger(const std::string& name, Get get, Set set)
    {
        publish({name, TWFPropertyType::Integer, {}, [get] { return TWFVariant(static_cast<long long>(get())); },
                 [set](const TWFVariant& value) { set(value.toInteger()); }});
    }
    template <typename Get, typename Set>
    void PublishEnumeration(const std::string& name, std::vector<std::string> members, Get get, Set set)
    {
        publish({name, TWFPropertyType::Enumeration, std::move(members),
                 [get] { return TWFVariant(static_cast<long long>(get())); },
                 [set](const TWFVariant& value) { set(static_cast<int>(value.toInteger())); }});
    }

    /// Declares a property held in a member, read and written through the member: the one
    /// declaration of a stored value, which pages, scripts and the host reach by name.
    void PublishString(const std::string& name, std::string* field)
    {
        PublishString(name, [field] { return *field; }, [field](std::string value) { *field = std::move(value); });
    }
    /// A string property that may hold several lines (a message, a file's text).
    void PublishText(const std::string& name, std::string* field);
    void PublishBoolean(const std::string& name, bool* field)
    {
        PublishBoolean(name, [field] { return *field; }, [field](bool value) { *field = value; });
    }
    template <typename I>
        requires(std::is_integral_v<I> && !std::is_same_v<I, bool>)
    void PublishInteger(const std::string& name, I* field)
    {
        PublishInteger(name, [field] { return *field; }, [field](long long value) { *field = static_cast<I>(value); });
    }
    template <typename E>
        requires std::is_enum_v<E>
    void PublishEnum(const std::string& name, std::vector<std::string> members, E* field)
    {
        PublishEnumeration(name, std::move(members), [field] { return *field; },
                           [field](int value) { *field = static_cast<E>(value); });
    }

private:
    std::vector<TWFPropertyInfo> m_properties;
};

/// Parses a persisted Boolean ("True"/"False", any case).
WF_API bool parseBooleanText(const std::string& text, bool& value);
