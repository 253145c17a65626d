// The program's drop target in the user's Send To menu: an empty file whose extension hands what is sent to Folivant.
#pragma once

namespace folivant {

/// Makes the target, or empties an existing one. A failure is not reported: listings do not need it.
void RecreateSendTo();
/// Deletes the current user's target and those of the profiles beside it. What cannot be deleted stays, silently.
void DeleteSendTo();

}  // namespace folivant
