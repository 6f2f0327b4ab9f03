#include "player/player_window.h"

#include <algorithm>

#include <QKeyEvent>
#include <QLabel>
#include <QLinearGradient>
#include <QPaintEvent>
#include <QPainter>
#include <QScreen>

#include "store/paths.h"

namespace quorvel::player {
namespace {

/// The ground of a game that has no picture of its own for it.
QImage builtInBackground() {
    QImage image(PlayerWindow::kWidth, PlayerWindow::kHeight, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient ground(0, 0, 0, PlayerWindow::kHeight);
    ground.setColorAt(0, QColor(0x2b3138));
    ground.setColorAt(1, QColor(0x171a1e));
    painter.fillRect(image.rect(), ground);
    return image;
}

QString messageText(const Game& game) {
    QString text = QStringLiteral("<h2>This game cannot be played</h2><p>%1</p>")
                       .arg(game.fault().toHtmlEscaped());
    if (!game.detail().isEmpty()) {
        text += QStringLiteral("<p><small>%1</small></p>").arg(game.detail().toHtmlEscaped());
    }
    return text + QStringLiteral(
                      "<p>The player has to lie in the folder of the game, beside the "
                      "folder “resource” with all of its files. If files are missing, "
                      "unpack the game once more.</p>");
}

}  // namespace

PlayerWindow::PlayerWindow(const std::filesystem::path& folder) : game_(folder), pointers_(game_) {
    setObjectName(QStringLiteral("PlayerWindow"));
    const bool isNamed = game_.fault().isEmpty() && !game_.title().isEmpty();
    setWindowTitle(isNamed ? game_.title() : QStringLiteral("Quorvel Player"));
    background_ = builtInBackground();
    for (const char* name : {"bggame.bmp", "bggame.jpg"}) {
        const auto file = store::findResource(folder, store::ResourceFolder::gfx, name);
        const forms::PicturePtr picture = file ? pictures_.load(*file) : nullptr;
        if (picture && picture->ok()) {
            background_ = picture->firstFrame();
            break;
        }
    }
    build();
}

void PlayerWindow::build() {
    stage_ = new QWidget(this);
    stage_->setObjectName(QStringLiteral("Stage"));
    stage_->setFixedSize(kWidth, kHeight);
    scene_ = new SceneWindow(game_, pictures_, pointers_, stage_);
    scene_->move(game_.sceneWindowPlace());
    scene_->hide();
    connect(scene_, &SceneWindow::leadsTo, this, &PlayerWindow::goTo);

    constexpr int kMargin = 40;
    message_ = new QLabel(stage_);
    message_->setObjectName(QStringLiteral("Message"));
    message_->setWordWrap(true);
    message_->setTextFormat(Qt::RichText);
    message_->setAlignment(Qt::AlignCenter);
    message_->setGeometry(stage_->rect().adjusted(kMargin, kMargin, -kMargin, -kMargin));
    message_->hide();
    setCursor(pointers_.pointer(0));
}

void PlayerWindow::showOn(const QScreen& screen) {
    const QRect area = screen.geometry();
    if (area.width() <= kWidth || area.height() <= kHeight) {
        stage_->move((area.width() - kWidth) / 2, (area.height() - kHeight) / 2);
        showFullScreen();
        return;
    }
    setFixedSize(kWidth, kHeight);
    QWidget::show();
    const QRect free = screen.availableGeometry();
    const QSize framed = frameGeometry().size();
    move(free.left() + std::max(0, (free.width() - framed.width()) / 2),
         free.top() + std::max(0, (free.height() - framed.height()) / 2));
}

void PlayerWindow::begin() {
    if (game_.fault().isEmpty()) {
        goTo(1);
    } else {
        tellFault();
    }
}

void PlayerWindow::goTo(int number) {
    const auto scene = game_.scene(number);
    if (!game_.fault().isEmpty()) {
        tellFault();
        return;
    }
    // A way to a scene that does not exist leads nowhere.
    if (scene) {
        currentScene_ = number;
        scene_->showScene(*scene);
        scene_->setVisible(true);
    }
}

void PlayerWindow::tellFault() {
    currentScene_ = 0;
    scene_->hide();
    message_->setText(messageText(game_));
    message_->show();
}

void PlayerWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(event);
}

void PlayerWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    painter.drawImage(stage_->pos(), background_, QRect(0, 0, kWidth, kHeight));
}

}  // namespace quorvel::player
