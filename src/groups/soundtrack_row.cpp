#include "groups/soundtrack_row.h"

#include <QGridLayout>

namespace quorvel::groups {

SoundtrackRow::SoundtrackRow(Sheet& sheet, const Names& names, QWidget* parent)
    : QObject(parent),
      file(new FileBox(name(names.file), QStringLiteral("Soundtrack, file"),
                       {.filter = forms::filters::kSoundtracks}, parent)),
      sheet_(sheet),
      label_(makeLabel(names.label, parent)),
      volumeLabel_(makeLabel("Vol >", parent)) {
    sheet.expectSound();
    file->setOrder(kStop);
    // In the order in which the Tab key visits them.
    locate_ =
        makeSmallButton(name(names.locate), "...", QStringLiteral("Soundtrack, locate"), parent);
    playButton_ =
        makeSmallButton(name(names.play), ">", QStringLiteral("Soundtrack, play"), parent);
    volume = new Level(name(names.slider), name(names.value), QStringLiteral("Soundtrack, volume"),
                       kWavVolume, parent);
    locate_->setToolTip(QStringLiteral("Locate"));
    playButton_->setToolTip(QStringLiteral("Play/ Stop"));
    followFile();
    connect(file, &QLineEdit::textChanged, this, [this] {
        if (!sheet_.isFilling()) {
            stop();
            sheet_.tools().preview.StopAllWavs();
        }
        followFile();
    });
    file->setClearable(
        kClearTip + QStringLiteral(".\nDouble-click the empty box to stop the soundtrack instead"));
    connect(file, &FileBox::clearWanted, this, &SoundtrackRow::cycle);
    connect(locate_, &QPushButton::clicked, this, &SoundtrackRow::locate);
    connect(playButton_, &QPushButton::clicked, this, [this] {
        if (playButton_->text() == kPlaying) {
            stop();
        } else {
            play();
        }
    });
    connect(&sheet, &Sheet::closing, this, &SoundtrackRow::stop);
    connect(&sheet, &Sheet::closing, file, &FileBox::forgetNote);
    connect(volume, &Level::moved, this, [this](int value) {
        sheet_.touch();
        if (playButton_->text() != kPlaying) {
            return;
        }
        if (kind() == Kind::mp3) {
            sheet_.tools().preview.SetMp3Volume(value);
        } else if (kind() == Kind::wav) {
            sheet_.tools().preview.SetWavVolume(kChannel, value);
        } else if (kind() == Kind::midi) {
            sheet_.tools().preview.SetMidiVolume(value);
        }
    });
    const forms::Preview& preview = sheet.tools().preview;
    const auto idle = [this] { playButton_->setText(kIdle); };
    const auto ended = [this, idle, &preview] {
        if (playButton_->text() == kPlaying) {
            file->previewEnded(preview.lastError());
        }
        idle();
    };
    connect(&sheet, &Sheet::soundsStopped, this, [this, idle] {
        if (kind() == Kind::wav) {
            idle();
        }
    });
    connect(&preview, &forms::Preview::mp3Ended, this, ended);
    connect(&preview, &forms::Preview::midiEnded, this, ended);
    connect(&preview, &forms::Preview::wavEnded, this, [ended](int channel) {
        if (channel == kChannel) {
            ended();
        }
    });
}

SoundtrackRow::Kind SoundtrackRow::kind() const {
    const QString ending = file->text().right(3).toLower();
    if (ending == QStringLiteral("mp3")) {
        return Kind::mp3;
    }
    if (ending == QStringLiteral("wav")) {
        return Kind::wav;
    }
    return ending == QStringLiteral("mid") ? Kind::midi : Kind::none;
}

void SoundtrackRow::followFile() {
    const bool any = !file->text().isEmpty() && file->text() != kStop;
    playButton_->setEnabled(any);
    volume->setValue(0);
    volume->setEnabled(any);
}

void SoundtrackRow::cycle() {
    file->setText(file->text().isEmpty() ? kStop : QString());
    sheet_.touch();
    Q_EMIT changed(!file->text().isEmpty());
}

void SoundtrackRow::locate() {
    if (file->locate(sheet_.tools().files)) {
        sheet_.touch();
        Q_EMIT changed(true);
    }
}

void SoundtrackRow::play() {
    forms::Preview& preview = sheet_.tools().preview;
    file->previewBegins();
    switch (kind()) {
        case Kind::mp3:
            preview.PlayMp3(file->text(), volume->value(), 0);
            break;
        case Kind::wav:
            preview.PlayWav(file->text(), volume->value(), 0, kChannel);
            break;
        case Kind::midi:
            preview.PlayMidi(file->text(), volume->value());
            break;
        case Kind::none:
            file->previewEnded(QStringLiteral("It does not know this ending."));
            return;
    }
    playButton_->setText(kPlaying);
}

void SoundtrackRow::stop() {
    forms::Preview& preview = sheet_.tools().preview;
    preview.StopMp3();
    preview.StopMidi();
    preview.StopWav(kChannel);
    playButton_->setText(kIdle);
}

void SoundtrackRow::addTo(QGridLayout* grid, int row) {
    addFileRow(grid, row,
               {label_, file, locate_, playButton_, volumeLabel_, volume->slider(), volume->box()},
               *file);
}

}  // namespace quorvel::groups
