#pragma once

#include "platform/desktop/media/FrameMailbox.h"
#include "platform/desktop/media/GstHandles.h"

namespace orvanta {

/// The sink for the pictures of a film: each goes into `frames` when it is due, without being copied.
GstHandle<GstElement> MakeFilmSink(FrameMailboxPtr frames);

/// Takes buffers at the moment they are due and discards them.
GstHandle<GstElement> MakeNullSink();

}  // namespace orvanta
