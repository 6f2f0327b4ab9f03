#include "media/wav_voice.h"

#include <cstdint>
#include <gst/app/gstappsrc.h>
#include <utility>

namespace quorvel::media {
namespace {

constexpr std::size_t kPiece = kSampleRate / 100;  // frames, 10 ms
constexpr std::size_t kFrameBytes = sizeof(float) * kSides;

GstAppSrc* asAppSrc(GstElement* element) {
    return reinterpret_cast<GstAppSrc*>(element);
}

GstClockTime timeOf(std::uint64_t frame) {
    return gst_util_uint64_scale(frame, GST_SECOND, kSampleRate);
}

}  // namespace

/// Hands the samples over, in the thread that plays them.
struct WavVoice::Feed {
    Feed(const std::filesystem::path& file, bool loop, std::shared_ptr<WavCache> cache,
         Pipeline::Report told)
        : source(file, loop, std::move(cache)), report(std::move(told)) {}

    WavSource source;
    Pipeline::Report report;
    std::uint64_t frame = 0;  // of the play, not of the file

    static void needData(GstAppSrc* out, guint, gpointer self) {
        static_cast<Feed*>(self)->give(out);
    }

    void give(GstAppSrc* out) {
        GstBuffer* buffer = gst_buffer_new_allocate(nullptr, kPiece * kFrameBytes, nullptr);
        GstMapInfo map;
        gst_buffer_map(buffer, &map, GST_MAP_WRITE);
        const std::size_t count = read(reinterpret_cast<float*>(map.data)) / kSides;
        gst_buffer_unmap(buffer, &map);
        if (count == 0) {
            gst_buffer_unref(buffer);
            end(out);
            return;
        }
        gst_buffer_set_size(buffer, static_cast<gssize>(count * kFrameBytes));
        GST_BUFFER_PTS(buffer) = timeOf(frame);
        GST_BUFFER_DURATION(buffer) = timeOf(frame + count) - timeOf(frame);
        frame += count;
        gst_app_src_push_buffer(out, buffer);
    }

    std::size_t read(float* to) {
        try {
            return source.read(to, kPiece * kSides);
        } catch (const std::exception& error) {
            report(error.what());
            return 0;
        }
    }

    void end(GstAppSrc* out) {
        // A sink that never had a sample can't be counted on to say that this was all.
        if (frame == 0) {
            report("There is no sound in it.");
        }
        gst_app_src_end_of_stream(out);
    }
};

WavVoice::WavVoice(const std::filesystem::path& file, bool loop, const std::string& sink,
                   std::shared_ptr<WavCache> cache, Pipeline::Report report)
    : tail_(sink), feed_(std::make_shared<Feed>(file, loop, std::move(cache), report)) {
    pipeline_ = std::make_unique<Pipeline>(makeElement("pipeline"), std::move(report));
    const auto source = makeElement("appsrc");
    GstCaps* caps =
        gst_caps_from_string("audio/x-raw,format=F32LE,rate=44100,channels=2,layout=interleaved");
    g_object_set(source.get(), "caps", caps, "format", GST_FORMAT_TIME, nullptr);
    gst_caps_unref(caps);
    GstAppSrcCallbacks callbacks{};
    callbacks.need_data = Feed::needData;
    gst_app_src_set_callbacks(asAppSrc(source.get()), &callbacks, feed_.get(), nullptr);
    addTo(pipeline_->element(), source.get());
    addTo(pipeline_->element(), tail_.bin());
    if (gst_element_link(source.get(), tail_.bin()) == FALSE) {
        throw MediaError("The sound chain could not be linked.");
    }
}

WavVoice::~WavVoice() {
    feed_->source.giveUp();
    pipeline_.reset();  // after which nobody feeds
}

void WavVoice::start() {
    pipeline_->start();
}

}  // namespace quorvel::media
