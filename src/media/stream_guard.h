/// The last look at what streams bring, for what no header of a file tells.
#pragma once

#include "media/gst_tools.h"
#include "media/pipeline.h"

namespace quorvel::media {

/// Watches all elements that come into `pipeline` from now on. A stream of larger pictures, more
/// channels or other rates than bounds.h allows goes no further than the element that found it, and
/// `report` is told why, from GStreamer's threads. `report` must outlive the pipeline's playing.
void guardStreams(GstElement* pipeline, const Pipeline::Report* report);

}  // namespace quorvel::media
