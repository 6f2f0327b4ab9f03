/// A screen of its own for real programs, with a hand on the mouse and an eye on the picture.
#pragma once

#include <memory>

#include <QColor>
#include <QImage>
#include <QPoint>
#include <QProcess>
#include <QSize>
#include <QString>

namespace quorvel::test {

/// Runs Xvfb as long as it lives. Pictures and clicks are made by ImageMagick and xdotool.
class VirtualScreen {
  public:
    explicit VirtualScreen(QSize size);
    ~VirtualScreen();
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

    /// Why there is no screen; empty when there is one.
    [[nodiscard]] const QString& whyNot() const { return whyNot_; }

    /// Starts `program` on the screen. Whoever gets the process ends it.
    [[nodiscard]] std::unique_ptr<QProcess> start(const QString& program,
                                                  const QStringList& arguments) const;
    [[nodiscard]] QImage picture() const;
    /// Waits until the pixel at `at` has this colour; false when it still has not after `ms`.
    [[nodiscard]] bool waitForColour(QPoint at, const QColor& colour, int ms = 20000) const;
    /// Moves the mouse there and clicks with its left button.
    void click(QPoint at) const;

  private:
    QByteArray run(const QString& tool, const QStringList& arguments) const;

    QProcess xvfb_;
    QString display_;
    QString whyNot_;
};

}  // namespace quorvel::test
