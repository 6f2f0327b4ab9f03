#include "forms/legible.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace quorvel::forms {
namespace {

/// Relative luminance, 0 to 1, as the contrast is defined on.
double luminance(const QColor& color) {
    const auto linear = [](double c) {
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

/// Of the two, grey of this luminance has the same contrast to black and to white.
bool isDark(const QColor& color) {
    constexpr double kMiddle = 0.179;
    return luminance(color) < kMiddle;
}

QColor mixed(const QColor& color, const QColor& with, float part) {
    const auto mix = [part](float a, float b) { return a * (1 - part) + b * part; };
    return QColor::fromRgbF(mix(color.redF(), with.redF()), mix(color.greenF(), with.greenF()),
                            mix(color.blueF(), with.blueF()));
}

/// `color`, moved towards black or white until it stands out from all of `others`.
QColor apartFrom(const std::vector<QColor>& others, const QColor& color, const QColor& towards) {
    constexpr int kSteps = 20;
    for (int step = 0; step < kSteps; ++step) {
        const QColor moved = mixed(color, towards, static_cast<float>(step) / kSteps);
        if (std::all_of(others.begin(), others.end(), [&](const QColor& other) {
                return contrastOf(moved, other) >= kLegible;
            })) {
            return moved;
        }
    }
    return towards;
}

struct TextOn {
    QPalette::ColorRole text;
    std::vector<QPalette::ColorRole> grounds;
};

const std::vector<TextOn>& textsOnGrounds() {
    using P = QPalette;
    static const std::vector<TextOn> all = {
        {P::WindowText, {P::Window}},
        {P::Text, {P::Base, P::AlternateBase}},
        {P::ButtonText, {P::Button, P::Window}},
        {P::PlaceholderText, {P::Base}},
        {P::ToolTipText, {P::ToolTipBase}},
        {P::Link, {P::Base, P::Window}},
        {P::LinkVisited, {P::Base, P::Window}},
    };
    return all;
}

}  // namespace

double contrastOf(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

QPalette legible(const QPalette& palette) {
    QPalette result = palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
        for (int role = 0; role < QPalette::NColorRoles; ++role) {
            const auto one = static_cast<QPalette::ColorRole>(role);
            if (one != QPalette::NoRole) {
                result.setBrush(group, one, palette.brush(group, one));
            }
        }
        for (const TextOn& pair : textsOnGrounds()) {
            std::vector<QColor> grounds;
            for (const auto ground : pair.grounds) {
                grounds.push_back(palette.color(group, ground));
                if (ground == QPalette::Button) {
                    // The style paints a button from lighter to darker.
                    constexpr int kLighter = 140;
                    constexpr int kDarker = 104;
                    grounds.push_back(isDark(grounds.back()) ? grounds.back().lighter(kLighter)
                                                             : grounds.back().darker(kDarker));
                }
            }
            const QColor towards = isDark(grounds.front()) ? Qt::white : Qt::black;
            result.setColor(group, pair.text,
                            apartFrom(grounds, palette.color(group, pair.text), towards));
        }
        const QColor selected = palette.color(group, QPalette::HighlightedText);
        result.setColor(group, QPalette::Highlight,
                        apartFrom({selected}, palette.color(group, QPalette::Highlight),
                                  isDark(selected) ? Qt::white : Qt::black));
    }
    return result;
}

}  // namespace quorvel::forms
