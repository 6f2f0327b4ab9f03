/// The last stretch of everything that is heard: pan, volume, and the device.
#pragma once

#include <string>

#include "media/gst_tools.h"

namespace quorvel::media {

/// A bin with one pad for sound of any format. Pan and volume lie right before the device, behind
/// all queues, so that a change is heard at once. They may be set from every thread.
class AudioTail {
  public:
    /// `sink` is a description in the language of gst-launch. When its device can't be opened the
    /// tail ends in silence that takes as long as the sound would.
    explicit AudioTail(const std::string& sink);
    AudioTail(const AudioTail&) = delete;
    AudioTail& operator=(const AudioTail&) = delete;
    /// Closes the device. A pipeline that has the bin goes first.
    ~AudioTail();

    /// The bin. Whoever adds it to a pipeline shares it.
    [[nodiscard]] GstElement* bin() const { return bin_.get(); }

    void setAmplitude(double factor);
    void setPan(int pan);

  private:
    GstPtr<GstElement> bin_;
    GstPtr<GstElement> device_;
    GstPtr<GstElement> panorama_;
    GstPtr<GstElement> volume_;
};

}  // namespace quorvel::media
