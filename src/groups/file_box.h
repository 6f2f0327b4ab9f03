/// The box that names the file of a field, with what there is to say about that file.
#pragma once

#include <vector>

#include <QLineEdit>

#include "forms/file_choice.h"
#include "forms/note_line.h"

class QGridLayout;

namespace quorvel::groups {

/// A box that the author does not type into: the name of a file.
class FileBox : public QLineEdit {
    Q_OBJECT
  public:
    /// `asks` is what its dialog asks for.
    FileBox(const QString& name, const QString& spoken, forms::FileField asks, QWidget* parent);

    /// The line below the box. It says what is odd about the file that was chosen last, and why the
    /// preview cannot play a file; it goes when the box shows another. Whoever makes the box puts
    /// it into a layout.
    forms::NoteLine* note;

    /// Lets the author choose a file. True when the box shows another one now.
    bool locate(forms::FileChoice& files);
    /// A text that may stand in the box and is no file.
    void setOrder(const QString& order) { order_ = order; }

    /// The preview begins: what it had to say before is forgotten.
    void previewBegins();
    /// The preview has ended; `reason` is why it was silent or saw nothing, empty when it was not.
    void previewEnded(const QString& reason);
    /// What was said is over, as when the window closes.
    void forgetNote();

    /// The author can take the file away, and `tip` says how.
    void setClearable(const QString& tip);

  Q_SIGNALS:
    /// The author takes the file away: by a double click, also where there is none, or by the key
    /// Delete, which asks for nothing in an empty box. Comes from clearable boxes only.
    void clearWanted();

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool clearable_ = false;
    forms::FileField asks_;
    QString order_;
    QString remark_;
};

/// How the file of an ordinary row is taken away.
inline const QString kClearTip =
    QStringLiteral("Double-click or press Delete to take the file away");

/// Puts widgets into one row of a grid, `file` being one of them, and its note below them. A grid
/// of such rows counts them from 0.
void addFileRow(QGridLayout* grid, int row, const std::vector<QWidget*>& widgets,
                const FileBox& file);

}  // namespace quorvel::groups
