/// The splash: the heavy windows load while its bar moves.
#pragma once

#include <functional>
#include <vector>

#include <QTimer>
#include <QWidget>

class QLabel;
class QProgressBar;

namespace quorvel::shell {

/// Four timers drive it; their order is the design.
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

  private:
    void build();
    void LoadForms();
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
};

}  // namespace quorvel::shell
