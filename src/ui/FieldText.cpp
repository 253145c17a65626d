#include "ui/FieldText.h"

#include "base/mdlFileRoutines.h"

namespace folivant {

std::wstring FieldName(std::wstring_view caption) {
  std::wstring name = Trim(ReplaceAll(caption, L"&", L""));
  while (!name.empty() && (name.back() == L':' || name.back() == L' ')) {
    name.pop_back();
  }
  return name;
}

}  // namespace folivant
