#pragma once

/// Installs Qt's folder and file dialogs behind WFBrowseForDirectory and WFBrowseForFile.
void WFInstallDialogBrowsers();
