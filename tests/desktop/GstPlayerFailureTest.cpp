#include <fcntl.h>
#include <gst/gst.h>
#include <sys/stat.h>

#include <random>

#include "desktop/PlayerStory.h"

namespace orvanta {
namespace {

/// Makes GStreamer forget a decoder for a while.
class WithoutDecoder {
 public:
  explicit WithoutDecoder(const char* name) {
    gst_init(nullptr, nullptr);
    feature_ = gst_registry_lookup_feature(gst_registry_get(), name);
    if (!feature_) return;
    rank_ = gst_plugin_feature_get_rank(feature_);
    gst_plugin_feature_set_rank(feature_, GST_RANK_NONE);
  }
  ~WithoutDecoder() {
    if (!feature_) return;
    gst_plugin_feature_set_rank(feature_, rank_);
    gst_object_unref(feature_);
  }
  WithoutDecoder(const WithoutDecoder&) = delete;
  WithoutDecoder& operator=(const WithoutDecoder&) = delete;

 private:
  GstPluginFeature* feature_ = nullptr;
  guint rank_ = 0;
};

class GstPlayerFailure : public PlayerStory {
 protected:
  static std::string Noise(std::size_t bytes) {
    std::mt19937 draw(1);
    std::string noise(bytes, '\0');
    for (char& byte : noise) byte = static_cast<char>(draw());
    return noise;
  }
  /// Nothing is loaded, and no call changes that or takes time.
  static void ExpectDead(MoviePlayer& player, MovieState state) {
    EXPECT_LE(Cost([&player] {
                player.Run();
                player.Pause();
                player.SetPosition(1);
                player.Stop();
              }),
              20);
    EXPECT_EQ(player.State(), state);
    EXPECT_FALSE(player.Loaded());
    EXPECT_EQ(player.Position(), 0);
    EXPECT_EQ(player.Length(), 0);
  }

