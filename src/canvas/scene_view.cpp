#include "canvas/scene_view.h"

#include <algorithm>

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>

#include "forms/events.h"
#include "forms/form.h"
#include "store/runtime_error.h"

namespace quorvel::canvas {
namespace {

constexpr QColor kObjectColor(0x36, 0xe0, 0xcf);
constexpr QColor kLinkColor(0xff, 0xb8, 0x4d);

/// False for an element that is not there, and for one that is being carried.
bool isBordered(const SceneElement& element) {
    return element.isShown() && !element.isHidden();
}

store::ErrorNumber errorOf(forms::Picture::Problem problem) {
    switch (problem) {
        case forms::Picture::Problem::missing:
            return store::ErrorNumber::fileNotFound;
        case forms::Picture::Problem::refused:
            return store::ErrorNumber::accessError;
        default:
            return store::ErrorNumber::invalidPicture;
    }
}

}  // namespace

SceneView::SceneView(const store::Project& project, store::Scene& scene,
                     forms::PictureStore& pictures, QWidget* parent)
    : QWidget(parent), project_(project), scene_(scene), pictures_(pictures) {
    setObjectName(QStringLiteral("Frame1"));
    setMouseTracking(true);
    setMinimumSize(kSceneWidth, kSceneHeight);
    canvas_ = new QWidget(this);
    canvas_->setObjectName(QStringLiteral("canvas"));
    canvas_->setFixedSize(kSceneWidth, kSceneHeight);
    makeElements();
    SavedX.fill(kNoPlace);
    SavedY.fill(kNoPlace);
}

SceneView::Hold::Hold(SceneView& view) : view_(view) {
    if (view_.holds_++ == 0) {
        view_.canvas_->setUpdatesEnabled(false);
    }
}

SceneView::Hold::~Hold() {
    if (--view_.holds_ == 0) {
        view_.canvas_->setUpdatesEnabled(true);
    }
}

/// Elements are stacked in the order in which they are made: an object's place in the stack is its
/// index, and borders lie over everything.
void SceneView::makeElements() {
    image_ = new SceneImage(canvas_);
    image_->setObjectName(QStringLiteral("Image1"));
    image_->setPlace({0, 0, kSceneWidth, kSceneHeight});
    image_->setShown(true);
    followPointer(image_);
    sceneSize_ = new QWidget(canvas_);
    sceneSize_->setObjectName(QStringLiteral("SceneSize"));
    sceneSize_->resize(0, 0);
    sceneSize_->hide();
    for (const store::LinkSide side : store::kLinkSides) {
        const int n = static_cast<int>(side);
        auto* link = new LinkElement(side, canvas_);
        name(link, QStringLiteral("Directionl"), n);
        followPointer(link);
        links_[static_cast<std::size_t>(n)] = link;
    }
    for (int k = 1; k <= kObjects; ++k) {
        auto* object = new PictureElement(k, canvas_);
        name(object, QStringLiteral("Animation"), k);
        followPointer(object);
        connect(object, &PictureElement::loaded, this, [this, object] { pictureLoaded(*object); });
        objects_[static_cast<std::size_t>(k)] = object;
        auto* spot = new AreaElement(SceneElement::Kind::quickSpot, k, canvas_);
        name(spot, QStringLiteral("NoGIF"), k);
        followPointer(spot);
        quickSpots_[static_cast<std::size_t>(k)] = spot;
    }
    for (int n = 1; n <= kLinks; ++n) {
        linkBorders_[static_cast<std::size_t>(n)] = new Outline(kLinkColor, canvas_);
        name(linkBorders_[static_cast<std::size_t>(n)], QStringLiteral("Shape2"), n);
    }
    for (int k = 1; k <= kObjects; ++k) {
        borders_[static_cast<std::size_t>(k)] = new Outline(kObjectColor, canvas_);
        name(borders_[static_cast<std::size_t>(k)], QStringLiteral("hilite"), k);
    }
}

void SceneView::name(QWidget* widget, const QString& name, int index) {
    widget->setObjectName(forms::elementName(name, index));
}

void SceneView::followPointer(SceneElement* element) {
    connect(element, &SceneElement::pointedAt, this,
            [this](const SceneElement& at) { say(statusOf(at)); });
}

/// An element that is hidden would hand the keyboard on to the next one.
void SceneView::takeFocusFromElements() {
    if (canvas_->isAncestorOf(QApplication::focusWidget())) {
        setFocus(Qt::OtherFocusReason);
    }
}

void SceneView::setSceneImage(const forms::PicturePtr& picture) {
    imagePicture_ = picture;
    image_->setImage(picture->firstFrame());
    sceneSize_->resize(picture->ok() ? picture->size() : QSize(0, 0));
}

void SceneView::GetSceneImage(const std::filesystem::path& file) {
    const forms::PicturePtr picture = pictures_.load(file);
    imageFile_ = file;
    setSceneImage(picture);
    image_->setTag(picture->ok() ? QString::fromStdString(file.filename().string()) : QString());
    forms::letEventsRun();
    setSceneAlert(sceneSize_->size() != QSize(kSceneWidth, kSceneHeight));
    if (!picture->ok()) {
        throw store::RuntimeError(errorOf(picture->problem()), file);
    }
}

void SceneView::ClearSceneImage() {
    imageFile_.clear();
    imagePicture_.reset();
    image_->setImage({});
    image_->setTag({});
    sceneSize_->resize(0, 0);
    setSceneAlert(false);
}

void SceneView::ClearCanvas() {
    Q_EMIT leaving();
    takeFocusFromElements();
    say(emptyStatus());
    setObjectAlert(false);
    setSceneAlert(false);
    linksPlaced_ = false;
    if (!project_.ProjectLoading) {
        clearObjects(false);
    }
}

void SceneView::ResetCanvas() {
    Q_EMIT leaving();
    takeFocusFromElements();
    ToggleAnimations(false);
    ToggleBorders(false);
    ClearSceneImage();
    setObjectAlert(false);
    clearObjects(false);
    linksPlaced_ = false;
    for (int n = 1; n <= kLinks; ++n) {
        links_[static_cast<std::size_t>(n)]->setShown(false);
    }
    objectCount_ = 0;
    SavedX.fill(kNoPlace);
    SavedY.fill(kNoPlace);
    pictures_.clear();
    say(emptyStatus());
}

void SceneView::ToggleAnimations(bool on) {
    AnimationsOn = on;
    for (int k = 1; k <= kObjects; ++k) {
        PictureElement& object = *objects_[static_cast<std::size_t>(k)];
        if (!on) {
            object.playhead().stop();
        } else if (object.isShown()) {
            object.playhead().play();
        }
    }
}

void SceneView::ToggleBorders(bool on) {
    BordersOn = on;
    placeBorders();
}

void SceneView::placeBorders() {
    for (int n = 1; n <= kLinks; ++n) {
        const auto i = static_cast<std::size_t>(n);
        linkBorders_[i]->surround(links_[i]->place());
        linkBorders_[i]->setVisible(BordersOn && isBordered(*links_[i]));
    }
    for (int k = 1; k <= kObjects; ++k) {
        const auto i = static_cast<std::size_t>(k);
        const SceneElement& owner = quickSpots_[i]->isShown()
                                        ? *quickSpots_[i]
                                        : static_cast<const SceneElement&>(*objects_[i]);
        borders_[i]->surround(owner.place());
        borders_[i]->setVisible(BordersOn && isBordered(owner));
    }
}

void SceneView::redrawBorders() {
    if (BordersOn) {
        placeBorders();
    }
}

void SceneView::followLinkTarget(store::LinkSide side) {
    links_[static_cast<std::size_t>(side)]->setLeads(scene_.link(side).target != 0);
}

void SceneView::showLinkBorder(store::LinkSide side) {
    const auto n = static_cast<std::size_t>(side);
    linkBorders_[n]->surround(links_[n]->place());
    linkBorders_[n]->show();
}

void SceneView::hideBorderOf(const SceneElement& element) {
    const auto at = static_cast<std::size_t>(element.index());
    Outline* border =
        element.kind() == SceneElement::Kind::link ? linkBorders_.at(at) : borders_.at(at);
    border->hide();
}

SceneElement& SceneView::objectElement(int k) const {
    const auto i = static_cast<std::size_t>(k);
    return quickSpots_.at(i)->isShown() ? *quickSpots_.at(i)
                                        : static_cast<SceneElement&>(*objects_.at(i));
}

std::vector<SceneElement*> SceneView::movableElements() const {
    std::vector<SceneElement*> elements(links_.begin() + 1, links_.end());
    for (std::size_t k = 1; k <= kObjects; ++k) {
        elements.push_back(objects_[k]);
        elements.push_back(quickSpots_[k]);
    }
    return elements;
}

bool SceneView::takesDropAt(QPoint global) const {
    QRect seen = canvas_->rect();
    for (const QWidget* frame = canvas_; !frame->isWindow(); frame = frame->parentWidget()) {
        const QPoint corner =
            canvas_->mapFrom(frame->window(), QPoint()) + frame->mapTo(frame->window(), QPoint());
        seen &= QRect(corner, frame->size());
    }
    return seen.contains(canvas_->mapFromGlobal(global));
}

void SceneView::setSceneAlert(bool on) {
    if (sceneAlert_ != on) {
        sceneAlert_ = on;
        Q_EMIT sceneAlertChanged(on);
    }
}

void SceneView::setObjectAlert(bool on) {
    if (objectAlert_ != on) {
        objectAlert_ = on;
        Q_EMIT objectAlertChanged(on);
    }
}

QString SceneView::sceneName(int number) const {
    return QString::fromStdString(project_.lists.sceneName(number));
}

QString SceneView::linkText(const SceneElement& element) const {
    const auto side = static_cast<store::LinkSide>(element.index());
    const int target = scene_.link(side).target;
    if (target >= 1 && target <= static_cast<int>(project_.lists.scenes.size())) {
        return QStringLiteral("Object: Link <%1>").arg(sceneName(target));
    }
    return QStringLiteral("Object: Link(%1)").arg(directionName(side));
}

StatusText SceneView::statusOf(const SceneElement& element) const {
    return statusAt(element, element.place());
}

void SceneView::tellCarried(const SceneElement& element, int left, int top) {
    Place place = element.place();
    place.left = pixel(left);
    place.top = pixel(top);
    say(statusAt(element, place));
}

StatusText SceneView::statusAt(const SceneElement& element, const Place& place) const {
    StatusText text = emptyStatus();
    switch (element.kind()) {
        case SceneElement::Kind::image:
            if (project_.CurrentScene != 0) {
                text.object = QStringLiteral("Object: Scene ") + sceneName(project_.CurrentScene) +
                              QStringLiteral("(%1)").arg(project_.CurrentScene);
            }
            return text;
        case SceneElement::Kind::link:
            text.object = linkText(element);
            text.index = QStringLiteral("Index: %1").arg(element.index());
            break;
        case SceneElement::Kind::object:
        case SceneElement::Kind::quickSpot:
            text.object = QStringLiteral("Object: ") + element.tag();
            if (element.kind() == SceneElement::Kind::quickSpot) {
                text.object += QStringLiteral("  (QuickSpot)");
            }
            text.index = QStringLiteral("Index:") + signedText(element.index());
            break;
    }
    text.position = QStringLiteral("Pos: x=") + signedText(place.left) + QStringLiteral(" , y=") +
                    signedText(place.top);
    text.size = QStringLiteral("Size:") + signedText(place.height) + QStringLiteral("h X") +
                signedText(place.width) + QStringLiteral("w");
    return text;
}

void SceneView::say(const StatusText& text) {
    if (said_ != text) {
        said_ = text;
        Q_EMIT statusChanged(text);
    }
}

void SceneView::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    say(emptyStatus());
}

void SceneView::leaveEvent(QEvent* event) {
    QWidget::leaveEvent(event);
    say(emptyStatus());
}

void SceneView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    canvas_->move(std::max(0, (width() - kSceneWidth) / 2),
                  std::max(0, (height() - kSceneHeight) / 2));
}

void SceneView::paintEvent(QPaintEvent* /*event*/) {
    // A hair line around the canvas, where the frame leaves room for it.
    QColor line = palette().color(QPalette::WindowText);
    line.setAlpha(60);
    QPainter painter(this);
    painter.setPen(line);
    painter.drawRect(canvas_->geometry().adjusted(-1, -1, 0, 0));
}

}  // namespace quorvel::canvas
