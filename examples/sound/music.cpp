#include "sound/music.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "files/bytes.h"

namespace quorvel::sample {
namespace {

constexpr int kBeat = 480;  ///< ticks of a quarter

/// Instruments of General MIDI.
enum class Voice {
    musicBox = 10,
    accordion = 21,
    guitar = 24,
    bass = 32,
    strings = 48,
    harp = 46,
    flute = 73,
    whistle = 78
};

/// One instrument's notes on its own channel.
class Part {
  public:
    Part(int channel, Voice voice, int volume, int pan) : channel_(channel) {
        event(0, 0xC0, static_cast<int>(voice), -1);
        event(0, 0xB0, 7, volume);
        event(0, 0xB0, 10, pan);
        event(0, 0xB0, 91, 70);
    }

    /// Times are in ticks, `loud` 1 to 127.
    void note(int at, int length, int pitch, int loud) {
        event(at, 0x90, pitch, loud);
        event(at + length, 0x80, pitch, 0);
    }

    [[nodiscard]] Bytes track() const {
        std::vector<Event> sorted = events_;
        std::ranges::stable_sort(sorted, {}, &Event::at);
        Bytes body;
        int now = 0;
        for (const Event& e : sorted) {
            putTime(body, e.at - now);
            now = e.at;
            body.number8(static_cast<unsigned>(e.kind | channel_));
            body.number8(static_cast<unsigned>(e.first));
            if (e.second >= 0) {
                body.number8(static_cast<unsigned>(e.second));
            }
        }
        return closeTrack(body);
    }

    static Bytes closeTrack(Bytes& body) {
        body.number8(0);
        body.number8(0xFF);
        body.number8(0x2F);
        body.number8(0);
        Bytes track;
        track.text("MTrk");
        track.big32(static_cast<unsigned>(body.size()));
        track.text(body.all());
        return track;
    }

    /// A time between events, seven bits a byte.
    static void putTime(Bytes& body, int ticks) {
        const auto value = static_cast<unsigned>(ticks);
        for (unsigned shift = 21; shift > 0; shift -= 7) {
            if ((value >> shift) != 0) {
                body.number8((value >> shift & 0x7FU) | 0x80U);
            }
        }
        body.number8(value & 0x7FU);
    }

  private:
    struct Event {
        int at;
        int kind;
        int first;
        int second;
    };
    void event(int at, int kind, int first, int second) {
        events_.push_back({at, kind, first, second});
    }

