/// The editor of the four edge links.
#pragma once

#include "groups/choices.h"
#include "groups/property_form.h"
#include "objects/house.h"

class QTabBar;

namespace quorvel::objects {

/// Every choice goes into the link at once, there is nothing to apply and no way back.
class directionprop  // NOLINT(readability-identifier-naming): the window's system name
    : public groups::PropertyForm {
    Q_OBJECT
  public:
    /// Opens on the direction in `CurObj`, 1 to 4.
    directionprop(const House& house, const std::function<void()>& help, QWidget* parent);

    /// Shows the link of "LEFT", "UP", "RIGHT" or "DOWN" and makes it the one that is edited.
    void ShowDirection(const QString& direction);

  protected:
    void filled() override;

  private:
    [[nodiscard]] store::LinkSide side() const { return static_cast<store::LinkSide>(CurObj_); }
    void Combo1_Click(int pointer);
    void combo2_Click(int scene);

    House house_;
    int& CurObj_;
    QTabBar* tabs_;
    groups::PointerChoice* pointer_;
    groups::SceneChoice* scene_;
};

}  // namespace quorvel::objects
