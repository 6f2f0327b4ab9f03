/// The scene as the author sees it: its picture, the four links, the objects.
#pragma once

#include <array>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include <QWidget>

#include "canvas/elements.h"
#include "canvas/texts.h"
#include "forms/pictures.h"
#include "store/project.h"
#include "store/scene.h"

namespace quorvel::canvas {

/// The frame in the middle of the main window with the canvas in it.
///
/// Data flow: the shell loads a scene into memory and calls `ShowSceneObjects`, which makes the
/// elements follow the memory. What the author does on the canvas goes into the memory at once,
/// but for links that are sized or put back, which `StoreLinkPlaces` stores before a save. What the
/// main window shows of the scene follows the signals.
///
/// Every element bears the system's name, `Animation(3)`, and knows its kind and index.
class SceneView : public QWidget {
    Q_OBJECT
  public:
    /// Size of the canvas and bounds of the scene, in pixels.
    static constexpr int kSceneWidth = 700;
    static constexpr int kSceneHeight = 475;

    /// Project, scene and pictures must outlive the view.
    SceneView(const store::Project& project, store::Scene& scene, forms::PictureStore& pictures,
              QWidget* parent);

    /// While one stands, the canvas keeps what was painted last, though events run.
    class Hold {
      public:
        explicit Hold(SceneView& view);
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;

      private:
        SceneView& view_;
    };

    /// Shows the picture in `file`, measures it and lets the scene alert follow. One that cannot be
    /// shown leaves the canvas without a picture, raises the alert and throws: 53 where there is no
    /// file, 75 where it may not be read, else 481.
    void GetSceneImage(const std::filesystem::path& file);
    /// The scene has no picture; there is nothing to alert about.
    void ClearSceneImage();

    /// A picture's file may have been replaced: the scene's picture and those of the objects that
    /// have another file by now are shown anew, everything else stays as it is, playing or not.
    /// A scene's picture that cannot be shown any more stays until the scene is shown again.
    void followPictureFiles();

    /// Makes links and objects follow the scene in memory. QuickSpots in it become valid.
    void ShowSceneObjects();

    /// A scene is about to be loaded: alerts off, and but while a project is opened, the objects
    /// leave the canvas. The scene in memory is not touched, so that a load that fails loses
    /// nothing.
    void ClearCanvas();
    /// The project was closed: nothing is left, and both toggles are off.
    void ResetCanvas();

    void ToggleBorders(bool on);
    void ToggleAnimations(bool on);

    /// True when the picture of an object is out of the scene by more than half.
    [[nodiscard]] bool CheckObjectPositions() const;
    /// Mode 1 remembers where objects and links are, 2 puts them back there.
    void RestoreObjectPositions(int mode);
    /// Puts the links' places into the scene in memory; nothing while no scene is shown. To be
    /// called before every save.
    void StoreLinkPlaces();

    /// Makes the elements of object `k`, 1 to 20, follow its slot: a fresh object appears, a freed
    /// one leaves. The remembered positions do not change.
    void ShowObject(int k);
    /// Object `k` came after the scene was shown: it has no remembered position.
    void forgetPosition(int k);
    /// Counts the objects anew, for the count and for what depends on it.
    void UpdateObjectCount();

    /// An object or a link has come to a place in canvas pixels, there is no snapping and no bound.
    /// The place of an object goes into its slot, that of a link into its group in the scene;
    /// alert and borders follow.
    void DropElement(SceneElement& element, int left, int top);

    /// The place of an edge link on the canvas. One that is set here reaches the scene in memory
    /// with the next save.
    [[nodiscard]] Place linkPlace(store::LinkSide side) const;
    void setLinkPlace(store::LinkSide side, const Place& place);
    /// The edge link has got another target: its mark follows. Its place does not change.
    void followLinkTarget(store::LinkSide side);
    /// Shows the border of one link, be borders on or off.
    void showLinkBorder(store::LinkSide side);
    void hideBorderOf(const SceneElement& element);

    /// True when a point of the screen lies on the part of the canvas that is seen.
    [[nodiscard]] bool takesDropAt(QPoint global) const;
    /// An element is being carried: its status, as if it were at this place.
    void tellCarried(const SceneElement& element, int left, int top);
    /// Draws the borders anew when they are on.
    void redrawBorders();

    /// Raises or lowers the object alert by where the objects are now.
    void followObjectAlert();

    /// True when the picture of object `k` is out of the scene by more than half.
    [[nodiscard]] bool isObjectOut(int k) const;
    /// The element that shows object `k`: its picture, or its rectangle when it is a QuickSpot.
    [[nodiscard]] SceneElement& objectElement(int k) const;
    [[nodiscard]] SceneElement& imageElement() const { return *image_; }

