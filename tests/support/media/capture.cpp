#include "support/media/capture.h"

#include <algorithm>
#include <cmath>
#include <gst/base/gstbasesink.h>
#include <gst/gst.h>

namespace quorvel::test {
namespace {

constexpr auto kPatience = std::chrono::seconds(10);
constexpr char kCaps[] = "audio/x-raw,format=F32LE,rate=44100,channels=2,layout=interleaved";

struct CaptureSink {
    GstBaseSink base;
    Capture* capture;
    int take;
    int device;
};

enum Property : guint { captureProperty = 1, deviceProperty };

CaptureSink* self(gpointer object) {
    return static_cast<CaptureSink*>(object);
}

void setProperty(GObject* object, guint property, const GValue* value, GParamSpec*) {
    if (property == captureProperty) {
        self(object)->capture = reinterpret_cast<Capture*>(g_value_get_uint64(value));
    } else {
        self(object)->device = g_value_get_int(value);
    }
}

gboolean start(GstBaseSink* sink) {
    self(sink)->take = -1;
    if (self(sink)->device == static_cast<int>(Device::absent)) {
        return FALSE;
    }
    if (self(sink)->device == static_cast<int>(Device::wedged)) {
        self(sink)->capture->hang();
    }
    self(sink)->capture->opened();
    return TRUE;
}

gboolean stop(GstBaseSink* sink) {
    self(sink)->capture->closed(self(sink)->take);
    return TRUE;
}

GstFlowReturn render(GstBaseSink* sink, GstBuffer* buffer) {
    GstMapInfo map;
    if (gst_buffer_map(buffer, &map, GST_MAP_READ) == FALSE) {
        return GST_FLOW_ERROR;
    }
    self(sink)->take = self(sink)->capture->heard(
        self(sink)->take, reinterpret_cast<const float*>(map.data), map.size / sizeof(float));
    gst_buffer_unmap(buffer, &map);
    return GST_FLOW_OK;
}

void initClass(gpointer type, gpointer) {
    auto* object = static_cast<GObjectClass*>(type);
    object->set_property = setProperty;
    constexpr auto kFlags = static_cast<GParamFlags>(G_PARAM_WRITABLE | G_PARAM_STATIC_STRINGS);
    g_object_class_install_property(
        object, captureProperty,
        g_param_spec_uint64("capture", "capture", "who listens", 0, G_MAXUINT64, 0, kFlags));
    g_object_class_install_property(
        object, deviceProperty,
        g_param_spec_int("device", "device", "how it behaves", 0, G_MAXINT, 0, kFlags));
    auto* element = static_cast<GstElementClass*>(type);
    GstCaps* caps = gst_caps_from_string(kCaps);
    gst_element_class_add_pad_template(
        element, gst_pad_template_new("sink", GST_PAD_SINK, GST_PAD_ALWAYS, caps));
    gst_caps_unref(caps);
    gst_element_class_set_static_metadata(element, "Ears", "Sink/Audio", "Keeps what it hears",
                                          "Quorvel");
    auto* sink = static_cast<GstBaseSinkClass*>(type);
    sink->start = start;
    sink->stop = stop;
    sink->render = render;
}

GType captureType() {
    static const GType type = [] {
        GTypeInfo info{};
        info.class_size = sizeof(GstBaseSinkClass);
        info.class_init = initClass;
        info.instance_size = sizeof(CaptureSink);
        return g_type_register_static(GST_TYPE_BASE_SINK, "QuorvelCapture", &info,
                                      static_cast<GTypeFlags>(0));
    }();
    return type;
}

}  // namespace

Capture::Capture() {
    gst_init(nullptr, nullptr);
    gst_element_register(nullptr, "quorvelcapture", GST_RANK_NONE, captureType());
}

std::string Capture::sink(Device device) const {
    return "quorvelcapture capture=" + std::to_string(reinterpret_cast<std::uintptr_t>(this)) +
           " device=" + std::to_string(static_cast<int>(device)) +
           " sync=" + (device == Device::fast ? "false" : "true");
}

std::size_t Capture::takes() const {
    const std::lock_guard lock(mutex_);
    return takes_.size();
}

Take Capture::take(std::size_t number) const {
    const std::lock_guard lock(mutex_);
    return takes_.at(number);
}

std::size_t Capture::frames(std::size_t number) const {
    const std::lock_guard lock(mutex_);
    return number < takes_.size() ? takes_[number].samples.size() / 2 : 0;
}

int Capture::open() const {
    const std::lock_guard lock(mutex_);
    return open_;
}

bool Capture::waitForFrames(std::size_t number, std::size_t count) {
    std::unique_lock lock(mutex_);
    return changed_.wait_for(lock, kPatience, [&] {
        return number < takes_.size() && takes_[number].samples.size() / 2 >= count;
    });
}

void Capture::forget() {
    const std::lock_guard lock(mutex_);
    for (Take& take : takes_) {
        if (take.closed) {
            std::vector<float>().swap(take.samples);
        }
    }
}

int Capture::closes() const {
    const std::lock_guard lock(mutex_);
    return closes_;
}

void Capture::waitForHanging() {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [this] { return hanging_ > 0; });
}

void Capture::release() {
    const std::lock_guard lock(mutex_);
    released_ = true;
    changed_.notify_all();
}

void Capture::opened() {
    const std::lock_guard lock(mutex_);
    ++open_;
}

void Capture::closed(int take) {
    const std::lock_guard lock(mutex_);
    --open_;
    ++closes_;
    if (take >= 0) {
        takes_[static_cast<std::size_t>(take)].closed = true;
    }
    changed_.notify_all();
}

int Capture::heard(int take, const float* samples, std::size_t count) {
    const std::lock_guard lock(mutex_);
    if (take < 0) {
        take = static_cast<int>(takes_.size());
        takes_.emplace_back();
        takes_.back().first = std::chrono::steady_clock::now();
    }
    auto& all = takes_[static_cast<std::size_t>(take)].samples;
    all.insert(all.end(), samples, samples + count);
    changed_.notify_all();
    return take;
}

void Capture::hang() {
    std::unique_lock lock(mutex_);
    ++hanging_;
    changed_.notify_all();
    changed_.wait(lock, [this] { return released_; });
}

Levels levels(const std::vector<float>& samples, std::size_t from, std::size_t to) {
    double left = 0.0;
    double right = 0.0;
    to = std::min(to, samples.size() / 2);
    for (std::size_t i = from; i < to; ++i) {
        left += static_cast<double>(samples[2 * i]) * static_cast<double>(samples[2 * i]);
        right += static_cast<double>(samples[2 * i + 1]) * static_cast<double>(samples[2 * i + 1]);
    }
    const auto decibels = [&](double sum) {
        return sum <= 0.0 || to <= from
                   ? -200.0
                   : std::max(-200.0, 10.0 * std::log10(sum / static_cast<double>(to - from)));
    };
    return {decibels(left), decibels(right)};
}

double pitch(const std::vector<float>& samples, std::size_t from, std::size_t to) {
    int crossings = 0;
    to = std::min(to, samples.size() / 2);
    for (std::size_t i = from + 1; i < to; ++i) {
        if (samples[2 * i - 2] < 0.0F && samples[2 * i] >= 0.0F) {
            ++crossings;
        }
    }
    return to <= from ? 0.0 : crossings * 44100.0 / static_cast<double>(to - from);
}

}  // namespace quorvel::test
