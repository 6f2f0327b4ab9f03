#include "sound/effects.h"

#include <cmath>
#include <initializer_list>

#include "art/noise.h"
#include "art/turn.h"
#include "sound/wave.h"

namespace quorvel::sample {
namespace {

Wave waves() {
    Wave wave(7.5);
    const auto swell = [](double period, double shift) {
        return [=](double t) {
            const double up = 0.5 + 0.5 * std::sin(kTurn * t / period + shift);
            return 0.15 + up * up;
        };
    };
    wave.addNoise(0, 7.5, 700, 1, swell(3.5, 0));
    wave.addNoise(0, 7.5, 2600, 2, [](double t) {
        return 0.25 * std::pow(0.5 + 0.5 * std::sin(kTurn * t / 3.5 - 0.9), 4);
    });
    wave.makeLoop(0.5);
    wave.normalise(0.6);
    return wave;
}

Wave gull() {
    Wave wave(1.5);
    const auto cry = [&](double start, double length, double high) {
        double phase = 0;
        wave.add(start, length, [&, length, high](double t) {
            const double part = t / length;
            const double pitch =
                high * (0.72 + 0.4 * std::sin(3.1 * part)) + 30 * std::sin(kTurn * 24 * t);
            phase += kTurn * pitch / kSampleRate;
            const double body =
                std::sin(phase) + 0.5 * std::sin(2 * phase) + 0.3 * std::sin(3 * phase);
            return body * std::pow(std::sin(3.14159 * part), 0.7) * 0.4;
        });
    };
    cry(0.05, 0.5, 1500);
    cry(0.62, 0.3, 1380);
    cry(1.0, 0.36, 1300);
    wave.normalise(0.6);
    return wave;
}

Wave click() {
    Wave wave(0.09);
    wave.addTone(0, 1900, 0.008, 0.6);
    wave.addTone(0.004, 620, 0.014, 0.5);
    wave.addNoise(0, 0.012, 6000, 3, [](double t) { return std::exp(-t / 0.003); });
    wave.normalise(0.55);
    return wave;
}

Wave creak() {
    Wave wave(1.5);
    double phase = 0;
    wave.add(0.05, 1.2, [&](double t) {
        const double pitch = 54 + 40 * std::sin(t * 2.6) + 14 * std::sin(t * 11);
        phase += pitch / kSampleRate;
        const double tick = phase - std::floor(phase);
        return std::exp(-tick * 9) * std::sin(kTurn * 430 * tick / pitch * 2.2) *
               std::sin(3.14159 * t / 1.2);
    });
    wave.addTone(1.28, 92, 0.05, 0.7);
    wave.addNoise(1.28, 0.15, 900, 4, [](double t) { return std::exp(-t / 0.03); });
    wave.normalise(0.7);
    return wave;
}

Wave bell(double pitch, double decay, double seconds) {
    Wave wave(seconds);
    double level = 1;
    for (const double part : {0.5, 1.0, 1.19, 1.5, 2.0, 2.51, 3.01, 4.1}) {
        wave.addTone(0, pitch * part, decay / (0.6 + part * 0.5), level);
        level *= 0.72;
    }
    wave.normalise(0.7);
    return wave;
}

Wave match() {
    Wave wave(1.3);
    wave.addNoise(0, 0.16, 5200, 5, [](double t) { return 0.8 * std::sin(3.14159 * t / 0.16); });
    wave.addNoise(0.18, 1.1, 3000, 6,
                  [](double t) { return std::min(1.0, t / 0.03) * std::exp(-t / 0.28); });
    Random random(7);
    for (int i = 0; i < 14; ++i) {
        wave.addTone(random.between(0.25, 1.1), random.between(1500, 4000), 0.003, 0.12);
    }
    wave.normalise(0.6);
    return wave;
}

Wave chime() {
    Wave wave(2.2);
    double start = 0;
    for (const double note : {659.3, 830.6, 987.8, 1318.5}) {
        wave.addTone(start, note, 0.45, 0.5);
        wave.addTone(start, note * 2.76, 0.18, 0.16);
        start += 0.13;
    }
    wave.normalise(0.6);
    return wave;
}

Wave purr() {
    Wave wave(2.6);
    wave.addNoise(0, 2.6, 420, 8, [](double t) {
        const double beat = std::pow(0.5 + 0.5 * std::sin(kTurn * 24 * t), 2);
        return beat * (0.55 + 0.45 * std::sin(kTurn * t / 1.3 - 1.57));
    });
    wave.normalise(0.5);
    return wave;
}

Wave fire() {
    Wave wave(4.5);
    wave.addNoise(0, 4.5, 380, 9, [](double t) { return 0.7 + 0.25 * std::sin(t * 5.1); });
    Random random(10);
    for (int i = 0; i < 46; ++i) {
        const double start = random.between(0, 4.4);
        const double level = random.between(0.1, 0.6);
        wave.addNoise(start, 0.03, 5000, static_cast<std::uint64_t>(i) + 20,
                      [level](double t) { return 3 * level * std::exp(-t / 0.005); });
    }
    wave.makeLoop(0.4);
    wave.normalise(0.5);
    return wave;
}

Wave wind() {
    Wave wave(6.5);
    wave.addNoise(0, 6.5, 520, 11, [](double t) {
        return 0.4 + 0.3 * std::sin(kTurn * t / 6) + 0.2 * std::sin(kTurn * t / 2 + 1);
    });
    wave.makeLoop(0.5);
    wave.normalise(0.45);
    return wave;
}

Wave wrong() {
    Wave wave(0.5);
    wave.addTone(0, 196, 0.09, 0.7);
    wave.addTone(0.16, 156, 0.12, 0.7);
    wave.addTone(0.16, 312, 0.06, 0.2);
    wave.normalise(0.6);
    return wave;
}

Wave clank() {
    Wave wave(0.9);
    for (const double part : {310.0, 523.0, 871.0, 1490.0, 2210.0}) {
        wave.addTone(0, part, 0.10, 0.4);
        wave.addTone(0.22, part * 1.06, 0.07, 0.25);
    }
    wave.addNoise(0, 0.05, 3000, 12, [](double t) { return std::exp(-t / 0.01); });
    wave.normalise(0.6);
    return wave;
}

Wave squawk() {
    Wave wave(0.8);
    double phase = 0;
    wave.add(0, 0.7, [&](double t) {
        phase += kTurn * (210 + 60 * std::sin(t * 14) - 90 * t) / kSampleRate;
        const double growl = std::sin(phase) + 0.7 * std::sin(2 * phase + 0.4) +
                             0.5 * std::sin(3 * phase) + 0.4 * std::sin(5 * phase);
        return growl * std::sin(3.14159 * t / 0.7) * (0.6 + 0.4 * std::sin(kTurn * 19 * t));
    });
    wave.normalise(0.55);
    return wave;
}

}  // namespace

void writeEffects(const std::filesystem::path& folder) {
    waves().writeTo(folder / "Waves.wav");
    gull().writeTo(folder / "Gull.wav");
    click().writeTo(folder / "Click.wav");
    creak().writeTo(folder / "Creak.wav");
    bell(392, 1.1, 3.2).writeTo(folder / "Bell.wav");
    bell(1174, 0.25, 1.0).writeTo(folder / "ShopBell.wav");
    match().writeTo(folder / "Match.wav");
    chime().writeTo(folder / "Chime.wav");
    purr().writeTo(folder / "Purr.wav");
    fire().writeTo(folder / "Fire.wav");
    wind().writeTo(folder / "Wind.wav");
    wrong().writeTo(folder / "Wrong.wav");
    clank().writeTo(folder / "Clank.wav");
    squawk().writeTo(folder / "Squawk.wav");
}

}  // namespace quorvel::sample
