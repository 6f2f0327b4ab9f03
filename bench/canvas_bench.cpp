// How long an author waits for a scene of 20 animated objects, beside the floor: the time that
// decoding the first frames of their pictures takes anyway. Nothing is cached between the rounds.

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <gif_lib.h>
#include <stdexcept>
#include <string>
#include <vector>

#include <QApplication>
#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

#include "canvas/scene_view.h"
#include "forms/look.h"
#include "forms/pictures.h"
#include "store/creation.h"
#include "store/paths.h"
#include "store/project.h"
#include "store/scene.h"
#include "store/scene_store.h"

namespace {

using namespace quorvel;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kFrames = 12;
constexpr int kColours = 64;
constexpr int kRounds = 61;
constexpr double kLimit = 1.30;

/// A picture like those of a game: a shaded ball on a plain ground that moves from frame to frame.
class BallGif {
  public:
    BallGif(int width, int height) : width_(width), height_(height) {
        int error = 0;
        GifFileType* file = EGifOpen(&bytes_, &BallGif::append, &error);
        ColorMapObject* colours = GifMakeMapObject(kColours, nullptr);
        for (int i = 0; i < kColours; ++i) {
            const auto tone = static_cast<GifByteType>(i * 4);
            colours->Colors[i] = {tone, static_cast<GifByteType>(255 - tone), 128};
        }
        check(file != nullptr && EGifPutScreenDesc(file, width, height, 6, 0, colours) == GIF_OK);
        for (int frame = 0; frame < kFrames; ++frame) {
            put(file, frame);
        }
        check(EGifCloseFile(file, &error) == GIF_OK);
        GifFreeMapObject(colours);
    }
    [[nodiscard]] const std::string& bytes() const { return bytes_; }

  private:
    static int append(GifFileType* file, const GifByteType* data, int length) {
        auto& bytes = *static_cast<std::string*>(file->UserData);
        bytes.append(reinterpret_cast<const char*>(data), static_cast<std::size_t>(length));
        return length;
    }
    static void check(bool done) {
        if (!done) {
            throw std::runtime_error("a picture could not be written");
        }
    }

    void put(GifFileType* file, int frame) const {
        const std::array<GifByteType, 4> control = {0, 8, 0, 0};
        check(EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, control.size(), control.data()) ==
              GIF_OK);
        check(EGifPutImageDesc(file, 0, 0, width_, height_, false, nullptr) == GIF_OK);
        std::vector<GifPixelType> row(static_cast<std::size_t>(width_));
        const double middle = width_ * (0.3 + 0.4 * frame / kFrames);
        for (int y = 0; y < height_; ++y) {
            for (int x = 0; x < width_; ++x) {
                const double far = std::hypot(x - middle, y - height_ / 2.0) / (height_ * 0.4);
                const double shade = far > 1 ? 0 : (1 - far) * (kColours - 1);
                row[static_cast<std::size_t>(x)] = static_cast<GifPixelType>(shade);
            }
            check(EGifPutLine(file, row.data(), width_) == GIF_OK);
        }
    }

    int width_;
    int height_;
    std::string bytes_;
};

std::string pictureName(int k) {
    return "ball" + std::to_string(k) + ".gif";
}

QString pathOf(const store::Project& project, int k) {
    const auto folder = store::resourceFolder(project.folder(), store::ResourceFolder::gfx);
    return QString::fromStdString(store::textOf(folder / pictureName(k)));
}

/// Makes a project of one scene with 20 animated objects and opens its scenes.
void openProject(store::Project& project, const QTemporaryDir& folder) {
    project.ProjectFolder = folder.path().toStdString() + "/";
    project.ProjectFileName = "Balls.qvl";
    store::makeProjectFolders(project);
    store::WriteNewStores(project);
    project.ReadSceneList();
    auto record = project.sceneFile.read(1);
    for (int k = 1; k <= store::kSlotCount; ++k) {
        QFile file(pathOf(project, k));
        const std::string bytes = BallGif(40 + 6 * k, 40 + 4 * k).bytes();
        if (!file.open(QIODevice::WriteOnly) ||
            file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0) {
            throw std::runtime_error("a picture could not be written");
        }
        store::ObjectSlotRecord& slot = record.Slots[static_cast<std::size_t>(k - 1)];
        slot.SlotInt1 = static_cast<std::int16_t>(k % 5);
        slot.SlotInt2 = static_cast<std::int16_t>(k * 28);
        slot.SlotInt3 = static_cast<std::int16_t>(k * 19);
        slot.SlotStr[0] = pictureName(k);
    }
    project.sceneFile.write(1, record);
}

template <class Work>
double millisecondsOf(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return Milliseconds(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

struct Times {
    double scene;
    double floor;
};

Times measure(store::Project& project) {
    std::vector<QString> files;
    for (int k = 1; k <= store::kSlotCount; ++k) {
        files.push_back(pathOf(project, k));
    }
    store::Scene scene;
    forms::PictureStore pictures;
    canvas::SceneView view(project, scene, pictures, nullptr);
    view.ToggleAnimations(true);
    view.show();
    std::vector<double> scenes;
    std::vector<double> floors;
    for (int round = 0; round < kRounds; ++round) {
        view.ResetCanvas();
        pictures.clear();
        QCoreApplication::processEvents();
        scenes.push_back(millisecondsOf([&] {
            store::LoadScene(project, scene, 1);
            view.ShowSceneObjects();
        }));
        QCoreApplication::processEvents();
        // All of them are in memory at the end, as they are when a scene is shown.
        std::vector<QImage> decoded;
        floors.push_back(millisecondsOf([&] {
            for (const QString& file : files) {
                QImageReader reader(file);
                decoded.push_back(reader.read());
                if (decoded.back().isNull()) {
                    throw std::runtime_error("a picture could not be read");
                }
            }
        }));
    }
    return {median(scenes), median(floors)};
}

}  // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    forms::applyLook(application, forms::Look::light);
    const bool check = argc > 1 && std::strcmp(argv[1], "--check") == 0;
    const QTemporaryDir folder;
    store::Project project;
    openProject(project, folder);
    const Times times = measure(project);
    const double ratio = times.scene / times.floor;
    std::printf("LoadScene + ShowSceneObjects, 20 animated objects: %.3f ms\n", times.scene);
    std::printf("their pictures' first frames decoded alone:        %.3f ms\n", times.floor);
    std::printf("ratio scene/floor = %.2f (limit %.2f)\n", ratio, kLimit);
    return check && ratio > kLimit ? 1 : 0;
}
