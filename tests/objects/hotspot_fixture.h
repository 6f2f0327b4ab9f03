/// A HotSpot in a small game, and its window.
#pragma once

#include "objects/editor_author.h"

namespace quorvel::test {

class HotSpotEditor : public EditorAuthor {
  protected:
    void openGame() {
        open(ProjectBuilder()
                 .scenes(3)
                 .scene(2, "Cellar", "cellar.gif")
                 .items(2)
                 .item(1, "Key", "key.gif")
                 .item(2, "Rope")
                 .gfx("cellar.gif", stillGif(60, 40))
                 .gfx("key.gif", stillGif(16, 16))
                 .gfx("door.gif", stillGif(40, 30))
                 .gfx("flag.gif", stillGif(20, 25))
                 .mmedia("wind.wav", "w")
                 .mmedia("bang.wav", "b"));
        store::ResetSlot(slot(kSlot), store::ObjectType::hotSpot, 100, 120);
        main().view().ShowObject(kSlot);
    }
    void edit(const std::function<void(const Hand&)>& author) {
        editObject(kSlot, QStringLiteral("linkPropf"), author);
    }
    std::int16_t number(store::NumberField field) { return store::number(slot(kSlot), field); }
    std::string word(store::WordField field) { return store::word(slot(kSlot), field); }
    void put(store::NumberField field, int value) {
        store::number(slot(kSlot), field) = static_cast<std::int16_t>(value);
    }
    void put(store::WordField field, const char* value) {
        store::word(slot(kSlot), field) = value;
        main().view().ShowObject(kSlot);
    }
    QWidget& animation() { return control<QWidget>(main(), QStringLiteral("Animation(3)")); }
    QWidget& quickSpot() { return control<QWidget>(main(), QStringLiteral("NoGIF(3)")); }

    static constexpr int kSlot = 3;
};

}  // namespace quorvel::test
