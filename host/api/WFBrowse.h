#pragma once

#include "WFExport.h"

#include <functional>
#include <string>
#include <vector>

/// Modal folder picker; true when the user chose a folder. The design-time part installs a
/// dialog; tests may install an answer. Without a hook the picker is cancelled.
WF_API bool WFBrowseForDirectory(const std::string& initialDir, std::string& dir, const std::string& caption);

struct WF_API TWFBrowseFileRequest {
    std::string title;
    /// Alternating descriptions and patterns separated by '|' ("Text Files (*.txt)|*.txt|All Files|*"),
    /// or a single pattern.
    std::string filter;
    std::string initialDir;
    std::string defaultExtension;
    bool mustExist = true;
    /// A file to write (a save dialog) rather than one to open.
    bool save = false;
    /// The file name the dialog proposes.
    std::string fileName;
};
/// Modal file picker; true when the user chose a file.
WF_API bool WFBrowseForFile(const TWFBrowseFileRequest& request, std::string& file);
/// Modal picker of one or more existing files; true when the user chose at least one. Without a
/// hook of its own it asks the single-file picker.
WF_API bool WFBrowseForFiles(const TWFBrowseFileRequest& request, std::vector<std::string>& files);

using TWFBrowseForDirectoryHook = std::function<bool(const std::string& initialDir, std::string& dir, const std::string& caption)>;
using TWFBrowseForFileHook = std::function<bool(const TWFBrowseFileRequest& request, std::string& file)>;
using TWFBrowseForFilesHook = std::function<bool(const TWFBrowseFileRequest& request, std::vector<std::string>& files)>;
WF_API void SetWFBrowseForDirectoryHook(TWFBrowseForDirectoryHook hook);
WF_API void SetWFBrowseForFileHook(TWFBrowseForFileHook hook);
WF_API void SetWFBrowseForFilesHook(TWFBrowseForFilesHook hook);
