/// The preview of the project that is open.
#pragma once

#include "forms/preview.h"
#include "media/preview_engine.h"
#include "store/project.h"

namespace quorvel::forms {

/// Owned by the shell. Finds the files of the project, in any letter case, and plays them through
/// an engine of its own.
class ProjectPreview : public Preview {
    Q_OBJECT
  public:
    /// `project` must outlive the preview.
    ProjectPreview(const store::Project& project, const media::PreviewOptions& options);

    /// Where the pictures of movies arrive, for whoever shows them.
    [[nodiscard]] const media::MovieFrames& movieFrames() { return engine_.movieFrames(); }

    void prepare() override;
    void PlayWav(const QString& name, int volume, int pan, int channel, bool loop = false) override;
    void SetWavVolume(int channel, int volume) override;
    void SetWavPan(int channel, int pan) override;
    void StopWav(int channel) override;
    void StopAllWavs() override;
    void PlayMidi(const QString& name, int volume) override;
    void SetMidiVolume(int volume) override;
    void StopMidi() override;
    void PlayMp3(const QString& name, int volume, int pan) override;
    void SetMp3Volume(int volume) override;
    void SetMp3Balance(int pan) override;
    void StopMp3() override;
    void PlayMovie(const QString& name, const QString& owner, int volume) override;
    void SetMovieVolume(int volume) override;
    void StopMovie() override;
    bool CloseMediaEngine() override;
    [[nodiscard]] QString lastError() const override { return engine_.lastError(); }

  private:
    /// The file of the project, or a path that names none.
    [[nodiscard]] std::filesystem::path fileOf(const QString& name) const;

    const store::Project& project_;
    media::PreviewEngine engine_;
};

}  // namespace quorvel::forms
