#include "environment/WFClearCaseUtils.h"

#include "environment/WFClearCaseQuerySession.h"
#include "WFBusy.h"
#include "WFFiles.h"
#include "WFProcess.h"
#include "WFUtf8.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

namespace {

/// Without a user to cancel, cleartool that stays silent this long (milliseconds) is taken to
/// hang, typically on a prompt or an unreachable server: it is killed and the query yields nothing.
constexpr int kQuerySilenceLimitMs = 5000;

constexpr const char* kLineBreak = "\r\n";

using Lines = std::vector<std::string>;

bool containsText(const Lines& lines, const std::string& line)
{
    return std::any_of(lines.begin(), lines.end(), [&](const std::string& kept) { return WFCompareIgnoringCase(kept, line) == 0; });
}

void sortLines(Lines& lines)
{
    std::stable_sort(lines.begin(), lines.end(), [](const std::string& a, const std::string& b) { return WFCompareIgnoringCase(a, b) < 0; });
}

void replaceAll(std::string& text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
}

bool contains(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}

/// Keeps what a query's cleartool writes to standard error: the reason it gives for failing.
class TErrorOutput final : public IWFProcessOutputHandler {
public:
    void OnProcessStdOut(IWFProcess&, const std::string&) override {}
    void OnProcessStdErr(IWFProcess&, const std::string& data) override { text += data; }
    std::string text;
};

/// cleartool's error output as one line, or `fallback` when it wrote none.
std::string errorLine(const std::string& errorOutput, const std::string& fallback)
{
    std::string line;
    for (const auto& part : splitStringListText(errorOutput))
        if (!part.empty())
            line += (line.empty() ? "" : " ") + part;
    return line.empty() ? fallback : line;
}

/// The output lines of a run that ended by itself with exit code 0; nothing otherwise, with the
/// reason in `why`.
std::optional<Lines> runCleartool(IWFProcess& process, const std::string& command, const std::string& arguments,
                                  const std::string& workingDirectory, std::string& why)
{
    IWFClearCaseOptions* options = ClearCaseOptions();
    if (!options) {
        why = "The ClearCase options are not available.";
        return std::nullopt;
    }
    const std::string cleartool = options->GetCleartoolPath();
    if (!fileExists(cleartool)) {
        why = "Cleartool.exe cannot be found at the path specified. Please check under Tools -> Options.";
        return std::nullopt;
    }
    process.SetExecutable(cleartool);
    process.SetParameters(command + " " + arguments);
    process.SetWorkingDirectory(workingDirectory.empty() ? parentDirectory(process.GetExecutable()) : workingDirectory);
    const std::string failed = "cleartool " + process.GetParameters() + " failed";
    // A top-level switch such as -version is no sub-command: it keeps its own process. A session
    // reply that reports a failure is asked again in a process of its own, for cleartool's reason.
    if (ClearCaseQuerySessionEnabled() && command.rfind('-', 0) != 0) {
        auto reply = ClearCaseQuerySession().Run(cleartool, process.GetParameters(), process.GetWorkingDirectory());
        if (reply.outcome == TClearCaseQuerySession::Outcome::Failed) {
            why = failed + " in \"" + process.GetWorkingDirectory() + "\": no answer.";
            return std::nullopt;
        }
        if (reply.outcome == TClearCaseQuerySession::Outcome::Answered && reply.status == 0)
            return std::move(reply.lines);
    }
    TErrorOutput errors;
    process.SetOutputHandler(&errors);
    process.SetRunHidden(true);
    process.SetCollectOutput(true);
    // A slow server is waited for when the user can cancel; with nobody to cancel, silence
    // bounds the wait so that nothing hangs.
    process.SetWaitTimeout(WFBusyCanCancel() ? 0 : kQuerySilenceLimitMs);
    const bool ran = process.Execute();
    process.SetOutputHandler(nullptr);
    if (!ran || process.GetTimedOut() || process.GetTerminated()) {
        why = failed + ": " + process.GetErrorText() + ".";
        return std::nullopt;
    }
    if (process.GetExitCode() != 0) {
        why = errorLine(errors.text, failed + " with exit code " + std::to_string(process.GetExitCode()) + ".");
        return std::nullopt;
    }
    return process.GetOutputLines();
}

std::mutex g_whyMutex;
std::string g_why;

std::string queryInVob(const char* command, const std::string& vob)
{
    return CCGetCleartoolOutput(command, "-short -invob " + vob, "", true);
}

} // namespace

std::string quoted(const std::string& text)
{
    return "\"" + text + "\"";
}

std::string quotedIfBlank(const std::string& text)
{
    return text.find(' ') == std::string::npos ? text : quoted(text);
}

std::string CCGetCleartoolOutput(const std::string& command, const std::string& arguments,
                                 const std::string& workingDirectory, bool sort)
{
    std::string result;
    std::string why;
    const std::shared_ptr<IWFProcess> process = CreateWFProcess();
    const auto work = [&] {
        try {
            std::optional<Lines> lines = runCleartool(*process, command, arguments, workingDirectory, why);
            if (!lines)
                return;
            if (lines->empty())
                why = "cleartool " + command + " " + arguments + " listed nothing.";
            if (sort)
                sortLines(*lines);
            result = stringListText(*lines);
        } catch (const std::exception& error) {
            result.clear();
            why = std::string("cleartool could not be asked: ") + error.what();
        } catch (...) {
            result.clear();
            why = "cleartool could not be asked.";
        }
    };
    const auto remember = [&why] {
        const std::lock_guard<std::mutex> lock(g_whyMutex);
        g_why = why;
    };
    if (!process) {
        why = "cleartool could not be asked: no process runner.";
        remember();
        return result;
    }
    const auto cancel = [process] {
        process->Terminate();
        ClearCaseQuerySession().Cancel();
    };
    WFRunBusy(kClearCaseBusyMessage, work, cancel);
    remember();
    return result;
}