    int channel_;
    std::vector<Event> events_;
};

Bytes tempoTrack(int beatsPerMinute, int beatsPerBar) {
    Bytes body;
    const auto microseconds = static_cast<unsigned>(60000000 / beatsPerMinute);
    body.text({"\x00\xFF\x51\x03", 4});
    body.number8(microseconds >> 16U);
    body.number8(microseconds >> 8U);
    body.number8(microseconds);
    body.text({"\x00\xFF\x58\x04", 4});
    body.number8(static_cast<unsigned>(beatsPerBar));
    body.number8(2);
    body.number8(24);
    body.number8(8);
    return Part::closeTrack(body);
}

void writeTune(const std::filesystem::path& path, int beatsPerMinute, int beatsPerBar,
               const std::vector<Part>& parts) {
    Bytes file;
    file.text("MThd");
    file.big32(6);
    file.big16(1);
    file.big16(static_cast<unsigned>(parts.size() + 1));
    file.big16(kBeat);
    file.text(tempoTrack(beatsPerMinute, beatsPerBar).all());
    for (const Part& part : parts) {
        file.text(part.track().all());
    }
    file.writeTo(path);
}

struct Note {
    int pitch;      ///< 0 is a rest
    double length;  ///< in beats
};

void play(Part& part, const std::vector<Note>& notes, double startBeat, int shift, int loud) {
    double beat = startBeat;
    for (const Note& note : notes) {
        if (note.pitch > 0) {
            const auto at = static_cast<int>(beat * kBeat);
            part.note(at, static_cast<int>(note.length * kBeat * 0.94), note.pitch + shift, loud);
        }
        beat += note.length;
    }
}

/// A chord by its root and third, seen from a low octave.
struct Chord {
    int root;
    bool minor;
};

// The keeper's waltz, in D minor with a turn to F.
const std::vector<Note> kWaltzVerse = {
    {69, 2}, {74, 1}, {77, 1.5}, {76, .5}, {74, 1}, {72, 2}, {69, 1}, {70, 3},
    {67, 2}, {70, 1}, {74, 1.5}, {72, .5}, {70, 1}, {69, 2}, {65, 1}, {64, 3},
    {69, 2}, {74, 1}, {77, 1.5}, {79, .5}, {81, 1}, {79, 2}, {77, 1}, {74, 3},
    {70, 1}, {72, 1}, {74, 1},   {73, 2},  {69, 1}, {74, 3}, {0, 3}};
const std::vector<Note> kWaltzRefrain = {
    {77, 2}, {81, 1}, {84, 2},   {81, 1},  {79, 1.5}, {77, .5}, {76, 1}, {77, 3},
    {74, 2}, {77, 1}, {82, 2},   {79, 1},  {81, 1.5}, {79, .5}, {77, 1}, {76, 3},
    {77, 2}, {81, 1}, {84, 1.5}, {86, .5}, {84, 1},   {82, 2},  {79, 1}, {81, 3},
    {77, 1}, {76, 1}, {74, 1},   {73, 2},  {76, 1},   {74, 3},  {0, 3}};
const std::vector<Chord> kVerseChords = {{50, true},  {50, true},  {53, false}, {46, false},
                                         {55, true},  {46, false}, {50, true},  {45, false},
                                         {50, true},  {50, true},  {48, false}, {50, true},
                                         {46, false}, {45, false}, {50, true},  {50, true}};
const std::vector<Chord> kRefrainChords = {{53, false}, {53, false}, {48, false}, {53, false},
                                           {46, false}, {55, true},  {53, false}, {48, false},
                                           {53, false}, {53, false}, {46, false}, {53, false},
                                           {50, true},  {45, false}, {50, true},  {50, true}};

void accompany(Part& bass, Part& harp, Part& strings, const std::vector<Chord>& chords,
               double startBeat) {
    int bar = 0;
    for (const Chord& chord : chords) {
        const auto at = static_cast<int>((startBeat + bar * 3) * kBeat);
        const int third = chord.minor ? 3 : 4;
        bass.note(at, kBeat * 2, chord.root - 12, 74);
        const int rising[] = {chord.root,      chord.root + 7,
                              chord.root + 12, chord.root + 12 + third,
                              chord.root + 19, chord.root + 12 + third};
        for (int i = 0; i < 6; ++i) {
            harp.note(at + i * kBeat / 2, kBeat, rising[i], 52 + (i == 0 ? 12 : 0));
        }
        for (const int pitch : {chord.root + 12, chord.root + 12 + third, chord.root + 19}) {
            strings.note(at, kBeat * 3 - 20, pitch, 42);
        }
        ++bar;
    }
}

void writeWaltz(const std::filesystem::path& path) {
    Part musicBox(0, Voice::musicBox, 96, 58);
    Part accordion(1, Voice::accordion, 74, 74);
    Part harp(2, Voice::harp, 86, 44);
    Part strings(3, Voice::strings, 62, 64);
    Part bass(4, Voice::bass, 84, 64);
    play(musicBox, kWaltzVerse, 0, 12, 84);
    play(accordion, kWaltzVerse, 48, 0, 70);
    play(accordion, kWaltzRefrain, 96, 0, 76);
    play(musicBox, kWaltzRefrain, 96, 12, 66);
    play(musicBox, kWaltzVerse, 144, 12, 78);
    accompany(bass, harp, strings, kVerseChords, 0);
    accompany(bass, harp, strings, kVerseChords, 48);
    accompany(bass, harp, strings, kRefrainChords, 96);
    accompany(bass, harp, strings, kVerseChords, 144);
    writeTune(path, 104, 3, {musicBox, accordion, harp, strings, bass});
}

// A jig for the inn.
const std::vector<Note> kJig = {
    {67, .5},  {71, .5},  {74, .5},  {79, 1},  {78, .5}, {76, .5}, {74, .5}, {71, .5},
    {74, 1.5}, {72, .5},  {76, .5},  {79, .5}, {81, 1},  {79, .5}, {78, .5}, {76, .5},
    {74, .5},  {76, 1.5}, {79, 1},   {78, .5}, {76, .5}, {78, .5}, {79, .5}, {81, .5},
    {79, .5},  {76, .5},  {74, 1},   {71, .5}, {72, .5}, {71, .5}, {69, .5}, {74, .5},
    {72, .5},  {69, .5},  {67, 1.5}, {67, 1},  {0, .5}};

void writeJig(const std::filesystem::path& path) {
    Part whistle(0, Voice::whistle, 88, 54);
    Part accordion(1, Voice::accordion, 78, 76);
    Part guitar(2, Voice::guitar, 80, 48);
    Part bass(3, Voice::bass, 88, 64);
    const std::vector<Chord> chords = {{55, false}, {55, false}, {48, false}, {48, false},
                                       {55, false}, {52, true},  {50, false}, {55, false}};
    for (int round = 0; round < 4; ++round) {
        const double start = round * 24;
        play(round % 2 == 0 ? whistle : accordion, kJig, start, 0, 84);
        play(round == 3 ? whistle : accordion, kJig, start, round == 3 ? 12 : -12, 52);
        int bar = 0;
        for (const Chord& chord : chords) {
            for (int half = 0; half < 2; ++half) {
                const auto at = static_cast<int>((start + bar * 3 + half * 1.5) * kBeat);
                bass.note(at, kBeat, chord.root - 12 + (half == 0 ? 0 : 7), 80);
                for (const int pitch :
                     {chord.root, chord.root + (chord.minor ? 3 : 4), chord.root + 7}) {
                    guitar.note(at + kBeat, kBeat / 3, pitch + 12, 58);
                }
            }
            ++bar;
        }
    }
    writeTune(path, 168, 6, {whistle, accordion, guitar, bass});
}

}  // namespace

void writeMusic(const std::filesystem::path& folder) {
    writeWaltz(folder / "KeepWaltz.mid");
    writeJig(folder / "MothJig.mid");
}

}  // namespace quorvel::sample
