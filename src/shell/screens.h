/// The screens of the desktop, and where the main window opens on them.
#pragma once

#include <optional>
#include <vector>

#include <QRect>
#include <QSize>

namespace quorvel::shell {

/// One screen. Its rectangles are in logical pixels, at their place on the desktop; one of those
/// is `scale` device pixels wide.
struct ScreenPlace {
    QRect whole;
    QRect free;  ///< without the panels of the desktop
    double scale = 1;

    /// The size in device pixels.
    [[nodiscard]] QSize devicePixels() const;
    /// Over 800 wide and over 600 high: windows open in its middle and leave some of it free.
    [[nodiscard]] bool isLarge() const;
};

/// The screens of this machine, the primary one first.
std::vector<ScreenPlace> screensOfTheMachine();

/// A place of the main window, without what the desktop puts around it. For a maximised one it is
/// the place that the window goes back to.
struct WindowPlace {
    QRect normal;
    bool isMaximised = false;
};

/// The screen that most of `rectangle` lies on, or null when none of it lies on any.
const ScreenPlace* screenOf(const QRect& rectangle, const std::vector<ScreenPlace>& screens);

/// Where a window opens that was left at `last`, or was never open: then it has the size `usual`
/// and stands in the middle of the primary screen. On a screen that is not large it is maximised.
/// What is left of a place always lies on a screen. There must be a screen.
WindowPlace placeToOpen(const std::vector<ScreenPlace>& screens,
                        const std::optional<WindowPlace>& last, QSize usual);

}  // namespace quorvel::shell
