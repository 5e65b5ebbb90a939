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
    /// publishes an inherited property again does not move it).
    void PublishString(const std::string& name, std::function<std::string()> get, std::function<void(const std::string&)> set);
    void PublishBoolean(const std::string& name, std::function<bool()> get, std::function<void(bool)> set);
    void PublishInteger(const std::string& name, std::function<long long()> get, std::function<void(long long)> set);
    void PublishEnumeration(const std::string& name, std::vector<std::string> members, std::function<int()> get,
                            std::function<void(int)> set);

    /// Declares a property held in a member, read and written through the member: the one
    /// declaration of a stored value, which pages, scripts and the host reach by name.
    void PublishString(const std::string& name, std::string* field)
    {
        // Accessors that hold only the field's address: no allocation per action read.
        publish({name, TWFPropertyType::String, {}, [field] { return TWFVariant(*field); },
                 [field](const TWFVariant& value) { *field = value.toString(); }});
    }
    /// A string property that may hold several lines (a message, a file's text).
    void PublishText(const std::string& name, std::string* field);
    void PublishBoolean(const std::string& name, bool* field)
    {
        publish({name, TWFPropertyType::Boolean, {}, [field] { return TWFVariant(*field); },
                 [field](const TWFVariant& value) { *field = value.toBoolean(); }});
    }
    template <typename I>
        requires(std::is_integral_v<I> && !std::is_same_v<I, bool>)
    void PublishInteger(const std::string& name, I* field)
    {
        PublishInteger(name, [field] { return static_cast<long long>(*field); },
                       [field](long long value) { *field = static_cast<I>(value); });
    }
    template <typename E>
        requires std::is_enum_v<E>
    void PublishEnum(const std::string& name, std::vector<std::string> members, E* field)
    {
        PublishEnumeration(name, std::move(members), [field] { return static_cast<int>(*field); },
                           [field](int value) { *field = static_cast<E>(value); });
    }

private:
    std::vector<TWFPropertyInfo> m_properties;
};

/// Parses a persisted Boolean ("True"/"False", any case).
WF_API bool parseBooleanText(const std::string& text, bool& value);
