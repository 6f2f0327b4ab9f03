#include "forms/stock_pointers.h"

#include <array>

namespace quorvel::forms {

QString stockPointer(int number) {
    constexpr std::array kNames = {"pointer-up",        "pointer-down",       "pointer-left",
                                   "pointer-right",     "pointer-up-left",    "pointer-up-right",
                                   "pointer-down-left", "pointer-down-right", "pointer-exit",
                                   "pointer-hotspot",   "pointer-goodie",     "pointer-reactor",
                                   "pointer-normal",    "pointer-wait"};
    return number < 1 || number > static_cast<int>(kNames.size())
               ? QString()
               : QString::fromLatin1(kNames[static_cast<std::size_t>(number - 1)]);
}

}  // namespace quorvel::forms
