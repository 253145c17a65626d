#include "scan/FilterChoices.h"

namespace folivant {

AttributeChoice AttributeChoiceOf(bool mustHave, bool doNotCare) {
  return doNotCare ? AttributeChoice::DoNotCare : mustHave ? AttributeChoice::MustHave : AttributeChoice::MustNotHave;
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
