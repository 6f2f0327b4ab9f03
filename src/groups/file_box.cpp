#include "groups/file_box.h"

#include <utility>

#include <QGridLayout>
#include <QKeyEvent>
#include <QMouseEvent>

#include "forms/file_remark.h"

namespace quorvel::groups {

FileBox::FileBox(const QString& name, const QString& spoken, forms::FileField asks, QWidget* parent)
    : QLineEdit(parent),
      note(new forms::NoteLine(QStringLiteral("NoteOf") + name, parent)),
      asks_(std::move(asks)) {
    setObjectName(name);
    setAccessibleName(spoken);
    setReadOnly(true);
    // The longest name that a record takes.
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("mmmmmmmm.wav")) + 12);
    connect(this, &QLineEdit::textChanged, this, &FileBox::forgetNote);
}

bool FileBox::locate(forms::FileChoice& files) {
    forms::FileField field = asks_;
    field.current = text() == order_ ? QString() : text();
    const auto chosen = files.choose(field);
    if (!chosen) {
        return false;
    }
    setText(chosen->name);
    remark_ = chosen->remark;
    note->tell(remark_);
    return true;
}

void FileBox::previewBegins() {
    note->tell(remark_);
}

void FileBox::previewEnded(const QString& reason) {
    if (!reason.isEmpty() && !text().isEmpty()) {
        const bool isPicture = asks_.folder == store::ResourceFolder::gfx;
        note->tell(forms::previewRemark(isPicture ? QStringLiteral("show") : QStringLiteral("play"),
                                        text(), reason, asks_.filter));
    }
}

void FileBox::forgetNote() {
    remark_.clear();
    note->tell({});
}

void FileBox::setClearable(const QString& tip) {
    clearable_ = true;
    setToolTip(tip);
}

void FileBox::mouseDoubleClickEvent(QMouseEvent* event) {
    if (clearable_ && event->button() == Qt::LeftButton) {
        Q_EMIT clearWanted();
    }
}

void FileBox::keyPressEvent(QKeyEvent* event) {
    if (clearable_ && event->key() == Qt::Key_Delete &&
        (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier) {
        if (!text().isEmpty()) {
            Q_EMIT clearWanted();
        }
        return;
    }
    QLineEdit::keyPressEvent(event);
}

void addFileRow(QGridLayout* grid, int row, const std::vector<QWidget*>& widgets,
                const FileBox& file) {
    int column = 0;
    for (QWidget* widget : widgets) {
        grid->addWidget(widget, 2 * row, column++);
    }
    grid->addWidget(file.note, 2 * row + 1, 0, 1, -1);
}

}  // namespace quorvel::groups
