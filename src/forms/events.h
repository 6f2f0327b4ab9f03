/// The event loop's one door for long routines.
#pragma once

namespace quorvel::forms {

/// Lets pending events run: windows paint, timers fire. What the author typed or clicked waits, so
/// that no routine is entered a second time from within.
void letEventsRun();

/// Whether a routine is under way that lets events run at the moment: what would begin another one,
/// such as a timer, has to wait for its end.
bool isWithinRoutine();

}  // namespace quorvel::forms
