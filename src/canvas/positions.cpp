// Where objects and links are: the check, the snapshot and its return.

#include <algorithm>
#include <cmath>

#include "canvas/scene_view.h"
#include "store/objects.h"

namespace quorvel::canvas {

bool SceneView::isOutOfScene(const PictureElement& element) const {
    const QSize size = element.naturalSize();
    if (!element.isShown() || size.isEmpty()) {
        return false;
    }
    // Single precision decides where exactly half is.
    const auto width = static_cast<float>(size.width());
    const auto height = static_cast<float>(size.height());
    const auto left = static_cast<float>(element.place().left);
    const auto top = static_cast<float>(element.place().top);
    constexpr auto kRight = static_cast<float>(kSceneWidth);
    constexpr auto kBottom = static_cast<float>(kSceneHeight);
    constexpr float kHalf = 0.5F;
    return (left < 0 && std::abs(left) / width > kHalf) ||
           (top < 0 && std::abs(top) / height > kHalf) ||
           (left + width > kRight && width / 2 > kRight - left) ||
           (top + height > kBottom && height / 2 > kBottom - top);
}

bool SceneView::CheckObjectPositions() const {
    return std::any_of(objects_.begin() + 1, objects_.end(),
                       [this](const PictureElement* element) { return isOutOfScene(*element); });
}

void SceneView::RestoreObjectPositions(int mode) {
    if (mode == 1) {
        rememberPositions();
    } else if (mode == 2) {
        putPositionsBack();
    }
}

void SceneView::rememberPositions() {
    const auto remember = [this](std::size_t entry, const Place& place) {
        SavedX[entry] = place.left;
        SavedY[entry] = place.top;
    };
    for (std::size_t k = 1; k <= kObjects; ++k) {
        SavedX[k] = kNoPlace;
        SavedY[k] = kNoPlace;
        if (objects_[k]->isShown()) {
            remember(k, objects_[k]->place());
        }
        if (quickSpots_[k]->isShown()) {
            remember(k, quickSpots_[k]->place());
        }
    }
    for (std::size_t n = 1; n <= kLinks; ++n) {
        remember(kObjects + n, links_[n]->place());
    }
}

void SceneView::forgetPosition(int k) {
    SavedX.at(static_cast<std::size_t>(k)) = kNoPlace;
    SavedY.at(static_cast<std::size_t>(k)) = kNoPlace;
}

void SceneView::putBack(int k, SceneElement& element) {
    const auto entry = static_cast<std::size_t>(k);
    if (!element.isShown()) {
        return;
    }
    element.moveTo(SavedX[entry], SavedY[entry]);
    store::ObjectSlot& slot = scene_.slot(k);
    store::number(slot, store::kLeft) = SavedX[entry];
    store::number(slot, store::kTop) = SavedY[entry];
}

void SceneView::putPositionsBack() {
    for (int k = 1; k <= kObjects; ++k) {
        const auto entry = static_cast<std::size_t>(k);
        if (SavedX[entry] != kNoPlace && SavedY[entry] != kNoPlace) {
            putBack(k, *objects_[entry]);
            putBack(k, *quickSpots_[entry]);
        }
    }
    for (std::size_t n = 1; n <= kLinks; ++n) {
        links_[n]->moveTo(SavedX[kObjects + n], SavedY[kObjects + n]);
    }
    followObjectAlert();
    redrawBorders();
}

void SceneView::DropElement(SceneElement& element, int left, int top) {
    element.moveTo(pixel(left), pixel(top));
    if (element.kind() == SceneElement::Kind::link) {
        storeLinkPlace(static_cast<std::size_t>(element.index()));
    } else {
        store::ObjectSlot& slot = scene_.slot(element.index());
        store::number(slot, store::kLeft) = element.place().left;
        store::number(slot, store::kTop) = element.place().top;
    }
    followObjectAlert();
    redrawBorders();
    say(statusOf(element));
}

void SceneView::followObjectAlert() {
    setObjectAlert(CheckObjectPositions());
}

bool SceneView::isObjectOut(int k) const {
    return isOutOfScene(*objects_[static_cast<std::size_t>(k)]);
}

Place SceneView::linkPlace(store::LinkSide side) const {
    return links_[static_cast<std::size_t>(side)]->place();
}

void SceneView::setLinkPlace(store::LinkSide side, const Place& place) {
    links_[static_cast<std::size_t>(side)]->setPlace(place);
    redrawBorders();
}

void SceneView::storeLinkPlace(std::size_t n) {
    store::EdgeLink& link = scene_.link(links_[n]->side());
    const Place& place = links_[n]->place();
    link.left = place.left;
    link.top = place.top;
    link.width = place.width;
    link.height = place.height;
}

void SceneView::StoreLinkPlaces() {
    if (!linksPlaced_) {
        return;
    }
    for (std::size_t n = 1; n <= kLinks; ++n) {
        storeLinkPlace(n);
    }
}

}  // namespace quorvel::canvas
