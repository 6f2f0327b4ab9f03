// Makes the sample game: paints its pictures, plays its sounds into files and writes its records.
//
//   make_sample_game <folder> [<preview folder>]
//
// The project is made anew in <folder>. With a second folder, each scene with its objects is also
// written there as one PNG picture.
#include <cstdio>
#include <exception>
#include <filesystem>
#include <stdexcept>

#include <QImage>
#include <QImageWriter>
#include <QPainter>

#include "art/beacon_movie.h"
#include "art/item_art.h"
#include "files/avi_file.h"
#include "files/cursor_file.h"
#include "files/gif_file.h"
#include "game/story.h"
#include "sound/effects.h"
#include "sound/music.h"
#include "store/creation.h"
#include "store/paths.h"
#include "store/scene_store.h"
#include "store/security.h"

namespace quorvel::sample {
namespace {

namespace fs = std::filesystem;

constexpr const char* kProjectFile = "Lantern.qvl";

void save(const QImage& image, const fs::path& path, int quality) {
    QImageWriter writer(QString::fromStdString(path.string()));
    writer.setQuality(quality);
    if (!writer.write(image)) {
        throw std::runtime_error("cannot write " + path.string());
    }
}

void writeArt(const fs::path& gfx, const SceneArt& art) {
    save(art.picture.convertToFormat(QImage::Format_RGB32), gfx / art.file, 92);
    for (const Sprite& sprite : art.sprites) {
        std::vector<QImage> frames;
        frames.reserve(16);
        for (int frame = 0; frame < sprite.frames; ++frame) {
            frames.push_back(renderFrame(sprite, art.picture, frame));
        }
        writeGif(gfx / sprite.file, frames, sprite.delay);
    }
}

void writePreview(const fs::path& folder, const SceneArt& art) {
    QImage image = art.picture.copy();
    QPainter painter(&image);
    for (const Sprite& sprite : art.sprites) {
        painter.drawImage(sprite.box.topLeft(), renderFrame(sprite, art.picture, 0));
    }
    painter.end();
    save(image, folder / fs::path(art.file).replace_extension(".png"), -1);
}

void writeItemPictures(store::Project& project, const fs::path& gfx) {
    for (int number = 1; number <= project.ItemCount; ++number) {
        const store::ItemRecord record = project.itemFile.read(number);
        const auto item = static_cast<Item>(number);
        save(itemIcon(item, false).convertToFormat(QImage::Format_ARGB32),
             gfx / record.ItemIcon.text(), -1);
        writeCursor(gfx / record.ItemCursor.text(), itemIcon(item, false), {16, 16});
        writeCursor(gfx / record.ItemCursorHi.text(), itemIcon(item, true), {16, 16});
        std::vector<QImage> frames;
        frames.reserve(16);
        for (int frame = 0; frame < (item == Item::litLamp ? kCloseupFrames : 1); ++frame) {
            frames.push_back(itemCloseup(item, frame));
        }
        writeGif(gfx / record.ItemCloseupImage.text(), frames, 11);
    }
    for (const PointerArt& pointer : pointerArt()) {
        writeCursor(gfx / pointer.file, pointer.picture, pointer.hotSpot);
    }
}

/// Opens the files of a new project in an empty folder.
void createProject(store::Project& project, const fs::path& folder) {
    fs::create_directories(folder);
    fs::remove_all(folder / "resource");
    fs::remove(folder / kProjectFile);
    project.ProjectFolder = store::textOf(fs::absolute(folder)) + "/";
    project.ProjectFileName = kProjectFile;
    store::makeProjectFolders(project);
    project.WriteNewProjectFile();
    store::WriteNewStores(project);
    project.ReadSceneList();
    project.ReadLocationList();
    project.ReadItemList();
    project.ReadGameInfo();
    project.ReadCueCardList();
}

void closeProject(store::Project& project) {
    project.Author = "The Quorvel project";
    project.ProjectNotes =
        "A small game that shows every kind of object. The fleet is due, and the lighthouse is "
        "dark: "
        "find the lamp, the oil, a match and the key.";
    project.CurrentScene = kHarbour;
    project.SecurityOn = false;
    project.ViewBorders = 0;
    project.ViewAnimations = 1;
    project.ViewLockObjects = 0;
    store::WriteSecurity(project);
    project.SaveProjectFile();
    project.closeFiles();
}

void makeGame(const fs::path& folder, const fs::path& previews) {
    store::Project project;
    createProject(project, folder);
    const fs::path gfx = store::resourceFolder(project.folder(), store::ResourceFolder::gfx);
    const fs::path mmedia = store::resourceFolder(project.folder(), store::ResourceFolder::mmedia);
    const auto finish = [&](const SceneArt& art) {
        writeArt(gfx, art);
        if (!previews.empty()) {
            writePreview(previews, art);
        }
    };
    for (const ScenePlan& plan : scenePlans()) {
        const SceneArt art = plan.paint();
        store::SaveScene(project, plan.build(art), plan.number);
        finish(art);
        if (plan.number == kBoatsHome) {
            writeAvi(mmedia / "Beacon.avi", beaconMovie(art.picture));
        }
    }
    project.NumberOfScenes = project.sceneFile.count();
    const SceneArt map = mapArt();
    finish(map);
    writeItems(project);
    writeLocations(project, map);
    writeCards(project);
    writeGameSettings(project);
    writeItemPictures(project, gfx);
    writeEffects(mmedia);
    writeMusic(mmedia);
    closeProject(project);
}

}  // namespace
}  // namespace quorvel::sample

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::fputs("usage: make_sample_game <folder> [<preview folder>]\n", stderr);
        return 2;
    }
    try {
        quorvel::sample::makeGame(argv[1], argc > 2 ? argv[2] : "");
    } catch (const std::exception& error) {
        std::fprintf(stderr, "make_sample_game: %s\n", error.what());
        return 1;
    }
    return 0;
}
