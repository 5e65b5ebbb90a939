#pragma once

#include "WFExport.h"
#include "WFPersistence.h"

#include <string>

class WF_API IWFOptionsReader {
public:
    virtual ~IWFOptionsReader() = default;
    virtual std::string ReadString(const std::string& name, const std::string& defaultValue) = 0;
};

class WF_API IWFOptionsWriter {
public:
    virtual ~IWFOptionsWriter() = default;
    virtual void WriteString(const std::string& name, const std::string& value) = 0;
};

/// Base of a package's options: loaded from and saved to the host's store, one section per
/// option key, and published to scripts through its properties.
class WF_API TWFOptionsObject : public TZTXMLObject {
public:
    virtual void SaveOptions(IWFOptionsWriter& writer) = 0;
    virtual void LoadOptions(IWFOptionsReader& reader) = 0;
    virtual int GetOptionType() const { return 0; }
    virtual bool IsModified() const { return m_modified; }
    virtual std::string GetOptionsName() const { return GetName(); }
    virtual std::string GetOptionsCategory() const { return GetCategory(); }
    virtual std::string GetName() const = 0;
    virtual std::string GetCategory() const = 0;
    /// The section of the store that holds these options.
    virtual std::string GetOptionKey() const = 0;

    void SetModified(bool modified) { m_modified = modified; }

protected:
    bool m_modified = false;
};
