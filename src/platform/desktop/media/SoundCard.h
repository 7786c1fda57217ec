#pragma once

#include <chrono>

namespace orvanta {

/// Where sound can go on this machine.
enum class SoundOutput { None, Alsa, Pulse };

/// Longest time that `FindSoundOutput` takes, with a sound server that does not answer.
constexpr std::chrono::milliseconds kSoundCardPatience{400};

/// Looks for something that can be heard: a sink of the running PulseAudio or PipeWire server other than the
/// dummy it makes up for itself, or, where no server runs, a card that ALSA can play on. A server that does
/// not answer in time counts as none. Starts no server. Any thread may ask.
SoundOutput FindSoundOutput(std::chrono::milliseconds patience = kSoundCardPatience);

/// True if sound can be played.
inline bool IsSoundCardEnabled() { return FindSoundOutput() != SoundOutput::None; }

}  // namespace orvanta
