#include "support/windows/tip_reader.h"

#include <chrono>

#include <QLabel>
#include <QPushButton>

#include "shell/quick_tip.h"
#include "support/windows/played_author.h"

namespace quorvel::test {

TipReader::TipReader(shell::Shell& shell) {
    shell.settings().RestoreQuickTips();
    QObject::connect(&look_, &QTimer::timeout, &look_, [this] { read(); });
    look_.start(std::chrono::milliseconds(2));
}

void TipReader::read() {
    QWidget* window = visibleWindow(QStringLiteral("QuickTip"));
    if (window == nullptr) {
        return;
    }
    const QString text = control<QLabel>(*window, QStringLiteral("TipText")).text();
    for (int tip = 1; tip <= shell::kQuickTips; ++tip) {
        if (shell::quickTipText(tip) == text) {
            tips.push_back(tip);
        }
    }
    if (whileRead) {
        whileRead();
    }
    control<QPushButton>(*window, QStringLiteral("Command1")).click();
}

}  // namespace quorvel::test
