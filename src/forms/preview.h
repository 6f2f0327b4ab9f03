/// Hearing and seeing the project's sounds and movies before they are saved, as editors know it.
#pragma once

#include <QObject>
#include <QString>

namespace quorvel::forms {

/// Plays files of the project's folder `resource/mmedia`, given by their bare names. Every routine
/// returns at once; a file that is missing or damaged stays silent. Starting a preview stops no
/// other but the one in the same channel or of the same kind: an editor stops what it started.
///
/// Volumes are -4000 to 0 (loudest), in hundredths of a decibel; pans are -4000 (left) to 4000;
/// a movie's volume is 0 to 100 (full). What is outside counts as the nearest.
class Preview : public QObject {
    Q_OBJECT
  public:
    using QObject::QObject;

    /// Makes the first sound come without delay, in the background. To be called when a window
    /// opens in which something can be heard; the first call counts.
    virtual void prepare() = 0;

    /// `channel` is 0 to 15. `loop`: round and round until it is stopped.
    virtual void PlayWav(const QString& name, int volume, int pan, int channel,
                         bool loop = false) = 0;
    virtual void SetWavVolume(int channel, int volume) = 0;
    virtual void SetWavPan(int channel, int pan) = 0;
    virtual void StopWav(int channel) = 0;
    virtual void StopAllWavs() = 0;

    virtual void PlayMidi(const QString& name, int volume) = 0;
    virtual void SetMidiVolume(int volume) = 0;
    virtual void StopMidi() = 0;

    virtual void PlayMp3(const QString& name, int volume, int pan) = 0;
    virtual void SetMp3Volume(int volume) = 0;
    virtual void SetMp3Balance(int pan) = 0;
    virtual void StopMp3() = 0;

    /// Shows the movie over the preview area of `owner` ("Scene", "Goodie"...), whose button goes
    /// back when movieEnded() names it. An empty name closes the movie.
    virtual void PlayMovie(const QString& name, const QString& owner, int volume) = 0;
    virtual void SetMovieVolume(int volume) = 0;
    virtual void StopMovie() = 0;

    /// Gives back what plays soundtracks; false when the sound system hangs. A later PlayMp3()
    /// builds it anew.
    virtual bool CloseMediaEngine() = 0;

    /// Why the preview that ended last was silent or cut short, a sentence; empty when it was not.
    /// To be asked when an end is signalled.
    [[nodiscard]] virtual QString lastError() const = 0;

  Q_SIGNALS:
    /// This machine lacks what sounds need; previews stay silent. `reason` is for the author.
    void unavailable(const QString& reason);
    /// A sound that plays once came to its end by itself; silent failures end too.
    void wavEnded(int channel);
    void midiEnded();
    void mp3Ended();
    void movieEnded(const QString& owner);
};

}  // namespace quorvel::forms
