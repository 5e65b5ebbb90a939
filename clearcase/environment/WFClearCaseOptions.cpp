#include "environment/WFClearCaseOptions.h"

#include "environment/WFClearCaseUtils.h"
#include "WFFiles.h"
#include "WFProcess.h"
#include "WFServices.h"

namespace {

#ifdef _WIN32
constexpr char kPathDelimiter = '\\';
#else
constexpr char kPathDelimiter = '/';
/// Stands in for the Windows registry's App Paths entry on other platforms.
constexpr const char* kStandardInstallDirectory = "/opt/rational/clearcase/bin";
#endif

std::string withDelimiter(const std::string& directory)
{
    if (!directory.empty() && (directory.back() == '/' || directory.back() == kPathDelimiter))
        return directory;
    return directory + kPathDelimiter;
}

/// The registry step: a folder that holds cleartool, or nothing.
bool installedDirectory(std::string& directory)
{
#ifdef _WIN32
    // Reading HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\App Paths\cleartool.exe is done
    // by the Windows build of the package, which this tree does not yet include.
    (void)directory;
    return false;
#else
    if (!fileExists(withDelimiter(kStandardInstallDirectory) + cleartoolExecutableName()))
        return false;
    directory = withDelimiter(kStandardInstallDirectory);
    return true;
#endif
}

} // namespace

std::string cleartoolExecutableName()
{
#ifdef _WIN32
    return "cleartool.exe";
#else
    return "cleartool";
#endif
}

std::string defaultClearToolPath()
{
    std::string result;
    if (!installedDirectory(result))
        result = findProgramOnPath(cleartoolExecutableName());
    if (!directoryExists(result) && !fileExists(result))
        result.clear();
    return result;
}

TWFClearCaseOptions::TWFClearCaseOptions()
{
    PublishString("CleartoolPath", [this] { return GetCleartoolPath(); }, [this](const std::string& v) { SetClearToolPath(v); });
    PublishString("DefaultViewPath", [this] { return m_defaultViewPath; }, [this](const std::string& v) { SetDefaultViewPath(v); });
    PublishEnumeration("ClearCaseType", {"ccUnknown", "ccLT", "ccFull"}, [this] { return static_cast<int>(GetClearCaseType()); },
                       [this](int v) { SetClearCaseType(static_cast<TClearCaseType>(v)); });
    PublishBoolean("TestForClearCaseType", [this] { return m_testForClearCaseType; }, [this](bool v) { SetTestForClearCaseType(v); });
}

std::string TWFClearCaseOptions::GetCleartoolPath()
{
    if (m_cleartoolPath.empty()) {
        m_cleartoolPath = defaultClearToolPath();
        m_modified = true;
    }
    if (directoryExists(m_cleartoolPath) && !fileExists(m_cleartoolPath))
        return withDelimiter(m_cleartoolPath) + cleartoolExecutableName();
    return m_cleartoolPath;
}

void TWFClearCaseOptions::SetClearToolPath(const std::string& value)
{
    if (value != m_cleartoolPath) {
        m_cleartoolPath = value;
        m_modified = true;
    }
}

void TWFClearCaseOptions::SetDefaultViewPath(const std::string& value)
{
    if (value != m_defaultViewPath) {
        m_defaultViewPath = value;
        m_modified = true;
    }
}

TClearCaseType TWFClearCaseOptions::GetClearCaseType()
{
    if (m_testForClearCaseType && !m_typeTested) {
        m_clearCaseType = CCGetClearCaseInstalledType();
        m_typeTested = m_clearCaseType != ccUnknown;
    }
    return m_clearCaseType;
}

void TWFClearCaseOptions::SetClearCaseType(TClearCaseType value)
{
    m_clearCaseType = value;
    m_modified = true;
}

void TWFClearCaseOptions::SetTestForClearCaseType(bool value)
{
    m_testForClearCaseType = value;
    m_modified = true;
}

void TWFClearCaseOptions::LoadOptions(IWFOptionsReader& reader)
{
    m_cleartoolPath.clear();
    m_defaultViewPath.clear();
    m_cleartoolPath = reader.ReadString("CleartoolPath", "");
    if (m_cleartoolPath.empty())
        m_cleartoolPath = defaultClearToolPath();
    m_defaultViewPath = reader.ReadString("DefaultView", "");
    const std::string installation = reader.ReadString("InstallationType", "Auto");
    m_testForClearCaseType = installation == "Auto";
    if (installation == "ClearCase")
        m_clearCaseType = ccFull;
    else if (installation == "ClearCaseLT")
        m_clearCaseType = ccLT;
}

void TWFClearCaseOptions::SaveOptions(IWFOptionsWriter& writer)
{
    writer.WriteString("CleartoolPath", m_cleartoolPath);
    writer.WriteString("DefaultView", m_defaultViewPath);
    if (m_testForClearCaseType)
        writer.WriteString("InstallationType", "Auto");
    else if (m_clearCaseType == ccFull)
        writer.WriteString("InstallationType", "ClearCase");
    else if (m_clearCaseType == ccLT)
        writer.WriteString("InstallationType", "ClearCaseLT");
    // ccUnknown writes nothing: the store keeps its earlier value.
}

IWFClearCaseOptions* ClearCaseOptions()
{
    TWFOptionsObject* options = WFOptionsServices().FindOptions(TWFClearCaseOptions::ClassCategory(), TWFClearCaseOptions::ClassName());
    return dynamic_cast<IWFClearCaseOptions*>(options);
}

TWFOptionsClass ClearCaseOptionsClass()
{
    return {"TWFClearCaseOptions", [] { return std::unique_ptr<TWFOptionsObject>(std::make_unique<TWFClearCaseOptions>()); }};
}

void RegisterOptions()
{
    WFScriptingServices().RegisterEnumeration("TClearCaseType", {"ccUnknown", "ccLT", "ccFull"});
    WFOptionsServices().RegisterOptionsClass(ClearCaseOptionsClass(), "CC_LOGO");
    WFScriptingServices().RegisterFunction("ClearCaseOptions", "Variant", {}, [] {
        IWFClearCaseOptions* options = ClearCaseOptions();
        return WFScriptingServices().ObjectToVariant(options ? options->GetImplementation() : nullptr);
    });
}
