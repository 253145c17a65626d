// What the option buttons of the filter dialog mean, and which of them a filter sets.
#pragma once

#include "scan/FilterSettings.h"

namespace folivant {

/// One row of attribute buttons; of several set the last one wins. The first one, "must not have", is not asked: it is
/// what remains.
AttributeChoice AttributeChoiceOf(bool mustHave, bool doNotCare);

/// The buttons "Order by", of which at most one is set.
struct OrderButtons {
  bool Name = false, DosName = false, Size = false, Date = false, Extension = false;
};
/// None when no button is set.
OrderBy OrderByOf(const OrderButtons& buttons);

}  // namespace folivant
