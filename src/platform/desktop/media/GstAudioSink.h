#pragma once

#include "platform/desktop/media/GstHandles.h"
#include "platform/desktop/media/SoundCard.h"

namespace orvanta {

/// The sound output of a pipeline, with its own volume: the one that the user sees in the system's mixer is
/// not changed.
class GstAudioSink {
 public:
  /// If there is no output for the sound, or its plugin is missing, it runs silently at its normal speed.
  explicit GstAudioSink(SoundOutput output);

  /// Null only if the basic plugins are not installed.
  GstElement* Element() const { return bin_.get(); }
  /// In hundredths of a decibel, from -10000 (silent) to 0 (as recorded). Takes effect after the sound that
  /// the device already has, which is at most a tenth of a second.
  void SetVolume(int hundredthsOfDecibel);

 private:
  GstHandle<GstElement> bin_;
  GstHandle<GstElement> volume_;
};

}  // namespace orvanta
