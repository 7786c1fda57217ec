// Failures of files, drives and sound servers.

#include <fcntl.h>
#include <sys/stat.h>

#include "desktop/media/PlayerStory.h"

namespace orvanta::test {

struct GstPlayerFailure : PlayerStory {
  MediaFiles::Path File(const std::string& name, const std::string& bytes) const {
    return files.folder.File(name, bytes);
  }
};

TEST_F(GstPlayerFailure, FilesThatCannotBePlayedLeaveItAsItWas) {
  const std::string sound = ContentOf(files.Sound("whole.wav", {600}));
  const auto whole = files.Film("whole.mp4", {600}, "-c:v mpeg4 -c:a aac");
  for (const MovieState expected : {MovieState::NoFile, MovieState::Stopped}) {
    for (const auto& file : {files.folder.Path() / "missing.wav", files.folder.Path(), File("empty.wav", ""),
                             File("noise.avi", ContentOf("/proc/self/exe").substr(99, 50'000)),
                             File("text.mid", "Sing, o goddess"), File("head.wav", sound.substr(0, 30)),
                             File("cut.mp4", ContentOf(whole).substr(0, file_size(whole) / 2))}) {
      film->Open(file);
      ASSERT_TRUE(Until(3, [&] { return film->State() == expected; })) << file;
      EXPECT_LE(Cost([&] { film->Run(), film->Pause(), film->SetPosition(1), film->Stop(); }), 20);
      EXPECT_TRUE(film->State() == expected && !film->Loaded() && film->Length() == 0) << file;
    }
    film->Open(whole);
    ASSERT_TRUE(Until(2, [&] { return film->Loaded(); }));
  }
  music->SetPlayCount(99999);
  music->Open(File("head.wav", sound.substr(0, 44)));
  EXPECT_TRUE(UntilStopped(*music, 1)) << "an empty loop should end instead of spinning";
}

TEST_F(GstPlayerFailure, AFileThatIsGoneInMidPlayEndsWithoutAHang) {
  const auto file = files.Film("a.avi", Tones(8, 600), "-c:v rawvideo -c:a pcm_u8");
  film->Open(file);
  ASSERT_TRUE(Until(2, [&] { return film->Position() > 0.2; }));
  std::filesystem::resize_file(file, 100'000);
  ASSERT_TRUE(UntilStopped(*film, 5));
  std::filesystem::remove(file);
  film->Stop();
  film->Run();
  EXPECT_TRUE(UntilStopped(*film, 2)) << "and cannot be played again";
}

// Opening a pipe that nobody writes into blocks, as does a drive whose disc does not turn.
TEST_F(GstPlayerFailure, ADriveThatHangsDoesNotHoldUpTheProgram) {
  const auto stuck = files.folder.Path() / "stuck.wav", next = files.Sound("a.wav", {600});
  ASSERT_EQ(mkfifo(stuck.c_str(), 0600), 0);
  EXPECT_LE(Cost([&] { music->Open(stuck), music->State(); }), 300) << "the first question may wait";
  EXPECT_FALSE(music->Loaded());
  EXPECT_LE(Cost([&] { music->Pause(), music->SetPosition(0), music->Run(), music->State(); }), 20);
  EXPECT_LE(Cost([&] { music->Open(next); }), 2000);
  EXPECT_TRUE(UntilStopped(*music, 3)) << "the next file plays";
  EXPECT_TRUE(music->Loaded());
  // Releases the hanging thread.
  const int writer = open(stuck.c_str(), O_WRONLY | O_NONBLOCK);
  EXPECT_GE(writer, 0);
  close(writer);
  Wait(0.2);
}

TEST_F(GstPlayerFailure, ASoundServerThatFreezesOrDiesDoesNotHoldUpTheProgram) {
  const auto file = files.Sound("a.wav", Tones(20, 600)), end = files.Sound("b.wav", {600});
  music->Open(file);
  Wait(0.3);
  server.Freeze();
  EXPECT_LE(Cost([&] { music->Pause(), music->Position(), music->Run(), music->Stop(); }), 60);
  EXPECT_EQ(music->State(), MovieState::Stopped);
  EXPECT_LE(Cost([&] { music.reset(); }), 2000);
  music = MakeGstPlayer(MovieKind::Sound);
  EXPECT_LE(Cost([&] { music->Open(end); }), 300);
  EXPECT_TRUE(UntilStopped(*music, 4)) << "silently";
  server.Thaw();
  Wait(0.5);
  music->Open(file);
  Wait(0.3);
  server.Kill();
  EXPECT_TRUE(UntilStopped(*music, 2));
  music->Run();
  EXPECT_TRUE(Until(2, [&] { return music->Position() > 0.1; })) << "silently, from the beginning";
  server.Restart();
  const Recording after;
  music->Pause();
  music->Run();
  EXPECT_TRUE(Until(3, [&] { return after.Peak(0) > 0.2; })) << "silent though there is a server again";
}

}  // namespace orvanta::test
