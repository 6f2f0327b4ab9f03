#include "groups/project_pictures.h"

#include "forms/stock_pointers.h"
#include "store/game_stores.h"
#include "store/paths.h"
#include "store/scene_store.h"

namespace quorvel::groups {
namespace {

constexpr int kNormal = 13;

/// A file that cannot be read has no picture; the author is told when it is to be used.
template <class Read>
QString nameOf(Read read) {
    try {
        return QString::fromStdString(read());
    } catch (const store::RuntimeError&) {
        return {};
    }
}

}  // namespace

forms::PicturePtr gfxPicture(const Tools& tools, const QString& name) {
    const auto file =
        store::findResource(tools.project.folder(), store::ResourceFolder::gfx, name.toStdString());
    if (!file) {
        return nullptr;
    }
    const forms::PicturePtr picture = tools.pictures.load(*file);
    return picture->ok() ? picture : nullptr;
}

QString pictureProblem(const Tools& tools, const QString& name) {
    using Problem = forms::Picture::Problem;
    const auto file =
        store::findResource(tools.project.folder(), store::ResourceFolder::gfx, name.toStdString());
    switch (file ? tools.pictures.load(*file)->problem() : Problem::missing) {
        case Problem::none:
            break;
        case Problem::missing:
            return QStringLiteral("The file is not there.");
        case Problem::refused:
            return QStringLiteral("It may not be read.");
        case Problem::tooLarge:
            return QStringLiteral("It is too large.");
        case Problem::damaged:
            return QStringLiteral("It is damaged.");
    }
    return {};
}

forms::PicturePtr objectPicture(const Tools& tools, const QString& name) {
    if (name.isEmpty()) {
        return tools.pictures.stock(QStringLiteral("new-object"));
    }
    const forms::PicturePtr picture = gfxPicture(tools, name);
    return picture != nullptr ? picture : tools.pictures.stock(QStringLiteral("file-not-found"));
}

forms::PicturePtr scenePicture(const Tools& tools, int number, bool onCanvas) {
    if (number < 1 || number > tools.project.NumberOfScenes) {
        return nullptr;
    }
    if (onCanvas && number == tools.project.CurrentScene) {
        return gfxPicture(
            tools, QString::fromStdString(tools.scene.header(store::HeaderString::SceneImage)));
    }
    return gfxPicture(
        tools, nameOf([&] { return tools.project.sceneFile.read(number).SceneImage.text(); }));
}

bool linkedPictureMissing(const Tools& tools, int number) {
    if (number < 1 || number > tools.project.NumberOfScenes) {
        return false;
    }
    try {
        return store::LookupSceneImage(tools.project, tools.scene, number).fileMissing;
    } catch (const store::RuntimeError&) {
        return false;
    }
}

forms::PicturePtr itemIcon(const Tools& tools, int number) {
    return gfxPicture(tools, nameOf([&] { return store::GetItemIcon(tools.project, number); }));
}

forms::PicturePtr pointerPicture(const Tools& tools, int index) {
    const int element = index == 0 ? kNormal : index;
    if (element < 1 || element > kNormal) {
        return nullptr;
    }
    const auto at = static_cast<std::size_t>(element - 1);
    const QString own = nameOf([&] {
        store::Project& project = tools.project;
        return project.settingsFile.isOpen() ? project.settingsFile.read(1).GamePointer[at].text()
                                             : std::string();
    });
    const forms::PicturePtr picture = own.isEmpty() ? nullptr : gfxPicture(tools, own);
    return picture != nullptr ? picture : tools.pictures.stock(forms::stockPointer(element));
}

}  // namespace quorvel::groups
