/// The author and the machine, played by a test.
#pragma once

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <ostream>
#include <vector>

#include <QMap>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "forms/boxes.h"
#include "forms/file_dialogs.h"
#include "resources/programs.h"

/// Lets a failed comparison print the text instead of its code units.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace quorvel::test {

/// Boxes that nobody sees: they are kept in order and answered from a script. A question that the
/// script does not expect fails the test.
class PlayedBoxes : public forms::Boxes {
  public:
    forms::Answer show(const forms::Box& box) override;

    /// The answer of the next question; several calls answer several questions in order.
    PlayedBoxes& answer(forms::Answer answer);

    [[nodiscard]] const std::vector<forms::Box>& shown() const { return shown_; }
    /// Texts of all boxes so far.
    [[nodiscard]] QStringList texts() const;
    void forget() { shown_.clear(); }

    /// Runs while a box is on the screen.
    std::function<void(const forms::Box&)> whileShown;

  private:
    std::vector<forms::Box> shown_;
    std::deque<forms::Answer> answers_;
};

/// A file dialog that chooses `choice`, or is left when that is empty.
class PlayedDialogs : public forms::FileDialogs {
  public:
    forms::FileAnswer openFile(const forms::FileQuestion& question) override {
        return {answer(question), kind < 0 ? question.kind : kind};
    }
    QString chooseFolder(const forms::FileQuestion& question) override { return answer(question); }
    QString choice;
    int kind = -1;  ///< the kind of files that is chosen; below 0 the one that is offered
    std::vector<forms::FileQuestion> asked;
    /// Runs while the dialog is on the screen.
    std::function<void()> whileAsked;

  private:
    QString answer(const forms::FileQuestion& question) {
        asked.push_back(question);
        if (whileAsked) {
            whileAsked();
        }
        return choice;
    }
};

/// Programs that are never started.
class PlayedPrograms : public resources::Programs {
  public:
    bool start(const QString& commandLine) override {
        started << commandLine;
        return succeed;
    }
    bool openUrl(const QString& address) override {
        visited << address;
        return succeed;
    }
    bool run(const QString& program, const QStringList& arguments, const QString& folder) override {
        started << (QStringList(program) + arguments).join(QLatin1Char('|'));
        folders << folder;
        return whenRun ? whenRun(program, arguments) : succeed;
    }
    QString find(const QString& name) override { return installed.value(name); }
    bool succeed = true;
    QStringList started;  ///< command lines; of `run` program and arguments with "|" between
    QStringList visited;  ///< addresses of the web
    QStringList folders;  ///< of `run`
    QMap<QString, QString> installed;  ///< paths of programs by their names
    /// Answers `run` instead of `succeed`, for tests that start the real thing.
    std::function<bool(const QString& program, const QStringList& arguments)> whenRun;
};

/// The control `name` of `window`; the test ends when there is none.
template <class Control>
Control& control(const QObject& window, const QString& name) {
    auto* found = window.findChild<Control*>(name);
    if (found == nullptr) {
        throw std::runtime_error("no control " + name.toStdString());
    }
    return *found;
}

/// Lets the event loop run until `condition` holds; false when it still does not after `ms`.
bool waitUntil(const std::function<bool()>& condition, int ms = 5000);

/// The top-level window `name` that is on the screen, or null.
QWidget* visibleWindow(const QString& name);

/// Runs `routine`, which shows the modal window `name`, and lets `author` use the window while it
/// stands. Fails the test when the window does not appear.
void withWindow(const QString& name, const std::function<void()>& routine,
                const std::function<void(QWidget&)>& author);

}  // namespace quorvel::test
