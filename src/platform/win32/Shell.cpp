// The shell's own dialogs, and programs started through it.
#include "platform/win32/Shell.h"

#include <cderr.h>
#include <commdlg.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <vector>

#include "platform/win32/OwnedWindows.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/WindowSystem.h"

namespace folivant::platform {
namespace {

constexpr std::size_t kPathRoom = 32'768;

int CALLBACK PreselectStart(HWND browser, UINT message, LPARAM, LPARAM start) {
  if (message == BFFM_INITIALIZED) {
    SendMessageW(browser, BFFM_SETSELECTIONW, TRUE, start);
  }
  return 0;
}

/// "Text|*.txt" as the texts with NULs between and two at the end that the dialogs want.
std::wstring TypeList(std::wstring types) {
  std::replace(types.begin(), types.end(), L'|', L'\0');
  types.append(2, L'\0');
  return types;
}

using DialogCall = BOOL(WINAPI*)(OPENFILENAMEW*);

bool Ask(HWND owner, FileDialog& dialog, DWORD flags, DialogCall call) {
  std::vector<wchar_t> name(kPathRoom);
  dialog.FileName.copy(name.data(), name.size() - 1);
  const std::wstring types = TypeList(dialog.Types);
  OPENFILENAMEW data{};
  data.lStructSize = sizeof(data);
  data.hwndOwner = owner;
  data.lpstrFilter = types.c_str();
  data.nFilterIndex = static_cast<DWORD>(dialog.TypeIndex);
  data.lpstrFile = name.data();
  data.nMaxFile = static_cast<DWORD>(name.size());
  data.lpstrInitialDir = dialog.Folder.empty() ? nullptr : dialog.Folder.c_str();
  data.lpstrDefExt = dialog.DefaultExtension.empty() ? nullptr : dialog.DefaultExtension.c_str();
  data.Flags = OFN_EXPLORER | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_ENABLESIZING | flags;
  BOOL chosen = call(&data);
  if (chosen == FALSE && CommDlgExtendedError() == FNERR_INVALIDFILENAME) {
    name[0] = L'\0';  // a preset that is no file name must not keep the dialog from opening
    chosen = call(&data);
  }
  if (chosen == FALSE) {
    return false;
  }
  dialog.FileName = name.data();
  dialog.TypeIndex = static_cast<int>(data.nFilterIndex);
  return true;
}

/// The shell's own message about a failure is left out: whoever catches the exception has one.
void ShellOpen(HWND owner, const std::wstring& file, const wchar_t* parameters) {
  SHELLEXECUTEINFOW data{};
  data.cbSize = sizeof(data);
  data.fMask = SEE_MASK_FLAG_NO_UI;
  data.hwnd = owner;
  data.lpVerb = L"open";
  data.lpFile = file.c_str();
  data.lpParameters = parameters;
  data.nShow = SW_SHOWNORMAL;
  if (ShellExecuteExW(&data) == FALSE) {
    const DWORD code = GetLastError();
    throw SystemError(FailedAction::StartProgram, file, code);
  }
}

}  // namespace

std::optional<std::wstring> BrowseForFolder(HWND owner, const std::wstring& title, const std::wstring& start) {
  std::array<wchar_t, MAX_PATH> shownName{};
  BROWSEINFOW browse{};
  browse.hwndOwner = owner;
  browse.pszDisplayName = shownName.data();
  browse.lpszTitle = title.c_str();
  browse.ulFlags = BIF_RETURNONLYFSDIRS | BIF_NEWDIALOGSTYLE | BIF_NONEWFOLDERBUTTON;
  browse.lpfn = PreselectStart;
  browse.lParam = reinterpret_cast<LPARAM>(start.c_str());
  const OwnedTaskMemory chosen(SHBrowseForFolderW(&browse));
  std::vector<wchar_t> path(kPathRoom);
  if (!chosen.IsOpen() || !SHGetPathFromIDListEx(static_cast<const ITEMIDLIST*>(chosen.Get()), path.data(),
                                                 static_cast<DWORD>(path.size()), GPFIDL_DEFAULT)) {
    return std::nullopt;
  }
  return std::wstring(path.data());
}

bool AskForSaveName(HWND owner, FileDialog& dialog) {
  const DWORD question = dialog.AskBeforeOverwriting ? OFN_OVERWRITEPROMPT : 0;
  return Ask(owner, dialog, OFN_PATHMUSTEXIST | question, GetSaveFileNameW);
}

bool AskForOpenName(HWND owner, FileDialog& dialog) {
  return Ask(owner, dialog, OFN_PATHMUSTEXIST | OFN_FILEMUSTEXIST, GetOpenFileNameW);
}

bool AskForFont(HWND owner, FontChoice& font) {
  LOGFONTW logical{};
  font.Name.copy(logical.lfFaceName, LF_FACESIZE - 1);
  logical.lfHeight = -MulDiv(font.Points, SystemDpi(), 72);
  logical.lfWeight = FW_NORMAL;
  logical.lfCharSet = DEFAULT_CHARSET;
  CHOOSEFONTW data{};
  data.lStructSize = sizeof(data);
  data.hwndOwner = owner;
  data.lpLogFont = &logical;
  data.Flags = CF_SCREENFONTS | CF_INITTOLOGFONTSTRUCT | CF_FORCEFONTEXIST | CF_NOVERTFONTS | CF_NOSCRIPTSEL;
  if (ChooseFontW(&data) == FALSE) {
    return false;
  }
  font = {logical.lfFaceName, data.iPointSize / 10};
  return true;
}

void OpenHelpFile(HWND owner, const std::wstring& file) {
  WinHelpW(owner, file.c_str(), HELP_FINDER, 0);
}

void OpenDocument(HWND owner, const std::wstring& file) {
  ShellOpen(owner, file, nullptr);
}

void OpenInProgram(HWND owner, const std::wstring& program, const std::wstring& file) {
  const std::wstring quoted = L'"' + file + L'"';
  ShellOpen(owner, program, quoted.c_str());
}

}  // namespace folivant::platform
