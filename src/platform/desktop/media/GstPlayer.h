#pragma once

#include <memory>

#include "platform/MoviePlayer.h"

namespace orvanta {

/// A player based on GStreamer. A call blocks for at most 20 ms, except for the wait that `MoviePlayer::Open`
/// describes. Closing a file, which `Open` and the destructor do, blocks for up to a second if a drive or the
/// sound server hangs.
///
/// Belongs to the thread of the `QCoreApplication`, which must exist; `OnFrame` is called while that thread
/// handles its events.
std::unique_ptr<MoviePlayer> MakeGstPlayer(MovieKind kind);

}  // namespace orvanta
