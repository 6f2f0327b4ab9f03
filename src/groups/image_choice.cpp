#include "groups/image_choice.h"

#include <QBoxLayout>

#include "groups/project_pictures.h"

namespace quorvel::groups {

ImageChoice::ImageChoice(Sheet& sheet, const Names& names, QWidget* parent) : QObject(parent) {
    const Frame made = makeFrame(names.frame, names.caption, parent);
    frame = made.box;
    const QString spoken = name(names.caption);
    file = new FileBox(
        name(names.file), spoken + QStringLiteral(", file"),
        {.title = names.title, .filter = names.filter, .folder = store::ResourceFolder::gfx},
        frame);
    auto* locate =
        makeSmallButton(name(names.locate), "...", spoken + QStringLiteral(", locate"), frame);
    locate->setToolTip(QStringLiteral("Locate"));
    sample = new PictureBox(name(names.sample), spoken, names.size, frame);

    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(file, 1);
    fileRow->addWidget(locate);
    rows = new QVBoxLayout;
    rows->addLayout(fileRow);
    rows->addWidget(file->note);
    auto* row = new QHBoxLayout;
    row->addLayout(rows, 1);
    row->addWidget(sample, 0, Qt::AlignTop);
    made.column->addLayout(row);

    connect(locate, &QPushButton::clicked, this, [this, &sheet] {
        if (!file->locate(sheet.tools().files)) {
            return;
        }
        if (file->note->text().isEmpty()) {
            file->previewEnded(pictureProblem(sheet.tools(), file->text()));
        }
        sheet.touch();
        Q_EMIT chosen();
    });
    connect(&sheet, &Sheet::closing, file, &FileBox::forgetNote);
}

}  // namespace quorvel::groups
