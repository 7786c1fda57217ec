#pragma once

#include "platform/desktop/media/GstHandles.h"
#include "platform/desktop/media/SoundCard.h"

namespace orvanta {

/// The end of a pipeline's sound, with a volume of its own: the one that the user sees in the system's mixer
/// is not touched.
class GstAudioSink {
 public:
  /// Sound that has nowhere to go, or whose plugin is missing, runs silently at its proper speed.
  explicit GstAudioSink(SoundOutput output);

  /// Null only if the basic plugins are not installed.
  GstElement* Element() const { return bin_.get(); }
  /// Hundredths of a decibel, -10000 (silent) to 0 (as recorded). Heard after what is already with the
  /// device, at most a tenth of a second.
  void SetVolume(int hundredthsOfDecibel);

 private:
  GstHandle<GstElement> bin_;
  GstHandle<GstElement> volume_;
};

}  // namespace orvanta
