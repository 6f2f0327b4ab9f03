#include "groups/movie_row.h"

#include <QGridLayout>

#include "store/paths.h"

namespace quorvel::groups {
namespace {

QString spokenOf(const MovieRow::Names& names, const char* what) {
    return QStringLiteral("%1, %2").arg(name(names.spoken), name(what));
}

}  // namespace

MoviePlay::MoviePlay(Sheet& sheet, const QString& owner, QObject* parent)
    : QObject(parent), sheet_(sheet), owner_(owner) {
    sheet.expectSound();
    connect(&sheet, &Sheet::closing, this, &MoviePlay::stop);
    connect(&sheet.tools().preview, &forms::Preview::movieEnded, this,
            [this](const QString& ownerOfMovie) {
                if (ownerOfMovie != owner_ || playing_ == nullptr) {
                    return;
                }
                const QPushButton* button = playing_;
                const QString reason = sheet_.tools().preview.lastError();
                ended();
                if (!reason.isEmpty()) {
                    Q_EMIT failed(button, reason);
                }
            });
}

void MoviePlay::toggle(QPushButton* button, const QString& file, int volume) {
    if (playing_ == button) {
        stop();
        return;
    }
    if (playing_ != nullptr) {
        return;
    }
    const Tools& tools = sheet_.tools();
    if (!store::findResource(tools.project.folder(), store::ResourceFolder::mmedia,
                             file.toStdString())) {
        tools.boxes.tell(QStringLiteral("Could not play AVI Movie.  File not found."));
        return;
    }
    playing_ = button;
    button->setText(kPlaying);
    Q_EMIT sheet_.roomWanted();
    tools.preview.PlayMovie(file, owner_, volume);
}

void MoviePlay::stop() {
    if (playing_ != nullptr) {
        sheet_.tools().preview.StopMovie();
        ended();
    }
}

void MoviePlay::ended() {
    if (playing_ != nullptr) {
        playing_->setText(kIdle);
        playing_ = nullptr;
        Q_EMIT sheet_.roomReturned();
    }
}

MovieRow::MovieRow(Sheet& sheet, MoviePlay& movies, const Names& names, QWidget* parent)
    : QObject(parent),
      file(new FileBox(names.file, spokenOf(names, "file"), {.filter = forms::filters::kMovies},
                       parent)),
      sheet_(sheet),
      movies_(movies),
      label_(makeLabel(names.label, parent)),
      volumeLabel_(makeLabel("Vol >", parent)) {
    // In the order in which the Tab key visits them.
    locate_ = makeSmallButton(names.locate, "...", spokenOf(names, "locate"), parent);
    playButton_ = makeSmallButton(names.play, ">", spokenOf(names, "play"), parent);
    volume = new Level(names.slider, names.value, spokenOf(names, "volume"), kMovieVolume, parent);
    locate_->setToolTip(QStringLiteral("Locate"));
    playButton_->setToolTip(QStringLiteral("Play/ Stop"));
    followFile();
    connect(file, &QLineEdit::textChanged, this, &MovieRow::followFile);
    file->setClearable(kClearTip);
    connect(file, &FileBox::clearWanted, this, [this] {
        file->clear();
        sheet_.touch();
    });
    connect(locate_, &QPushButton::clicked, this, &MovieRow::locate);
    connect(playButton_, &QPushButton::clicked, this, [this] {
        if (!file->text().isEmpty()) {
            file->previewBegins();
            movies_.toggle(playButton_, file->text(), volume->value());
        }
    });
    connect(&movies_, &MoviePlay::failed, this,
            [this](const QPushButton* button, const QString& reason) {
                if (button == playButton_) {
                    file->previewEnded(reason);
                }
            });
    connect(&sheet, &Sheet::closing, file, &FileBox::forgetNote);
    connect(volume, &Level::moved, this, [this](int value) {
        sheet_.touch();
        if (movies_.isPlaying(playButton_)) {
            sheet_.tools().preview.SetMovieVolume(value);
        }
    });
}

void MovieRow::followFile() {
    if (movies_.isPlaying(playButton_)) {
        movies_.stop();
    }
    const bool any = !file->text().isEmpty();
    playButton_->setEnabled(any);
    volume->setRange(kMovieVolume);
    volume->setEnabled(any);
}

void MovieRow::locate() {
    if (file->locate(sheet_.tools().files)) {
        sheet_.touch();
        Q_EMIT fileChosen();
    }
}

void MovieRow::addTo(QGridLayout* grid, int row) {
    addFileRow(grid, row,
               {label_, file, locate_, playButton_, volumeLabel_, volume->slider(), volume->box()},
               *file);
}

}  // namespace quorvel::groups
