#include "media/gst_tools.h"

#include <array>
#include <functional>
#include <string_view>
#include <utility>

namespace quorvel::media {
namespace {

struct GlibFree {
    void operator()(GError* error) const { g_error_free(error); }
};
using ErrorPtr = std::unique_ptr<GError, GlibFree>;

/// "There is no element x", and where it comes from.
std::string missingElement(std::string_view factory) {
    static constexpr std::array<std::pair<std::string_view, std::string_view>, 4> kPackages{{
        {"audiopanorama", "gstreamer1.0-plugins-good"},
        {"autoaudiosink", "gstreamer1.0-plugins-good"},
        {"filesrc", "libgstreamer1.0-0"},
        {"fakesink", "libgstreamer1.0-0"},
    }};
    std::string_view package = "gstreamer1.0-plugins-base";
    for (const auto& [name, from] : kPackages) {
        if (name == factory) {
            package = from;
        }
    }
    return "The sound system lacks \"" + std::string(factory) + "\" of the package " +
           std::string(package) + ".";
}

using Parser = std::function<GstElement*(GstParseContext*, GError**)>;

GstPtr<GstElement> parse(const Parser& parser) {
    GstParseContext* context = gst_parse_context_new();
    GError* raw = nullptr;
    auto made = owned(parser(context, &raw));
    const ErrorPtr error(raw);
    gchar** missing = gst_parse_context_get_missing_elements(context);
    std::string words;
    if (missing != nullptr) {
        words = missingElement(*missing);
        g_strfreev(missing);
    } else if (error != nullptr) {
        words = error->message;
    }
    gst_parse_context_free(context);
    if (made == nullptr || !words.empty()) {
        throw MediaError(words.empty() ? "A chain of sound elements could not be built." : words);
    }
    return made;
}

GstBin* asBin(GstElement* element) {
    return reinterpret_cast<GstBin*>(element);
}

}  // namespace

GstPtr<GstElement> makeBin(const std::string& description) {
    return parse([&](GstParseContext* context, GError** error) {
        return gst_parse_bin_from_description_full(description.c_str(), TRUE, context,
                                                   GST_PARSE_FLAG_FATAL_ERRORS, error);
    });
}

GstPtr<GstElement> makePipeline(const std::string& description) {
    return parse([&](GstParseContext* context, GError** error) {
        return gst_parse_launch_full(description.c_str(), context, GST_PARSE_FLAG_FATAL_ERRORS,
                                     error);
    });
}

GstPtr<GstElement> makeElement(const char* factory, const char* name) {
    auto element = owned(gst_element_factory_make(factory, name));
    if (element == nullptr) {
        throw MediaError(missingElement(factory));
    }
    return element;
}

GstPtr<GstElement> childOf(GstElement* bin, const char* name) {
    GstPtr<GstElement> child(gst_bin_get_by_name(asBin(bin), name));
    if (child == nullptr) {
        throw MediaError(missingElement(name));
    }
    return child;
}

void addTo(GstElement* bin, GstElement* child) {
    gst_bin_add(asBin(bin), child);
}

void startGStreamer() {
    GError* raw = nullptr;
    if (gst_init_check(nullptr, nullptr, &raw) == FALSE) {
        const ErrorPtr error(raw);
        throw MediaError(error == nullptr ? "GStreamer does not start." : error->message);
    }
}

}  // namespace quorvel::media
