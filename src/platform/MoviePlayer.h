#pragma once

#include <filesystem>
#include <functional>

#include "platform/Picture.h"

namespace orvanta {

/// What a player is for: sound alone, or sound with a picture.
enum class MovieKind { Sound, Film };

/// What a player is doing. The numbers are the results of `ActiveMovie::CurrentState`.
enum class MovieState { NoFile = -1, Stopped = 0, Paused = 1, Running = 2 };

/// A player of sound or film, which the host provides and an `ActiveMovie` control uses.
///
/// All calls come from the program's one thread and report nothing: a call that cannot be carried out does
/// not change the state. Positions and lengths are in seconds.
///
/// If a file turns out to be damaged while it plays, or its sound server goes away, the player is `Stopped`
/// at the beginning, as after `Stop`; a paused player stays paused at its position. The file remains loaded:
/// `Pause` works as usual, and the next `Run` opens the file again.
class MoviePlayer {
 public:
  virtual ~MoviePlayer() = default;

  /// Loads `file` instead of the current one and plays it from the beginning. If it cannot be played, the
  /// state becomes `Stopped`, or stays `NoFile` if there was no file before.
  ///
  /// Does not wait for the file. The first call after it that needs the file (all but the volume, the play
  /// count and the frame) may wait until the first data is there, at most until 250 ms after `Open`.
  virtual void Open(const std::filesystem::path& file) = 0;
  /// Plays on from the current position; after the end, from the beginning.
  virtual void Run() = 0;
  /// Pauses a loaded file at its position.
  virtual void Pause() = 0;
  /// Stops; the file stays loaded.
  virtual void Stop() = 0;

  /// Becomes `Stopped` by itself at the end of the last repetition.
  virtual MovieState State() = 0;
  /// Whether the file is completely loaded. False after a failed `Open`; stays true if the file is lost
  /// later.
  virtual bool Loaded() = 0;
  virtual double Position() = 0;
  virtual void SetPosition(double seconds) = 0;
  /// The length of the file; 0 while it is not known. It may be an estimate that improves while the file
  /// plays.
  virtual double Length() = 0;
  /// In hundredths of a decibel, from -10000 (silent) to 0 (loudest).
  virtual int Volume() = 0;
  virtual void SetVolume(int hundredthsOfDecibel) = 0;
  /// How many times the file is played in all, at least 1. May be changed while the file plays.
  virtual void SetPlayCount(int count) = 0;

  /// The size of the film in square pixels once it is loaded; empty for sound.
  virtual Size FilmSize() = 0;
  /// The current picture of the film; null before the first one and for sound.
  virtual PicturePtr Frame() = 0;
  /// Called after `Frame` has changed, on the program's thread and while it takes in input. Must not throw.
  std::function<void()> OnFrame;
};

}  // namespace orvanta
