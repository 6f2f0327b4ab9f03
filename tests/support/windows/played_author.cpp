#include "support/windows/played_author.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QTimer>

namespace quorvel::test {

using forms::Answer;
using forms::Box;

Answer PlayedBoxes::show(const Box& box) {
    shown_.push_back(box);
    if (whileShown) {
        whileShown(box);
    }
    if (box.buttons == Box::Buttons::ok && (box.other.isEmpty() || answers_.empty())) {
        return Answer::ok;
    }
    if (answers_.empty()) {
        ADD_FAILURE() << "unexpected question: " << box.text.toStdString();
        return box.buttons == Box::Buttons::yesNo ? Answer::no
               : box.buttons == Box::Buttons::ok  ? Answer::ok
                                                  : Answer::cancel;
    }
    const Answer answer = answers_.front();
    answers_.pop_front();
    return answer;
}

PlayedBoxes& PlayedBoxes::answer(Answer answer) {
    answers_.push_back(answer);
    return *this;
}

QStringList PlayedBoxes::texts() const {
    QStringList texts;
    for (const Box& box : shown_) {
        texts << box.text;
    }
    return texts;
}

bool waitUntil(const std::function<bool()>& condition, int ms) {
    QElapsedTimer clock;
    clock.start();
    while (!condition()) {
        if (clock.elapsed() > ms) {
            return false;
        }
        QTest::qWait(5);
    }
    return true;
}

QWidget* visibleWindow(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->objectName() == name && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

void withWindow(const QString& name, const std::function<void()>& routine,
                const std::function<void(QWidget&)>& author) {
    constexpr int kPatienceMs = 2000;
    bool used = false;
    QElapsedTimer waited;
    waited.start();
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        QWidget* window = visibleWindow(name);
        if (window == nullptr || used) {
            return;
        }
        // Keys go where the focus is, and that is nowhere before the window is active.
        if (!window->isActiveWindow() && waited.elapsed() < kPatienceMs) {
            return;
        }
        used = true;
        author(*window);
    });
    look.start(5);
    routine();
    EXPECT_TRUE(used) << "the window " << name.toStdString() << " did not appear";
}

}  // namespace quorvel::test
