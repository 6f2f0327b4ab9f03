/// The help of a window by the window's name.
#pragma once

#include "forms/guide.h"

namespace quorvel::forms {

/// What the Help button of the window `name` runs; nothing when there is no page about it. `guide`
/// must outlive it.
std::function<void()> helpOfWindow(Guide& guide, const QString& name);

}  // namespace quorvel::forms
