#include "media/pipeline.h"

#include <utility>

namespace quorvel::media {
namespace {

std::string errorWords(GstMessage* message) {
    GError* error = nullptr;
    gst_message_parse_error(message, &error, nullptr);
    std::string words = error == nullptr ? "It could not be played." : error->message;
    g_clear_error(&error);
    return words;
}

/// Nobody reads the bus, so every message ends here.
GstBusSyncReply onMessage(GstBus*, GstMessage* message, gpointer report) {
    const auto& tell = *static_cast<const Pipeline::Report*>(report);
    if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_EOS) {
        tell({});
    } else if (GST_MESSAGE_TYPE(message) == GST_MESSAGE_ERROR) {
        tell(errorWords(message));
    }
    gst_message_unref(message);
    return GST_BUS_DROP;
}

using Query = gboolean (*)(GstElement*, GstFormat, gint64*);

double seconds(GstElement* element, Query query) {
    gint64 time = -1;
    const bool known = query(element, GST_FORMAT_TIME, &time) == TRUE && time >= 0;
    return known ? static_cast<double>(time) / GST_SECOND : -1.0;
}

}  // namespace

Pipeline::Pipeline(GstPtr<GstElement> element, Report report)
    : element_(std::move(element)), report_(std::move(report)) {
    const GstPtr<GstBus> bus(gst_element_get_bus(element_.get()));
    gst_bus_set_sync_handler(bus.get(), onMessage, &report_, nullptr);
}

Pipeline::~Pipeline() {
    // A thread can be within the handler when it is taken off, but none is left after NULL, and
    // report_ goes later.
    const GstPtr<GstBus> bus(gst_element_get_bus(element_.get()));
    gst_element_set_state(element_.get(), GST_STATE_NULL);
    gst_bus_set_sync_handler(bus.get(), nullptr, nullptr, nullptr);
}

void Pipeline::start() {
    if (gst_element_set_state(element_.get(), GST_STATE_PLAYING) == GST_STATE_CHANGE_FAILURE) {
        report_("It could not be started.");
    }
}

bool Pipeline::isRunning() const {
    GstState state = GST_STATE_NULL;
    gst_element_get_state(element_.get(), &state, nullptr, 0);
    return state == GST_STATE_PLAYING;
}

double Pipeline::position() const {
    return seconds(element_.get(), gst_element_query_position);
}

double Pipeline::duration() const {
    return seconds(element_.get(), gst_element_query_duration);
}

}  // namespace quorvel::media
