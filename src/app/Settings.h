// Loading and saving of everything that Folivant remembers: the rows of app/SettingsTable.h, which are members of the
// run-wide records of the process. While a filter file is in use, that is read or written.
#pragma once

#include <string>
#include <vector>

#include "app/BadSettings.h"

namespace folivant {

/// Everything, in the order general, printer, filter, style, columns, path, destination. A value that does not convert
/// is returned and takes its default; nothing is overwritten by reading. Shows no message: the texts of messages
/// depend on a setting. Throws RuntimeError (ReadFile).
std::vector<BadSetting> LoadSettings();
/// One message box for all of them, if there are any.
void ReportBadSettings(const std::vector<BadSetting>& bad);
/// Everything, in the same order; Ex rows only into a filter file. Throws RuntimeError (WriteSetting, WriteFile).
void SaveSettings();

/// What is stored when the options dialog is confirmed.
void SaveGeneralSettings();
void SavePrinterSettings();
/// The same of the filter, format and columns dialogs.
void SaveFilterSettings();
void SaveListingStyle();
void SaveFormatSettings();

/// LoadSettings with its report, and SaveSettings, with the filter file named `path` in place of the store. A file that
/// is not there gives the defaults. Saving replaces the file in one step and keeps what else it holds.
void LoadFilterFile(const std::wstring& path);
/// LoadFilterFile for the user who picks a file: one that holds no settings at all is asked about first, because the
/// defaults would take the place of everything. False, and nothing changed, when the user does not want that.
bool LoadFilterFileIfWanted(const std::wstring& path);
void SaveFilterFile(const std::wstring& path);

/// The page of the options dialog that was shown last, from 1.
int LoadLastTab();
void SaveLastTab(int tab);

}  // namespace folivant
