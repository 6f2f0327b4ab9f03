#include "canvas/scene_rescue.h"

#include <filesystem>
#include <limits>

#include "forms/traps.h"
#include "resources/path_text.h"
#include "store/scene_store.h"

namespace quorvel::canvas {

using forms::Answer;
using forms::Box;
using store::FileLoss;

namespace {

const QString kStays = QStringLiteral(
    "\n\nIf you click No, nothing is written, and the scene stays in the editor as it is.");

}  // namespace

bool SceneRescue::ask(const QString& text, bool overwrites) const {
    return boxes_.show({.text = text,
                        .icon = Box::Icon::exclamation,
                        .buttons = Box::Buttons::yesNo,
                        .destroys = overwrites}) == Answer::yes;
}

bool SceneRescue::mayOverwrite() const {
    return ask(QStringLiteral("Scene %1 was changed by another program after you went to it:\n\n"
                              "%2\n\nDo you want to write your scene over it?")
                       .arg(QString::number(project_.CurrentScene),
                            resources::pathText(project_.sceneFile.path())) +
                   kStays,
               true);
}

SceneRescue::Way SceneRescue::takeStore(const store::LostFileError& loss) {
    return loss.loss() == FileLoss::gone ? putBack(loss) : takeOther(loss);
}

SceneRescue::Way SceneRescue::putBack(const store::LostFileError& loss) {
    std::error_code error;
    const QString told = forms::writeFailureText(loss);
    if (!std::filesystem::is_directory(loss.file().parent_path(), error)) {
        boxes_.show(
            {.text = told + QStringLiteral("\n\nThe scene stays in the editor as it is.  It can be "
                                           "saved when the folder is back in its place."),
             .icon = Box::Icon::exclamation});
        return Way::stay;
    }
    if (!ask(
            told +
                QStringLiteral("\n\nDo you want to put the file back, with all scenes as they were "
                               "saved last and with the scene that you are working on?") +
                kStays,
            false)) {
        return Way::stay;
    }
    project_.sceneFile.putBack();
    return Way::write;
}

int SceneRescue::placeIn(const store::RecordFile<store::SceneRecord>& file) const {
    constexpr int kMost = std::numeric_limits<std::int16_t>::max();
    const std::uintmax_t whole = file.size() / sizeof(store::SceneRecord);
    if (static_cast<std::uintmax_t>(project_.CurrentScene) <= whole) {
        return project_.CurrentScene;
    }
    // Half a record is somebody's scene as well; nothing is written over it.
    const bool hasRest = file.size() % sizeof(store::SceneRecord) != 0;
    return hasRest || whole >= kMost ? 0 : static_cast<int>(whole) + 1;
}

SceneRescue::Way SceneRescue::takeOther(const store::LostFileError& loss) {
    const QString told = forms::writeFailureText(loss);
    store::RecordFile<store::SceneRecord> file;
    file.open(loss.file());
    const int number = placeIn(file);
    const bool adds = number > file.count();
    file.close();
    if (number == 0) {
        boxes_.show(
            {.text = told + QStringLiteral("\n\nThere is no place for your scene in it.  The scene "
                                           "stays in the editor as it is."),
             .icon = Box::Icon::exclamation});
        return Way::stay;
    }
    const bool writes = adds || store::holdsUnsaved(project_, scene_);
    const QString what = adds ? QStringLiteral(" and add your scene to it as scene %1")
                              : QStringLiteral(" and write your scene over its scene %1");
    const QString question = QStringLiteral("\n\nDo you want to go on with the file as it is now") +
                             (writes ? what.arg(number) : QString()) + QLatin1Char('?');
    if (!ask(told + question + kStays, writes && !adds)) {
        return Way::stay;
    }
    project_.ReadSceneList();
    project_.CurrentScene = number;
    return writes ? Way::write : Way::goOn;
}

}  // namespace quorvel::canvas
