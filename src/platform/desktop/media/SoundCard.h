#pragma once

#include <chrono>

namespace orvanta {

/// Where sound can go on this machine.
enum class SoundOutput { None, Alsa, Pulse };

/// The longest time that `FindSoundOutput` waits for a sound server that does not answer. One that the first
/// connection starts needs more than a second on a slow machine.
constexpr std::chrono::milliseconds kSoundCardTimeout{2000};

/// Looks for a real output: a sink of the PulseAudio or PipeWire server other than its own dummy, or, where
/// no server runs, a card that ALSA can play on. A server that does not answer in time has no output. Starts
/// no server. Any thread may ask.
SoundOutput FindSoundOutput(std::chrono::milliseconds timeout = kSoundCardTimeout);

/// Whether sound can be played.
inline bool IsSoundCardEnabled() { return FindSoundOutput() != SoundOutput::None; }

}  // namespace orvanta
