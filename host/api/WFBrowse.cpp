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

TWFBrowseForFilesHook& filesHook()
{
    static TWFBrowseForFilesHook hook;
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

bool WFBrowseForFiles(const TWFBrowseFileRequest& request, std::vector<std::string>& files)
{
    if (filesHook())
        return filesHook()(request, files) && !files.empty();
    std::string file;
    if (!WFBrowseForFile(request, file))
        return false;
    files = {file};
    return true;
}

void SetWFBrowseForDirectoryHook(TWFBrowseForDirectoryHook hook)
{
    directoryHook() = std::move(hook);
}

void SetWFBrowseForFileHook(TWFBrowseForFileHook hook)
{
    fileHook() = std::move(hook);
}

void SetWFBrowseForFilesHook(TWFBrowseForFilesHook hook)
{
    filesHook() = std::move(hook);
}
