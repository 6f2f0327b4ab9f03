// How the scene in memory becomes the canvas.

#include <algorithm>
#include <limits>

#include <QScopeGuard>

#include "canvas/object_kinds.h"
#include "canvas/scene_view.h"
#include "forms/events.h"
#include "store/numbers.h"
#include "store/paths.h"

namespace quorvel::canvas {
namespace {

/// A QuickSpot's side out of its text.
std::int16_t sideOf(const std::string& text) {
    constexpr int kMost = std::numeric_limits<std::int16_t>::max();
    return static_cast<std::int16_t>(std::min(store::valInt(text), kMost));
}

}  // namespace

void SceneView::ShowSceneObjects() {
    // Half a scene is never painted, though events run between the objects.
    const Hold hold(*this);
    filling_ = true;
    const auto filled = qScopeGuard([this] {
        filling_ = false;
        setLoading(false);
    });
    setLoading(true);
    for (int n = 1; n <= kLinks; ++n) {
        linkBorders_[static_cast<std::size_t>(n)]->hide();
    }
    placeLinks();
    clearObjects(true);

    PicturesToLoad = 0;
    PicturesLoaded = 0;
    ObjectFiles files;
    for (int k = 1; k <= kObjects; ++k) {
        ObjectFile& file = files[static_cast<std::size_t>(k)];
        file = describeObject(k);
        PicturesToLoad += file.file.empty() ? 0 : 1;
    }
    for (int k = 1; k <= kObjects; ++k) {
        if (isPresent(scene_.slot(k))) {
            showObject(k, files[static_cast<std::size_t>(k)]);
            forms::letEventsRun();
        }
    }
    countObjects();
    if (PicturesToLoad == 0) {
        setLoading(false);
    }
    redrawBorders();
    RestoreObjectPositions(1);
    if (CheckObjectPositions()) {
        setObjectAlert(true);
    }
}

void SceneView::placeLinks() {
    for (std::size_t n = 1; n <= kLinks; ++n) {
        const store::EdgeLink& link = scene_.link(links_[n]->side());
        links_[n]->setPlace({link.left, link.top, link.width, link.height});
        links_[n]->setLeads(link.target != 0);
        links_[n]->setShown(true);
    }
    linksPlaced_ = true;
}

void SceneView::clearObjects(bool betweenEvents) {
    for (int k = 1; k <= kObjects; ++k) {
        clearObject(k);
        if (betweenEvents) {
            forms::letEventsRun();
        }
    }
}

void SceneView::clearObject(int k) {
    const auto i = static_cast<std::size_t>(k);
    objects_[i]->setShown(false);
    objects_[i]->setPicture(nullptr);
    objects_[i]->setTag({});
    quickSpots_[i]->setShown(false);
    quickSpots_[i]->setTag({});
    borders_[i]->hide();
}

/// Gives the elements of object `k` their tags and the way its picture runs, and looks for the
/// picture's file.
SceneView::ObjectFile SceneView::describeObject(int k) {
    const auto i = static_cast<std::size_t>(k);
    const store::ObjectSlot& slot = scene_.slot(k);
    const store::ObjectType type = store::typeOf(slot);
    objects_[i]->setTag(tagOf(type));
    objects_[i]->playhead().setMode(displayModeOf(slot));
    if (type == store::ObjectType::hotSpot) {
        quickSpots_[i]->setTag(tagOf(type));
    }
    return fileOf(slot);
}

SceneView::ObjectFile SceneView::fileOf(const store::ObjectSlot& slot) const {
    const std::string& name = store::word(slot, store::kPicture);
    if (!store::hasPicture(store::typeOf(slot)) || name.empty()) {
        return {};
    }
    const auto found = store::findResource(project_.folder(), store::ResourceFolder::gfx, name);
    return {name, found.value_or(std::filesystem::path())};
}

forms::PicturePtr SceneView::pictureOf(const store::ObjectSlot& slot, const ObjectFile& file) {
    if (file.name.empty()) {
        return pictures_.stock(symbolOf(store::typeOf(slot)));
    }
    // A file that holds no picture is told as one that is not there.
    const forms::PicturePtr picture = file.file.empty() ? nullptr : pictures_.load(file.file);
    return picture != nullptr && picture->ok() ? picture
                                               : pictures_.stock(QStringLiteral("file-not-found"));
}

void SceneView::showObject(int k, const ObjectFile& file) {
    const auto i = static_cast<std::size_t>(k);
    PictureElement& object = *objects_[i];
    store::ObjectSlot& slot = scene_.slot(k);
    object.setPicture(pictureOf(slot, file));
    if (filling_ && !file.file.empty()) {
        countLoaded();
    }
    object.moveTo(store::number(slot, store::kLeft), store::number(slot, store::kTop));
    quickSpots_[i]->moveTo(store::number(slot, store::kLeft), store::number(slot, store::kTop));
    if (store::isQuickSpot(slot)) {
        showQuickSpot(k);
        return;
    }
    object.setShown(true);
    if (AnimationsOn) {
        object.playhead().play();
    }
}

void SceneView::showQuickSpot(int k) {
    store::ObjectSlot& slot = scene_.slot(k);
    store::mendQuickSpot(slot);
    SceneElement& spot = *quickSpots_[static_cast<std::size_t>(k)];
    const std::int16_t height = sideOf(store::word(slot, store::HotSpot::QuickHeight));
    const std::int16_t width = sideOf(store::word(slot, store::HotSpot::QuickWidth));
    spot.setPlace({spot.place().left, spot.place().top, width, height});
    spot.setShown(true);
}

/// A picture of those that the wait cursor stands for has come.
void SceneView::countLoaded() {
    ++PicturesLoaded;
    if (PicturesLoaded == PicturesToLoad) {
        setLoading(false);
    }
}

/// An element has got another picture, and with it another size.
void SceneView::pictureLoaded(PictureElement& element) {
    if (filling_ || element.picture() == nullptr) {
        return;
    }
    if (AnimationsOn && element.isShown()) {
        element.playhead().play();
    }
    redrawBorders();
}

void SceneView::ShowObject(int k) {
    clearObject(k);
    if (isPresent(scene_.slot(k))) {
        const ObjectFile file = describeObject(k);
        showObject(k, file);
    }
    redrawBorders();
}

void SceneView::followPictureFiles() {
    if (filling_ || !linksPlaced_) {
        return;  // no scene is shown, or not all of it yet
    }
    if (!imageFile_.empty()) {
        const forms::PicturePtr picture = pictures_.load(imageFile_);
        if (picture->ok() && picture != imagePicture_.lock()) {
            setSceneImage(picture);
            setSceneAlert(picture->size() != QSize(kSceneWidth, kSceneHeight));
        }
    }
    bool changed = false;
    for (int k = 1; k <= kObjects; ++k) {
        const store::ObjectSlot& slot = scene_.slot(k);
        if (!isPresent(slot)) {
            continue;
        }
        PictureElement& object = *objects_[static_cast<std::size_t>(k)];
        const forms::PicturePtr picture = pictureOf(slot, fileOf(slot));
        if (picture != object.picture()) {
            object.setPicture(picture);
            changed = true;
        }
    }
    if (changed) {
        followObjectAlert();
    }
}

void SceneView::UpdateObjectCount() {
    countObjects();
}

void SceneView::countObjects() {
    objectCount_ = scene_.objectCount();
    Q_EMIT objectCountChanged(objectCount_);
}

void SceneView::setLoading(bool loading) {
    if (loading_ == loading) {
        return;
    }
    loading_ = loading;
    if (loading) {
        window()->setCursor(Qt::WaitCursor);
    } else {
        window()->unsetCursor();
    }
    Q_EMIT loadingChanged(loading);
}

}  // namespace quorvel::canvas
