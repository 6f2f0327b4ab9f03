/// The event loop's one door for long routines.
#pragma once

namespace quorvel::forms {

/// Lets pending events run: windows paint, timers fire. What the author typed or clicked waits, so
/// that no routine is entered a second time from within.
void letEventsRun();

}  // namespace quorvel::forms
