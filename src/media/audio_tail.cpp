#include "media/audio_tail.h"

#include "media/gain.h"

namespace quorvel::media {
namespace {

constexpr gint64 kDeviceBuffer = 100000;  // in microseconds

/// A device's own buffer delays what a slider does; the usual 200 ms can be felt.
void shortenBuffer(GstBin*, GstBin*, GstElement* element, gpointer) {
    if (g_object_class_find_property(G_OBJECT_GET_CLASS(element), "buffer-time") != nullptr) {
        g_object_set(element, "buffer-time", kDeviceBuffer, nullptr);
    }
}

/// Opens the device, so that one that isn't there is known before anything depends on it.
GstPtr<GstElement> openSink(const std::string& description) {
    auto sink = makeBin(description);
    g_signal_connect(sink.get(), "deep-element-added", G_CALLBACK(shortenBuffer), nullptr);
    if (gst_element_set_state(sink.get(), GST_STATE_READY) == GST_STATE_CHANGE_FAILURE) {
        gst_element_set_state(sink.get(), GST_STATE_NULL);
        sink = makeBin("fakesink sync=true");
    }
    return sink;
}

}  // namespace

AudioTail::AudioTail(const std::string& sink)
    : bin_(owned(gst_bin_new(nullptr))), device_(openSink(sink)) {
    const auto chain = makeBin(
        "audioconvert ! audioresample ! audio/x-raw,format=F32LE,channels=2 ! "
        "audiopanorama name=panorama method=simple ! volume name=volume ! "
        "audioconvert ! audioresample");
    panorama_ = childOf(chain.get(), "panorama");
    volume_ = childOf(chain.get(), "volume");
    addTo(bin_.get(), chain.get());
    addTo(bin_.get(), device_.get());
    const GstPtr<GstPad> pad(gst_element_get_static_pad(chain.get(), "sink"));
    if (gst_element_link(chain.get(), device_.get()) == FALSE ||
        gst_element_add_pad(bin_.get(), gst_ghost_pad_new("sink", pad.get())) == FALSE) {
        throw MediaError("The sound device does not take sound.");
    }
}

AudioTail::~AudioTail() {
    gst_element_set_state(device_.get(), GST_STATE_NULL);
}

void AudioTail::setAmplitude(double factor) {
    g_object_set(volume_.get(), "volume", factor, nullptr);
}

void AudioTail::setPan(int pan) {
    g_object_set(panorama_.get(), "panorama", static_cast<gfloat>(panorama(pan)), nullptr);
}

}  // namespace quorvel::media
