#pragma once

#include <functional>
#include <string>

/// Modal folder picker; true when the user chose a folder. The design-time part installs a
/// dialog; tests may install an answer. Without a hook the picker is cancelled.
bool WFBrowseForDirectory(const std::string& initialDir, std::string& dir, const std::string& caption);

struct TWFBrowseFileRequest {
    std::string title;
    std::string filter;
    std::string initialDir;
    std::string defaultExtension;
    bool mustExist = true;
};
/// Modal file picker; true when the user chose a file.
bool WFBrowseForFile(const TWFBrowseFileRequest& request, std::string& file);

using TWFBrowseForDirectoryHook = std::function<bool(const std::string& initialDir, std::string& dir, const std::string& caption)>;
using TWFBrowseForFileHook = std::function<bool(const TWFBrowseFileRequest& request, std::string& file)>;
void SetWFBrowseForDirectoryHook(TWFBrowseForDirectoryHook hook);
void SetWFBrowseForFileHook(TWFBrowseForFileHook hook);
