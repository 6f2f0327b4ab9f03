/// What the editors of objects have in common.
#pragma once

#include "groups/property_form.h"
#include "objects/house.h"
#include "store/objects.h"

namespace quorvel::objects {

/// A window over the slot in `CurObj`. When its fields are stored, the canvas follows.
class ObjectEditor : public groups::PropertyForm {
    Q_OBJECT
  public:
    ObjectEditor(const QString& name, store::ObjectType type, const House& house, QWidget* parent);

  protected:
    [[nodiscard]] const House& house() const { return house_; }
    /// The slot's number, 1 to 20.
    [[nodiscard]] int object() const { return object_; }
    [[nodiscard]] store::ObjectSlot& slot() const { return house_.scene.slot(object_); }

    /// A field of the slot, to be bound.
    [[nodiscard]] groups::NumberRef field(store::NumberField field) const {
        return store::number(slot(), field);
    }
    [[nodiscard]] groups::TextRef field(store::WordField field) const {
        return store::word(slot(), field);
    }

    /// "Object Index #" and the slot's number, for the foot of the window.
    QLayout* indexRow(const char* name);

    void stored() override {
        house_.view.ShowObject(object_);
        house_.view.followPictureFiles();
    }
    void closed() override { house_.CurObj = 0; }

  private:
    House house_;
    int object_;
};

}  // namespace quorvel::objects
