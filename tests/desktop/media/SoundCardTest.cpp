#include <gtest/gtest.h>

#include "desktop/media/Hearing.h"
#include "platform/desktop/media/SoundCard.h"

namespace orvanta::test {

/// The answer, which must come within half a second.
static bool Asked() {
  const auto begin = std::chrono::steady_clock::now();
  const bool enabled = IsSoundCardEnabled();
  EXPECT_LE(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(500));
  return enabled;
}

TEST(SoundCard, IsThereWithASinkThatIsNoDummyOnAServerThatAnswers) {
  EXPECT_FALSE((PulseServer("module-always-sink"), Asked()));
  PulseServer server;
  EXPECT_EQ(FindSoundOutput(), SoundOutput::Pulse);
  server.Freeze();
  EXPECT_FALSE(Asked());
  server.Thaw();
  EXPECT_TRUE(Asked());
  server.Kill();
  // A card that can play has a device named pcmC<card>D<device>p (ALSA's device nodes).
  EXPECT_EQ(Asked(), std::system("ls /dev/snd 2>&1 | grep -q '^pcmC.*p$'") == 0);
}

}  // namespace orvanta::test
