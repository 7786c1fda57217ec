#pragma once

#include "platform/desktop/media/FrameMailbox.h"
#include "platform/desktop/media/GstHandles.h"

namespace orvanta {

/// The end of a film's pipeline: every picture goes into `frames` at the moment it is due, without a copy.
GstHandle<GstElement> MakeFilmSink(FrameMailboxPtr frames);

/// Takes buffers at the moment they are due and discards them.
GstHandle<GstElement> MakeNullSink();

}  // namespace orvanta
