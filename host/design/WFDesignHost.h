#pragma once

/// What a host with a user interface installs once its QApplication exists: the file and folder
/// dialogs behind the browse hooks and the busy indicator around queries.
void WFInstallDesignHooks();
