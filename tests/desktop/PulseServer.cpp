#include "desktop/PulseServer.h"

#include <chrono>
#include <cstdlib>
#include <stdexcept>
#include <thread>

namespace orvanta {

PulseServer::PulseServer(Sinks sinks) {
  if (const char* before = std::getenv("PULSE_SERVER")) before_ = before;
  setenv("PULSE_SERVER", address_.c_str(), 1);
  setenv("PULSE_COOKIE", (folder_.path / "cookie").c_str(), 1);
  setenv("PULSE_RUNTIME_PATH", folder_.path.c_str(), 1);
  setenv("PULSE_STATE_PATH", folder_.path.c_str(), 1);
  // Without norewinds the null sink's clock stalls for seconds after a pause.
  const std::string sink = sinks == Sinks::DummyOnly
                               ? "module-always-sink"
                               : "module-null-sink norewinds=1 sink_name=" + std::string(kSink);
  process_.emplace(std::vector<std::string>{
      "pulseaudio", "-n", "--daemonize=no", "--use-pid-file=no", "--exit-idle-time=-1", "--realtime=no",
      "--high-priority=no", "--disable-shm=yes", "--log-level=error", "--log-target=file:/dev/null",
      "--load=module-native-protocol-unix auth-anonymous=1 auth-cookie-enabled=0 socket=" +
          address_.substr(5),
      "--load=" + sink});
  for (int tries = 0; tries < 200 && !Answers(); ++tries)
    std::this_thread::sleep_for(std::chrono::milliseconds(25));
  if (!Answers()) throw std::runtime_error("PulseAudio does not start; is it installed?");
}

PulseServer::~PulseServer() {
  if (before_)
    setenv("PULSE_SERVER", before_->c_str(), 1);
  else
    unsetenv("PULSE_SERVER");
}

bool PulseServer::Answers() const {
  return std::system("pactl list short sinks 2>&1 | grep -q '^[0-9]'") == 0;
}

}  // namespace orvanta
