// Windows with a list of scenes, where the picture of the scene that is shown is not on the disk.
#include <gtest/gtest.h>

#include "objects/editor_author.h"
#include "store/objects.h"

namespace quorvel::test {
namespace {

using store::HeaderInt;
using store::HeaderString;
using store::HotSpot;
using store::LinkSide;

class LinkedScene : public EditorAuthor {
  protected:
    static constexpr int kSlot = 3;
    static constexpr int kHere = 1;
    static constexpr int kWhole = 2;
    static constexpr int kGone = 3;
    static constexpr int kBare = 4;

    /// A window over a field that names a scene.
    struct Window {
        const char* list;
        std::function<void(int)> put;
        std::function<void(const std::function<void(const Hand&)>&)> open;
    };

    LinkedScene() {
        open(ProjectBuilder()
                 .scenes(4)
                 .scene(kWhole, "Cellar", "cellar.gif")
                 .scene(kGone, "Attic", "gone.gif")
                 .scene(kBare, "Roof")
                 .gfx("cellar.gif", stillGif(60, 40)));
        scene().header(HeaderString::SceneImage) = "gone too.gif";
        store::ResetSlot(slot(kSlot), store::ObjectType::hotSpot, 100, 120);
        main().view().ShowObject(kSlot);
    }

    std::vector<Window> windows() {
        const auto edit = [this](auto how) {
            return
                [this, how](const std::function<void(const Hand&)>& author) { how(this, author); };
        };
        std::int16_t& link = scene().link(LinkSide::up).target;
        std::int16_t& spot = store::number(slot(kSlot), HotSpot::TargetScene);
        std::int16_t& flag = scene().header(HeaderInt::SceneCheckFlagTarget);
        const auto over = [](std::int16_t& field) {
            return [&field](int number) { field = static_cast<std::int16_t>(number); };
        };
        return {{"combo2", over(link), edit([](LinkedScene* at, const auto& author) {
                     at->editLink(static_cast<int>(LinkSide::up), author);
                 })},
                {"LnkScn", over(spot), edit([](LinkedScene* at, const auto& author) {
                     at->editObject(kSlot, QStringLiteral("linkPropf"), author);
                 })},
                {"tags", over(flag),
                 edit([](LinkedScene* at, const auto& author) { at->editScene(author); })}};
    }
    /// How often the author was told; it is all that he is told.
    int told() {
        QCoreApplication::processEvents();
        for (const QString& text : boxes.texts()) {
            EXPECT_EQ(text, QStringLiteral(
                                "Could not show preview of linked scene.  The file is missing."));
        }
        return static_cast<int>(boxes.shown().size());
    }
    /// Comes back to the window after another one.
    static void lookAgain(const Hand& hand) {
        QEvent again(QEvent::WindowActivate);
        QApplication::sendEvent(&hand.window(), &again);
    }
};

TEST_F(LinkedScene, AMissingPictureIsToldOnceWhenTheWindowIsFilledAndNotByComingBack) {
    for (const Window& window : windows()) {
        SCOPED_TRACE(window.list);
        window.put(kGone);
        boxes.forget();
        bool seen = false;
        boxes.whileShown = [&](const forms::Box&) {
            seen = QApplication::activeModalWidget() != nullptr &&
                   QApplication::activeModalWidget()->isVisible();
        };
        window.open([&](const Hand& hand) {
            EXPECT_EQ(told(), 1);
            EXPECT_TRUE(seen) << "the box lies over its window";
            EXPECT_EQ(hand.list(window.list).currentIndex(), kGone);
            lookAgain(hand);
            lookAgain(hand);
            EXPECT_EQ(told(), 1);
        });
        EXPECT_EQ(told(), 1);
        window.open([&](const Hand&) { EXPECT_EQ(told(), 2) << "the window was filled again"; });
    }
}

TEST_F(LinkedScene, AMissingPictureIsToldOncePerPick) {
    for (const Window& window : windows()) {
        SCOPED_TRACE(window.list);
        window.put(kWhole);
        boxes.forget();
        window.open([&](const Hand& hand) {
            EXPECT_EQ(told(), 0);
            hand.pick(window.list, kGone);
            EXPECT_EQ(told(), 1);
            hand.pick(window.list, kGone);
            EXPECT_EQ(told(), 2) << "the same once more";
            for (const int scene : {kBare, kWhole, 0, kHere}) {
                hand.pick(window.list, scene);
                EXPECT_EQ(told(), 2) << scene;
            }
            hand.pick(window.list, kGone);
            EXPECT_EQ(told(), 3);
            lookAgain(hand);
            EXPECT_EQ(told(), 3);
        });
    }
}

TEST_F(LinkedScene, APickIsStoredBeforeItIsToldOf) {
    scene().link(LinkSide::up) = {};
    int target = -1;
    boxes.whileShown = [&](const forms::Box&) { target = scene().link(LinkSide::up).target; };
    editLink(static_cast<int>(LinkSide::up), [](const Hand& hand) { hand.pick("combo2", kGone); });
    EXPECT_EQ(target, kGone);
}

TEST_F(LinkedScene, EachDirectionIsToldOfWhenItsTabIsTurnedTo) {
    scene().link(LinkSide::down).target = kGone;
    editLink(static_cast<int>(LinkSide::up), [this](const Hand& hand) {
        EXPECT_EQ(told(), 0);
        auto& tabs = hand.get<QTabBar>("TabStrip1");
        tabs.setCurrentIndex(static_cast<int>(LinkSide::down) - 1);
        EXPECT_EQ(told(), 1);
        tabs.setCurrentIndex(static_cast<int>(LinkSide::right) - 1);
        EXPECT_EQ(told(), 1);
    });
}

}  // namespace
}  // namespace quorvel::test
