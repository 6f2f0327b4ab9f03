/// Goes over all controls of a property window: what each of them changes, and what it leaves.
///
/// A window is swept when it has a function that tells about it, `SweptWindow`, and a line in the
/// list of `editor_sweep_test.cpp`.
#pragma once

#include "objects/editor_author.h"
#include "objects/random_records.h"
#include "objects/sweep_table.h"

namespace quorvel::test {

inline Fields asTheyAre(Fields fields) {
    return fields;
}

/// A window over a record of random content.
struct SweptWindow {
    /// Opens the window and lets the author act in it.
    std::function<void(const std::function<void(const Hand&)>&)> open;
    /// The record as it is now, and all else that is open for writing beside it.
    std::function<Fields()> fields;
    std::function<std::string()> others;
    /// Puts the record back to what is swept.
    std::function<void()> reset;
    /// What opening the window makes of the fields by itself.
    std::function<Fields(Fields)> opened = asTheyAre;
    /// What every save makes of them, whatever was changed.
    std::function<Fields(Fields)> settled = asTheyAre;
    SweepTable table;
    /// Apply and Cancel are empty for a window that writes at once.
    struct Buttons {
        std::string apply = {};
        std::string cancel = {};
        std::string ok;
        std::string help;
    } buttons;
};

/// The project of a sweep, with something to choose for every control: four scenes, three items,
/// locations and cards, pictures and media of two names each; an object in slot 7, and others.
class SweepStage : public EditorAuthor {
  public:
    SweepStage();

    using EditorAuthor::boxes;
    using EditorAuthor::editLink;
    using EditorAuthor::editObject;
    using EditorAuthor::editScene;
    using EditorAuthor::main;
    using EditorAuthor::scene;
    using EditorAuthor::slot;

    static constexpr int kSlot = 7;
    static constexpr int kScenes = 4;

    /// The whole scene in memory as bytes, but for what `blank` makes the same.
    std::string sceneBytes(const std::function<void(store::Scene&)>& blank);

  protected:
    /// OK without a change leaves every byte; so does Cancel after a change; and OK after a change
    /// of one control changes what the table says, and nothing else. Of a list the entries on both
    /// sides are picked.
    void sweep(const SweptWindow& window);
    /// Every input control of the window stands in the table, and the table names no other.
    static void expectCovered(const SweptWindow& window);
    /// A change that the author makes: of a list to the next entry or to the one before.
    struct Move {
        std::string control;
        bool back = false;
    };
    /// The changes of controls in the table that the author can make in this record.
    static std::vector<Move> moves(const SweptWindow& window);

  private:
    void leavesAll(const SweptWindow& window, const std::string& button, const Move* move);
    void changesItsField(const SweptWindow& window, const Move& move);
    void make(const Hand& hand, const Move& move, const Effect& effect);
};

// The windows, each over a record of `dice`.
SweptWindow sweptLink(SweepStage& stage, Dice& dice, store::LinkSide side);
SweptWindow sweptHotSpot(SweepStage& stage, Dice& dice);
SweptWindow sweptScene(SweepStage& stage, Dice& dice);

}  // namespace quorvel::test
