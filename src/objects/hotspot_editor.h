/// The editor of HotSpots.
#pragma once

#include "groups/choices.h"
#include "groups/flags.h"
#include "groups/image_choice.h"
#include "groups/item_requirement.h"
#include "groups/sound_spec.h"
#include "objects/object_editor.h"

namespace quorvel::objects {

/// A HotSpot is its picture, whose size it has, or a QuickSpot: a rectangle of a typed size. A file
/// may stay chosen while it is a QuickSpot.
class linkPropf  // NOLINT(readability-identifier-naming): the window's system name
    : public ObjectEditor {
    Q_OBJECT
  public:
    linkPropf(const House& house, const std::function<void()>& help, QWidget* parent);

  protected:
    void filled() override;
    bool check() override;

  private:
    static constexpr int kImageSpot = 0;
    static constexpr int kQuickSpot = 1;
    static constexpr int kToScene = 1;
    static constexpr int kPingPong = 2;

    // The groups, each column from top to bottom.
    void buildAppearance(QVBoxLayout* column);
    void buildTarget(QVBoxLayout* column);
    void buildSounds(QVBoxLayout* column);
    void bindFields();

    void Option4_Click(int style);
    void askAboutImage();
    void Command7_Click();
    /// The boxes of the size, and the sample where there is no file.
    void followStyle();
    void showSize();
    void followAnimation();
    void followTarget();

    groups::ImageChoice* image_ = nullptr;
    groups::OptionGroup* style_ = nullptr;
    groups::NumberBox* height_ = nullptr;
    groups::NumberBox* width_ = nullptr;
    groups::OptionGroup* animation_ = nullptr;
    QCheckBox* once_ = nullptr;
    groups::OptionGroup* targetKind_ = nullptr;
    groups::SceneChoice* target_ = nullptr;
    groups::PointerChoice* pointer_ = nullptr;
    groups::Grouping* grouping_ = nullptr;
    groups::Visibility* visibility_ = nullptr;
    groups::FlagSet* set_ = nullptr;
    groups::SoundSpec* sound_ = nullptr;
    groups::SoundSpec* success_ = nullptr;
    groups::ItemRequirement* item_ = nullptr;
};

}  // namespace quorvel::objects
