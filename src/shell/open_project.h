/// The window that shows how the opening of a project goes on.
#pragma once

#include <functional>

#include <QTimer>

#include "forms/form.h"
#include "shell/project_loader.h"

class QLabel;
class QProgressBar;

namespace quorvel::shell {

/// Timers let the window paint between the stages; the work is done in their events.
class OpenProj : public forms::Form, public LoadProgress {
    Q_OBJECT
  public:
    struct Work {
        std::function<bool(LoadProgress&)> load;  ///< opens the project; false when it gave up
        std::function<void()> afterLoad;          ///< the tasks while the window still stands
    };
    OpenProj(store::Project& project, Work work, QWidget* parent);

    void showStatus(const QString& text) override;
    void step() override;
    void unload() override;
    [[nodiscard]] bool isWorking() const override { return true; }

  protected:
    void showEvent(QShowEvent* event) override;
    void reject() override;

  private:
    void build();
    void Timer1_Timer();
    void Timer2_Timer();
    void Timer3_Timer();

    store::Project& project_;
    Work work_;
    QLabel* heading_ = nullptr;
    QLabel* status_ = nullptr;
    QLabel* perc_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QTimer timer1_;
    QTimer timer2_;
    QTimer timer3_;
    int stepsDone_ = 0;
    bool loaded_ = false;
};

}  // namespace quorvel::shell
