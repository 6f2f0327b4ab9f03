#include "groups/image_choice.h"

#include <QBoxLayout>

namespace quorvel::groups {

ImageChoice::ImageChoice(Sheet& sheet, const Names& names, QWidget* parent) : QObject(parent) {
    const Frame made = makeFrame(names.frame, names.caption, parent);
    frame = made.box;
    const QString spoken = name(names.caption);
    file = new FileBox(name(names.file), spoken + QStringLiteral(", file"), frame);
    auto* locate =
        makeSmallButton(name(names.locate), "...", spoken + QStringLiteral(", locate"), frame);
    locate->setToolTip(QStringLiteral("Locate"));
    sample = new PictureBox(name(names.sample), spoken, names.size, frame);

    auto* fileRow = new QHBoxLayout;
    fileRow->addWidget(file, 1);
    fileRow->addWidget(locate);
    rows = new QVBoxLayout;
    rows->addLayout(fileRow);
    auto* row = new QHBoxLayout;
    row->addLayout(rows, 1);
    row->addWidget(sample, 0, Qt::AlignTop);
    made.column->addLayout(row);

    connect(locate, &QPushButton::clicked, this,
            [this, &sheet, title = names.title, filter = names.filter] {
                const auto choice =
                    sheet.tools().files.choose({.title = title,
                                                .filter = filter,
                                                .folder = store::ResourceFolder::gfx,
                                                .current = file->text()});
                if (choice) {
                    file->setText(*choice);
                    sheet.touch();
                    Q_EMIT chosen();
                }
            });
}

}  // namespace quorvel::groups
