/// The window that inserts an object into the scene.
#pragma once

#include <array>
#include <functional>

#include "forms/boxes.h"
#include "forms/form.h"
#include "store/objects.h"

class QComboBox;
class QRadioButton;

namespace quorvel::canvas {

class newlink : public forms::Form {  // NOLINT(readability-identifier-naming): the system name
    Q_OBJECT
  public:
    /// `scene` must outlive the window. Without `help` the Help button is disabled.
    newlink(const store::Scene& scene, forms::Boxes& boxes, const std::function<void()>& help,
            QWidget* parent);

    // What the author chose, once the window was accepted.
    store::ObjectType chosenType = store::ObjectType::free;
    int chosenIndex = 0;  ///< 1 to 20

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void build(const std::function<void()>& help);
    void fillFreeIndexes();
    void Command3_Click();

    const store::Scene& scene_;
    forms::Boxes& boxes_;
    std::array<QRadioButton*, store::kObjectTypes> options_{};
    QComboBox* indexes_ = nullptr;
};

}  // namespace quorvel::canvas