    /// The canvas itself, whose pixels all places count, and what can be moved on it.
    [[nodiscard]] QWidget& canvas() { return *canvas_; }
    [[nodiscard]] std::vector<SceneElement*> movableElements() const;

    [[nodiscard]] bool bordersOn() const { return BordersOn; }
    [[nodiscard]] bool animationsOn() const { return AnimationsOn; }
    /// Objects in the scene, 0 to 20.
    [[nodiscard]] int objectCount() const { return objectCount_; }
    /// Natural size of the scene's picture; 0 by 0 without one.
    [[nodiscard]] QSize sceneImageSize() const { return sceneSize_->size(); }
    [[nodiscard]] bool sceneAlert() const { return sceneAlert_; }
    [[nodiscard]] bool objectAlert() const { return objectAlert_; }
    /// What the status line says of an element.
    [[nodiscard]] StatusText statusOf(const SceneElement& element) const;

  Q_SIGNALS:
    /// The scene is about to leave the canvas: what is being done to it has to end.
    void leaving();
    void sceneAlertChanged(bool on);
    void objectAlertChanged(bool on);
    /// The objects were counted; at 20 no more can be inserted.
    void objectCountChanged(int count);
    void statusChanged(const quorvel::canvas::StatusText& text);
    /// Pictures are being loaded; the window bears the wait cursor meanwhile.
    void loadingChanged(bool loading);

  protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    static constexpr int kObjects = store::kSlotCount;
    static constexpr int kLinks = 4;
    /// In `SavedX`: the object has no remembered place.
    static constexpr std::int16_t kNoPlace = 999;

    /// What `ShowSceneObjects` finds out of the slots before it loads.
    struct ObjectFile {
        std::string name;            ///< empty for none
        std::filesystem::path file;  ///< empty when it is not there
    };
    using ObjectFiles = std::array<ObjectFile, kObjects + 1>;

    void makeElements();
    void name(QWidget* widget, const QString& name, int index);
    void followPointer(SceneElement* element);
    void takeFocusFromElements();

    // The steps of ShowSceneObjects.
    void placeLinks();
    void clearObjects(bool betweenEvents);
    void clearObject(int k);
    ObjectFile describeObject(int k);
    [[nodiscard]] ObjectFile fileOf(const store::ObjectSlot& slot) const;
    [[nodiscard]] forms::PicturePtr pictureOf(const store::ObjectSlot& slot,
                                              const ObjectFile& file);
    void setSceneImage(const forms::PicturePtr& picture);
    void showObject(int k, const ObjectFile& file);
    void showQuickSpot(int k);
    void countLoaded();
    void pictureLoaded(PictureElement& element);
    void countObjects();

    void setLoading(bool loading);
    void setSceneAlert(bool on);
    void setObjectAlert(bool on);
    void placeBorders();
    [[nodiscard]] bool isOutOfScene(const PictureElement& element) const;
    void storeLinkPlace(std::size_t n);
    void rememberPositions();
    void putPositionsBack();
    void putBack(int k, SceneElement& element);
    [[nodiscard]] QString sceneName(int number) const;
    [[nodiscard]] StatusText statusAt(const SceneElement& element, const Place& place) const;
    [[nodiscard]] QString linkText(const SceneElement& element) const;
    void say(const StatusText& text);

    const store::Project& project_;
    store::Scene& scene_;
    forms::PictureStore& pictures_;

    // All arrays of elements begin at 1, as the names do; element 0 is not there.
    QWidget* canvas_ = nullptr;
    SceneImage* image_ = nullptr;
    std::filesystem::path imageFile_;
    std::weak_ptr<const forms::Picture> imagePicture_;  // as it was when it was shown
    QWidget* sceneSize_ = nullptr;
    std::array<LinkElement*, kLinks + 1> links_{};
    std::array<Outline*, kLinks + 1> linkBorders_{};
    std::array<PictureElement*, kObjects + 1> objects_{};
    std::array<SceneElement*, kObjects + 1> quickSpots_{};
    std::array<Outline*, kObjects + 1> borders_{};

    bool BordersOn = false;
    bool AnimationsOn = false;
    std::array<std::int16_t, kObjects + kLinks + 1> SavedX{};
    std::array<std::int16_t, kObjects + kLinks + 1> SavedY{};
    int PicturesToLoad = 0;
    int PicturesLoaded = 0;

    int objectCount_ = 0;
    int holds_ = 0;
    bool linksPlaced_ = false;
    bool filling_ = false;
    bool loading_ = false;
    bool sceneAlert_ = false;
    bool objectAlert_ = false;
    StatusText said_ = emptyStatus();
};

}  // namespace quorvel::canvas
