/// The elements that a scene is made of on the canvas.
#pragma once

#include <cstdint>

#include <QImage>
#include <QWidget>

#include "forms/pictures_playhead.h"
#include "store/scene.h"

namespace quorvel::canvas {

/// Where an element lies, as the record says it: any 16-bit number, a negative width included,
/// which no widget can have. Canvas pixels.
struct Place {
    std::int16_t left = 0;
    std::int16_t top = 0;
    std::int16_t width = 0;
    std::int16_t height = 0;

    friend bool operator==(const Place&, const Place&) = default;
};

/// A number of pixels as the record takes it: bounded, never wrapped.
[[nodiscard]] std::int16_t pixel(int number);

/// Anything on the canvas that the pointer can be over. It knows what it is and which one.
class SceneElement : public QWidget {
    Q_OBJECT
  public:
    enum class Kind : std::uint8_t { image, link, object, quickSpot };

    /// `index` counts from 1; the image has 0.
    SceneElement(Kind kind, int index, QWidget* parent);

    [[nodiscard]] Kind kind() const { return kind_; }
    [[nodiscard]] int index() const { return index_; }

    [[nodiscard]] const Place& place() const { return place_; }
    void setPlace(const Place& place);
    void moveTo(std::int16_t left, std::int16_t top);

    /// Whether the element is part of the scene, be the window open or not.
    [[nodiscard]] bool isShown() const { return shown_; }
    void setShown(bool shown);

    /// The name of the object's type, as the property "tag".
    [[nodiscard]] QString tag() const;
    void setTag(const QString& tag);

    /// Draws what the element looks like, from its own top left.
    virtual void draw(QPainter& painter) const;

  Q_SIGNALS:
    /// The pointer is over the element, or the keyboard has come to it.
    void pointedAt(const SceneElement& element);

  protected:
    void enterEvent(QEnterEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

  private:
    Place place_;
    Kind kind_;
    int index_;
    bool shown_ = false;
};

/// The scene's picture, from the top left at its natural size, on the canvas's own ground.
class SceneImage : public SceneElement {
    Q_OBJECT
  public:
    explicit SceneImage(QWidget* parent);
    /// A null image leaves the ground. What is beyond the canvas is not kept.
    void setImage(const QImage& image);
    [[nodiscard]] bool hasImage() const { return !image_.isNull(); }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QImage image_;
};

/// A rectangle without a picture of its own. It glows under the pointer and while it is carried, so
/// that the author sees where it reaches.
class AreaElement : public SceneElement {
    Q_OBJECT
  public:
    using SceneElement::SceneElement;
    void draw(QPainter& painter) const override;

  protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    [[nodiscard]] bool glows() const;
};

/// An exit along the scene's edge: a quiet mark that gets clearer under the pointer.
class LinkElement : public AreaElement {
    Q_OBJECT
  public:
    LinkElement(store::LinkSide side, QWidget* parent);
    [[nodiscard]] store::LinkSide side() const { return side_; }
    /// A link that leads somewhere is marked more strongly.
    void setLeads(bool leads);
    void draw(QPainter& painter) const override;

  private:
    store::LinkSide side_;
    bool leads_ = false;
};

/// The picture of an object, still or playing. Its size is the picture's.
class PictureElement : public SceneElement {
    Q_OBJECT
  public:
    PictureElement(int index, QWidget* parent);

    /// Shows `picture`, stopped; null empties the element.
    void setPicture(forms::PicturePtr picture);
    [[nodiscard]] const forms::PicturePtr& picture() const { return playhead_.picture(); }
    [[nodiscard]] QSize naturalSize() const;

    [[nodiscard]] forms::Playhead& playhead() { return playhead_; }
    [[nodiscard]] const forms::Playhead& playhead() const { return playhead_; }
    void draw(QPainter& painter) const override;

  Q_SIGNALS:
    /// A picture, or none, has been loaded; the element has its size.
    void loaded();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    forms::Playhead playhead_;
};

/// The border around an element. The mouse does not notice it.
class Outline : public QWidget {
    Q_OBJECT
  public:
    Outline(const QColor& color, QWidget* parent);
    /// Lies one pixel outside of `place` on each side.
    void surround(const Place& place);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QColor color_;
};

}  // namespace quorvel::canvas
