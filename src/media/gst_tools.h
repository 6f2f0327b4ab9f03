/// GStreamer's objects as owned values, and its failures as exceptions.
#pragma once

#include <gst/gst.h>
#include <memory>
#include <stdexcept>
#include <string>

namespace quorvel::media {

struct Unref {
    void operator()(gpointer object) const { gst_object_unref(object); }
};
/// A reference of one's own, never a floating one.
template <class T>
using GstPtr = std::unique_ptr<T, Unref>;

/// What went wrong, in words for an author.
class MediaError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Takes over the floating reference that a new element has.
template <class T>
GstPtr<T> owned(T* element) {
    return GstPtr<T>(element == nullptr ? nullptr : static_cast<T*>(gst_object_ref_sink(element)));
}

/// A bin of the elements that `description` tells in the language of gst-launch, its free ends
/// made pads of the bin. Throws MediaError, which names the package of an element that is missing.
GstPtr<GstElement> makeBin(const std::string& description);
/// A pipeline told in the same way. Throws as makeBin() does.
GstPtr<GstElement> makePipeline(const std::string& description);
/// One element. Throws as makeBin() does.
GstPtr<GstElement> makeElement(const char* factory, const char* name = nullptr);
/// The element `name` within `bin`. Throws MediaError when there is none.
GstPtr<GstElement> childOf(GstElement* bin, const char* name);
/// Puts `child` into `bin`, which holds a reference of its own from then on.
void addTo(GstElement* bin, GstElement* child);

/// Starts the library: some 30 ms, and half a second when it has to look at all of its plug-ins.
/// Throws MediaError. To be called before any other routine; again it does nothing.
void startGStreamer();

}  // namespace quorvel::media
