/// The music of a scene: a file, the order to stop what plays, or nothing.
#pragma once

#include "groups/controls.h"
#include "groups/file_box.h"
#include "groups/level.h"
#include "groups/sheet.h"

class QGridLayout;

namespace quorvel::groups {

/// A double click goes from nothing to the order to stop and from anything else to nothing.
class SoundtrackRow : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* file = "MidiFile";
        const char* locate;
        const char* play;
        const char* slider;
        const char* value;
        const char* label = "";
    };
    SoundtrackRow(Sheet& sheet, const Names& names, QWidget* parent);

    /// What the field holds when music is to stop.
    static inline const QString kStop = QStringLiteral("(Stop Sndtrk)");

    FileBox* file;
    Level* volume = nullptr;

    /// Puts the controls into one row of a grid.
    void addTo(QGridLayout* grid, int row);

  Q_SIGNALS:
    /// The author has put something into the field, or taken it away.
    void changed(bool any);

  private:
    enum class Kind : std::uint8_t { none, mp3, wav, midi };
    [[nodiscard]] Kind kind() const;
    void locate();
    void cycle();
    void followFile();
    void play();
    void stop();

    /// The channel of a WAV; sounds of windows count from 1.
    static constexpr int kChannel = 0;

    Sheet& sheet_;
    QPushButton* locate_ = nullptr;
    QPushButton* playButton_ = nullptr;
    QLabel* label_;
    QLabel* volumeLabel_;
};

}  // namespace quorvel::groups
