/// A picture that the author chooses from a file, with a sample of it.
#pragma once

#include "groups/controls.h"
#include "groups/file_box.h"
#include "groups/picture_box.h"
#include "groups/sheet.h"

namespace quorvel::groups {

/// What the sample shows is up to the owner, by `sample`.
class ImageChoice : public QObject {
    Q_OBJECT
  public:
    struct Names {
        const char* frame = "StaticFrame";
        const char* caption = "Object Image";
        const char* file = "Text1";
        const char* locate = "Command7";
        const char* sample = "SampleGfx";
        QString title = QStringLiteral("Locate an image for this object");
        QString filter = forms::filters::kImages;
        QSize size = {110, 90};
    };
    ImageChoice(Sheet& sheet, const Names& names, QWidget* parent);

    QGroupBox* frame;
    FileBox* file;
    PictureBox* sample;

    /// The column below the file's row, beside the sample.
    QVBoxLayout* rows;

  Q_SIGNALS:
    /// The author has chosen a file; its name is in the box.
    void chosen();
};

}  // namespace quorvel::groups
