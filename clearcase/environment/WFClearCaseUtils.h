#pragma once

#include "core/WFClearCaseExport.h"
#include "environment/WFClearCaseOptions.h"
#include "environment/WFClearCaseStringList.h"

#include <string>
#include <vector>

/// The text in double quotes, as cleartool reads a value that may hold blanks. The text is
/// taken as it stands: a double quote inside it is not escaped.
WF_CC_API std::string quoted(const std::string& text);
/// The text in double quotes when it contains a blank; unchanged otherwise.
WF_CC_API std::string quotedIfBlank(const std::string& text);

/// What a design-time host shows while a query keeps the user waiting.
inline constexpr const char* kClearCaseBusyMessage = "Asking ClearCase...";

// Synchronous cleartool queries for the property pages and the edition detection. Each
// returns the lines of its result, every line ended by CR LF, or the empty string: a query
// never fails loudly.

WF_CC_API std::string CCGetCleartoolOutput(const std::string& command, const std::string& arguments,
                                 const std::string& workingDirectory, bool sort);
/// Why the last query gave nothing: cleartool's error output ("cleartool: Error: ..."), how it
/// failed, or that it listed nothing; empty when it gave lines.
WF_CC_API std::string CCWhyLastQueryGaveNothing();
WF_CC_API std::string CCGetVOBNames();
/// Leaves `result` as passed in for a kind it does not know.
WF_CC_API void CCGetTypeNames(const std::string& kind, const std::string& vob, std::string& result);
WF_CC_API std::string CCGetTypeNames(const std::string& kind, const std::string& vob);
WF_CC_API std::string CCGetLabelNames(const std::string& vob);
/// Leaves `result` untouched when there are no VOBs.
WF_CC_API void CCGetAllTypeNames(const std::string& kind, std::string& result);
WF_CC_API std::string CCGetAllTypeNames(const std::string& kind);
WF_CC_API std::string CCGetUCMActivities(const std::string& viewPath);
WF_CC_API std::string CCGetUCMActivitiesForVOB(const std::string& vob);
WF_CC_API std::string CCGetUCMComponentsForVOB(const std::string& vob);
WF_CC_API std::string CCGetUCMComponentsForView(const std::string& viewPath);
/// Leaves `result` untouched when there are no VOBs.
WF_CC_API void CCGetAllUCMComponents(std::string& result);
WF_CC_API std::string CCGetAllUCMComponents();
WF_CC_API std::string CCGetUCMFoldersForVOB(const std::string& vob);
WF_CC_API std::string CCGetStoragePoolsForVOB(const std::string& vob);
WF_CC_API std::string CCGetUCMStreamsForVOB(const std::string& vob);
WF_CC_API std::string CCGetHistory(const std::string& element, const std::string& workingDirectory);
WF_CC_API std::string CCGetLS(const std::string& directory);
WF_CC_API std::string CCDescribeObject(const std::string& object);
WF_CC_API std::string CCGetAttributeType(const std::string& attributeTypeName);

/// The activities listed after "contains activities:" in a stream's long description, up to
/// the first line without "@", leading blanks removed, sorted.
WF_CC_API std::string activitiesFromStreamDescription(const std::string& description);
/// The word after "value type:" in a describe output, up to the next CR LF; empty when the
/// marker or the line break is missing.
WF_CC_API std::string valueTypeFromDescription(const std::string& description);

/// The installed edition, from the text of `cleartool -version`.
WF_CC_API TClearCaseType CCGetClearCaseInstalledType();