std::string CCWhyLastQueryGaveNothing()
{
    const std::lock_guard<std::mutex> lock(g_whyMutex);
    return g_why;
}

std::string CCGetVOBNames()
{
    return CCGetCleartoolOutput("lsvob", "-short", "", true);
}

void CCGetTypeNames(const std::string& kind, const std::string& vob, std::string& result)
{
    if (kind.size() >= 6 && kind.compare(2, 4, "type") == 0)
        result = CCGetCleartoolOutput("lstype", "-short -kind " + kind + " -invob " + vob, "", false);
    else if (kind == "vob")
        result = CCGetVOBNames();
    else if (kind == "activity")
        result = CCGetUCMActivitiesForVOB(vob);
    else if (kind == "component")
        result = CCGetUCMComponentsForVOB(vob);
    else if (kind == "folder")
        result = CCGetUCMFoldersForVOB(vob);
    else if (kind == "stream")
        result = CCGetUCMStreamsForVOB(vob);
    replaceAll(result, " (locked)\r\n", kLineBreak);
}

std::string CCGetTypeNames(const std::string& kind, const std::string& vob)
{
    std::string result;
    CCGetTypeNames(kind, vob, result);
    return result;
}

std::string CCGetLabelNames(const std::string& vob)
{
    return CCGetTypeNames("lbtype", vob);
}

void CCGetAllTypeNames(const std::string& kind, std::string& result)
{
    const Lines vobs = splitStringListText(CCGetVOBNames());
    if (vobs.empty())
        return;
    Lines names;
    for (const auto& vob : vobs) {
        const Lines found = splitStringListText(CCGetTypeNames(kind, vob));
        // A VOB without the kind ends the scan; later VOBs are not asked.
        if (found.empty())
            break;
        for (const auto& name : found)
            if (!containsText(names, name))
                names.push_back(name);
    }
    sortLines(names);
    result = stringListText(names);
}

std::string CCGetAllTypeNames(const std::string& kind)
{
    std::string result;
    CCGetAllTypeNames(kind, result);
    return result;
}

std::string CCGetUCMActivities(const std::string& viewPath)
{
    return activitiesFromStreamDescription(CCGetCleartoolOutput("lsstream", "-long -cview", viewPath, false));
}

std::string CCGetUCMActivitiesForVOB(const std::string& vob)
{
    return queryInVob("lsactivity", vob);
}

std::string CCGetUCMComponentsForVOB(const std::string& vob)
{
    return queryInVob("lscomp", vob);
}

std::string CCGetUCMComponentsForView(const std::string& viewPath)
{
    return CCGetCleartoolOutput("lscomp", "-short", viewPath, true);
}

void CCGetAllUCMComponents(std::string& result)
{
    const Lines vobs = splitStringListText(CCGetVOBNames());
    if (vobs.empty())
        return;
    Lines components;
    for (const auto& vob : vobs)
        for (const auto& component : splitStringListText(CCGetUCMComponentsForVOB(vob)))
            components.push_back(component + "@" + vob);
    result = stringListText(components);
}

std::string CCGetAllUCMComponents()
{
    std::string result;
    CCGetAllUCMComponents(result);
    return result;
}

std::string CCGetUCMFoldersForVOB(const std::string& vob)
{
    return queryInVob("lsfolder", vob);
}

std::string CCGetStoragePoolsForVOB(const std::string& vob)
{
    return queryInVob("lspool", vob);
}

std::string CCGetUCMStreamsForVOB(const std::string& vob)
{
    return queryInVob("lsstream", vob);
}

std::string CCGetHistory(const std::string& element, const std::string& workingDirectory)
{
    Lines versions;
    for (const auto& line : splitStringListText(CCGetCleartoolOutput("lshistory", "-short " + quoted(element), workingDirectory, false)))
        if (!line.empty() && !containsText(versions, line))
            versions.push_back(line);
    return stringListText(versions);
}

std::string CCGetLS(const std::string& directory)
{
    return CCGetCleartoolOutput("ls", "-recurse -short", directory, false);
}

std::string CCDescribeObject(const std::string& object)
{
    return CCGetCleartoolOutput("describe", object, "", false);
}

std::string CCGetAttributeType(const std::string& attributeTypeName)
{
    return valueTypeFromDescription(CCDescribeObject("attype:" + attributeTypeName));
}

std::string activitiesFromStreamDescription(const std::string& description)
{
    const Lines lines = splitStringListText(description);
    auto line = std::find_if(lines.begin(), lines.end(), [](const std::string& l) { return contains(l, "contains activities:"); });
    if (line == lines.end())
        return {};
    Lines activities;
    for (++line; line != lines.end() && contains(*line, "@"); ++line)
        activities.push_back(line->substr(std::min(line->find_first_not_of(' '), line->size())));
    sortLines(activities);
    return stringListText(activities);
}

std::string valueTypeFromDescription(const std::string& description)
{
    static const std::string marker = "value type:";
    const std::size_t at = description.find(marker);
    if (at == std::string::npos || at + marker.size() + 1 > description.size())
        return {};
    const std::string rest = description.substr(at + marker.size() + 1);
    const std::size_t end = rest.find(kLineBreak);
    return end == std::string::npos ? std::string() : rest.substr(0, end);
}

TClearCaseType CCGetClearCaseInstalledType()
{
    const std::string version = CCGetCleartoolOutput("-version", "", "", false);
    if (contains(version, "Rational ClearCase LT"))
        return ccLT;
    if (contains(version, "Rational ClearCase"))
        return ccFull;
    return ccUnknown;
}
