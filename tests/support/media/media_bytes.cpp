#include "support/media/media_bytes.h"

#include <cmath>
#include <numbers>
#include <string_view>

namespace quorvel::test {
namespace {

void put16(std::string& out, int number) {
    out += static_cast<char>(number & 0xFF);
    out += static_cast<char>(number >> 8 & 0xFF);
}

void put32(std::string& out, int number) {
    put16(out, number & 0xFFFF);
    put16(out, number >> 16 & 0xFFFF);
}

void put32Big(std::string& out, int number) {
    for (int shift = 24; shift >= 0; shift -= 8) {
        out += static_cast<char>(number >> shift & 0xFF);
    }
}

std::string chunk(std::string_view name, const std::string& data) {
    std::string out(name);
    put32(out, static_cast<int>(data.size()));
    out += data;
    if (data.size() % 2 != 0) {
        out += '\0';
    }
    return out;
}

std::string list(std::string_view kind, const std::string& data) {
    return chunk("LIST", std::string(kind) + data);
}

std::string pcmFormat(int rate) {
    std::string format;
    put16(format, 1);
    put16(format, 2);
    put32(format, rate);
    put32(format, rate * 4);
    put16(format, 4);
    put16(format, 16);
    return format;
}

std::string pcm(int from, int to, const Wave& wave) {
    std::string data;
    data.reserve(static_cast<std::size_t>(to - from) * 4);
    for (int frame = from; frame < to; ++frame) {
        put16(data, static_cast<int>(std::lround(wave(frame, 0) * 32768.0)));
        put16(data, static_cast<int>(std::lround(wave(frame, 1) * 32768.0)));
    }
    return data;
}

std::string streamHeader(std::string_view kind, std::string_view coding, int scale, int rate,
                         int length, int sampleSize) {
    std::string out(kind);
    out += coding;
    out.append(12, '\0');  // flags, priority, language, initial frames
    put32(out, scale);
    put32(out, rate);
    put32(out, 0);
    put32(out, length);
    put32(out, 1 << 20);  // suggested buffer
    put32(out, -1);       // quality
    put32(out, sampleSize);
    out.append(8, '\0');  // rectangle
    return chunk("strh", out);
}

std::string pictureFormat(const MovieShape& shape) {
    std::string out;
    put32(out, 40);
    put32(out, shape.width);
    put32(out, shape.height);
    put16(out, 1);
    put16(out, 24);
    if (shape.picture.empty()) {
        put32(out, 0);
    } else {
        out += shape.coding;
    }
    put32(out, (shape.width * 3 + 3) / 4 * 4 * shape.height);
    out.append(16, '\0');
    return chunk("strf", out);
}

std::string picture(const MovieShape& shape, std::uint32_t rgb) {
    if (!shape.picture.empty()) {
        return shape.picture;
    }
    std::string row;
    for (int x = 0; x < shape.width; ++x) {
        row += static_cast<char>(rgb & 0xFF);
        row += static_cast<char>(rgb >> 8 & 0xFF);
        row += static_cast<char>(rgb >> 16 & 0xFF);
    }
    row.resize((row.size() + 3) / 4 * 4, '\0');
    std::string all;
    for (int y = 0; y < shape.height; ++y) {
        all += row;
    }
    return all;
}

std::string movieHeader(const MovieShape& shape) {
    std::string out;
    put32(out, 1000000 / shape.perSecond);
    put32(out, 1 << 20);
    put32(out, 0);
    put32(out, 0x10);  // there is an index
    put32(out, shape.frames);
    put32(out, 0);
    put32(out, shape.sound ? 2 : 1);
    put32(out, 1 << 20);
    put32(out, shape.width);
    put32(out, shape.height);
    out.append(16, '\0');
    return chunk("avih", out);
}

}  // namespace

Wave tone(double hertz, double peak) {
    return [=](int frame, int) {
        return peak * std::sin(2.0 * std::numbers::pi * hertz * frame / 44100.0);
    };
}

Wave counter() {
    return [](int frame, int side) { return (side == 0 ? frame : -frame) / 32768.0; };
}

std::string wavBytes(int frames, const Wave& wave, int rate) {
    return chunk("RIFF",
                 "WAVE" + chunk("fmt ", pcmFormat(rate)) + chunk("data", pcm(0, frames, wave)));
}

std::string adpcmBytes(int blocks) {
    constexpr int kBlock = 256;
    constexpr int kPerBlock = 505;
    std::string format;
    put16(format, 0x11);
    put16(format, 1);
    put32(format, 22050);
    put32(format, 22050 * kBlock / kPerBlock);
    put16(format, kBlock);
    put16(format, 4);
    put16(format, 2);
    put16(format, kPerBlock);
    std::string data;
    for (int block = 0; block < blocks; ++block) {
        put16(data, 0);
        data += '\x28';  // a middling step
        data += '\0';
        for (int i = 4; i < kBlock; ++i) {
            data += i / 16 % 2 == 0 ? '\x44' : '\xCC';  // up, then down
        }
    }
    std::string fact;
    put32(fact, blocks * kPerBlock);
    return chunk("RIFF",
                 "WAVE" + chunk("fmt ", format) + chunk("fact", fact) + chunk("data", data));
}

std::string midiBytes(int milliseconds, int note) {
    // 500 ticks to a quarter of half a second: a tick is a millisecond.
    std::string track("\0\xC0\x10", 3);  // organ
    track += std::string("\0\x90", 2) + static_cast<char>(note) + '\x7F';
    track += static_cast<char>(0x80 | (milliseconds >> 7 & 0x7F));
    track += static_cast<char>(milliseconds & 0x7F);
    track += '\x80';
    track += static_cast<char>(note);
    track += '\0';
    track.append("\0\xFF\x2F\0", 4);
    std::string out = "MThd";
    put32Big(out, 6);
    out.append("\0\0\0\1", 4);
    out += static_cast<char>(500 >> 8);
    out += static_cast<char>(500 & 0xFF);
    out += "MTrk";
    put32Big(out, static_cast<int>(track.size()));
    return out + track;
}

std::uint32_t movieColour(int frame) {
    return static_cast<std::uint32_t>(frame * 8 & 0xFF) << 16 | 0x3060;
}

std::string aviBytes(const MovieShape& shape) {
    constexpr int kRate = 44100;
    std::string headers =
        movieHeader(shape) +
        list("strl", streamHeader("vids", shape.coding, 1, shape.perSecond, shape.frames, 0) +
                         pictureFormat(shape) + shape.properties);
    const int perFrame = kRate / shape.perSecond;
    if (shape.sound) {
        headers += list("strl", streamHeader("auds", std::string(4, '\0'), 4, kRate * 4,
                                             shape.frames * perFrame, 4) +
                                    chunk("strf", pcmFormat(kRate)));
    }
    std::string data = "movi";
    std::string index;
    const auto add = [&](std::string_view name, const std::string& bytes) {
        index += name;
        put32(index, 0x10);
        put32(index, static_cast<int>(data.size()));
        put32(index, static_cast<int>(bytes.size()));
        data += chunk(name, bytes);
    };
    for (int frame = 0; frame < shape.frames; ++frame) {
        add("00db", picture(shape, movieColour(frame)));
        if (shape.sound) {
            add("01wb", pcm(frame * perFrame, (frame + 1) * perFrame, tone(441)));
        }
    }
    return chunk("RIFF",
                 "AVI " + list("hdrl", headers) + chunk("LIST", data) + chunk("idx1", index));
}

}  // namespace quorvel::test
