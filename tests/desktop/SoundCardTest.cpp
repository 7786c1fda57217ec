#include <gtest/gtest.h>

#include <filesystem>

#include "desktop/PulseServer.h"
#include "platform/desktop/SoundCard.h"

namespace orvanta {
namespace {

/// The answer, which must come within half a second.
bool Asked() {
  const auto begin = std::chrono::steady_clock::now();
  const bool enabled = IsSoundCardEnabled();
  EXPECT_LE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
  return enabled;
}

TEST(SoundCard, IsThereWithASinkThatIsNoDummy) {
  const PulseServer server;
  EXPECT_EQ(FindSoundOutput(), SoundOutput::Pulse);
  EXPECT_TRUE(Asked());
}

TEST(SoundCard, IsNotThereWhereTheServerHasOnlyItsDummy) {
  const PulseServer server(PulseServer::Sinks::DummyOnly);
  EXPECT_FALSE(Asked());
}

TEST(SoundCard, IsNotThereWhileTheServerIsFrozenAndIsBackAfterwards) {
  PulseServer server;
  server.Freeze();
  EXPECT_FALSE(Asked());
  server.Thaw();
  EXPECT_TRUE(Asked());
}

TEST(SoundCard, IsAskedOfAlsaWhereNoServerRuns) {
  PulseServer server;
  server.Kill();
  // A card that can play has a device named pcmC<card>D<device>p (ALSA's device nodes).
  bool playback = false;
  std::error_code none;
  for (const auto& device : std::filesystem::directory_iterator("/dev/snd", none)) {
    const std::string name = device.path().filename();
    playback |= name.starts_with("pcmC") && name.ends_with("p");
  }
  EXPECT_EQ(Asked(), playback);
}

}  // namespace
}  // namespace orvanta
