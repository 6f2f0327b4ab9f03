#include "shell/screens.h"

#include <algorithm>

#include <QGuiApplication>
#include <QScreen>

#include "forms/form.h"

namespace quorvel::shell {
namespace {

constexpr QSize kSmallestScreen(800, 600);

/// `size` in the middle of `area`.
QRect inTheMiddle(QSize size, const QRect& area) {
    QRect place({0, 0}, size);
    place.moveTopLeft(area.topLeft() + QPoint((area.width() - size.width()) / 2,
                                              (area.height() - size.height()) / 2));
    return place;
}

/// `place`, moved and made smaller as far as it takes to lie inside of `free`. One that does lie
/// there is kept to the pixel; else there is room for the window's frame too.
QRect inside(QRect place, const QRect& free) {
    if (free.contains(place)) {
        return place;
    }
    constexpr int kFrameSide = forms::kFrameRoom.width() / 2;
    const QRect area = free.adjusted(kFrameSide, forms::kFrameRoom.height() - kFrameSide,
                                     -kFrameSide, -kFrameSide);
    place.setSize(place.size().boundedTo(area.size()));
    place.moveLeft(std::clamp(place.left(), area.left(), area.right() + 1 - place.width()));
    place.moveTop(std::clamp(place.top(), area.top(), area.bottom() + 1 - place.height()));
    return place;
}

}  // namespace

QSize ScreenPlace::devicePixels() const {
    return {qRound(whole.width() * scale), qRound(whole.height() * scale)};
}

bool ScreenPlace::isLarge() const {
    return whole.width() > kSmallestScreen.width() && whole.height() > kSmallestScreen.height();
}

std::vector<ScreenPlace> screensOfTheMachine() {
    std::vector<ScreenPlace> screens;
    for (const QScreen* screen : QGuiApplication::screens()) {
        screens.push_back(
            {screen->geometry(), screen->availableGeometry(), screen->devicePixelRatio()});
    }
    if (screens.empty()) {
        // All outputs may be off at the moment.
        const QRect smallest(0, 0, 800, 600);
        screens.push_back({smallest, smallest});
    }
    return screens;
}

const ScreenPlace* screenOf(const QRect& rectangle, const std::vector<ScreenPlace>& screens) {
    const auto shared = [&rectangle](const ScreenPlace& screen) {
        const QRect part = screen.whole.intersected(rectangle);
        return qint64{part.width()} * part.height();
    };
    const auto best = std::max_element(
        screens.begin(), screens.end(),
        [&shared](const auto& one, const auto& other) { return shared(one) < shared(other); });
    return best != screens.end() && shared(*best) > 0 ? &*best : nullptr;
}

WindowPlace placeToOpen(const std::vector<ScreenPlace>& screens,
                        const std::optional<WindowPlace>& last, QSize usual) {
    const ScreenPlace* home = last ? screenOf(last->normal, screens) : nullptr;
    const ScreenPlace& screen = home != nullptr ? *home : screens.front();
    if (!screen.isLarge()) {
        // Not every desktop maximises a window, and what lies below the screen is of no use.
        const bool isLower = screen.whole.width() < kSmallestScreen.width() ||
                             screen.whole.height() < kSmallestScreen.height();
        return {isLower ? screen.free : QRect(screen.free.topLeft(), kSmallestScreen), true};
    }
    if (!last) {
        return {inTheMiddle(usual, screen.free), false};
    }
    // A screen that is gone takes the place with it, but not the size.
    const QRect place =
        home != nullptr
            ? last->normal
            : inTheMiddle(last->normal.size().boundedTo(screen.free.size()), screen.free);
    return {inside(place, screen.free), last->isMaximised};
}

}  // namespace quorvel::shell
