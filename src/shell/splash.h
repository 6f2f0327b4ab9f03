/// The splash: the heavy windows load while its bar moves.
#pragma once

#include <functional>
#include <vector>

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace quorvel::shell {

/// Four timers drive it; their order is the design. A click or a key ends what is only waiting; the
/// work is done all the same and in the same order.
class InitQV : public QWidget {
    Q_OBJECT
  public:
    struct Work {
        std::vector<std::function<void()>> loadForms;  ///< one step of the bar each
        std::function<void()> initializeEditor;
    };
    explicit InitQV(Work work);

  Q_SIGNALS:
    /// The editor runs and the splash is hidden.
    void finished();

  protected:
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void build();
    void LoadForms();
    void startEditor();
    void endWaiting();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();
    void PBar_Timer();

    Work work_;
    QLabel* label1_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QTimer timer1_;
    QTimer timer2_;
    QTimer timer3_;
    QTimer pBar_;
    bool isLoaded_ = false;   ///< the forms are, or are about to be
    bool isStarted_ = false;  ///< the same of the editor
};

}  // namespace quorvel::shell
