#include "WFBrowse.h"

namespace {

TWFBrowseForDirectoryHook& directoryHook()
{
    static TWFBrowseForDirectoryHook hook;
    return hook;
}

TWFBrowseForFileHook& fileHook()
{
    static TWFBrowseForFileHook hook;
    return hook;
}

} // namespace

bool WFBrowseForDirectory(const std::string& initialDir, std::string& dir, const std::string& caption)
{
    return directoryHook() ? directoryHook()(initialDir, dir, caption) : false;
}

bool WFBrowseForFile(const TWFBrowseFileRequest& request, std::string& file)
{
    return fileHook() ? fileHook()(request, file) : false;
}

void SetWFBrowseForDirectoryHook(TWFBrowseForDirectoryHook hook)
{
    directoryHook() = std::move(hook);
}

void SetWFBrowseForFileHook(TWFBrowseForFileHook hook)
{
    fileHook() = std::move(hook);
}
