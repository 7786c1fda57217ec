#pragma once

#include <optional>
#include <string>

#include "desktop/ChildProcess.h"
#include "desktop/ScratchFolder.h"

namespace orvanta {

/// A PulseAudio server of the test's own, which the whole process uses as long as this object lives.
class PulseServer {
 public:
  enum class Sinks { OneOfNull, DummyOnly };

  explicit PulseServer(Sinks sinks = Sinks::OneOfNull);
  ~PulseServer();
  /// The server that the process would use if it were not for this object is not there either.
  static constexpr const char* kSink = "heard";

  bool Answers() const;
  void Freeze() { process_->Signal(SIGSTOP); }
  void Thaw() { process_->Signal(SIGCONT); }
  /// The address stays, with nobody behind it.
  void Kill() { process_.reset(); }

 private:
  ScratchFolder folder_;
  std::string address_ = "unix:" + (folder_.path / "native").string();
  std::optional<ChildProcess> process_;
  std::optional<std::string> before_;
};

}  // namespace orvanta
