#include "shell/splash.h"

#include <chrono>
#include <utility>

#include <QLabel>
#include <QPainter>
#include <QProgressBar>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include "forms/events.h"
#include "forms/look.h"
#include "shell/editor_settings.h"

namespace quorvel::shell {
namespace {

using namespace std::chrono_literals;

/// The bar's value above which the forms count as loaded.
constexpr int kBarGoal = 19;
constexpr QSize kSize(420, 260);
const QString kStarting = QStringLiteral("Starting Quorvel");

QLabel* addLabel(QVBoxLayout* column, const char* name, const QString& text, double scale,
                 bool bold) {
    auto* label = new QLabel(text);
    label->setObjectName(QString::fromLatin1(name));
    label->setAlignment(Qt::AlignHCenter);
    QFont font = label->font();
    font.setPointSizeF(font.pointSizeF() * scale);
    font.setBold(bold);
    label->setFont(font);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(0xe8ecef));
    label->setPalette(palette);
    column->addWidget(label);
    return label;
}

}  // namespace

InitQV::InitQV(Work work) : QWidget(nullptr, Qt::SplashScreen), work_(std::move(work)) {
    setObjectName(QStringLiteral("InitQV"));
    setWindowTitle(QStringLiteral("Quorvel"));
    build();
    timer2_.setInterval(1000ms);
    pBar_.setInterval(120ms);
    timer1_.setInterval(300ms);
    timer3_.setInterval(2000ms);
    connect(&timer1_, &QTimer::timeout, this, &InitQV::Timer1_Timer);
    connect(&timer2_, &QTimer::timeout, this, &InitQV::Timer2_Timer);
    connect(&timer3_, &QTimer::timeout, this, &InitQV::Timer3_Timer);
    connect(&pBar_, &QTimer::timeout, this, &InitQV::PBar_Timer);
}

void InitQV::build() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(32, 24, 32, 20);
    column->setSpacing(4);
    auto* emblem = new QLabel(this);
    emblem->setPixmap(forms::icon(QStringLiteral("quorvel")).pixmap(QSize(72, 72)));
    emblem->setAlignment(Qt::AlignHCenter);
    column->addWidget(emblem);
    addLabel(column, "Title", QStringLiteral("Quorvel"), 2.0, true);
    addLabel(column, "Label4", QStringLiteral("Version ") + kEditorVersion, 1.0, false);
    addLabel(column, "Label2", QStringLiteral("Tessaroon Works"), 1.0, false);
    column->addStretch();
    label1_ = addLabel(column, "Label1", QStringLiteral("Please wait while Quorvel initializes..."),
                       1.0, false);
    bar_ = new QProgressBar(this);
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setRange(0, kBarGoal + 1);
    bar_->setValue(0);
    bar_->setTextVisible(false);
    bar_->setMaximumHeight(10);
    column->addWidget(bar_);
    column->addSpacing(4);
    addLabel(column, "Label3", QStringLiteral("This program is freeware!"), 0.9, false);
    // Large letters need more than the usual size.
    setFixedSize(kSize.expandedTo(sizeHint()));
}

void InitQV::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    if (screen() != nullptr) {
        move(screen()->availableGeometry().center() - rect().center());
    }
    timer2_.start();
    timer1_.start();
}

void InitQV::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    QLinearGradient dusk(0, 0, 0, height());
    dusk.setColorAt(0.0, QColor(0x2a2350));
    dusk.setColorAt(0.65, QColor(0x3c4a78));
    dusk.setColorAt(1.0, QColor(0x22605f));
    painter.fillRect(rect(), dusk);
    painter.setPen(QColor(255, 255, 255, 60));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void InitQV::mousePressEvent(QMouseEvent* /*event*/) {
    endWaiting();
}

void InitQV::keyPressEvent(QKeyEvent* /*event*/) {
    endWaiting();
}

void InitQV::endWaiting() {
    if (isStarted_) {
        return;
    }
    timer1_.stop();
    timer2_.stop();
    timer3_.stop();
    if (!isLoaded_) {
        LoadForms();
    }
    pBar_.stop();
    bar_->setValue(kBarGoal + 1);
    label1_->setText(kStarting);
    forms::letEventsRun();
    startEditor();
}

void InitQV::Timer2_Timer() {
    timer2_.stop();
    forms::letEventsRun();
    LoadForms();
}

void InitQV::LoadForms() {
    isLoaded_ = true;
    bar_->setValue(0);
    pBar_.start();
    for (const auto& loadForm : work_.loadForms) {
        loadForm();
        forms::letEventsRun();
        bar_->setValue(bar_->value() + 1);
    }
}

void InitQV::PBar_Timer() {
    bar_->setValue(bar_->value() + 1);
}

void InitQV::Timer1_Timer() {
    if (bar_->value() <= kBarGoal) {
        return;
    }
    timer1_.stop();
    pBar_.stop();
    label1_->setText(kStarting);
    timer3_.start();
}

void InitQV::Timer3_Timer() {
    timer3_.stop();
    startEditor();
}

void InitQV::startEditor() {
    isStarted_ = true;
    work_.initializeEditor();
    hide();
    forms::letEventsRun();
    Q_EMIT finished();
}

}  // namespace quorvel::shell
