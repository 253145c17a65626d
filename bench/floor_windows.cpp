// The floor on Windows: a bare walk with FindFirstFileExW that looks at nothing but what it needs to go on.
#include <windows.h>

#include <string>
#include <vector>

namespace {

void Walk(const std::wstring& path) {
  WIN32_FIND_DATAW data;
  const HANDLE found = FindFirstFileExW((path + L"\\*").c_str(), FindExInfoBasic, &data, FindExSearchNameMatch, nullptr,
                                        FIND_FIRST_EX_LARGE_FETCH);
  if (found == INVALID_HANDLE_VALUE) {
    return;
  }
  std::vector<std::wstring> subdirectories;
  do {
    const std::wstring name = data.cFileName;
    if ((data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && name != L"." && name != L"..") {
      subdirectories.push_back(name);
    }
  } while (FindNextFileW(found, &data));
  FindClose(found);
  for (const std::wstring& name : subdirectories) {
    Walk(path + L"\\" + name);
  }
}

}  // namespace

int wmain(int count, wchar_t** arguments) {
  Walk(count > 1 ? arguments[1] : L".");
  return 0;
}
