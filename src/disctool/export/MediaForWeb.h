#pragma once

#include <atomic>
#include <filesystem>
#include <functional>
#include <string>

namespace orvanta {

/// How a sound or film comes to be played by every browser.
enum class WebMedia {
  AsItIs,  ///< MP3, WAV with plain samples, WebM
  Sound,   ///< becomes Opus in Ogg
  Film,    ///< becomes VP8 and Opus in WebM
  Neither  ///< cannot be played
};

/// Asks GStreamer, for five seconds at the longest. Any thread.
WebMedia WebMediaOf(const std::filesystem::path& file);

/// Converts a sound or a film. `target` comes into being whole or not at all. `done` is told the part that is
/// done, 0 to 1. Ends early when `stop` is set. Gives what went wrong, empty if nothing did. Any thread.
std::string ConvertForWeb(const std::filesystem::path& file, WebMedia as, const std::filesystem::path& target,
                          const std::function<void(double)>& done, const std::atomic<bool>& stop);

}  // namespace orvanta
