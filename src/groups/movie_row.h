/// Movies: the one that plays, and the file of one with its volume.
#pragma once

#include "groups/controls.h"
#include "groups/file_box.h"
#include "groups/level.h"
#include "groups/sheet.h"

class QGridLayout;

namespace quorvel::groups {

/// The movie preview of a window, of which there is one: while a movie plays, no other starts. The
/// window makes room meanwhile.
class MoviePlay : public QObject {
    Q_OBJECT
  public:
    /// `owner` is the window's name as the preview knows it.
    MoviePlay(Sheet& sheet, const QString& owner, QObject* parent);

    /// Starts the movie of `button`, or stops it. Nothing while another one plays.
    void toggle(QPushButton* button, const QString& name, int volume);
    [[nodiscard]] bool isPlaying(const QPushButton* button) const { return playing_ == button; }
    /// Stops the movie, if one plays.
    void stop();

  Q_SIGNALS:
    /// The movie of `button` was not seen to its end, because of `reason`.
    void failed(const QPushButton* button, const QString& reason);

  private:
    void ended();

    Sheet& sheet_;
    QString owner_;
    QPushButton* playing_ = nullptr;
};

/// A movie's file and volume.
class MovieRow : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* spoken;
        const char* label;
        QString file;
        QString locate;
        QString play;
        QString slider;
        QString value;
    };
    MovieRow(Sheet& sheet, MoviePlay& movies, const Names& names, QWidget* parent);

    FileBox* file;
    Level* volume = nullptr;

    /// Puts the controls into one row of a grid.
    void addTo(QGridLayout* grid, int row);

  Q_SIGNALS:
    /// The author has chosen a file.
    void fileChosen();

  private:
    void locate();
    void followFile();

    Sheet& sheet_;
    MoviePlay& movies_;
    QPushButton* locate_ = nullptr;
    QPushButton* playButton_ = nullptr;
    QLabel* label_;
    QLabel* volumeLabel_;
};

}  // namespace quorvel::groups
