#include "shell/open_project.h"

#include <chrono>
#include <utility>

#include <QLabel>
#include <QProgressBar>
#include <QShowEvent>
#include <QVBoxLayout>

#include "forms/events.h"
#include "store/numbers.h"

namespace quorvel::shell {
namespace {

using namespace std::chrono_literals;

constexpr int kReaders = 5;
constexpr int kStepPercent = 20;

QLabel* addLabel(QVBoxLayout* column, const char* name, const char* text) {
    auto* label = new QLabel(QString::fromLatin1(text));
    label->setObjectName(QString::fromLatin1(name));
    column->addWidget(label);
    return label;
}

}  // namespace

OpenProj::OpenProj(store::Project& project, Work work, QWidget* parent)
    : Form(QStringLiteral("OpenProj"), QStringLiteral("Quorvel"), parent),
      project_(project),
      work_(std::move(work)) {
    build();
    timer1_.setInterval(50ms);
    timer2_.setInterval(50ms);
    timer3_.setInterval(250ms);
    connect(&timer1_, &QTimer::timeout, this, &OpenProj::Timer1_Timer);
    connect(&timer2_, &QTimer::timeout, this, &OpenProj::Timer2_Timer);
    connect(&timer3_, &QTimer::timeout, this, &OpenProj::Timer3_Timer);
}

void OpenProj::build() {
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setMinimumWidth(380);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(20, 16, 20, 18);
    column->setSpacing(3);
    heading_ = addLabel(column, "Label1", "Loading Project...");
    QFont large = heading_->font();
    large.setBold(true);
    large.setPointSizeF(large.pointSizeF() * 1.2);
    heading_->setFont(large);
    // Each caption stands close to what it names.
    column->addSpacing(forms::kFormSpacing);
    addLabel(column, "Label2", "Current Operation");
    status_ = addLabel(column, "Status", "Reading Project Information");
    column->addSpacing(forms::kFormSpacing);
    addLabel(column, "Label3", "Progress");

    bar_ = new QProgressBar(this);
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setRange(0, 100);
    bar_->setTextVisible(false);
    perc_ = new QLabel(QStringLiteral("0%"), this);
    perc_->setObjectName(QStringLiteral("Perc"));
    perc_->setMinimumWidth(perc_->fontMetrics().horizontalAdvance(QStringLiteral("100%")));
    perc_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    auto* row = new QHBoxLayout;
    row->addWidget(bar_, 1);
    row->addWidget(perc_);
    column->addLayout(row);
}

void OpenProj::showEvent(QShowEvent* event) {
    Form::showEvent(event);
    if (event->spontaneous()) {
        return;
    }
    project_.ProjectLoading = true;
    heading_->setText(QStringLiteral("Loading Project..."));
    stepsDone_ = 0;
    bar_->setValue(0);
    perc_->setText(QStringLiteral("0%"));
    timer2_.start();
}

void OpenProj::showStatus(const QString& text) {
    status_->setText(text);
    forms::letEventsRun();
}

void OpenProj::step() {
    bar_->setValue(bar_->value() + kStepPercent);
    const int percent = store::valInt(perc_->text().toStdString()) + kStepPercent;
    perc_->setText(QString::number(percent) + QLatin1Char('%'));
    ++stepsDone_;
}

void OpenProj::unload() {
    timer1_.stop();
    project_.ProjectLoading = false;
    done(Rejected);
}

void OpenProj::reject() {
    // Escape does not interrupt an open.
}

void OpenProj::Timer2_Timer() {
    timer2_.stop();
    timer1_.start();
    loaded_ = work_.load(*this);
    if (!loaded_) {
        unload();
    }
}

void OpenProj::Timer1_Timer() {
    if (!loaded_ || stepsDone_ != kReaders) {
        return;
    }
    bar_->setValue(100);
    perc_->setText(QStringLiteral("100%"));
    heading_->setText(QStringLiteral("Project Opened Successfully"));
    status_->setText(QStringLiteral("Complete"));
    project_.ProjectLoading = false;
    timer1_.stop();
    timer3_.start();
}

void OpenProj::Timer3_Timer() {
    timer3_.stop();
    project_.ProjectLoading = false;
    work_.afterLoad();
    done(Accepted);
}

}  // namespace quorvel::shell
