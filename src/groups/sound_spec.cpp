#include "groups/sound_spec.h"

#include <QGridLayout>

#include "forms/form.h"
#include "groups/movie_row.h"

namespace quorvel::groups {
namespace {

QString element(const char* name, int k) {
    return forms::elementName(QString::fromLatin1(name), k);
}

}  // namespace

SoundSpec::SoundSpec(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      sheet_(sheet),
      k_(names.k),
      play_(names.play),
      alone_(names.alone),
      movies_(names.movies) {
    sheet.expectSound();
    if (*names.frame == '\0') {
        build(names, parent);
    } else {
        const Frame made = makeFrame(names.frame, names.frameCaption, parent);
        frame = made.box;
        build(names, frame);
        fill(made.column);
    }
    followFile();
    pan->setRange(kPan);  // no file has been taken away yet
    followAuthor();
}

void SoundSpec::build(const Names& names, QWidget* parent) {
    const auto spoken = [&names](const char* what) {
        return QStringLiteral("%1, %2").arg(QString::fromLatin1(names.spoken),
                                            QString::fromLatin1(what));
    };
    label_ = makeLabel(names.label, parent);
    file = new FileBox(
        element("SE", k_), spoken("file"),
        {.filter = movies_ != nullptr ? forms::filters::kSoundsAndMovies : forms::filters::kSounds},
        parent);
    locate_ = makeSmallButton(element("LSE", k_), "...", spoken("locate"), parent);
    locate_->setToolTip(QStringLiteral("Locate"));
    playButton_ = makeSmallButton(element("Playwav", k_), ">", spoken("play"), parent);
    playButton_->setToolTip(QString::fromLatin1(names.playTip));
    if (names.hasChannel) {
        channelLabel_ = makeLabel("Wav Ch>", parent);
        channel = new ChannelList(element("sChannelNum", k_), parent);
        channelLabel_->setBuddy(channel);
    }
    volumeLabel_ = makeLabel("Vol >", parent);
    volume =
        new Level(element("Hscroll1", k_), element("SV", k_), spoken("volume"), kWavVolume, parent);
    panLabel_ = makeLabel("Pan >", parent);
    pan = new Level(element("Hscroll2", k_), element("SP", k_), spoken("pan"), kPan, parent);
    panButtons_ = {panButton("HLeft", "L", "Hard-Left", kPan.lowest),
                   panButton("Centr", "C", "Center", 0),
                   panButton("HRight", "R", "Hard-Right", kPan.highest)};
}

QPushButton* SoundSpec::panButton(const char* name, const char* caption, const char* spoken,
                                  int value) {
    auto* button = makeSmallButton(element(name, k_), caption, QString::fromLatin1(spoken),
                                   playButton_->parentWidget());
    button->setToolTip(QString::fromLatin1(spoken));
    connect(button, &QPushButton::clicked, this, [this, value] {
        pan->setValue(value);
        sheet_.touch();
    });
    return button;
}

void SoundSpec::followAuthor() {
    if (channel != nullptr) {
        connect(channel, &QComboBox::activated, &sheet_, &Sheet::touch);
    }
    connect(file, &QLineEdit::textChanged, this, [this] {
        if (!sheet_.isFilling()) {
            silence();
        }
        followFile();
    });
    file->setClearable(kClearTip);
    connect(file, &FileBox::clearWanted, this, [this] {
        file->clear();
        sheet_.touch();
    });
    connect(locate_, &QPushButton::clicked, this, &SoundSpec::locate);
    connect(playButton_, &QPushButton::clicked, this, &SoundSpec::Playwav_Click);
    connect(&sheet_, &Sheet::closing, this, &SoundSpec::silence);
    connect(&sheet_, &Sheet::closing, file, &FileBox::forgetNote);
    followPreview();
    connect(volume, &Level::moved, this, [this](int value) {
        sheet_.touch();
        if (isHeard() && isWav()) {
            sheet_.tools().preview.SetWavVolume(k_, value);
        } else if (movies_ != nullptr && movies_->isPlaying(playButton_)) {
            sheet_.tools().preview.SetMovieVolume(value);
        }
    });
    connect(pan, &Level::moved, this, [this](int value) {
        sheet_.touch();
        if (isHeard() && isWav()) {
            sheet_.tools().preview.SetWavPan(k_, value);
        }
    });
}

void SoundSpec::followPreview() {
    const forms::Preview& preview = sheet_.tools().preview;
    connect(&preview, &forms::Preview::wavEnded, this, [this, &preview](int ended) {
        if (ended == k_ && isStarted_) {
            isStarted_ = false;
            file->previewEnded(preview.lastError());
        }
    });
    if (movies_ != nullptr) {
        connect(movies_, &MoviePlay::failed, this,
                [this](const QPushButton* button, const QString& reason) {
                    if (button == playButton_) {
                        file->previewEnded(reason);
                    }
                });
    }
}

bool SoundSpec::isWav() const {
    return file->text().right(3).toLower() == QStringLiteral("wav");
}

/// Whether the preview follows: of a sound that plays once nobody knows whether it still plays.
bool SoundSpec::isHeard() const {
    return !sheet_.isFilling() && (play_ == Play::once || playButton_->text() == kPlaying);
}

void SoundSpec::followFile() {
    const bool any = !file->text().isEmpty();
    const bool wav = any && isWav();
    playButton_->setEnabled(any);
    volume->setRange(any && !wav ? kMovieVolume : kWavVolume);
    if (!any) {
        volume->setValue(0);
        pan->setValue(0);
        pan->setRange(kIdlePan);
    } else if (pan->slider()->maximum() < kPan.highest) {
        pan->setRange(kPan);
    }
    volume->setLive(any);
    pan->setLive(any);
    volume->slider()->setEnabled(any);
    pan->slider()->setEnabled(wav);
    for (QPushButton* button : panButtons_) {
        button->setEnabled(wav);
    }
    if (channel != nullptr) {
        channel->setEnabled(wav);
    }
}

/// What is heard of this sound stops.
void SoundSpec::silence() {
    sheet_.tools().preview.StopWav(k_);
    isStarted_ = false;
    if (movies_ != nullptr && movies_->isPlaying(playButton_)) {
        movies_->stop();
    }
    playButton_->setText(kIdle);
}

void SoundSpec::locate() {
    if (file->locate(sheet_.tools().files)) {
        sheet_.touch();
        Q_EMIT fileChosen();
    }
}

void SoundSpec::Playwav_Click() {
    const QString name = file->text();
    forms::Preview& preview = sheet_.tools().preview;
    if (name.isEmpty()) {
        return;
    }
    if (movies_ != nullptr && !isWav()) {
        file->previewBegins();
        movies_->toggle(playButton_, name, volume->value());
        return;
    }
    if (play_ == Play::once) {
        preview.StopAllWavs();
        Q_EMIT sheet_.soundsStopped();
        start(false);
        return;
    }
    if (playButton_->text() == kPlaying) {
        silence();
        return;
    }
    if (alone_) {
        preview.StopAllWavs();
        Q_EMIT sheet_.soundsStopped();
    }
    start(true);
    playButton_->setText(kPlaying);
}

void SoundSpec::start(bool loop) {
    file->previewBegins();
    isStarted_ = true;
    sheet_.tools().preview.PlayWav(file->text(), volume->value(), pan->value(), k_, loop);
}

void SoundSpec::fill(QVBoxLayout* column) {
    auto* first = new QHBoxLayout;
    first->addWidget(label_);
    first->addWidget(file, 1);
    first->addWidget(locate_);
    first->addWidget(playButton_);
    if (channel != nullptr) {
        first->addSpacing(forms::kFormSpacing);
        first->addWidget(channelLabel_);
        first->addWidget(channel);
    }
    column->addLayout(first);
    column->addWidget(file->note);
    auto* second = new QHBoxLayout;
    second->addWidget(volumeLabel_);
    second->addWidget(volume->slider(), 1);
    second->addWidget(volume->box());
    second->addSpacing(forms::kFormSpacing);
    second->addWidget(panLabel_);
    second->addWidget(pan->slider(), 1);
    second->addWidget(pan->box());
    for (QPushButton* button : panButtons_) {
        second->addWidget(button);
    }
    column->addLayout(second);
}

void SoundSpec::addTo(QGridLayout* grid, int row) {
    addFileRow(
        grid, row,
        {label_, file, locate_, playButton_, volumeLabel_, volume->slider(), volume->box(),
         panLabel_, pan->slider(), pan->box(), panButtons_[0], panButtons_[1], panButtons_[2]},
        *file);
}

}  // namespace quorvel::groups
