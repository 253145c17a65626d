#include "scan/FilterChoices.h"

namespace folivant {

AttributeChoice AttributeChoiceOf(bool mustNotHave, bool mustHave, bool doNotCare) {
  auto choice = AttributeChoice::MustNotHave;
  if (mustNotHave) {
    choice = AttributeChoice::MustNotHave;
  }
  if (mustHave) {
    choice = AttributeChoice::MustHave;
  }
  if (doNotCare) {
    choice = AttributeChoice::DoNotCare;
  }
  return choice;
}

OrderBy OrderByOf(const OrderButtons& buttons) {
  return buttons.Name        ? OrderBy::Name
         : buttons.DosName   ? OrderBy::DosName
         : buttons.Size      ? OrderBy::Size
         : buttons.Date      ? OrderBy::Date
         : buttons.Extension ? OrderBy::Extension
                             : OrderBy::None;
}

}  // namespace folivant
