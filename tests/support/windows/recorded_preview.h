/// A preview that notes what it is asked and plays nothing.
#pragma once

#include <QStringList>

#include "forms/preview.h"

namespace quorvel::test {

class RecordedPreview : public forms::Preview {
  public:
    /// What was asked, in order: "PlayWav door.wav -600 4000 3 loop", "StopMovie".
    QStringList orders;
    bool closes = true;  ///< the answer of CloseMediaEngine()
    int prepared = 0;    ///< how often prepare() was called
    QString error;       ///< the answer of lastError()

    [[nodiscard]] QString lastError() const override { return error; }

    void prepare() override { ++prepared; }
    void PlayWav(const QString& name, int volume, int pan, int channel, bool loop) override {
        note(QStringLiteral("PlayWav %1 %2 %3 %4%5")
                 .arg(name, QString::number(volume), QString::number(pan), QString::number(channel),
                      loop ? QStringLiteral(" loop") : QString()));
    }
    void SetWavVolume(int channel, int volume) override {
        note(QStringLiteral("SetWavVolume %1 %2").arg(channel).arg(volume));
    }
    void SetWavPan(int channel, int pan) override {
        note(QStringLiteral("SetWavPan %1 %2").arg(channel).arg(pan));
    }
    void StopWav(int channel) override { note(QStringLiteral("StopWav %1").arg(channel)); }
    void StopAllWavs() override { note(QStringLiteral("StopAllWavs")); }
    void PlayMidi(const QString& name, int volume) override {
        note(QStringLiteral("PlayMidi %1 %2").arg(name).arg(volume));
    }
    void SetMidiVolume(int volume) override {
        note(QStringLiteral("SetMidiVolume %1").arg(volume));
    }
    void StopMidi() override { note(QStringLiteral("StopMidi")); }
    void PlayMp3(const QString& name, int volume, int pan) override {
        note(QStringLiteral("PlayMp3 %1 %2 %3").arg(name).arg(volume).arg(pan));
    }
    void SetMp3Volume(int volume) override { note(QStringLiteral("SetMp3Volume %1").arg(volume)); }
    void SetMp3Balance(int pan) override { note(QStringLiteral("SetMp3Balance %1").arg(pan)); }
    void StopMp3() override { note(QStringLiteral("StopMp3")); }
    void PlayMovie(const QString& name, const QString& owner, int volume) override {
        note(QStringLiteral("PlayMovie %1 %2 %3").arg(name, owner).arg(volume));
    }
    void SetMovieVolume(int volume) override {
        note(QStringLiteral("SetMovieVolume %1").arg(volume));
    }
    void StopMovie() override { note(QStringLiteral("StopMovie")); }
    bool CloseMediaEngine() override {
        note(QStringLiteral("CloseMediaEngine"));
        return closes;
    }

  private:
    void note(const QString& order) { orders << order; }
};

}  // namespace quorvel::test
