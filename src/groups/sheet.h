/// What the groups of one property window share: what they are given from outside, whether the
/// window is being filled, which control stands for which field, and who has to act when the window
/// opens, is looked at again, or closes.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QString>

#include "forms/boxes.h"
#include "forms/file_choice.h"
#include "forms/pictures.h"
#include "forms/preview.h"
#include "forms/record_lists.h"
#include "groups/field.h"
#include "store/project.h"
#include "store/scene.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QWidget;

namespace quorvel::forms {
class RecordList;
}

namespace quorvel::groups {

class ChannelList;
class Level;
class NumberBox;
class OptionGroup;

/// What property windows are given from outside. Everything named here must outlive them.
struct Tools {
    store::Project& project;
    const store::Scene& scene;  ///< the one that is in memory
    forms::Boxes& boxes;
    forms::FileChoice& files;
    forms::Preview& preview;
    forms::PictureStore& pictures;
    forms::ProjectListModels& lists;
    std::function<void()> beep;
};

/// One control that stands for one field.
class Binding {
  public:
    Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;
    virtual ~Binding() = default;

    virtual void load() = 0;
    virtual void store() = 0;
    /// Why the field cannot take what the control shows; empty when it can.
    [[nodiscard]] virtual QString problem() const { return {}; }
    [[nodiscard]] virtual QWidget* control() const = 0;
};

/// Owned by the window.
///
/// A window binds its fields in field order, file fields first. Filling and storing follow that
/// order: a file sets the range of its volume before the volume comes. A value that its control
/// cannot show, as damaged records hold, stays in the field until the author chooses another.
class Sheet : public QObject {
    Q_OBJECT
  public:
    explicit Sheet(const Tools& tools) : tools_(tools) {}

    [[nodiscard]] const Tools& tools() const { return tools_; }

    /// To be called by a group in which something can be heard: sound is prepared when the window
    /// opens, so that the first one comes without delay.
    void expectSound();

    /// The author has changed something. Nothing happens while the window is being filled.
    void touch();
    [[nodiscard]] bool isFilling() const { return filling_; }

    void bind(const NumberRef& field, QCheckBox* check);
    void bind(const NumberRef& field, NumberBox* box);
    void bind(const NumberRef& field, OptionGroup* options);
    void bind(const NumberRef& field, Level* level);
    /// Of a level whose slider is stored, not its box: a value outside the range is the nearest.
    void bindSlider(const NumberRef& field, Level* level);
    /// A stored volume above 100 counts as 100, and is put to that at once.
    void bindMovieVolume(const NumberRef& field, Level* level);
    void bind(const NumberRef& field, forms::RecordList* list);
    void bind(const NumberRef& field, ChannelList* list);
    /// The index of the entry.
    void bind(const NumberRef& field, QComboBox* list);
    /// Of a box for numbers, the number as text.
    void bind(const TextRef& field, QLineEdit* box);
    /// The index of the entry as decimal text; an empty text counts as 0, and a list that was put
    /// on no entry is stored as 0.
    void bindText(const TextRef& field, QComboBox* list);
    void bind(std::unique_ptr<Binding> binding) { bindings_.push_back(std::move(binding)); }

    /// Fields to controls. `then` counts as filling still.
    void load(const std::function<void()>& then = {});
    /// Controls to fields. To be called when there is no problem.
    void store();
    /// The first binding whose field cannot take what its control shows, or null.
    [[nodiscard]] const Binding* problem() const;

    /// The box that has the keyboard counts as left.
    void finishEditing(QWidget* focused);

  Q_SIGNALS:
    void touched();
    /// The window is shown, or is looked at again after another one.
    void activated();
    /// The window has been filled and stands on the screen. Comes once for each time that it is
    /// opened: what has to be told about its content is told now.
    void opened();
    /// A sound has stopped all others: what else played as a WAV is silent now.
    void soundsStopped();
    /// The window is about to close: previews stop, their buttons go back.
    void closing();
    /// A movie begins: the window makes room.
    void roomWanted();
    /// The movie has ended.
    void roomReturned();

  private:
    const Tools& tools_;
    std::vector<std::unique_ptr<Binding>> bindings_;
    bool filling_ = false;
    bool soundExpected_ = false;
};

}  // namespace quorvel::groups
