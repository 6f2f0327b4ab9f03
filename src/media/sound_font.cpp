#include "media/sound_font.h"

#include <array>
#include <system_error>

namespace quorvel::media {

std::filesystem::path systemSoundFont() {
    static constexpr std::array kPlaces{
        "/usr/share/sounds/sf2/default-GM.sf2", "/usr/share/sounds/sf2/TimGM6mb.sf2",
        "/usr/share/sounds/sf2/FluidR3_GM.sf2", "/usr/share/soundfonts/default.sf2"};
    for (const std::filesystem::path place : kPlaces) {
        std::error_code error;
        if (std::filesystem::is_regular_file(place, error)) {
            return place;
        }
    }
    return {};
}

}  // namespace quorvel::media
