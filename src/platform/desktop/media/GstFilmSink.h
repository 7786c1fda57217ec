#pragma once

#include "platform/desktop/media/FrameBox.h"
#include "platform/desktop/media/GstHandles.h"

namespace orvanta {

/// The end of a film's pipeline: every picture goes into `frames` at the moment it is due, without a copy.
GstHandle<GstElement> MakeFilmSink(FrameBoxPtr frames);

/// The end of the picture branch of a pipeline that only sounds.
GstHandle<GstElement> MakeBlindSink();

}  // namespace orvanta
