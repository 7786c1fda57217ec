// What the shell expects of every player: one table for the headless player and the one based on GStreamer.

#include <map>
#include <sstream>

#include "desktop/media/PlayerStory.h"
#include "platform/headless/HeadlessHost.h"
#include "support/TestDisc.h"

namespace orvanta::test {
namespace {

/// A player of sound. It is destroyed before what it needs.
struct Stage {
  std::function<void()> pass5Milliseconds, restartSoundServer;
  std::unique_ptr<MoviePlayer> player;
};

Stage Headless() {
  const auto host = std::make_shared<HeadlessHost>("");
  return {[host] { host->RunFor(5); }, [host] { host->RestartSoundServer(); },
          host->MakePlayer(MovieKind::Sound)};
}

Stage GStreamer() {
  const auto server = std::make_shared<PulseServer>();
  const auto pass = [application = std::make_shared<TestApplication>()] {
    QCoreApplication::processEvents();
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  };
  return {pass, [server] { server->Restart(); }, MakeGstPlayer(MovieKind::Sound)};
}

using enum MovieState;

/// What is done with a sound of two seconds, and the position of the player afterwards. A number lets the
/// sound play for so many seconds; `end` waits until the player has stopped.
struct Row {
  const char *name, *acts;
  MovieState state;
  double position;
};
void PrintTo(const Row& row, std::ostream* out) { *out << row.acts; }

constexpr Row kRows[] = {
    {"PlaysByItself", "open 0.5", Running, 0.5},
    {"Holds", "open 0.5 pause 0.3", Paused, 0.5},
    {"GoesOnFromWhereItWasHeld", "open 0.5 pause run 0.5", Running, 1},
    {"StopsAtTheBeginning", "open 0.5 stop 0.3", Stopped, 0},
    {"PlaysAgainFromTheBeginning", "open 1 stop run 0.5", Running, 0.5},
    {"MovesAsItPlays", "open 0.3 at1 0.5", Running, 1.5},
    {"MovesAsItIsHeld", "open 0.3 pause at1 0.3", Paused, 1},
    {"MovesAsItIsStopped", "open stop at1 run 0.5", Running, 1.5},
    {"StopsAtItsEnd", "open end", Stopped, 2},
    {"PlaysAgainAfterItsEnd", "open end run 0.5", Running, 0.5},
    {"Repeats", "open twice at1 1.5", Running, 0.5},
    {"StopsAtTheLastEnd", "open twice end", Stopped, 2},
    {"HasNoFileIfThereIsNone", "missing 0.3 run pause at1 stop", NoFile, 0},
    {"StopsWhenTheNextFileIsMissing", "open 0.5 pause missing 0.3 run", Stopped, 0},
    {"StopsWithoutItsSoundServer", "open 0.5 lose end", Stopped, 0},
    {"TakesAPauseThenAndBeginsAnew", "open 0.5 lose end pause run 0.5", Running, 0.5},
    {"StaysHeldWithoutItsSoundServer", "open 0.5 pause lose 0.3", Paused, 0.5},
    {"GoesOnWhenThatIsBack", "open 0.5 pause lose run 0.5", Running, 1},
    {"GoesOnAfterALaterPauseToo", "open 1.2 pause lose run 0.5", Running, 1.7},
    {"BeginsWhenThatIsBack", "open 0.5 stop lose run 0.5", Running, 0.5},
    {"StopsWhenTheFileIsGoneToo", "open 0.5 pause remove lose run end", Stopped, 0.5},
    {"TakesAPauseEvenThen", "open 0.5 pause remove lose run end pause 0.3", Paused, 0.5},
};

struct PlayerContract : testing::TestWithParam<std::tuple<Stage (*)(), Row>> {
  const Row row = std::get<1>(GetParam());
  const Stage stage = std::get<0>(GetParam())();
  MoviePlayer& player = *stage.player;
  TestDisc disc;

  void Act(const std::string& act) {
    const auto file = disc.Data() / "Sound/a.wav";
    const std::map<std::string, std::function<void()>> acts{
        {"open", [&] { player.Open(file); }},
        {"missing", [&] { player.Open(disc.Folder() / "missing.wav"); }},
        {"run", [&] { player.Run(); }},
        {"pause", [&] { player.Pause(); }},
        {"stop", [&] { player.Stop(); }},
        {"at1", [&] { player.SetPosition(1); }},
        {"twice", [&] { player.SetPlayCount(2); }},
        {"lose", [&] { stage.restartSoundServer(); }},
        {"remove", [&] { std::filesystem::remove(file); }},
        {"end", [&] { Await(Stopped); }}};
    const auto found = acts.find(act);
    found == acts.end() ? Play(std::stod(act)) : found->second();
  }
  void Play(double seconds) {
    const double most = player.State() == Running ? 10 * seconds : seconds;
    double played = 0, before = player.Position();
    for (int i = 0; i < 200 * most && played < seconds; ++i) {
      stage.pass5Milliseconds();
      const double now = player.Position();
      played += now >= before ? now - before : now - before + player.Length();
      before = now;
    }
  }
  void Await(MovieState state) const {
    for (int i = 0; i < 2000 && player.State() != state; ++i) stage.pass5Milliseconds();
    EXPECT_EQ(player.State(), state);
  }
};

TEST_P(PlayerContract, Holds) {
  disc.Sound("a.wav", 2);
  std::istringstream acts(row.acts);
  for (std::string act; acts >> act;) Act(act);
  Await(row.state);
  EXPECT_NEAR(player.Position(), row.position, 0.2);
  EXPECT_EQ(player.Loaded(), std::string(row.acts).find("missing") == std::string::npos);
}

constexpr auto kNameOf = [](const auto& row) { return std::get<1>(row.param).name; };
INSTANTIATE_TEST_SUITE_P(Headless, PlayerContract,
                         testing::Combine(testing::Values(Headless), testing::ValuesIn(kRows)), kNameOf);
INSTANTIATE_TEST_SUITE_P(GStreamer, PlayerContract,
                         testing::Combine(testing::Values(GStreamer), testing::ValuesIn(kRows)), kNameOf);

}  // namespace
}  // namespace orvanta::test
