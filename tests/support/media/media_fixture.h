/// What the tests of the preview engine share.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include <QCoreApplication>

#include "media/preview_engine.h"
#include "support/file_bytes.h"
#include "support/media/capture.h"
#include "support/media/media_bytes.h"
#include "support/temp_folder.h"

namespace quorvel::test {

/// Lets events run until `done` holds; false when that takes longer than `patience`.
inline bool waitUntil(const std::function<bool()>& done,
                      std::chrono::milliseconds patience = std::chrono::seconds(15)) {
    const auto end = std::chrono::steady_clock::now() + patience;
    while (std::chrono::steady_clock::now() < end) {
        if (done()) {
            return true;
        }
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return done();
}

/// Lets events run for a while in which something must not happen.
inline void letTimePass(std::chrono::milliseconds time) {
    waitUntil([] { return false; }, time);
}

class MediaTest : public testing::Test {
  protected:
    /// An engine that plays to a captured device. Its ends are noted in `ends`, as "wav 3", "midi",
    /// "mp3", "movie Scene".
    void begin(Device device = Device::fast, media::PreviewOptions options = {}) {
        options.sink = capture.sink(device);
        listen(std::move(options));
    }
    void listen(media::PreviewOptions options) {
        using media::PreviewEngine;
        engine = std::make_unique<PreviewEngine>(std::move(options));
        QObject::connect(engine.get(), &PreviewEngine::wavEnded, engine.get(),
                         [this](int channel) { ends.push_back("wav " + std::to_string(channel)); });
        QObject::connect(engine.get(), &PreviewEngine::midiEnded, engine.get(),
                         [this] { ends.push_back("midi"); });
        QObject::connect(engine.get(), &PreviewEngine::mp3Ended, engine.get(),
                         [this] { ends.push_back("mp3"); });
        QObject::connect(
            engine.get(), &PreviewEngine::movieEnded, engine.get(),
            [this](const QString& owner) { ends.push_back("movie " + owner.toStdString()); });
    }
    void stopAll() const {
        engine->StopAllWavs();
        engine->StopMidi();
        engine->StopMp3();
        engine->StopMovie();
    }
    bool waitForEnds(std::size_t count) {
        return waitUntil([&] { return ends.size() >= count; });
    }
    /// Until the last device has been given back.
    bool waitForSilence() {
        return waitUntil([this] { return capture.open() == 0; });
    }
    std::filesystem::path file(const std::string& name, const std::string& bytes) const {
        writeBytes(folder / name, bytes);
        return folder / name;
    }
    /// A file of tests/media/data.
    static std::filesystem::path data(const std::string& name) {
        return std::filesystem::path(QUORVEL_MEDIA_DATA) / name;
    }

    TempFolder folder;
    Capture capture;
    std::vector<std::string> ends;
    std::unique_ptr<media::PreviewEngine> engine;
};

}  // namespace quorvel::test
