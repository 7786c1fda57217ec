#include <gtest/gtest.h>

#include "desktop/media/Hearing.h"
#include "platform/desktop/media/SoundCard.h"

namespace orvanta::test {

/// The answer, which must come within two and a half seconds.
static bool Asked() {
  const auto begin = std::chrono::steady_clock::now();
  const bool enabled = IsSoundCardEnabled();
  EXPECT_LE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(2500));
  return enabled;
}

TEST(SoundCard, IsFoundIfAServerAnswersWithASinkThatIsNotADummy) {
  EXPECT_FALSE((PulseServer("module-always-sink"), Asked()));
  PulseServer server;
  EXPECT_EQ(FindSoundOutput(), SoundOutput::Pulse);
  server.Freeze();
  EXPECT_FALSE(Asked());
  // A server that the question starts takes its time.
  std::thread start([&server] {
    std::this_thread::sleep_for(std::chrono::seconds(1));
    server.Thaw();
  });
  EXPECT_TRUE(Asked());
  start.join();
  server.Kill();
  // A card that can play has a device named pcmC<card>D<device>p (device nodes of ALSA).
  EXPECT_EQ(Asked(), std::system("ls /dev/snd 2>&1 | grep -q '^pcmC.*p$'") == 0);
}

}  // namespace orvanta::test
