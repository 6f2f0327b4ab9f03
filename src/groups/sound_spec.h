/// One sound: its file, volume, pan and channel, and hearing it.
#pragma once

#include "groups/controls.h"
#include "groups/file_box.h"
#include "groups/level.h"
#include "groups/sheet.h"

class QGridLayout;

namespace quorvel::groups {

class MoviePlay;

/// All controls are elements of control arrays, of the index `k`; it is the channel of the preview
/// too. Three rules hold for every sound of every window:
///
/// - The file decides what can be set: nothing without one, volume and pan of a WAV, the volume
///   from 0 to 100 of a movie.
/// - A sound that loops is switched on and off, and its button shows which. A sound that plays once
///   is started, which stops all sounds; the button of a looping one goes on showing what it did.
/// - A double click on the file takes it away.
class SoundSpec : public QObject {
    Q_OBJECT
  public:
    enum class Play : std::uint8_t { once, loop };
    struct Names {
        int k;
        const char* spoken;  ///< what a screen reader calls the sound
        /// A frame of the sound's own, with the controls in two lines. Without one, `addTo` puts
        /// them somewhere.
        const char* frame = "";
        const char* frameCaption = "";
        const char* label = "Wav File >";
        Play play = Play::once;
        bool hasChannel = true;
        /// Switching a looping sound on stops all others.
        bool alone = false;
        const char* playTip = "";
        /// Where a sound may be a movie as well: what plays it.
        MoviePlay* movies = nullptr;
    };
    SoundSpec(Sheet& sheet, const Names& names, QWidget* parent);

    QGroupBox* frame = nullptr;
    FileBox* file = nullptr;
    Level* volume = nullptr;
    Level* pan = nullptr;
    ChannelList* channel = nullptr;

    /// Some sounds loop or not by another property.
    void setPlay(Play play) { play_ = play; }

    /// Puts the controls into one row of a grid; there is no place for a channel.
    void addTo(QGridLayout* grid, int row);

  Q_SIGNALS:
    /// The author has chosen a file.
    void fileChosen();

  private:
    void build(const Names& names, QWidget* parent);
    /// In two lines.
    void fill(QVBoxLayout* column);
    void followAuthor();
    void followPreview();
    void start(bool loop);
    QPushButton* panButton(const char* name, const char* caption, const char* spoken, int pan);
    void locate();
    void followFile();
    void Playwav_Click();
    void silence();
    [[nodiscard]] bool isWav() const;
    [[nodiscard]] bool isHeard() const;

    Sheet& sheet_;
    int k_;
    Play play_;
    bool alone_;
    MoviePlay* movies_;
    bool isStarted_ = false;  // its WAV was started and has not been heard of since
    QPushButton* locate_ = nullptr;
    QPushButton* playButton_ = nullptr;
    std::vector<QPushButton*> panButtons_;
    QLabel* label_ = nullptr;
    QLabel* volumeLabel_ = nullptr;
    QLabel* panLabel_ = nullptr;
    QLabel* channelLabel_ = nullptr;
};

}  // namespace quorvel::groups
