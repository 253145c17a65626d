// Stands in for the installer builder's plug-in of this name and plays the account control of Windows, which Wine
// lacks: who starts a program is a plain user, and who starts it "as administrator" is what FOLIVANT_RIGHTS says.
//   granted  an administrator
//   useless  a plain user still
//   refused  nobody: there is no second start
#include <windows.h>

namespace {

// The plug-in's side of the installer's stack of texts.
struct Entry {
  Entry* Next;
  wchar_t Text[1];
};

bool Rights(const wchar_t* wanted) {
  wchar_t rights[16] = L"";
  GetEnvironmentVariableW(L"FOLIVANT_RIGHTS", rights, 16);
  return lstrcmpW(rights, wanted) == 0;
}

bool SecondStart() {
  const wchar_t wanted[] = L" /Elevated";
  for (const wchar_t* at = GetCommandLineW(); *at; ++at)
    if (CompareStringOrdinal(at, lstrlenW(at) < 10 ? lstrlenW(at) : 10, wanted, 10, FALSE) == CSTR_EQUAL)
      return true;
  return false;
}

// The question for an administrator, answered with no: the function returns 0 from now on.
void Refuse() {
  const HMODULE shell = LoadLibraryW(L"shell32.dll");
  auto* start = reinterpret_cast<BYTE*>(GetProcAddress(shell, "ShellExecuteExW"));
  const BYTE returnFalse[] = {0x31, 0xC0, 0xC3};
  DWORD before = 0;
  VirtualProtect(start, sizeof returnFalse, PAGE_EXECUTE_READWRITE, &before);
  CopyMemory(start, returnFalse, sizeof returnFalse);
}

}  // namespace

extern "C" __declspec(dllexport) void GetAccountType(HWND, int size, wchar_t*, Entry** stack) {
  if (Rights(L"refused"))
    Refuse();
  auto* entry = static_cast<Entry*>(GlobalAlloc(GPTR, sizeof(Entry) + size * sizeof(wchar_t)));
  lstrcpynW(entry->Text, SecondStart() && Rights(L"granted") ? L"Admin" : L"User", size);
  entry->Next = *stack;
  *stack = entry;
}
