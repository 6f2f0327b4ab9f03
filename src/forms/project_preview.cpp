#include "forms/project_preview.h"

#include <algorithm>

#include "store/paths.h"

namespace quorvel::forms {
namespace {

// What the fields of the records can say; the engine itself goes further.
constexpr int kQuietest = -4000;
constexpr int kFarthest = 4000;

int soundVolume(int volume) {
    return std::clamp(volume, kQuietest, 0);
}

int soundPan(int pan) {
    return std::clamp(pan, -kFarthest, kFarthest);
}

}  // namespace

ProjectPreview::ProjectPreview(const store::Project& project, const media::PreviewOptions& options)
    : project_(project), engine_(options) {
    using media::PreviewEngine;
    connect(&engine_, &PreviewEngine::wavEnded, this, &Preview::wavEnded);
    connect(&engine_, &PreviewEngine::midiEnded, this, &Preview::midiEnded);
    connect(&engine_, &PreviewEngine::mp3Ended, this, &Preview::mp3Ended);
    connect(&engine_, &PreviewEngine::movieEnded, this, &Preview::movieEnded);
    connect(&engine_, &PreviewEngine::unavailable, this, &Preview::unavailable);
}

std::filesystem::path ProjectPreview::fileOf(const QString& name) const {
    return store::findResource(store::pathOf(project_.ProjectFolder), store::ResourceFolder::mmedia,
                               name.toStdString())
        .value_or(std::filesystem::path());
}

void ProjectPreview::prepare() {
    engine_.prepare();
}

void ProjectPreview::PlayWav(const QString& name, int volume, int pan, int channel, bool loop) {
    engine_.PlayWav(fileOf(name), soundVolume(volume), soundPan(pan), channel, loop);
}

void ProjectPreview::SetWavVolume(int channel, int volume) {
    engine_.SetWavVolume(channel, soundVolume(volume));
}

void ProjectPreview::SetWavPan(int channel, int pan) {
    engine_.SetWavPan(channel, soundPan(pan));
}

void ProjectPreview::StopWav(int channel) {
    engine_.StopWav(channel);
}

void ProjectPreview::StopAllWavs() {
    engine_.StopAllWavs();
}

void ProjectPreview::PlayMidi(const QString& name, int volume) {
    engine_.PlayMidi(fileOf(name), soundVolume(volume));
}

void ProjectPreview::SetMidiVolume(int volume) {
    engine_.SetMidiVolume(soundVolume(volume));
}

void ProjectPreview::StopMidi() {
    engine_.StopMidi();
}

void ProjectPreview::PlayMp3(const QString& name, int volume, int pan) {
    engine_.PlayMp3(fileOf(name), soundVolume(volume), soundPan(pan));
}

void ProjectPreview::SetMp3Volume(int volume) {
    engine_.SetMp3Volume(soundVolume(volume));
}

void ProjectPreview::SetMp3Balance(int pan) {
    engine_.SetMp3Balance(soundPan(pan));
}

void ProjectPreview::StopMp3() {
    engine_.StopMp3();
}

void ProjectPreview::PlayMovie(const QString& name, const QString& owner, int volume) {
    if (name.isEmpty()) {
        engine_.StopMovie();
    } else {
        engine_.PlayMovie(fileOf(name), owner, volume);
    }
}

void ProjectPreview::SetMovieVolume(int volume) {
    engine_.SetMovieVolume(volume);
}

void ProjectPreview::StopMovie() {
    engine_.StopMovie();
}

bool ProjectPreview::CloseMediaEngine() {
    return engine_.CloseMediaEngine();
}

}  // namespace quorvel::forms
