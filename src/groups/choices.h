/// Lists to choose one thing from, most with a picture of it: scenes, pointers, items, locations,
/// groups.
#pragma once

#include "forms/record_list.h"
#include "groups/controls.h"
#include "groups/picture_box.h"
#include "groups/sheet.h"

namespace quorvel::groups {

/// A scene and its picture.
class SceneChoice : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* list;
        const char* thumbnail = "thumbnail";
        /// When the scene on the canvas has the picture that the canvas shows, saved or not.
        bool canvasOnPick = false;
        bool canvasOnOpening = false;
    };
    SceneChoice(Sheet& sheet, const Names& names, QWidget* parent);

    forms::RecordList* list;
    PictureBox* thumbnail;

    /// The picture follows the list.
    void refresh(bool onCanvas);
    /// Tells the author when the scene's picture is not on the disk. To be called once when the
    /// list was filled and once for each pick, never because the window is looked at again.
    void tellMissing();

  Q_SIGNALS:
    /// The author has picked an entry; the thumbnail shows it.
    void picked(int number);

  private:
    Sheet& sheet_;
};

/// The mouse pointer over something, and its picture. The value is the index in the list.
class PointerChoice : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* frame;
        const char* list;
        const char* preview;
        bool hotSpot = false;  ///< offers "HOTSPOT" too
    };
    PointerChoice(Sheet& sheet, const Names& names, QWidget* parent);

    QGroupBox* frame;
    QComboBox* list;
    PictureBox* preview;

    void choose(int index);

  Q_SIGNALS:
    void picked(int index);

  private:
    void refresh();

    Sheet& sheet_;
};

/// An inventory item and its icon.
class ItemChoice : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* list = "Combo";
        const char* icon = "IconPrev";
    };
    ItemChoice(Sheet& sheet, const Names& names, QWidget* parent);

    forms::RecordList* list;
    PictureBox* icon;

  Q_SIGNALS:
    void picked(int number);

  private:
    void refresh();

    Sheet& sheet_;
};

/// "Add a map location": a pick of a location ticks it, "(None)" clears it.
class MapLocation : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* check = "AddMapYN";
        const char* caption = "Add a map location";
        const char* list = "MapLocID";
    };
    MapLocation(Sheet& sheet, const Names& names, QWidget* parent);

    QCheckBox* check;
    forms::RecordList* list;

    void addTo(QVBoxLayout* column);

  Q_SIGNALS:
    /// The author has clicked the check box, or a pick has set it.
    void ticked();

  private:
    QLabel* label_;
};

/// "Independent", "Group 1" to "Group 10".
class Grouping : public QObject {
    Q_OBJECT
  public:
    Grouping(Sheet& sheet, QWidget* parent);

    QComboBox* list;
    QLabel* label;
};

}  // namespace quorvel::groups
