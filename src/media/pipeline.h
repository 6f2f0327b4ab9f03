/// A running chain of GStreamer elements that says when it has ended.
#pragma once

#include <functional>
#include <string>

#include "media/gst_tools.h"

namespace quorvel::media {

/// Owns one pipeline. Except where it says otherwise, for one thread.
class Pipeline {
  public:
    /// How a play has ended: words for what went wrong, empty when all was played.
    using Report = std::function<void(const std::string& error)>;

    /// `report` is called from GStreamer's threads, perhaps more than once, and never after the
    /// pipeline has been destroyed.
    Pipeline(GstPtr<GstElement> element, Report report);
    Pipeline(const Pipeline&) = delete;
    Pipeline& operator=(const Pipeline&) = delete;
    /// Stops. Waits for GStreamer's threads, which a wedged sound device can make long.
    ~Pipeline();

    [[nodiscard]] GstElement* element() const { return element_.get(); }
    /// For others that watch the pipeline.
    [[nodiscard]] const Report& report() const { return report_; }
    /// Begins to play. A failure is reported, like a later one.
    void start();
    /// True once something has been played or shown.
    [[nodiscard]] bool isRunning() const;

    /// In seconds; below 0 when it is not known.
    [[nodiscard]] double position() const;
    [[nodiscard]] double duration() const;

  private:
    GstPtr<GstElement> element_;
    Report report_;
};

}  // namespace quorvel::media
