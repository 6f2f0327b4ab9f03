#include "media/stream_guard.h"

#include <cstdint>
#include <string_view>

#include "media/bounds.h"

namespace quorvel::media {
namespace {

std::string refusal(const GstCaps* caps) {
    const GstStructure* format = gst_caps_get_structure(caps, 0);
    const std::string_view name = gst_structure_get_name(format);
    int first = 0;
    int second = 0;
    if (name.starts_with("video/") || name.starts_with("image/")) {
        if (gst_structure_get_int(format, "width", &first) == FALSE ||
            gst_structure_get_int(format, "height", &second) == FALSE) {
            return {};
        }
        return pictureRefusal(first, second);
    }
    if (!name.starts_with("audio/") || gst_structure_get_int(format, "channels", &first) == FALSE ||
        gst_structure_get_int(format, "rate", &second) == FALSE) {
        return {};
    }
    return soundRefusal(static_cast<std::uint32_t>(first), static_cast<std::uint32_t>(second));
}

GstPadProbeReturn onEvent(GstPad*, GstPadProbeInfo* info, gpointer report) {
    GstEvent* event = gst_pad_probe_info_get_event(info);
    if (GST_EVENT_TYPE(event) != GST_EVENT_CAPS) {
        return GST_PAD_PROBE_OK;
    }
    GstCaps* caps = nullptr;
    gst_event_parse_caps(event, &caps);
    const std::string words = refusal(caps);
    if (words.empty()) {
        return GST_PAD_PROBE_OK;
    }
    (*static_cast<const Pipeline::Report*>(report))(words);
    // Whoever sends it must not go on: it would take the memory that the pictures need.
    gst_event_unref(event);
    GST_PAD_PROBE_INFO_FLOW_RETURN(info) = GST_FLOW_NOT_NEGOTIATED;
    return GST_PAD_PROBE_HANDLED;
}

void watchPad(GstElement*, GstPad* pad, gpointer report) {
    if (GST_PAD_IS_SRC(pad)) {
        gst_pad_add_probe(pad, GST_PAD_PROBE_TYPE_EVENT_DOWNSTREAM, onEvent, report, nullptr);
    }
}

gboolean watchFirstPad(GstElement* element, GstPad* pad, gpointer report) {
    watchPad(element, pad, report);
    return TRUE;
}

void watchElement(GstBin*, GstBin*, GstElement* element, gpointer report) {
    gst_element_foreach_src_pad(element, watchFirstPad, report);
    g_signal_connect(element, "pad-added", G_CALLBACK(watchPad), report);
}

}  // namespace

void guardStreams(GstElement* pipeline, const Pipeline::Report* report) {
    auto* data = const_cast<Pipeline::Report*>(report);  // NOLINT: signals carry bare pointers
    g_signal_connect(pipeline, "deep-element-added", G_CALLBACK(watchElement), data);
}

}  // namespace quorvel::media
