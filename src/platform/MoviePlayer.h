#pragma once

#include <filesystem>
#include <functional>

#include "platform/Picture.h"

namespace orvanta {

/// What a player is for: sound alone, or sound and picture.
enum class MovieKind { Sound, Film };

/// What a player is doing. The numbers are those that `ActiveMovie::CurrentState` gives.
enum class MovieState { NoFile = -1, Stopped = 0, Paused = 1, Running = 2 };

/// One player of sound or film, given by the host and driven by an `ActiveMovie` control.
///
/// All calls come from the program's one thread and report nothing: a call that cannot be carried out leaves
/// the state as it was. Positions and lengths are in seconds.
///
/// A file that breaks half-way, or loses the sound server that it plays on, is `Stopped` at its beginning
/// like one that was stopped; one that is paused then stays paused where it stands. It remains loaded:
/// `Pause` is taken as ever, and the next `Run` opens it anew.
class MoviePlayer {
 public:
  virtual ~MoviePlayer() = default;

  /// Loads `file` in place of what was loaded and plays it from its beginning. A file that cannot be played
  /// leaves `NoFile` if there was none before, else `Stopped`.
  virtual void Open(const std::filesystem::path& file) = 0;
  /// Plays on from the present position, from the beginning after the end.
  virtual void Run() = 0;
  /// Holds the position of a loaded file.
  virtual void Pause() = 0;
  /// Stops; the file stays loaded.
  virtual void Stop() = 0;

  /// Falls to `Stopped` by itself at the end of the last repetition.
  virtual MovieState State() = 0;
  /// The file is completely loaded and can be relied on. False after a failed `Open`; stays true when the
  /// file is lost later on.
  virtual bool Loaded() = 0;
  virtual double Position() = 0;
  virtual void SetPosition(double seconds) = 0;
  /// Length of the file, 0 while it is unknown.
  virtual double Length() = 0;
  /// Hundredths of a decibel, -10000 (silent) to 0 (loudest).
  virtual int Volume() = 0;
  virtual void SetVolume(int hundredthsOfDecibel) = 0;
  /// How many times the file is played in all, at least 1. May be set while the file plays.
  virtual void SetPlayCount(int count) = 0;

  /// Size of the film in square pixels once it is loaded; empty for sound.
  virtual Size FilmSize() = 0;
  /// The film's present picture, null before the first one and for sound.
  virtual PicturePtr Frame() = 0;
  /// Called on the program's thread, while it takes in input, after `Frame` has changed. Must not throw.
  std::function<void()> OnFrame;
};

}  // namespace orvanta
