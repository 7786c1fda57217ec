#pragma once

#include <memory>

#include "platform/MoviePlayer.h"

namespace orvanta {

/// A player on GStreamer. A call holds the program up for at most 20 ms, `Open` for a quarter of a second,
/// and letting go of a file for a second where a drive or the sound server hangs.
///
/// Belongs to the thread of the `QCoreApplication`, which must exist; `OnFrame` is called while it handles
/// its events.
std::unique_ptr<MoviePlayer> MakeGstPlayer(MovieKind kind);

}  // namespace orvanta
