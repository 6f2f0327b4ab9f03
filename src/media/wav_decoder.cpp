#include "media/wav_decoder.h"

#include <chrono>
#include <gst/app/gstappsink.h>

namespace quorvel::media {
namespace {

constexpr std::chrono::seconds kPatience{3};
constexpr GstClockTime kWait = 20 * GST_MSECOND;

GstAppSink* asAppSink(const GstPtr<GstElement>& element) {
    return reinterpret_cast<GstAppSink*>(element.get());
}

void append(Samples& samples, GstSample* sample) {
    GstBuffer* buffer = gst_sample_get_buffer(sample);
    GstMapInfo map;
    if (buffer != nullptr && gst_buffer_map(buffer, &map, GST_MAP_READ) == TRUE) {
        const auto* data = reinterpret_cast<const float*>(map.data);
        const std::size_t whole = map.size / (sizeof(float) * kSides) * kSides;
        samples.insert(samples.end(), data, data + whole);
        gst_buffer_unmap(buffer, &map);
    }
}

}  // namespace

WavDecoder::WavDecoder(const std::filesystem::path& file)
    : pipeline_(makePipeline("filesrc name=file ! decodebin ! audioconvert ! audioresample ! "
                             "audio/x-raw,format=F32LE,rate=44100,channels=2,layout=interleaved ! "
                             "appsink name=out sync=false max-buffers=64")),
      out_(childOf(pipeline_.get(), "out")),
      bus_(gst_element_get_bus(pipeline_.get())) {
    const auto source = childOf(pipeline_.get(), "file");
    g_object_set(source.get(), "location", file.string().c_str(), nullptr);
    gst_element_set_state(pipeline_.get(), GST_STATE_PLAYING);
}

WavDecoder::~WavDecoder() {
    gst_element_set_state(pipeline_.get(), GST_STATE_NULL);
}

bool WavDecoder::hasFailed() {
    GstMessage* message = gst_bus_pop_filtered(bus_.get(), GST_MESSAGE_ERROR);
    if (message == nullptr) {
        return false;
    }
    gst_message_unref(message);
    return true;
}

bool WavDecoder::next(Samples& samples, const std::atomic<bool>& giveUp) {
    const auto end = std::chrono::steady_clock::now() + kPatience;
    while (!giveUp && std::chrono::steady_clock::now() < end) {
        GstSample* sample = gst_app_sink_try_pull_sample(asAppSink(out_), kWait);
        if (sample != nullptr) {
            append(samples, sample);
            gst_sample_unref(sample);
            return true;
        }
        if (gst_app_sink_is_eos(asAppSink(out_)) == TRUE || hasFailed()) {
            return false;
        }
    }
    return false;
}

}  // namespace quorvel::media
