#include "media/stream_play.h"

#include <gst/app/gstappsink.h>
#include <string_view>
#include <system_error>
#include <utility>

#include "media/stream_guard.h"

namespace quorvel::media {
namespace {

// What playbin is to do, from its property "flags".
constexpr int kVideo = 1;
constexpr int kAudio = 2;

std::string uriOf(const std::filesystem::path& file) {
    // A URI of a relative path is refused.
    std::error_code error;
    const auto path = std::filesystem::absolute(file, error);
    gchar* raw = gst_filename_to_uri(path.string().c_str(), nullptr);
    if (error || raw == nullptr) {
        throw MediaError("The path of the file is of no use.");
    }
    std::string uri = raw;
    g_free(raw);
    return uri;
}

/// The synthesizer is made within, when the file turns out to be MIDI.
void setUpElement(GstElement*, GstElement* element, gpointer soundFont) {
    GstElementFactory* factory = gst_element_get_factory(element);
    if (factory != nullptr &&
        std::string_view(gst_plugin_feature_get_name(factory)) == "fluiddec") {
        const auto& font = *static_cast<const std::string*>(soundFont);
        g_object_set(element, "soundfont", font.c_str(), "synth-gain", 1.0, nullptr);
    }
}

QImage imageOf(GstSample* sample) {
    GstStructure* format = gst_caps_get_structure(gst_sample_get_caps(sample), 0);
    int width = 0;
    int height = 0;
    gst_structure_get_int(format, "width", &width);
    gst_structure_get_int(format, "height", &height);
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    GstMapInfo map;
    if (buffer == nullptr || gst_buffer_map(buffer, &map, GST_MAP_READ) == FALSE) {
        return {};
    }
    QImage image;
    const std::size_t row = static_cast<std::size_t>(width) * 4;
    if (width > 0 && height > 0 && map.size >= row * static_cast<std::size_t>(height)) {
        image = QImage(map.data, width, height, static_cast<qsizetype>(row), QImage::Format_RGB32)
                    .copy();
    }
    gst_buffer_unmap(buffer, &map);
    return image;
}

GstFlowReturn takeFrame(GstAppSink* from, gpointer data) {
    GstSample* sample = gst_app_sink_pull_sample(from);
    if (sample != nullptr) {
        const auto& picture = *static_cast<const StreamPlay::Picture*>(data);
        if (QImage image = imageOf(sample); !image.isNull()) {
            picture.box->put(picture.id, std::move(image));
        }
        gst_sample_unref(sample);
    }
    return GST_FLOW_OK;
}

}  // namespace

StreamPlay::StreamPlay(const std::filesystem::path& file, const std::string& sink,
                       const std::filesystem::path& soundFont, Picture picture,
                       Pipeline::Report report)
    : tail_(sink), soundFont_(soundFont.string()), picture_(std::move(picture)) {
    pipeline_ = std::make_unique<Pipeline>(makeElement("playbin"), std::move(report));
    GstElement* playbin = pipeline_->element();
    guardStreams(playbin, &pipeline_->report());
    const int flags = picture_.box == nullptr ? kAudio : kAudio | kVideo;
    g_object_set(playbin, "uri", uriOf(file).c_str(), "flags", flags, "audio-sink", tail_.bin(),
                 nullptr);
    g_signal_connect(playbin, "element-setup", G_CALLBACK(setUpElement), &soundFont_);
    if (picture_.box != nullptr) {
        takePictures();
    }
}

void StreamPlay::takePictures() {
    const auto out = makeElement("appsink");
    GstCaps* caps = gst_caps_from_string("video/x-raw,format=BGRx,pixel-aspect-ratio=1/1");
    // A screen that is slower than the movie loses frames, never time.
    g_object_set(out.get(), "caps", caps, "sync", TRUE, "max-buffers", 2U, "drop", TRUE, nullptr);
    gst_caps_unref(caps);
    GstAppSinkCallbacks callbacks{};
    callbacks.new_sample = takeFrame;
    gst_app_sink_set_callbacks(reinterpret_cast<GstAppSink*>(out.get()), &callbacks, &picture_,
                               nullptr);
    g_object_set(pipeline_->element(), "video-sink", out.get(), nullptr);
}

StreamPlay::~StreamPlay() {
    pipeline_.reset();
}

}  // namespace quorvel::media
