// Stands in for the shell's Find window of older systems: a window of the same classes and style bits, whose list has
// the same five columns, filled from a file. It can also misbehave on request. It ends when its window is closed.
//
//   FindStandIn TITLE ROWS [without-view | without-list | dies-after N | hangs-after N | locked]
//
// ROWS names a UTF-8 file with one row per line and a TAB between columns. dies-after and hangs-after count the cells
// asked for; locked forbids every other process to open this one.
#include <windows.h>

#include <aclapi.h>
#include <commctrl.h>

#include <cstdlib>
#include <fstream>
#include <string>
#include <vector>

namespace {

constexpr DWORD kFindWindowStyle = 0x00CF0064 | WS_VISIBLE;
constexpr int kColumns = 5;
constexpr UINT_PTR kWatch = 1;

struct Misbehaviour {
  std::wstring Kind;
  int After = 0;
} misbehaviour;

std::wstring Wide(const std::string& text) {
  std::wstring wide(text.size(), L'\0');
  const int length = MultiByteToWideChar(CP_UTF8, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                                         static_cast<int>(wide.size()));
  wide.resize(static_cast<std::size_t>(length));
  return wide;
}

LRESULT CALLBACK WatchList(HWND list, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR) {
  static int asked = 0;
  if (message == LVM_GETITEMA && ++asked > misbehaviour.After) {
    if (misbehaviour.Kind == L"dies-after") {
      TerminateProcess(GetCurrentProcess(), 3);
    } else if (misbehaviour.Kind == L"hangs-after") {
      Sleep(60'000);
    }
  }
  return DefSubclassProc(list, message, wParam, lParam);
}

void AddColumns(HWND list) {
  const wchar_t* const names[kColumns] = {L"Name", L"In Folder", L"Size", L"Type", L"Modified"};
  for (int index = 0; index < kColumns; ++index) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = 120;
    column.pszText = const_cast<wchar_t*>(names[index]);
    SendMessageW(list, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column));
  }
}

void AddRow(HWND list, int row, const std::wstring& line) {
  std::size_t from = 0;
  for (int column = 0; column < kColumns && from <= line.size(); ++column) {
    const std::size_t tab = std::min(line.find(L'\t', from), line.size());
    std::wstring text = line.substr(from, tab - from);
    LVITEMW item{};
    item.mask = LVIF_TEXT;
    item.iItem = row;
    item.iSubItem = column;
    item.pszText = text.data();
    SendMessageW(list, column == 0 ? LVM_INSERTITEMW : LVM_SETITEMW, 0, reinterpret_cast<LPARAM>(&item));
    from = tab + 1;
  }
}

void AddList(HWND view, const wchar_t* rowsFile) {
  const HWND list = CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | WS_VISIBLE | LVS_REPORT, 0, 0, 620, 260, view,
                                    nullptr, nullptr, nullptr);
  AddColumns(list);
  SendMessageW(list, WM_SETREDRAW, FALSE, 0);
  std::ifstream file(std::string(rowsFile, rowsFile + wcslen(rowsFile)), std::ios::binary);
  std::string line;
  for (int row = 0; std::getline(file, line); ++row) {
    AddRow(list, row, Wide(line));
  }
  SendMessageW(list, WM_SETREDRAW, TRUE, 0);
  SetWindowSubclass(list, WatchList, kWatch, 0);
}

void ForbidOpening() {
  ACL nobody;
  InitializeAcl(&nobody, sizeof(nobody), ACL_REVISION);
  SetSecurityInfo(GetCurrentProcess(), SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &nobody, nullptr);
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  if (count < 3) {
    return 1;
  }
  if (count > 3) {
    misbehaviour = {arguments[3], count > 4 ? _wtoi(arguments[4]) : 0};
  }
  const bool misbehavesLater = misbehaviour.Kind == L"dies-after" || misbehaviour.Kind == L"hangs-after";
  if (!misbehavesLater) {
    misbehaviour.After = 0x7FFFFFFF;
  }
  INITCOMMONCONTROLSEX classes{sizeof(classes), ICC_LISTVIEW_CLASSES};
  InitCommonControlsEx(&classes);
  WNDCLASSW viewClass{};
  viewClass.lpfnWndProc = DefWindowProcW;
  viewClass.lpszClassName = L"SHELLDLL_DefView";
  RegisterClassW(&viewClass);
  const HWND top = CreateWindowExW(0, L"#32770", arguments[1], kFindWindowStyle & ~static_cast<DWORD>(WS_VISIBLE), 40,
                                   40, 640, 300, nullptr, nullptr, nullptr, nullptr);
  if (misbehaviour.Kind != L"without-view") {
    const HWND view = CreateWindowExW(0, L"SHELLDLL_DefView", L"", WS_CHILD | WS_VISIBLE, 0, 0, 620, 260, top, nullptr,
                                      nullptr, nullptr);
    if (misbehaviour.Kind != L"without-list") {
      AddList(view, arguments[2]);
    }
  }
  if (misbehaviour.Kind == L"locked") {
    ForbidOpening();
  }
  ShowWindow(top, SW_SHOWNOACTIVATE);  // only now: whoever looks for the window finds it complete
  MSG message;
  while (IsWindow(top) && GetMessageW(&message, nullptr, 0, 0) > 0) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return 0;
}