  std::unique_ptr<MoviePlayer> film = MakeGstPlayer(MovieKind::Film);
};

TEST_F(GstPlayerFailure, FilesThatCannotBePlayedLeaveItAsItWas) {
  const std::string sound = ScratchFolder::contentOf(files.Wave("whole.wav", {600}));
  const std::string mp4 = ScratchFolder::contentOf(files.Film("whole.mp4", "-c:v mpeg4 -c:a aac", {600}));
  const std::vector<std::filesystem::path> bad = {
      files.folder.path / "missing.wav",
      files.folder.path,
      {},
      files.folder.file("empty.wav", ""),
      files.folder.file("noise.avi", Noise(50'000)),
      files.folder.file("text.mid", "Sing, o goddess"),
      files.folder.file("head.wav", sound.substr(0, 30)),
      files.folder.file("cut.mp4", mp4.substr(0, mp4.size() / 2)),
  };
  for (const MovieState expected : {MovieState::NoFile, MovieState::Stopped}) {
    for (const auto& file : bad) {
      SCOPED_TRACE(file);
      film->Open(file);
      ASSERT_TRUE(Until(3, [&] { return film->State() == expected; }));
      ExpectDead(*film, expected);
    }
    film->Open(files.folder.path / "whole.mp4");
    ASSERT_TRUE(Until(2, [this] { return film->Loaded(); }));
  }
}

TEST_F(GstPlayerFailure, AFilmThatIsCutShortEndsWhereItIsCut) {
  const std::string whole =
      ScratchFolder::contentOf(files.Film("whole.mpg", "-c:v mpeg1video -b:v 2M -c:a mp2", {600, 600}));
  film->Open(files.folder.file("cut.mpg", whole.substr(0, whole.size() / 2)));
  ASSERT_TRUE(UntilStopped(*film, 3));
  EXPECT_TRUE(film->Loaded());
}

TEST_F(GstPlayerFailure, ALoopOfNothingEndsInsteadOfSpinning) {
  const std::string sound = ScratchFolder::contentOf(files.Wave("whole.wav", {600}));
  music->SetPlayCount(99999);
  music->Open(files.folder.file("head.wav", sound.substr(0, 44)));
  EXPECT_TRUE(UntilStopped(*music, 1));
}

TEST_F(GstPlayerFailure, AFileThatIsGoneInMidPlayEndsWithoutAHang) {
  const auto file = files.Film("a.avi", "-c:v rawvideo -c:a pcm_u8", MediaFiles::Tones(8, 600));
  film->Open(file);
  Wait(0.3);
  ASSERT_EQ(film->State(), MovieState::Running);
  std::filesystem::resize_file(file, 100'000);
  ASSERT_TRUE(UntilStopped(*film, 5));
  std::filesystem::remove(file);
  film->Stop();
  film->Run();
  EXPECT_TRUE(UntilStopped(*film, 2)) << "and cannot be played again";
}

TEST_F(GstPlayerFailure, AFormatWithoutItsDecoderIsAnUnknownType) {
  const auto silent = files.Film("a.avi", "-c:v cinepak -c:a pcm_u8", {600});
  {
    const WithoutDecoder gone("avdec_cinepak");
    film->Open(silent);
    EXPECT_TRUE(Until(2, [this] { return film->State() == MovieState::NoFile; }));
    EXPECT_FALSE(film->Loaded());
  }
  film->Open(silent);
  EXPECT_TRUE(Until(2, [this] { return film->Loaded(); }));
}

// A pipe into which nobody writes holds up whoever opens it, as a drive does whose disc will not turn.
TEST_F(GstPlayerFailure, ADriveThatHangsDoesNotHoldUpTheProgram) {
  const auto stuck = files.folder.path / "stuck.wav";
  ASSERT_EQ(mkfifo(stuck.c_str(), 0600), 0);
  EXPECT_LE(Cost([&] { music->Open(stuck); }), 300);
  EXPECT_FALSE(music->Loaded());
  EXPECT_LE(Cost([&] {
              music->SetVolume(-100);
              music->Pause();
              music->SetPosition(0);
              music->Run();
              music->State();
              music->Position();
              music->Length();
            }),
            20);
  EXPECT_LE(Cost([&] { music->Open(files.Wave("a.wav", {600})); }), 2000);
  EXPECT_TRUE(UntilStopped(*music, 3)) << "the next file plays";
  EXPECT_TRUE(music->Loaded());
  EXPECT_LE(Cost([&] { music.reset(); }), 100);
  // Lets the hanging thread go.
  const int writer = open(stuck.c_str(), O_WRONLY | O_NONBLOCK);
  EXPECT_GE(writer, 0);
  close(writer);
  Wait(0.2);
}

TEST_F(GstPlayerFailure, ASoundServerThatFreezesDoesNotHoldUpTheProgram) {
  music->Open(files.Wave("a.wav", MediaFiles::Tones(20, 600)));
  Wait(0.3);
  server.Freeze();
  const double orders = Cost([this] {
    music->SetVolume(-100);
    music->Pause();
    music->Position();
    music->Run();
    music->Position();
    music->Stop();
  });
  EXPECT_LE(orders, 60);
  EXPECT_EQ(music->State(), MovieState::Stopped);
  EXPECT_LE(Cost([this] { music.reset(); }), 2000);
  const auto other = MakeGstPlayer(MovieKind::Sound);
  EXPECT_LE(Cost([&] { other->Open(files.Wave("b.wav", {600})); }), 300);
  EXPECT_TRUE(UntilStopped(*other, 4)) << "silently";
  server.Thaw();
  Wait(0.5);
}

TEST_F(GstPlayerFailure, ASoundServerThatDiesEndsTheMusic) {
  const auto file = files.Wave("a.wav", MediaFiles::Tones(20, 600));
  music->Open(file);
  Wait(0.3);
  server.Kill();
  EXPECT_TRUE(UntilStopped(*music, 2));
  music->Run();
  EXPECT_TRUE(Until(2, [this] { return music->Position() > 0.1; })) << "silently, from the beginning";
}

}  // namespace
}  // namespace orvanta
