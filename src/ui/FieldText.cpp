#include "ui/FieldText.h"

#include "base/mdlFileRoutines.h"

namespace folivant {

std::wstring FieldName(std::wstring_view caption) {
  std::wstring name = Trim(ReplaceAll(caption, L"&", L""));
  // French has a blank that does not break before the colon.
  name.erase(name.find_last_not_of(L": \u00A0") + 1);
  return name;
}

}  // namespace folivant
