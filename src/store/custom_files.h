/// Pictures that the player takes for its own screens when a project has them. No record names
/// them: a file of such a name in resource/gfx is enough.
#pragma once

#include <array>
#include <string_view>

namespace quorvel::store {

inline constexpr std::array<std::string_view, 12> kCustomButtonFiles = {
    "btnintro.gif", "btnnew.gif",  "btnload.gif", "btncredits.gif",
    "btnclose.gif", "btnquit.gif", "btnsave.gif", "btnexamine.gif",
    "btnyes.gif",   "btnno.gif",   "btnok.gif",   "btncancel.gif"};

inline constexpr std::array<std::string_view, 10> kCustomBackgroundFiles = {
    "bgsave.bmp", "bgsave.jpg", "bgload.bmp", "bgload.jpg", "bgquit.bmp",
    "bgquit.jpg", "bgmenu.bmp", "bgmenu.jpg", "bggame.bmp", "bggame.jpg"};

}  // namespace quorvel::store
