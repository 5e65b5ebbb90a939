#pragma once

#include "core/WFClearCaseExport.h"
#include "WFOptions.h"
#include "WFServices.h"

#include <string>

/// The installed edition of ClearCase.
enum TClearCaseType { ccUnknown = 0, ccLT = 1, ccFull = 2 };

/// The package's options as every other part sees them.
class WF_CC_API IWFClearCaseOptions {
public:
    virtual ~IWFClearCaseOptions() = default;
    virtual class TWFClearCaseOptions* GetImplementation() = 0;
    /// The cleartool executable: discovered when none is stored; a stored folder gets the
    /// executable's name appended.
    virtual std::string GetCleartoolPath() = 0;
    virtual void SetClearToolPath(const std::string& value) = 0;
    virtual std::string GetDefaultViewPath() const = 0;
    virtual void SetDefaultViewPath(const std::string& value) = 0;
    /// Detects the edition on first demand when TestForClearCaseType is set.
    virtual TClearCaseType GetClearCaseType() = 0;
    virtual void SetClearCaseType(TClearCaseType value) = 0;
    virtual void SetTestForClearCaseType(bool value) = 0;
    virtual bool GetTestForClearCaseType() const = 0;
};

/// The ClearCase options: where cleartool is, the default view and the installed edition.
class WF_CC_API TWFClearCaseOptions final : public TWFOptionsObject, public IWFClearCaseOptions {
public:
    TWFClearCaseOptions();

    // TWFOptionsObject
    void SaveOptions(IWFOptionsWriter& writer) override;
    void LoadOptions(IWFOptionsReader& reader) override;
    int GetOptionType() const override { return 1; }
    std::string GetName() const override { return ClassName(); }
    std::string GetCategory() const override { return ClassCategory(); }
    std::string GetOptionKey() const override { return "ClearCase"; }
    static std::string ClassName() { return "ClearCase"; }
    static std::string ClassCategory() { return "Version Control Systems"; }

    // IWFClearCaseOptions
    TWFClearCaseOptions* GetImplementation() override { return this; }
    std::string GetCleartoolPath() override;
    void SetClearToolPath(const std::string& value) override;
    std::string GetDefaultViewPath() const override { return m_defaultViewPath; }
    void SetDefaultViewPath(const std::string& value) override;
    TClearCaseType GetClearCaseType() override;
    void SetClearCaseType(TClearCaseType value) override;
    void SetTestForClearCaseType(bool value) override;
    bool GetTestForClearCaseType() const override { return m_testForClearCaseType; }

    /// The edition as stored, without detecting it.
    TClearCaseType GetStoredClearCaseType() const { return m_clearCaseType; }

private:
    std::string m_cleartoolPath;
    std::string m_defaultViewPath;
    bool m_testForClearCaseType = false;
    bool m_typeTested = false;
    TClearCaseType m_clearCaseType = ccUnknown;
};

/// The live options object, found afresh through the host's options services; nullptr when
/// the host holds none. Callers do not keep the pointer.
WF_CC_API IWFClearCaseOptions* ClearCaseOptions();

/// The options class as registered with the host's options services.
WF_CC_API TWFOptionsClass ClearCaseOptionsClass();

/// Registers the enumeration, the options class and the script function "ClearCaseOptions".
WF_CC_API void RegisterOptions();

/// Where cleartool is when no path is stored: the App Paths registry entry on Windows, the
/// standard install folder elsewhere, then PATH; empty when none of them holds it.
WF_CC_API std::string defaultClearToolPath();

/// The executable's file name on this platform.
WF_CC_API std::string cleartoolExecutableName();
