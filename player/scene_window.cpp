#include "player/scene_window.h"

#include <algorithm>

#include <QMouseEvent>
#include <QPainter>

#include "canvas/object_kinds.h"
#include "forms/form.h"
#include "player/visibility.h"
#include "store/numbers.h"
#include "store/objects.h"
#include "store/paths.h"

namespace quorvel::player {

ClickArea::ClickArea(QWidget* parent) : QWidget(parent) {
    hide();
}

void ClickArea::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()) &&
        target != 0) {
        Q_EMIT leadsTo(target);
    }
}

SceneWindow::SceneWindow(const Game& game, forms::PictureStore& pictures, Pointers& pointers,
                         QWidget* parent)
    : QWidget(parent), game_(game), pictures_(pictures), pointers_(pointers) {
    setObjectName(QStringLiteral("SceneWindow"));
    setFixedSize(kWidth, kHeight);
    setAttribute(Qt::WA_OpaquePaintEvent);
    const auto newArea = [this](const char* name, int index) {
        auto* area = new ClickArea(this);
        area->setObjectName(forms::elementName(QString::fromLatin1(name), index));
        // Queued: the scene that the area belongs to leaves the window.
        connect(area, &ClickArea::leadsTo, this, &SceneWindow::leadsTo, Qt::QueuedConnection);
        return area;
    };
    for (const store::LinkSide side : store::kLinkSides) {
        const int n = static_cast<int>(side);
        links_[static_cast<std::size_t>(n)] = newArea("Link", n);
    }
    for (int k = 1; k <= store::kSlotCount; ++k) {
        auto* object = new canvas::PictureElement(k, this);
        object->setObjectName(forms::elementName(QStringLiteral("Animation"), k));
        object->setAttribute(Qt::WA_TransparentForMouseEvents);
        objects_[static_cast<std::size_t>(k)] = object;
        areas_[static_cast<std::size_t>(k)] = newArea("Area", k);
    }
}

void SceneWindow::showScene(const store::Scene& scene) {
    setUpdatesEnabled(false);
    const forms::PicturePtr background = picture(scene.header(store::HeaderString::SceneImage));
    image_ = background ? background->firstFrame() : QImage();
    setCursor(pointers_.pointer(0));
    for (const store::LinkSide side : store::kLinkSides) {
        showLink(scene, side);
    }
    for (int k = 1; k <= store::kSlotCount; ++k) {
        showObject(scene.slot(k), k);
    }
    setUpdatesEnabled(true);
    update();
}

/// The picture of that name, or null where the project has none that can be shown.
forms::PicturePtr SceneWindow::picture(const std::string& name) const {
    const auto file = store::findResource(game_.folder(), store::ResourceFolder::gfx, name);
    if (!file) {
        return nullptr;
    }
    forms::PicturePtr loaded = pictures_.load(*file);
    return loaded->ok() ? loaded : nullptr;
}

void SceneWindow::showArea(ClickArea& area, const canvas::Place& place, int target, int pointer) {
    area.setGeometry(place.left, place.top, std::max<int>(place.width, 0),
                     std::max<int>(place.height, 0));
    area.target = target;
    area.setCursor(pointers_.pointer(pointer));
    area.setVisible(true);
}

void SceneWindow::showLink(const store::Scene& scene, store::LinkSide side) {
    const store::EdgeLink& link = scene.link(side);
    ClickArea& area = *links_[static_cast<std::size_t>(side)];
    // A link without a scene behind it is not there for the player of a game.
    area.setVisible(false);
    if (link.target != 0) {
        showArea(area, {link.left, link.top, link.width, link.height}, link.target, link.pointer);
    }
}

void SceneWindow::showObject(const store::ObjectSlot& slot, int k) {
    canvas::PictureElement& object = *objects_[static_cast<std::size_t>(k)];
    ClickArea& area = *areas_[static_cast<std::size_t>(k)];
    object.setShown(false);
    object.setPicture(nullptr);
    area.setVisible(false);
    if (!isVisibleAtStart(slot)) {
        return;
    }
    canvas::Place place{store::number(slot, store::kLeft), store::number(slot, store::kTop), 0, 0};
    if (store::isQuickSpot(slot)) {
        const auto side = [&slot](store::WordField field) {
            return canvas::pixel(
                std::max(store::valInt(store::word(slot, field)), store::HotSpot::kLeastSide));
        };
        place.width = side(store::HotSpot::QuickWidth);
        place.height = side(store::HotSpot::QuickHeight);
    } else {
        const forms::PicturePtr shown = picture(store::word(slot, store::kPicture));
        if (!shown) {
            return;
        }
        object.setPicture(shown);
        object.moveTo(place.left, place.top);
        object.playhead().setMode(canvas::displayModeOf(slot));
        object.setShown(true);
        if (movesByItself(slot)) {
            object.playhead().play();
        }
        place = object.place();
    }
    // Scenery lets the click through to what lies below it.
    if (store::typeOf(slot) != store::ObjectType::ambient) {
        showArea(area, place, sceneBehind(slot), pointerOver(slot));
    }
}

void SceneWindow::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), Qt::black);
    painter.drawImage(0, 0, image_);
}

}  // namespace quorvel::player
