#include "forms/intake_boxes.h"

#include <QApplication>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "forms/events.h"
#include "forms/pick_form.h"
#include "resources/path_text.h"
#include "store/paths.h"

namespace quorvel::forms {
namespace {

using resources::IntakeNotice;
using resources::NameFault;
using What = IntakeNotice::What;

QString failureOf(const IntakeNotice& notice) {
    const std::string description(store::describe(notice.error));
    return QStringLiteral("Error %1 (%2)\n%3")
        .arg(QString::number(static_cast<int>(notice.error)), QString::fromStdString(description),
             resources::pathText(notice.file));
}

Box warning(const QString& text) {
    return {.text = text, .icon = Box::Icon::exclamation};
}

Box refusedSource(const IntakeNotice& notice, const QString& reason) {
    return warning(QStringLiteral("Quorvel cannot use:\n\n%1\n\n%2")
                       .arg(resources::pathText(notice.file), reason));
}

}  // namespace

QString reasonOf(NameFault fault) {
    switch (fault) {
        case NameFault::empty:
            return QStringLiteral("The filename is empty.");
        case NameFault::outsideCodePage:
            return QStringLiteral(
                "It has a character that a game cannot keep: only those of the Windows character "
                "set for Western Europe (1252) are possible.");
        case NameFault::reservedCharacter:
            return QStringLiteral(
                "It has a character that a Windows filename cannot have:  < > : \" / \\ | ? *  or "
                "a control character.");
        case NameFault::blankAtAnEnd:
            return QStringLiteral("It begins or ends with a blank.");
        case NameFault::dotAtTheEnd:
            return QStringLiteral("It ends with a dot.");
        case NameFault::deviceName:
            return QStringLiteral("On Windows it is the name of a device.");
        case NameFault::none:
            break;
    }
    return {};
}

Box boxOf(const IntakeNotice& notice) {
    switch (notice.what) {
        case What::nameTooLong:
            return {.text = QStringLiteral(
                        "Quorvel only supports filenames up to 11 characters long (15 including "
                        "the .xxx extension).\n\nThe file you chose exceeds that limit.  Please "
                        "rename the file and try again.")};
        case What::nameUnfit:
            return warning(QStringLiteral("Quorvel cannot use the filename \"%1\".\n\n%2  Please "
                                          "rename the file and try again.")
                               .arg(notice.name, reasonOf(notice.fault)));
        case What::sourceMissing:
            return warning(
                QStringLiteral("Could not locate:\n\n%1").arg(resources::pathText(notice.file)));
        case What::sourceIsLink:
            return refusedSource(notice,
                                 QStringLiteral("It is a link.  Please choose the file itself."));
        case What::sourceIsFolder:
            return refusedSource(notice, QStringLiteral("It is a folder.  Please choose a file."));
        case What::sourceIsDevice:
            return refusedSource(
                notice, QStringLiteral("It is a pipe or a device.  Please choose a file."));
        case What::targetIsFolder:
            return warning(QStringLiteral("The file \"%1\" could not be brought into the project.  "
                                          "There is a folder of that name:\n\n%2")
                               .arg(notice.name, resources::pathText(notice.file)));
        case What::onlyLooking:
            return warning(QStringLiteral("The file \"%1\" was not brought into the project, which "
                                          "you only look at: it is open in another Quorvel.")
                               .arg(notice.name));
        case What::notCopied:
            return warning(QStringLiteral("The file \"%1\" could not be brought into the "
                                          "project.  Nothing was changed.\n\n%2")
                               .arg(notice.name, failureOf(notice)));
        case What::sourceNotDeleted:
            return warning(QStringLiteral("The file \"%1\" was copied to the project, but could "
                                          "not be deleted where it was.\n\n%2")
                               .arg(notice.name, failureOf(notice)));
        case What::wrongFolderUnknown:
            return {.text = QStringLiteral("Oooooops...  Something is wrong.  Check the "
                                           "'CheckFileLoc' Function in Module1"),
                    .title = QStringLiteral("Uh-Oh")};
        case What::correctFolder:
            break;
    }
    return {.text = notice.folder == store::ResourceFolder::gfx
                        ? QStringLiteral("Correct Folder (gfx)")
                        : QStringLiteral("Correct Folder (mmedia)"),
            .title = QStringLiteral("Test - Remove this feature")};
}

CopyingFile::CopyingFile(const QString& name, QWidget* parent)
    : StandingForm(QStringLiteral("CopyingFile"), QStringLiteral("Quorvel"), parent),
      bar_(new QProgressBar(this)) {
    constexpr int kWidth = 320;
    auto* label = new QLabel(
        QStringLiteral("Bringing \"%1\" into the project...   Please wait.").arg(name), this);
    label->setObjectName(QStringLiteral("Label1"));
    label->setTextFormat(Qt::PlainText);
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setAccessibleName(label->text());
    bar_->setRange(0, 100);
    bar_->setMinimumWidth(kWidth);
    QVBoxLayout* column = makeColumn();
    column->addWidget(label);
    column->addWidget(bar_);
}

void CopyingFile::show(std::uintmax_t done, std::uintmax_t total) {
    bar_->setValue(total == 0 ? 0 : static_cast<int>(done * 100 / total));
    StandingForm::show();
}

void IntakeBoxes::tell(const IntakeNotice& notice) {
    progress_.reset();
    clock_.invalidate();
    boxes_.show(boxOf(notice));
}

bool IntakeBoxes::mayReplace(const QString& name) {
    return boxes_.show(
               {.text =
                    QStringLiteral("%1 already exists.\n\nDo you want to replace it?").arg(name),
                .buttons = Box::Buttons::yesNo,
                .destroys = true}) == Answer::yes;
}

bool IntakeBoxes::useShorter(const QString& name, const QString& shorter) {
    Box box = boxOf({.what = What::nameTooLong, .name = name});
    box.other = QStringLiteral("Use \"%1\"").arg(shorter);
    return boxes_.show(box) == Answer::other;
}

resources::Pick IntakeBoxes::copyOrMove() {
    PickCM window(QApplication::activeWindow());
    window.exec();
    return window.PickChoice;
}

void IntakeBoxes::working(const QString& name, std::uintmax_t done, std::uintmax_t total) {
    if (done >= total) {
        progress_.reset();
        clock_.invalidate();
    } else if (!clock_.isValid()) {
        clock_.start();
    } else if (clock_.elapsed() >= patience) {
        if (!progress_) {
            progress_ = std::make_unique<CopyingFile>(name, QApplication::activeWindow());
        }
        progress_->show(done, total);
    }
    letEventsRun();
}

}  // namespace quorvel::forms
