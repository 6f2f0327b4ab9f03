/// The editor of the scene itself: the header of its record.
#pragma once

#include "groups/choices.h"
#include "groups/flags.h"
#include "groups/image_choice.h"
#include "groups/movie_row.h"
#include "groups/property_form.h"
#include "groups/sound_spec.h"
#include "groups/soundtrack_row.h"
#include "objects/house.h"

namespace quorvel::objects {

/// Edits the scene that is on the canvas; what is stored shows there and in all lists at once.
class sceneimage  // NOLINT(readability-identifier-naming): the window's system name
    : public groups::PropertyForm {
    Q_OBJECT
  public:
    sceneimage(const House& house, const std::function<void()>& help, QWidget* parent);

  protected:
    void filled() override;
    void stored() override;
    void closed() override { house_.CurObj = 0; }

  private:
    static constexpr int kEnter = 4;  // index of the movies
    static constexpr int kExit = 5;

    // The groups, each column from top to bottom.
    void buildScene(QVBoxLayout* column);
    void buildCheckFlag(QVBoxLayout* column);
    void buildMedia(QVBoxLayout* column);
    groups::MovieRow* makeMovie(int index, const char* spoken, const char* label, QWidget* parent);
    void bindFields();

    [[nodiscard]] groups::NumberRef field(store::HeaderInt number) const {
        return house_.scene.header(number);
    }
    [[nodiscard]] groups::TextRef field(store::HeaderString text) const {
        return house_.scene.header(text);
    }

    House house_;
    QLabel* number_ = nullptr;
    QLineEdit* name_ = nullptr;
    groups::ImageChoice* image_ = nullptr;
    QCheckBox* checkOn_ = nullptr;
    groups::FlagTest* check_ = nullptr;
    groups::SceneChoice* target_ = nullptr;
    groups::FlagSet* set_ = nullptr;
    groups::MoviePlay movies_;
    groups::MovieRow* enterMovie_ = nullptr;
    groups::MovieRow* exitMovie_ = nullptr;
    groups::SoundtrackRow* soundtrack_ = nullptr;
    std::array<groups::SoundSpec*, 3> sounds_{};
};

}  // namespace quorvel::objects
