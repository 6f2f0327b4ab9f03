/// A volume or a pan: a slider and the box that shows its value.
#pragma once

#include <QLineEdit>
#include <QObject>
#include <QSlider>

namespace quorvel::groups {

/// The range of a level and how it is told.
struct LevelRange {
    int lowest;
    int highest;
    int tick;
    const char* toolTip;
};
inline constexpr LevelRange kWavVolume{-4000, 0, 160, "-4000 to 0 (Full Volume)"};
inline constexpr LevelRange kMovieVolume{0, 100, 5, "0 to 100 (Full Volume)"};
inline constexpr LevelRange kPan{-4000, 4000, 160, "-4000 to 4000"};
/// Of a sound whose file has been taken away: both of its sliders end at 0 then.
inline constexpr LevelRange kIdlePan{-4000, 0, 160, "-4000 to 4000"};

/// The box is what counts. It shows where the slider stands, but for a value that was stored
/// outside the range, as damaged records hold: the box shows that as it is and the slider stands at
/// its nearest, until the author moves the slider or takes another kind of file.
///
/// Slider and box are made here and put into a layout by whoever has the level.
class Level : public QObject {
    Q_OBJECT
  public:
    Level(const QString& slider, const QString& box, const QString& spoken, const LevelRange& range,
          QWidget* parent);

    [[nodiscard]] QSlider* slider() const { return slider_; }
    [[nodiscard]] QLineEdit* box() const { return box_; }

    /// The value that the box shows.
    [[nodiscard]] int value() const;
    /// Shows a stored value, whatever the range. Says nothing.
    void show(int stored);
    /// Moves the slider to the nearest value of the range; the box follows.
    void setValue(int value);
    /// A value outside the new range is left for the nearest one in it.
    void setRange(const LevelRange& range);
    void setEnabled(bool enabled);
    /// The box is off and bears the full colour of a text all the same: its value counts.
    void setLive(bool live);

  Q_SIGNALS:
    /// The value has changed, by whom ever.
    void moved(int value);

  private:
    void followSlider();

    QSlider* slider_;
    QLineEdit* box_;
};

}  // namespace quorvel::groups
